#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QCheckBox;

namespace corvane::qt {

class CheckBinding : public Binding {
 public:
  CheckBinding(FormView& view, ui::CheckBox& control, QCheckBox* box);

 protected:
  void Update() override;

 private:
  ui::CheckBox& control_;
  QCheckBox* box_;
};

}  // namespace corvane::qt
