#include "adapters/settings/IniFiles.h"

#include <cstdint>
#include <utility>

#include "adapters/settings/FileLock.h"
#include "platform/CodePage.h"

namespace corvane {

using settings::IniDocument;

struct IniFiles::OpenFile {
  OpenFile(std::string name, std::filesystem::path path) : Name(std::move(name)), File(std::move(path)) {}

  // True when the document is what stands in the file now.
  bool Refresh() {
    if (File.IsUnchanged()) return true;
    std::string bytes;
    const bool isRead = File.Read(bytes) == 0;
    Document = IniDocument(bytes);
    return isRead;
  }

  std::string Name;
  settings::SettingsFile File;
  IniDocument Document;
};

namespace {

// The calls this stands for end their texts at a zero.
std::string_view UpToZero(const std::string& text) { return text.c_str(); }

// As many of the bytes as a buffer of that size takes, with `zeros` characters left for its end.
std::string_view Fit(std::string_view bytes, std::size_t size, std::size_t zeros) {
  return bytes.substr(0, size > zeros ? size - zeros : 0);
}

int LeadingNumber(std::string_view text) {
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);
  std::uint32_t number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    number = number * 10 + static_cast<std::uint32_t>(c - '0');
  }
  return static_cast<int>(isNegative ? 0 - number : number);
}

}  // namespace

IniFiles::IniFiles(PathMap map) : map_(std::move(map)) {}

IniFiles::~IniFiles() = default;

IniFiles::OpenFile& IniFiles::FileAt(const std::string& path) {
  const std::filesystem::path file = map_(path);
  if (!last_ || last_->File.Path().native() != file.native()) last_ = std::make_unique<OpenFile>(path, file);
  last_->Name = path;
  return *last_;
}

const IniDocument* IniFiles::Document(const std::string& path) {
  if (last_ && last_->Name == path && last_->File.IsUnchanged()) return &last_->Document;
  OpenFile& file = FileAt(path);
  return file.Refresh() ? &file.Document : nullptr;
}

std::size_t IniFiles::GetString(const std::string& section, const std::string& key, const std::string& fallback,
                                std::string& value, std::size_t size, const std::string& path) {
  const IniDocument* document = Document(path);
  const auto found = document ? document->Find(UpToZero(section), UpToZero(key)) : std::nullopt;
  const std::string missing = found ? "" : BytesOfText(UpToZero(fallback));
  const std::string_view bytes = Fit(found ? *found : missing, size, 1);
  value = TextOfBytes(bytes);
  return bytes.size();
}

int IniFiles::GetInt(const std::string& section, const std::string& key, int fallback, const std::string& path) {
  const IniDocument* document = Document(path);
  const auto found = document ? document->Find(UpToZero(section), UpToZero(key)) : std::nullopt;
  return found ? LeadingNumber(*found) : fallback;
}

std::size_t IniFiles::GetSection(const std::string& section, std::string& lines, std::size_t size,
                                 const std::string& path) {
  const IniDocument* document = Document(path);
  const std::string bytes = document ? document->Lines(UpToZero(section)) : "";
  const std::string_view fitting = Fit(bytes, size, 2);
  lines.clear();
  for (std::string_view rest = fitting; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find('\0'));
    lines += TextOfBytes(line);
    rest.remove_prefix(line.size());
    if (rest.empty()) break;
    lines += '\0';
    rest.remove_prefix(1);
  }
  return fitting.size();
}

bool IniFiles::WriteString(const std::string& section, const std::string& key, const std::string& value,
                           const std::string& path) {
  OpenFile& file = FileAt(path);
  const settings::FileLock lock(file.File.Path(), settings::FileLock::Missing::IsMade);
  if (lock.Error() != 0 || !file.Refresh()) return false;
  const std::string before = file.Document.Bytes();
  file.Document.Set(UpToZero(section), UpToZero(key), BytesOfText(UpToZero(value)));
  const std::string after = file.Document.Bytes();
  if (after.starts_with(before) && file.File.Append(std::string_view(after).substr(before.size()))) return true;
  return file.File.Replace(after, settings::SettingsFile::Durability::Process) == 0;
}

}  // namespace corvane
