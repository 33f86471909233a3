#include "alarms/TypeMask.h"

namespace corvane {

std::string TypeMaskToText(int mask) {
  std::string text;
  for (std::size_t bit = 0; bit < EventTypeNames.size(); ++bit)
    if ((mask >> bit & 1) != 0) text.append(text.empty() ? "" : ", ").append(EventTypeNames[bit]);
  return text;
}

}  // namespace corvane
