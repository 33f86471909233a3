#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QGroupBox;

namespace corvane::qt {

class FrameBinding : public Binding {
 public:
  FrameBinding(FormView& view, ui::Frame& control, QGroupBox* frame);

 protected:
  void Update() override;

 private:
  ui::Frame& control_;
  QGroupBox* frame_;
};

}  // namespace corvane::qt
