#include "core/TimeStamp.h"
#include "fuzz/Fuzz.h"
#include "platform/RuntimeError.h"

// Whatever is read as a stamp is written as one that reads the same.
void corvane::fuzz::Try(const std::string& input) {
  try {
    const DateTime time = ParseTimeStamp(input);
    Require(ParseTimeStamp(TimeStampText(time)) == time);
  } catch (const RuntimeError& error) {
    const int number = error.Number;
    Require(number == 5 || number == errors::Overflow || number == 9 || number == errors::TypeMismatch);
  }
}
