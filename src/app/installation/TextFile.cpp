#include "app/installation/TextFile.h"

#include <cerrno>
#include <fstream>
#include <sstream>
#include <system_error>

#include "app/installation/InstallationError.h"

namespace corvane {
namespace {

[[noreturn]] void Fail(const std::filesystem::path& file, const std::string& verb) {
  const int error = errno;
  throw InstallationError(file.string() + " cannot be " + verb + ": " + std::generic_category().message(error));
}

}  // namespace

std::string ReadTextFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  // An empty file puts nothing into the text, which the stream takes for a failure.
  if (!stream || (stream.peek() != std::ifstream::traits_type::eof() && !(text << stream.rdbuf()))) Fail(file, "read");
  return text.str();
}

void WriteTextFile(const std::filesystem::path& file, std::string_view text) {
  std::ofstream stream(file, std::ios::binary);
  if (!stream.write(text.data(), static_cast<std::streamsize>(text.size())) || !stream.flush()) Fail(file, "written");
}

}  // namespace corvane
