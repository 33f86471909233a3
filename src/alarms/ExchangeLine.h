#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

class Recordset;

/// Columns of an alarm and of a category in the order of their fields in an exchange file.
inline constexpr std::array<const char*, 13> AlarmColumns{"Name",
                                                          "Description",
                                                          "AlarmCategory",
                                                          "TypeMask",
                                                          "Source",
                                                          "Category",
                                                          "User",
                                                          "Computer",
                                                          "EventID",
                                                          "EventDescription",
                                                          "MatchEntireDescription",
                                                          "ThresholdCount",
                                                          "ThresholdTimeout"};
inline constexpr std::array<const char*, 4> CategoryColumns{"Index", "Name", "OS", "LogType"};

/// Places of fields that are read by their meaning.
namespace alarmfield {
inline constexpr std::size_t Name = 0, Category = 2, TypeMask = 3, EventDescription = 9, MatchEntire = 10;
}
namespace categoryfield {
inline constexpr std::size_t Index = 0, Name = 1, Os = 2, LogType = 3;
}

/// A value of an exchange file: fields parted by "|", without any escape. A "|" within a field moves all behind it.
class ExchangeLine {
 public:
  explicit ExchangeLine(std::string_view line);

  std::size_t Count() const { return fields_.size(); }
  /// A field by its place from 0. Raises `SubscriptOutOfRange` behind the last one.
  const std::string& operator[](std::size_t place) const;
  /// The same, with an empty text for a field that is not there.
  std::string Find(std::size_t place) const { return place < fields_.size() ? fields_[place] : std::string(); }

 private:
  std::vector<std::string> fields_;
};

/// Columns of a row as the fields of a line, empty where a column is Null.
std::string JoinFields(const Recordset& row, std::span<const char* const> columns);

}  // namespace corvane
