#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/Conversions.h"

namespace corvane::settings {

/// Hash of a name without regard to case. Both cases of a letter differ in one bit only, which is left out; so whatever
/// `SameText` holds for equal hashes alike.
struct NameHash {
  using is_transparent = void;

  std::size_t operator()(std::string_view name) const noexcept {
    constexpr std::uint64_t caseBits = 0xDFDFDFDFDFDFDFDFULL;
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15ULL;
    std::uint64_t hash = name.size() * factor;
    const auto mix = [&hash](std::uint64_t word) {
      hash = (hash ^ (word & caseBits)) * factor;
      hash ^= hash >> 29;
    };
    for (; name.size() >= sizeof(std::uint64_t); name.remove_prefix(sizeof(std::uint64_t))) {
      std::uint64_t word;
      std::memcpy(&word, name.data(), sizeof word);
      mix(word);
    }
    std::uint64_t rest = 0;
    for (const char c : name) rest = rest << 8 | static_cast<unsigned char>(c);
    mix(rest);
    return hash;
  }
};

/// Equality of names without regard to case.
struct NameEqual {
  using is_transparent = void;

  bool operator()(std::string_view a, std::string_view b) const { return a == b || SameText(a, b); }
};

/// Things with a `Name`, in the order in which they were added, found by name without regard to case. Their addresses
/// stay while they are in the table.
template <class T>
class NameTable {
 public:
  std::size_t Size() const { return order_.size(); }
  const T& operator[](std::size_t index) const { return *order_[index]; }
  auto begin() const { return order_.begin(); }
  auto end() const { return order_.end(); }

  T* Find(std::string_view name) const {
    const auto found = index_.find(name);
    return found == index_.end() ? nullptr : found->second;
  }

  /// The thing of that name, made at the end of the table where it is missing.
  T& Make(std::string_view name) {
    if (T* found = Find(name)) return *found;
    T& made = *order_.emplace_back(std::make_unique<T>());
    made.Name = name;
    index_.emplace(made.Name, &made);
    return made;
  }

  bool Remove(std::string_view name) {
    const T* found = Find(name);
    if (!found) return false;
    index_.erase(name);
    std::erase_if(order_, [found](const auto& each) { return each.get() == found; });
    return true;
  }

 private:
  std::vector<std::unique_ptr<T>> order_;
  std::unordered_map<std::string_view, T*, NameHash, NameEqual> index_;
};

}  // namespace corvane::settings
