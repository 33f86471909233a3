#include "adapters/qt/bindings/ComboBoxBinding.h"

#include <QComboBox>
#include <QLineEdit>

#include "adapters/qt/Text.h"

namespace corvane::qt {
namespace {

constexpr int LongestList = 16;

}  // namespace

// Without a completer: it would put more into the box than was typed.
ComboBoxBinding::ComboBoxBinding(FormView& view, ui::ComboBox& control, QComboBox* box)
    : Binding(view, control, box), control_(control), box_(box) {
  box->setEditable(control.Editable);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setMaxVisibleItems(LongestList);
  if (control.Editable) {
    box->setCompleter(nullptr);
    connect(box->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { Typed(text); });
  }
  connect(box, &QComboBox::activated, this, [this](int index) { Chosen(index); });
}

void ComboBoxBinding::Update() {
  UpdateItems();
  if (box_->currentIndex() != control_.ListIndex()) box_->setCurrentIndex(control_.ListIndex());
  UpdateText();
}

// Entries that only follow what is shown already are added, so that an open list stays where it is.
void ComboBoxBinding::UpdateItems() {
  if (revision_ == control_.Revision()) return;
  revision_ = control_.Revision();
  int same = 0;
  while (same < box_->count() && same < control_.Count() && box_->itemText(same) == ToQt(control_[same])) ++same;
  while (box_->count() > same) box_->removeItem(box_->count() - 1);
  QStringList added;
  for (int i = same; i < control_.Count(); ++i) added << ToQt(control_[i]);
  box_->addItems(added);
}

void ComboBoxBinding::UpdateText() {
  if (!control_.Editable) return;
  if (const QString text = ToQt(control_.Text()); box_->currentText() != text) box_->setEditText(text);
}

void ComboBoxBinding::Chosen(int index) {
  if (!IsUsers() || index < 0 || index >= control_.Count()) return;
  control_.SetListIndex(index);
  Fire(control_.Click);
}

void ComboBoxBinding::Typed(const QString& text) {
  if (!IsUsers()) return;
  control_.SetText(FromQt(text));
  Fire(control_.Change);
}

}  // namespace corvane::qt
