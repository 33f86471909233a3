#include "adapters/settings/IniDocument.h"

#include <utility>

#include "platform/CodePage.h"

namespace corvane::settings {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view LineBreak = "\r\n";

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Every line that is read passes here, and `find_first_of` searches its set anew for each character.
std::size_t FindBreak(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && text[at] != '\r' && text[at] != '\n') ++at;
  return at;
}

// Length of the first line with its line break.
std::size_t LineLength(std::string_view text) {
  const std::size_t end = FindBreak(text);
  if (end == text.size()) return end;
  return end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
}

std::string_view WithoutBreak(std::string_view line) { return line.substr(0, FindBreak(line)); }

bool IsBlank(std::string_view line) { return TrimBlanks(WithoutBreak(line)).empty(); }

bool IsComment(std::string_view line) { return TrimBlanks(line).starts_with(';'); }

std::optional<std::string_view> SectionName(std::string_view line) {
  const std::string_view content = TrimBlanks(WithoutBreak(line));
  const std::size_t end = content.find(']');
  if (!content.starts_with('[') || end == content.npos) return std::nullopt;
  return TrimBlanks(content.substr(1, end - 1));
}

// The name of the key that a line gives a value to.
std::optional<std::string> KeyName(std::string_view line) {
  const std::size_t equals = WithoutBreak(line).find('=');
  if (equals == line.npos || IsComment(line) || SectionName(line)) return std::nullopt;
  return TextOfBytes(TrimBlanks(line.substr(0, equals)));
}

std::string_view Unquote(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

void CloseLine(std::vector<std::string>& lines) {
  if (!lines.empty() && WithoutBreak(lines.back()).size() == lines.back().size()) lines.back() += LineBreak;
}

}  // namespace

IniDocument::IniDocument(std::string_view bytes) : sections_(1) {
  if (bytes.starts_with(ByteOrderMark)) {
    mark_ = ByteOrderMark;
    bytes.remove_prefix(ByteOrderMark.size());
  }
  while (!bytes.empty()) {
    const std::size_t length = LineLength(bytes);
    AddLine(bytes.substr(0, length));
    bytes.remove_prefix(length);
  }
}

void IniDocument::AddLine(std::string_view line) {
  if (const auto name = SectionName(line)) {
    names_.try_emplace(TextOfBytes(*name), sections_.size());
    sections_.emplace_back();
  }
  Section& section = sections_.back();
  if (auto key = KeyName(line)) section.Keys.try_emplace(std::move(*key), section.Lines.size());
  section.Lines.emplace_back(line);
}

const IniDocument::Section* IniDocument::FindSection(std::string_view name) const {
  const auto found = names_.find(TrimBlanks(name));
  return found == names_.end() ? nullptr : &sections_[found->second];
}

std::optional<std::string_view> IniDocument::Find(std::string_view section, std::string_view key) const {
  const Section* in = FindSection(section);
  if (!in) return std::nullopt;
  const auto found = in->Keys.find(TrimBlanks(key));
  if (found == in->Keys.end()) return std::nullopt;
  const std::string_view line = WithoutBreak(in->Lines[found->second]);
  return Unquote(TrimBlanks(line.substr(line.find('=') + 1)));
}

std::string IniDocument::Lines(std::string_view section) const {
  const Section* in = FindSection(section);
  std::string lines;
  for (std::size_t i = 1; in && i < in->Lines.size(); ++i) {
    const std::string_view line = TrimBlanks(WithoutBreak(in->Lines[i]));
    if (line.empty() || IsComment(line)) continue;
    const std::size_t equals = line.find('=');
    lines += TrimBlanks(line.substr(0, equals));
    if (equals != line.npos) lines.append("=").append(TrimBlanks(line.substr(equals + 1)));
    lines += '\0';
  }
  return lines;
}

IniDocument::Section& IniDocument::MakeSection(std::string_view name) {
  const auto [place, isNew] = names_.try_emplace(std::string(name), sections_.size());
  if (isNew) {
    for (auto last = sections_.rbegin(); last != sections_.rend(); ++last) {
      if (last->Lines.empty()) continue;
      CloseLine(last->Lines);
      break;
    }
    sections_.emplace_back().Lines.push_back("[" + BytesOfText(name) + "]" + std::string(LineBreak));
  }
  return sections_[place->second];
}

// The lines that separate a section from the next one stay behind a new key.
std::size_t IniDocument::AppendLine(Section& section, std::string line) {
  std::size_t end = section.Lines.size();
  while (end > 1 && IsBlank(section.Lines[end - 1])) --end;
  if (end == section.Lines.size()) CloseLine(section.Lines);
  section.Lines.insert(section.Lines.begin() + static_cast<std::ptrdiff_t>(end), std::move(line));
  return end;
}

void IniDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
  section = TrimBlanks(section);
  key = TrimBlanks(key);
  Section& in = MakeSection(section);
  auto place = in.Keys.find(key);
  if (place == in.Keys.end()) {
    const std::size_t at = AppendLine(in, BytesOfText(key) + "=" + std::string(value) + std::string(LineBreak));
    place = in.Keys.emplace(key, at).first;
  } else {
    std::string& line = in.Lines[place->second];
    const std::size_t begin = line.find('=') + 1;
    line.replace(begin, WithoutBreak(line).size() - begin, value);
  }
  // A name or value with a line break, or with what marks sections, keys and comments, is read back as something else.
  const auto name = SectionName(in.Lines.front());
  const auto written = KeyName(in.Lines[place->second]);
  const bool isPlain = WithoutBreak(value).size() == value.size() && name && NameEqual()(TextOfBytes(*name), section) &&
                       written && NameEqual()(*written, key);
  if (!isPlain) *this = IniDocument(Bytes());
}

std::string IniDocument::Bytes() const {
  std::string bytes = mark_;
  for (const Section& section : sections_)
    for (const std::string& line : section.Lines) bytes += line;
  return bytes;
}

}  // namespace corvane::settings
