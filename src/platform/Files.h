#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace corvane {

/// A text file opened for sequential reading; closed by its destructor.
class LineReader {
 public:
  virtual ~LineReader() = default;
  /// Reads the next line without its line break (CR LF, LF or CR). False at the end of the file; a final line break
  /// makes no empty line behind it. Raises 57 when the device fails.
  virtual bool ReadLine(std::string& line) = 0;
};

/// The file system. Paths use `\`; the last component matches without regard to case.
class Files {
 public:
  virtual ~Files() = default;

  /// Opens a file for reading. Raises 53 when there is none, 70 or 75 when it may not be read.
  virtual std::unique_ptr<LineReader> OpenForInput(const std::string& path) = 0;
  /// Creates a file or replaces its whole content by `bytes`. Raises 61, 70, 75 or 76.
  virtual void Write(const std::string& path, std::string_view bytes) = 0;
  /// Deletes a file. Raises 53, 70 or 75.
  virtual void Delete(const std::string& path) = 0;
  /// Length in bytes. Raises 53 when there is no such file.
  virtual std::uintmax_t Length(const std::string& path) = 0;
};

}  // namespace corvane
