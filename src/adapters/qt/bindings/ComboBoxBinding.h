#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/ListControls.h"

class QComboBox;

namespace corvane::qt {

class ComboBoxBinding : public Binding {
 public:
  ComboBoxBinding(FormView& view, ui::ComboBox& control, QComboBox* box);

 protected:
  void Update() override;

 private:
  void UpdateItems();
  void UpdateText();
  void Chosen(int index);
  void Typed(const QString& text);

  ui::ComboBox& control_;
  QComboBox* box_;
  unsigned revision_ = 0;
};

}  // namespace corvane::qt
