#include "adapters/linux/FileErrors.h"

#include <cerrno>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

bool FolderExists(const std::filesystem::path& file) {
  std::error_code ignored;
  const std::filesystem::path folder = file.parent_path();
  return folder.empty() || std::filesystem::is_directory(folder, ignored);
}

}  // namespace

void RaiseFileError(int error, const std::filesystem::path& file) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      if (!FolderExists(file)) throw RuntimeError(errors::PathNotFound, "Path not found");
      throw RuntimeError(errors::FileNotFound, "File not found");
    case EIO:
      throw RuntimeError(errors::DeviceIo, "Device I/O error");
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      throw RuntimeError(errors::DiskFull, "Disk full");
    case EACCES:
    case EPERM:
    case EBUSY:
    case ETXTBSY:
      throw RuntimeError(errors::PermissionDenied, "Permission denied");
    default:
      throw RuntimeError(errors::PathFileAccess, "Path/File access error");
  }
}

}  // namespace corvane
