#pragma once

#include "platform/Files.h"
#include "platform/PathMap.h"

namespace corvane {

/// The file system of this machine behind a path map. Settings: none of its own; the map decides where paths lie and
/// matches names without regard to case.
class LinuxFiles : public Files {
 public:
  explicit LinuxFiles(PathMap map);

  std::unique_ptr<LineReader> OpenForInput(const std::string& path) override;
  void Write(const std::string& path, std::string_view bytes) override;
  void Delete(const std::string& path) override;
  std::uintmax_t Length(const std::string& path) override;

 private:
  PathMap map_;
};

}  // namespace corvane
