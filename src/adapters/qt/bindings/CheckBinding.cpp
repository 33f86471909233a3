#include "adapters/qt/bindings/CheckBinding.h"

#include <QCheckBox>

#include "adapters/qt/Text.h"

namespace corvane::qt {

CheckBinding::CheckBinding(FormView& view, ui::CheckBox& control, QCheckBox* box)
    : Binding(view, control, box), control_(control), box_(box) {
  connect(box, &QCheckBox::clicked, this, [this](bool on) {
    if (IsUsers()) control_.Value = on;
    Fire(control_.Click);
  });
}

void CheckBinding::Update() {
  if (const QString caption = ToQt(control_.Caption); box_->text() != caption) box_->setText(caption);
  if (box_->isChecked() != control_.Value) box_->setChecked(control_.Value);
}

}  // namespace corvane::qt
