#include "adapters/linux/LinuxLauncher.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <vector>

#include "adapters/linux/CommandLine.h"
#include "adapters/linux/Descriptor.h"
#include "adapters/linux/FileErrors.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

// The second process, born of the one that ends at once: nobody has to wait for it. Only calls that are safe between
// fork and exec stand here. An exec that succeeds closes the pipe; one that fails writes why.
[[noreturn]] void BecomeProgram(char* const* arguments, int report) {
  ::setsid();
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  ::signal(SIGPIPE, SIG_DFL);
  const int nowhere = ::open("/dev/null", O_RDONLY);
  if (nowhere >= 0) ::dup2(nowhere, STDIN_FILENO);
  ::execvp(arguments[0], arguments);
  const int error = errno;
  const ssize_t written = ::write(report, &error, sizeof error);
  ::_exit(written == sizeof error ? 127 : 126);
}

[[noreturn]] void StartProgramAndEnd(char* const* arguments, int report) {
  const pid_t program = ::fork();
  if (program == 0) BecomeProgram(arguments, report);
  if (program < 0) {
    const int error = errno;
    if (::write(report, &error, sizeof error) != sizeof error) ::_exit(126);
  }
  ::_exit(0);
}

void WaitFor(pid_t child) {
  while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
}

// The `errno` that came through the pipe, 0 when it closed without one.
int ReportedError(int report) {
  int error = 0;
  ssize_t count;
  do count = ::read(report, &error, sizeof error);
  while (count < 0 && errno == EINTR);
  return count == sizeof error ? error : 0;
}

int Start(char* const* arguments) {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return errno;
  const Descriptor reading(ends[0]);
  Descriptor writing(ends[1]);
  const pid_t child = ::fork();
  if (child == 0) StartProgramAndEnd(arguments, writing.Get());
  if (child < 0) return errno;
  writing = Descriptor();
  WaitFor(child);
  return ReportedError(reading.Get());
}

}  // namespace

void LinuxLauncher::Run(const std::string& commandLine) {
  std::vector<std::string> words = SplitCommandLine(commandLine);
  if (words.empty() || words[0].empty()) throw RuntimeError(errors::FileNotFound, "File not found");
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  // A missing folder on the way to the program is a missing program all the same.
  const int error = Start(arguments.data());
  if (error == ENOENT || error == ENOTDIR) throw RuntimeError(errors::FileNotFound, "File not found");
  if (error != 0) RaiseFileError(error, words[0]);
}

}  // namespace corvane
