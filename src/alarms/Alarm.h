#pragma once

#include <string>

namespace corvane {

/// What an alarm compares with the entries of an event log. Texts are as they were typed; an empty one is no criterion.
struct AlarmCriteria {
  /// Sum of 1 Information, 2 Warning, 4 Error, 8 Failure Audit, 16 Success Audit.
  int TypeMask = 0;
  std::string Source, Category, User, Computer, EventID, EventDescription;
  bool MatchEntireDescription = false;
  /// So many events within so many seconds.
  std::string ThresholdCount, ThresholdTimeout;
  /// The alarm's own notification; empty for none.
  std::string NotificationName;
};

/// An alarm's name and comment, and its place in the catalogue.
struct AlarmPlace {
  std::string Name, Comment, OSName, LogTypeName, CategoryName;
  /// The category was typed and stands in no list.
  bool IsNewCategory = false;
};

}  // namespace corvane
