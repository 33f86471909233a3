#include "adapters/qt/bindings/ListBoxBinding.h"

#include <QListWidget>

#include "adapters/qt/Text.h"

namespace corvane::qt {

ListBoxBinding::ListBoxBinding(FormView& view, ui::ListBox& control, QListWidget* list)
    : Binding(view, control, list), control_(control), list_(list) {}

void ListBoxBinding::Update() {
  if (revision_ == control_.Revision()) return;
  revision_ = control_.Revision();
  int same = 0;
  while (same < list_->count() && same < control_.Count() && list_->item(same)->text() == ToQt(control_[same])) ++same;
  while (list_->count() > same) delete list_->takeItem(list_->count() - 1);
  for (int i = same; i < control_.Count(); ++i) list_->addItem(ToQt(control_[i]));
}

}  // namespace corvane::qt
