#include "core/TimeStamp.h"
#include "fuzz/Fuzz.h"

// Whatever is read as a stamp is written as one that reads the same.
void corvane::fuzz::Try(const std::string& input) {
  RequireErrors({5, errors::Overflow, 9, errors::TypeMismatch}, [&] {
    const DateTime time = ParseTimeStamp(input);
    Require(ParseTimeStamp(TimeStampText(time)) == time);
  });
}
