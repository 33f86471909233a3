#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
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
    const std::uint32_t hash = HashOf(name), mask = Mask();
    for (std::size_t at = hash; const std::uint32_t place = slots_[at & mask] & mask; ++at)
      if (((slots_[at & mask] ^ hash) & ~mask) == 0 && NameEqual()(order_[place - 1]->Name, name))
        return order_[place - 1].get();
    return nullptr;
  }

  /// The thing of that name, made at the end of the table where it is missing.
  T& Make(std::string_view name) {
    if (T* found = Find(name)) return *found;
    T& made = *order_.emplace_back(std::make_unique<T>());
    made.Name = name;
    if (order_.size() * 4 > slots_.size() * 3)
      Index(slots_.size() * 2);
    else
      AddSlot(order_.size());
    return made;
  }

  bool Remove(std::string_view name) {
    const T* found = Find(name);
    if (!found) return false;
    std::erase_if(order_, [found](const auto& each) { return each.get() == found; });
    Index(slots_.size());
    return true;
  }

 private:
  static std::uint32_t HashOf(std::string_view name) { return static_cast<std::uint32_t>(NameHash()(name)); }
  std::uint32_t Mask() const { return static_cast<std::uint32_t>(slots_.size() - 1); }

  void AddSlot(std::size_t place) {
    const std::uint32_t hash = HashOf(order_[place - 1]->Name), mask = Mask();
    std::size_t at = hash;
    while ((slots_[at & mask] & mask) != 0) ++at;
    slots_[at & mask] = (hash & ~mask) | static_cast<std::uint32_t>(place);
  }

  void Index(std::size_t size) {
    slots_.assign(size, 0);
    for (std::size_t place = 1; place <= order_.size(); ++place) AddSlot(place);
  }

  std::vector<std::unique_ptr<T>> order_;
  // A power of two in number, one quarter of them empty at least. A name is looked for from the slot of its hash's low
  // bits up to the next empty one. A slot holds the high bits of the hash and, in the low ones, the place in the order
  // counted from 1: four bytes for each name, since what costs time in a large table is memory that is not at hand.
  std::vector<std::uint32_t> slots_ = {0, 0};
};

}  // namespace corvane::settings
