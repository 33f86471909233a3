#pragma once

#include <sys/types.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <memory>

namespace corvane::test {

/// Another process on the same files, with which the test talks through two pipes. It is killed with this object. The
/// test must not have a database open when it starts one, as connections do not survive a fork.
class ChildProcess {
 public:
  /// Starts a process that does the work and then tells the number of the error that the work raised, 0 for none.
  explicit ChildProcess(const std::function<void(ChildProcess&)>& work);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  /// In the process: says a number to the test; waits until the test lets it go on.
  void Tell(int number) const;
  void Wait() const;
  /// In the process: goes on as a user without rights to the files of others.
  static void BecomeNobody();

  /// In the test: the next number that the process tells, -1 when it died; lets it go on; kills it.
  int Hear() const;
  void Release() const;
  void Kill();

 private:
  int toTest_[2] = {}, toChild_[2] = {};
  pid_t child_ = 0;
};

/// Another program as a child process, whose limit of time goes over to it.
template <class... Words>
std::unique_ptr<ChildProcess> StartProgram(const char* program, Words... words) {
  return std::make_unique<ChildProcess>([=](ChildProcess&) { ::execlp(program, program, words..., nullptr); });
}

/// Does the work in a process of its own and gives its result, or the number of the error that it raised.
int InChild(const std::function<int()>& work);

/// The same as a user without rights to the files of others, while the file and its folder have these modes.
int AsNobody(const std::filesystem::path& file, mode_t fileMode, mode_t folderMode, const std::function<int()>& work);

/// The same where no file can grow beyond the size, as on a full disk.
int OnFullDisk(unsigned long bytes, const std::function<int()>& work);

}  // namespace corvane::test
