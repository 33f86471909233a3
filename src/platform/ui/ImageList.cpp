#include "platform/ui/ImageList.h"

#include "platform/RuntimeError.h"

namespace corvane::ui {

const std::string& ImageList::Key(int number) const {
  if (number < 1 || number > Count()) throw RuntimeError(errors::IndexOutOfBounds, "Index out of bounds");
  return keys_[static_cast<std::size_t>(number - 1)];
}

}  // namespace corvane::ui
