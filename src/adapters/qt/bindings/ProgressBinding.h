#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QProgressBar;

namespace corvane::qt {

class ProgressBinding : public Binding {
 public:
  ProgressBinding(FormView& view, ui::ProgressBar& control, QProgressBar* bar);

 protected:
  void Update() override;

 private:
  ui::ProgressBar& control_;
  QProgressBar* bar_;
};

}  // namespace corvane::qt
