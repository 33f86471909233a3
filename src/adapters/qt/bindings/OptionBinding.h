#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QRadioButton;

namespace corvane::qt {

class OptionBinding : public Binding {
 public:
  OptionBinding(FormView& view, ui::OptionButton& control, QRadioButton* button);

 protected:
  void Update() override;

 private:
  void Choose();

  ui::OptionButton& control_;
  QRadioButton* button_;
};

}  // namespace corvane::qt
