#include "adapters/linux/HostPaths.h"

#include <algorithm>
#include <string_view>

#include "platform/Conversions.h"

namespace corvane {
namespace {

namespace fs = std::filesystem;

// The entry of `folder` that bears the name. The same spelling wins; of others the first by name, so that the choice
// does not hang on the order in which the file system lists them.
fs::path MatchingEntry(const fs::path& folder, const std::string& name) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(folder / name, ignored))) return name;
  std::string match;
  for (fs::directory_iterator entry(folder.empty() ? "." : folder, ignored), end; !ignored && entry != end;
       entry.increment(ignored)) {
    const std::string found = entry->path().filename().string();
    if (SameText(found, name) && (match.empty() || found < match)) match = found;
  }
  return match.empty() ? name : match;
}

// Where the text behind the program folder's name begins; 0 for a path that lies elsewhere.
std::size_t BehindProgramFolder(std::string_view path) {
  const std::string_view folder = HostPaths::ProgramFolder;
  if (!SameText(path.substr(0, folder.size()), folder)) return 0;
  const bool ends = path.size() == folder.size() || path[folder.size()] == '\\' || path[folder.size()] == '/';
  return ends ? folder.size() : 0;
}

}  // namespace

HostPaths::HostPaths(fs::path installation) : installation_(std::move(installation)) {}

fs::path HostPaths::operator()(const std::string& path) const {
  const std::size_t start = BehindProgramFolder(path);
  std::string rest = path.substr(start);
  std::replace(rest.begin(), rest.end(), '\\', '/');
  fs::path host = start > 0 ? installation_ : fs::path(rest.starts_with('/') ? "/" : "");
  for (const fs::path& component : fs::path(rest).relative_path())
    if (!component.empty()) host /= MatchingEntry(host, component.string());
  return host;
}

}  // namespace corvane
