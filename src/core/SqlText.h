#pragma once

#include <string>
#include <string_view>

#include "platform/data/Value.h"

namespace corvane {

/// A text as a literal of a statement: each apostrophe doubled, all between apostrophes; the word NULL for no text.
std::string QuoteSqlText(std::string_view text);

/// The text of a field, empty for a Null.
std::string NullToEmpty(const Value& field);

/// "True" or "False", the words that go into statements.
std::string BoolToText(bool flag);

}  // namespace corvane
