#pragma once

#include <array>
#include <string_view>

namespace corvane {

/// A type of event in its forms: as a record bears it, the picture of its rows, its name and its colour in a report.
struct EventType {
  std::string_view Type;
  const char* Picture;
  const char* Name;
  const char* Colour;
};

/// All types of a classic event log. The first three are those that a check box can show, in the order of the boxes.
inline constexpr std::array<EventType, 5> EventTypes{{
    {"INFORMATION", "info", "Information", "blue"},
    {"WARNING", "warning", "Warning", "yellow"},
    {"ERROR", "error", "Error", "red"},
    {"SUCCESS AUDIT", "successaudit", "Success Audit", "green"},
    {"FAILURE AUDIT", "failureaudit", "Failure Audit", "red"},
}};

/// The place of a type in `EventTypes`; one behind the last for any other text.
constexpr std::size_t PlaceOfEventType(std::string_view type) {
  std::size_t place = 0;
  while (place < EventTypes.size() && EventTypes[place].Type != type) ++place;
  return place;
}

}  // namespace corvane
