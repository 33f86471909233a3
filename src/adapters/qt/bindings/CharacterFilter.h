#pragma once

#include <QValidator>

#include "platform/ui/SimpleControls.h"

namespace corvane::qt {

/// Takes the characters that a text box refuses out of what is typed, pasted or dropped. What stands in the box already
/// is left alone.
class CharacterFilter : public QValidator {
 public:
  CharacterFilter(const ui::TextBox& control, QObject* parent) : QValidator(parent), control_(control) {}

  State validate(QString& input, int& cursor) const override;

 private:
  const ui::TextBox& control_;
};

}  // namespace corvane::qt
