#include "adapters/linux/JournalText.h"
#include "fuzz/Fuzz.h"

// Whatever stands in a journal becomes a text that is one already, without an end within.
void corvane::fuzz::Try(const std::string& input) {
  const std::string text = TextOfJournal(input);
  Require(TextOfJournal(text) == text && text.find('\0') == text.npos);
}
