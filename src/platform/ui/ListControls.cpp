#include "platform/ui/ListControls.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace corvane::ui {
namespace {

[[noreturn]] void Invalid() { throw RuntimeError(errors::InvalidPropertyValue, "Invalid property value"); }

}  // namespace

const std::string& TextItems::operator[](int index) const {
  if (index < 0 || index >= Count()) Invalid();
  return items_[static_cast<std::size_t>(index)];
}

int TextItems::IndexOf(std::string_view text) const {
  const auto found = std::find(items_.begin(), items_.end(), text);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ComboBox::AddItem(std::string text) {
  items_.push_back(std::move(text));
  ++revision_;
}

void ComboBox::RemoveItem(int index) {
  if (index < 0 || index >= Count()) Invalid();
  items_.erase(items_.begin() + index);
  ++revision_;
  if (index < listIndex_)
    --listIndex_;
  else if (index == listIndex_)
    SetListIndex(-1);
}

void ComboBox::Clear() {
  items_.clear();
  ++revision_;
  SetListIndex(-1);
}

void ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= Count()) Invalid();
  listIndex_ = index;
  text_ = index < 0 ? std::string() : items_[static_cast<std::size_t>(index)];
}

void ComboBox::SetText(const std::string& text) {
  const int index = IndexOf(text);
  if (!Editable && index < 0) Invalid();
  listIndex_ = index;
  text_ = text;
}

void ListBox::AddItem(std::string text) {
  items_.push_back(std::move(text));
  ++revision_;
}

void ListBox::Clear() {
  items_.clear();
  ++revision_;
}

}  // namespace corvane::ui
