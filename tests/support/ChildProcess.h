#pragma once

#include <sys/types.h>

#include <functional>

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
  /// In the process: goes on as a user without rights to the files of others; lets no file grow beyond the size.
  static void BecomeNobody();
  static void FillDisk(unsigned long bytes);

  /// In the test: the next number that the process tells, -1 when it died; lets it go on; kills it.
  int Hear() const;
  void Release() const;
  void Kill();

 private:
  int toTest_[2] = {}, toChild_[2] = {};
  pid_t child_ = 0;
};

/// Does the work in a process of its own and gives its result, or the number of the error that it raised.
int InChild(const std::function<int()>& work);

}  // namespace corvane::test
