#include "adapters/qt/bindings/OptionBinding.h"

#include <QRadioButton>

#include "adapters/qt/Text.h"
#include "platform/ui/Form.h"

namespace corvane::qt {

// The arrow keys choose as a click does, but only a toggle tells of them.
OptionBinding::OptionBinding(FormView& view, ui::OptionButton& control, QRadioButton* button)
    : Binding(view, control, button), control_(control), button_(button) {
  connect(button, &QRadioButton::toggled, this, [this](bool on) {
    if (!on || !IsUsers()) return;
    Choose();
    Fire(control_.Click);
  });
}

void OptionBinding::Choose() {
  for (ui::Control* control : control_.Parent().Controls())
    if (control->Kind() == ui::ControlKind::OptionButton && control->Name() == control_.Name())
      static_cast<ui::OptionButton*>(control)->Value = control == &control_;
}

// A group of the toolkit always has one button on, unless that one leaves the group for a moment.
void OptionBinding::Update() {
  if (const QString caption = ToQt(control_.Caption); button_->text() != caption) button_->setText(caption);
  if (button_->isChecked() == control_.Value) return;
  button_->setAutoExclusive(control_.Value);
  button_->setChecked(control_.Value);
  button_->setAutoExclusive(true);
}

}  // namespace corvane::qt
