#include "adapters/qt/bindings/LabelBinding.h"

#include <QLabel>

#include "adapters/qt/Text.h"

namespace corvane::qt {

LabelBinding::LabelBinding(FormView& view, ui::Label& control, QLabel* label)
    : Binding(view, control, label), control_(control), label_(label) {
  label->setTextFormat(Qt::PlainText);
}

void LabelBinding::Update() {
  QString caption = ToQt(control_.Caption);
  if (label_->buddy() == nullptr) caption.replace("&&", "&");
  if (label_->text() != caption) label_->setText(caption);
}

}  // namespace corvane::qt
