#pragma once

#include <string>
#include <vector>

namespace corvane::ui {

/// Pictures shared by the lists and trees of all screens, numbered from 1 and named by keys of the resources.
class ImageList {
 public:
  ImageList(std::initializer_list<const char*> keys) : keys_(keys.begin(), keys.end()) {}

  /// Key of a picture by its number. Raises `IndexOutOfBounds`.
  const std::string& Key(int number) const;
  int Count() const { return static_cast<int>(keys_.size()); }

 private:
  std::vector<std::string> keys_;
};

}  // namespace corvane::ui
