#pragma once

#include <string>

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QLabel;

namespace corvane::qt {

/// A caption. Its mnemonic is read only where the label has a buddy.
class LabelBinding : public Binding {
 public:
  LabelBinding(FormView& view, ui::Label& control, QLabel* label);

 protected:
  void Update() override;

 private:
  ui::Label& control_;
  QLabel* label_;
};

}  // namespace corvane::qt
