#include "app/installation/ScratchFolder.h"

#include <unistd.h>

#include <string>
#include <system_error>
#include <utility>

namespace corvane {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder(fs::path destination) : destination_(std::move(destination)) {
  try {
    MakeParents();
    const std::string name = "." + destination_.filename().string() + "." + std::to_string(::getpid());
    const fs::path path = destination_.parent_path() / name;
    fs::remove_all(path);
    fs::create_directory(path);
    path_ = path;
  } catch (const fs::filesystem_error&) {
    RemoveParents();
    throw;
  }
}

ScratchFolder::~ScratchFolder() {
  if (path_.empty()) return;
  std::error_code ignored;
  fs::remove_all(path_, ignored);
  RemoveParents();
}

void ScratchFolder::MoveToDestination() {
  fs::rename(path_, destination_);
  path_.clear();
}

void ScratchFolder::MakeParents() {
  std::vector<fs::path> missing;
  for (fs::path parent = destination_.parent_path(); !fs::exists(parent); parent = parent.parent_path())
    missing.push_back(parent);
  for (; !missing.empty(); missing.pop_back()) {
    fs::create_directory(missing.back());
    made_.insert(made_.begin(), missing.back());
  }
}

void ScratchFolder::RemoveParents() {
  std::error_code ignored;
  for (const fs::path& parent : made_) fs::remove(parent, ignored);
}

}  // namespace corvane
