#include "platform/data/Value.h"

#include <charconv>

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

[[noreturn]] void InvalidNull() { throw RuntimeError(94, "Invalid use of Null"); }

template <class... Ts>
struct Overloaded : Ts... {
  using Ts::operator()...;
};
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

std::string DoubleText(double number) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  return {digits, end};
}

}  // namespace

std::string ToText(const Value& value) {
  return std::visit(Overloaded{[](std::monostate) -> std::string { InvalidNull(); },
                               [](std::int64_t number) { return std::to_string(number); },
                               [](double number) { return DoubleText(number); },
                               [](bool flag) -> std::string { return flag ? "True" : "False"; },
                               [](const std::string& text) { return text; }},
                    value);
}

std::int32_t ToNumber(const Value& value) {
  return std::visit(
      Overloaded{[](std::monostate) -> std::int32_t { InvalidNull(); },
                 [](std::int64_t number) {
                   const auto narrow = static_cast<std::int32_t>(number);
                   return narrow == number ? narrow : RoundToInt32(static_cast<double>(number));
                 },
                 [](double number) { return RoundToInt32(number); }, [](bool flag) { return flag ? -1 : 0; },
                 [](const std::string& text) { return TextToInt32(text); }},
      value);
}

bool ToBoolean(const Value& value) {
  return std::visit(
      Overloaded{[](std::monostate) -> bool { InvalidNull(); }, [](std::int64_t number) { return number != 0; },
                 [](double number) { return number != 0; }, [](bool flag) { return flag; },
                 [](const std::string& text) {
                   if (SameText(text, "True")) return true;
                   if (SameText(text, "False")) return false;
                   return TextToInt32(text) != 0;
                 }},
      value);
}

}  // namespace corvane
