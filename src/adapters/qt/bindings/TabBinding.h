#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QTabWidget;

namespace corvane::qt {

class TabBinding : public Binding {
 public:
  TabBinding(FormView& view, ui::TabControl& control, QTabWidget* tabs);

 protected:
  void Update() override;

 private:
  ui::TabControl& control_;
  QTabWidget* tabs_;
};

}  // namespace corvane::qt
