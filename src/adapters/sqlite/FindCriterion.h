#pragma once

#include <string>
#include <string_view>

#include "platform/data/Value.h"

namespace corvane {

/// A test on one field, as `Find` takes it: `Name = 'text'` or `Name = number`. The name may stand in brackets or
/// behind its table's.
class FindCriterion {
 public:
  /// Raises `DataSyntax` for any other form.
  explicit FindCriterion(std::string_view text);

  const std::string& FieldName() const { return fieldName_; }
  /// Texts are equal without regard to case, as keys are; numbers also equal texts that stand for them.
  bool Meets(const Value& value) const;

 private:
  std::string fieldName_;
  Value wanted_;
};

}  // namespace corvane
