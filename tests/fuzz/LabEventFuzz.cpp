#include "adapters/lab/LabEventReader.h"
#include "core/console/EventDate.h"
#include "fuzz/Fuzz.h"

// A line that is a record says the same when it is written again; a time is read or not, whatever stands there.
void corvane::fuzz::Try(const std::string& input) {
  EventRecord record;
  FixDate(input);
  if (input.find('\n') != input.npos || !ParseLabEvent(input, record)) return;
  std::string again = record.Time + "\t" + record.Type + "\t" + record.Source + "\t";
  for (std::size_t i = 0; i < record.Description.size(); ++i) {
    const char c = record.Description[i];
    const bool lineBreak = record.Description.compare(i, 2, "\r\n") == 0;
    again += lineBreak ? "\\n" : c == '\t' ? "\\t" : c == '\\' ? "\\\\" : std::string(1, c);
    if (lineBreak) ++i;
  }
  Require(input == again || input == again + "\r");
}
