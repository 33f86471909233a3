#pragma once

#include <string>
#include <vector>

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/Commands.h"

class QAction;
class QToolBar;
class QToolButton;

namespace corvane::qt {

class ToolbarBinding : public Binding {
 public:
  ToolbarBinding(FormView& view, ui::Toolbar& control);

 protected:
  void Update() override;

 private:
  void Build();
  void Pressed(const std::string& key);
  void AddMenu(QToolButton& widget, const ui::ToolButton& button);

  ui::Toolbar& control_;
  QToolBar* bar_;
  std::vector<QAction*> actions_;
};

}  // namespace corvane::qt
