#pragma once

#include <array>
#include <string>

#include "support/BareStore.h"

namespace corvane::bench {

/// The domain that the console opens with, and all logs of the bench with it.
inline constexpr const char* Domain = "MERIDIAN";

/// Name of a computer of the bench, from 1 upwards.
std::string ComputerName(int number);

/// A log under watch: each computer has six of them.
struct WatchedLog {
  /// Numbers count from 0.
  explicit WatchedLog(int number);
  std::string IDName() const { return Computer + std::to_string(Type); }

  std::string Computer;
  int Type;
};

/// What is attached to every log: 15 rows.
struct Attachments {
  struct Alarm {
    std::string Id, Name, Category;
  };

  /// Chooses from the catalogue of a database: alarms of different names, none of which a bundle holds, since those
  /// would not be written a second time.
  explicit Attachments(BareStore& store);

  std::array<Alarm, 8> Alarms;
  std::array<std::string, 2> Bundles;
  Alarm Ignored;
  std::string IgnoredBundle;
  std::array<std::string, 3> Notifications;
};

inline constexpr int AttachmentsPerLog = 15;

/// The rows of one log, statement by statement.
void InsertLog(BareStore& store, const WatchedLog& log, const Attachments& attached);
void ReplaceAttachments(BareStore& store, const WatchedLog& log, const Attachments& attached);

/// How many rows of attachments there are.
std::size_t CountAttachments(BareStore& store);

}  // namespace corvane::bench
