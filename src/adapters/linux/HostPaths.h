#pragma once

#include <filesystem>
#include <string>

namespace corvane {

/// The `PathMap` of this machine: gives an installation's folder the name that the console knows it by, and finds
/// existing files and folders without regard to case. Settings: the installation's folder.
class HostPaths {
 public:
  static constexpr const char* ProgramFolder = R"(C:\Corvane)";

  explicit HostPaths(std::filesystem::path installation);

  std::filesystem::path operator()(const std::string& path) const;

 private:
  std::filesystem::path installation_;
};

}  // namespace corvane
