#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QPushButton;

namespace corvane::qt {

class ButtonBinding : public Binding {
 public:
  ButtonBinding(FormView& view, ui::CommandButton& control, QPushButton* button);

 protected:
  void Update() override;

 private:
  ui::CommandButton& control_;
  QPushButton* button_;
};

}  // namespace corvane::qt
