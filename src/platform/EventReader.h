#pragma once

#include <string>

namespace corvane {

/// A record of an event log as its reader delivers it.
struct EventRecord {
  /// Who logged it, blanks around it included.
  std::string Source;
  /// "Information", "Warning", "Error", "Success Audit" or "Failure Audit", in any case of letters.
  std::string Type;
  /// Local time in fixed columns, `Mon Nov 16 14:05:09 2026`: weekday, month, day padded with a blank, time, year (the
  /// form of C's asctime without its line break).
  std::string Time;
  /// The message; lines are parted by CR LF.
  std::string Description;
};

/// Reads the records of a classic event log one by one.
class EventReader {
 public:
  static constexpr int ApplicationLog = 1;

  virtual ~EventReader() = default;
  /// Names the one source whose records matter, its case and the blanks around it apart; empty for all. From the next
  /// `Open` on a reader may leave out the records of other sources, but never the oldest record of the log: where
  /// events of one source are rare among millions, most of the log need not be touched.
  virtual void NarrowTo(const std::string& /*source*/) {}
  /// Opens a log of a computer (no leading `\\`) for reading from its newest record to its oldest. False on failure.
  /// A log that is open already is closed before.
  virtual bool Open(const std::string& computer, int log) = 0;
  /// Delivers the next record. False behind the oldest one, and for a record that cannot be read.
  virtual bool ReadNext(EventRecord& record) = 0;
  virtual void Close() = 0;
};

}  // namespace corvane
