#pragma once

#include <string>

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"

class QLabel;

namespace corvane::qt {

/// A picture, as large as its label's smallest size says, else as it was drawn.
class ImageBinding : public Binding {
 public:
  ImageBinding(FormView& view, ui::Image& control, QLabel* label);

 protected:
  void Update() override;
  bool Filter(QEvent& event) override;

 private:
  ui::Image& control_;
  QLabel* label_;
  std::string shown_;
};

}  // namespace corvane::qt
