#pragma once

#include <string>
#include <vector>

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QLabel;
class QStatusBar;

namespace corvane::qt {

class StatusBarBinding : public Binding {
 public:
  StatusBarBinding(FormView& view, ui::StatusBar& control);

 protected:
  void Update() override;

 private:
  struct Panel {
    QWidget* Box;
    QLabel* Picture;
    QLabel* Text;
    std::string Shown;
  };

  void AddPanel(const ui::StatusPanel& model, bool first);
  static void UpdatePanel(Panel& panel, const ui::StatusPanel& model);

  ui::StatusBar& control_;
  QStatusBar* bar_;
  std::vector<Panel> panels_;
};

}  // namespace corvane::qt
