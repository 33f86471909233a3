#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace corvane::test {

/// A folder of its own for one test, removed with all that lies in it.
class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "corvane-XXXXXX").string();
    if (!::mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

  std::filesystem::path Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return path_ / name;
  }

  std::string Read(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(path_ / name, std::ios::binary).rdbuf();
    return bytes.str();
  }

 private:
  std::filesystem::path path_;
};

}  // namespace corvane::test
