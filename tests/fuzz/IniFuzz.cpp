#include "adapters/settings/IniDocument.h"
#include "fuzz/Fuzz.h"
#include "platform/CodePage.h"

// The first byte says where the name and the value end; the rest is the file.
void corvane::fuzz::Try(const std::string& input) {
  if (input.size() < 32) return;
  const auto lengths = static_cast<unsigned char>(input[0]);
  const std::string name = input.substr(1, lengths % 16), value = input.substr(1 + name.size(), lengths / 16);
  const std::string file = input.substr(32);

  settings::IniDocument document(file);
  Require(document.Bytes() == file);
  const bool hasOther = document.Find("Other", "Kept").value_or("") != "";
  Require(document.Lines(name).size() <= file.size() + 1);
  document.Set(name, name, value);
  Require(settings::IniDocument(document.Bytes()).Find(name, name) == document.Find(name, name));
  document.Set("Section", "Key", "v");
  Require(document.Find("section", "key") == "v");
  Require(settings::IniDocument(document.Bytes()).Find("section", "key") == "v");
  // What holds a line break may bring a section of its own in front of the other one.
  const bool isPlain = (name + value).find_first_of("\r\n") == name.npos;
  Require(!hasOther || !isPlain || document.Find("Other", "Kept").has_value());

  const std::string text = TextOfBytes(file);
  Require(TextOfBytes(BytesOfText(text)) == text);
}
