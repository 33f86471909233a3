#pragma once

#include <cstddef>
#include <cstdint>
#include <map>

namespace corvane {

/// The open handles of a port: numbers from 1 upwards that are never given twice, each with what it stands for.
template <class T>
class LabHandles {
 public:
  std::uint64_t Open(T value) {
    open_.emplace(++last_, std::move(value));
    return last_;
  }
  /// What an open handle stands for, nothing for any other number.
  const T* Find(std::uint64_t handle) const {
    const auto found = open_.find(handle);
    return found == open_.end() ? nullptr : &found->second;
  }
  void Close(std::uint64_t handle) { open_.erase(handle); }
  std::size_t Count() const { return open_.size(); }

 private:
  std::map<std::uint64_t, T> open_;
  std::uint64_t last_ = 0;
};

}  // namespace corvane
