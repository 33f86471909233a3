#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/ListControls.h"

class QListWidget;

namespace corvane::qt {

class ListBoxBinding : public Binding {
 public:
  ListBoxBinding(FormView& view, ui::ListBox& control, QListWidget* list);

 protected:
  void Update() override;

 private:
  ui::ListBox& control_;
  QListWidget* list_;
  unsigned revision_ = 0;
};

}  // namespace corvane::qt
