#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/TimeStamp.h"
#include "platform/RuntimeError.h"

// Whatever is read as a stamp is written as one that reads the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const corvane::DateTime time = corvane::ParseTimeStamp({reinterpret_cast<const char*>(data), size});
    if (corvane::ParseTimeStamp(corvane::TimeStampText(time)) != time) std::abort();
  } catch (const corvane::RuntimeError& error) {
    const int number = error.Number;
    if (number != 5 && number != 6 && number != 9 && number != 13) std::abort();
  }
  return 0;
}
