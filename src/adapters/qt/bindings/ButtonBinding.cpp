#include "adapters/qt/bindings/ButtonBinding.h"

#include <QPushButton>

#include "adapters/qt/Text.h"

namespace corvane::qt {

// The form itself decides what Enter presses, so no button makes itself the default one.
ButtonBinding::ButtonBinding(FormView& view, ui::CommandButton& control, QPushButton* button)
    : Binding(view, control, button), control_(control), button_(button) {
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this] { Fire(control_.Click); });
}

void ButtonBinding::Update() {
  if (const QString caption = ToQt(control_.Caption); button_->text() != caption) button_->setText(caption);
  if (button_->isDefault() != control_.Default) button_->setDefault(control_.Default);
}

}  // namespace corvane::qt
