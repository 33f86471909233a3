#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

/// Numbers of rows by the key of their log. Keys are compared as the store compares them: the case of ASCII letters
/// alone does not matter.
class CountsByLog {
 public:
  /// Goes on to a log; they come in the order of their keys. False when it is the same as before.
  bool Begin(std::string_view idName) {
    // Nearly always the same spelling as before.
    return (entries_.empty() || entries_.back().IDName != idName) && BeginOther(idName);
  }
  /// Adds rows to the log that was begun last.
  void Add(int rows) { entries_.back().Rows += rows; }

  /// The rows of a log, 0 when it has none. Fastest for logs that are asked for in the order of their keys.
  int Find(std::string_view idName) const;

 private:
  struct Entry {
    std::string IDName;
    int Rows = 0;
  };

  bool BeginOther(std::string_view idName);

  std::vector<Entry> entries_;
  mutable std::size_t next_ = 0;
};

}  // namespace corvane
