#pragma once

#include <array>
#include <string>

namespace corvane {

/// Types of events in the order of the bits of an alarm's mask: the nth name stands for bit n. The bits are this
/// program's own, not those of the event-log calls.
inline constexpr std::array<const char*, 5> EventTypeNames{"Information", "Warning", "Error", "Failure Audit",
                                                           "Success Audit"};

/// The types of a mask, parted by ", "; an empty text for a mask without any.
std::string TypeMaskToText(int mask);

}  // namespace corvane
