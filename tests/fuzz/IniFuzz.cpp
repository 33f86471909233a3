#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "adapters/settings/CodePage.h"
#include "adapters/settings/IniDocument.h"

using corvane::settings::BytesOfText;
using corvane::settings::IniDocument;
using corvane::settings::TextOfBytes;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

// The first byte says where the name and the value end; the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  if (input.size() < 32) return 0;
  const std::size_t nameLength = data[0] % 16;
  const std::string_view name = input.substr(1, nameLength);
  const std::string_view value = input.substr(1 + nameLength, data[0] / 16);
  const std::string_view file = input.substr(32);

  IniDocument document(file);
  Require(document.Bytes() == file);
  const auto kept = document.Find("Other", "Kept");
  const std::string keptBefore(kept.value_or(""));
  Require(document.Lines(name).size() <= file.size() + 1);

  document.Set(name, name, value);
  const IniDocument readBack(document.Bytes());
  Require(readBack.Find(name, name) == document.Find(name, name));
  document.Set("Section", "Key", "v");
  Require(document.Find("section", "key") == "v");
  Require(IniDocument(document.Bytes()).Find("section", "key") == "v");
  // What holds a line break may bring a section of its own in front of the other one.
  const bool plain = name.find_first_of("\r\n") == name.npos && value.find_first_of("\r\n") == value.npos;
  if (plain && !keptBefore.empty()) Require(document.Find("Other", "Kept").has_value());

  const std::string text = TextOfBytes(file);
  Require(TextOfBytes(BytesOfText(text)) == text);
  return 0;
}
