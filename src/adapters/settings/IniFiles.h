#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "adapters/settings/IniDocument.h"
#include "adapters/settings/SettingsFile.h"
#include "platform/PathMap.h"
#include "platform/ProfileFiles.h"

namespace corvane {

/// INI files on this machine's disk. Texts stand in them in the ANSI code page (1252), as the programs expect that
/// share them, or in UTF-8 where the page lacks a character; so "characters" in sizes and counts are the file's bytes.
/// A write is atomic, and processes that write at the same time lose nothing of each other. Texts end at a zero
/// character.
class IniFiles : public ProfileFiles {
 public:
  explicit IniFiles(PathMap map);
  ~IniFiles() override;

  std::size_t GetString(const std::string& section, const std::string& key, const std::string& fallback,
                        std::string& value, std::size_t size, const std::string& path) override;
  int GetInt(const std::string& section, const std::string& key, int fallback, const std::string& path) override;
  std::size_t GetSection(const std::string& section, std::string& lines, std::size_t size,
                         const std::string& path) override;
  bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& path) override;

 private:
  struct OpenFile;

  OpenFile& FileAt(const std::string& path);
  const settings::IniDocument* Document(const std::string& path);

  PathMap map_;
  // The file used last: whoever reads or writes one value goes on with the next one of the same file.
  std::unique_ptr<OpenFile> last_;
};

}  // namespace corvane
