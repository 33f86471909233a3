#include "support/ChildProcess.h"

#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

#include "support/ErrorOf.h"

namespace corvane::test {
namespace {

void Require(bool done) {
  if (!done) throw std::runtime_error("a child process cannot do its part");
}

}  // namespace

ChildProcess::ChildProcess(const std::function<void(ChildProcess&)>& work) {
  Require(::pipe(toTest_) == 0 && ::pipe(toChild_) == 0);
  child_ = ::fork();
  Require(child_ >= 0);
  if (child_ > 0) {
    ::close(toTest_[1]);
    return;
  }
  ::alarm(30);
  try {
    Tell(ErrorOf([&] { work(*this); }));
  } catch (...) {
    ::_exit(1);
  }
  ::_exit(0);
}

ChildProcess::~ChildProcess() {
  Kill();
  for (const int pipe : {toTest_[0], toChild_[0], toChild_[1]}) ::close(pipe);
}

void ChildProcess::Tell(int number) const { Require(::write(toTest_[1], &number, sizeof number) == sizeof number); }

void ChildProcess::Wait() const {
  char ready = 0;
  Require(::read(toChild_[0], &ready, 1) == 1);
}

void ChildProcess::BecomeNobody() {
  constexpr int nobody = 65534;
  if (::geteuid() == 0) Require(::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0);
}

int ChildProcess::Hear() const {
  int number = -1;
  return ::read(toTest_[0], &number, sizeof number) == sizeof number ? number : -1;
}

void ChildProcess::Release() const { Require(::write(toChild_[1], "", 1) == 1); }

void ChildProcess::Kill() {
  if (child_ > 0) ::kill(child_, SIGKILL), ::waitpid(child_, nullptr, 0);
  child_ = 0;
}

int InChild(const std::function<int()>& work) {
  return ChildProcess([&](ChildProcess& self) { self.Tell(work()); }).Hear();
}

int AsNobody(const std::filesystem::path& file, mode_t fileMode, mode_t folderMode, const std::function<int()>& work) {
  const auto setModes = [&](mode_t ofFile, mode_t ofFolder) {
    Require(::chmod(file.c_str(), ofFile) == 0 && ::chmod(file.parent_path().c_str(), ofFolder) == 0);
  };
  setModes(fileMode, folderMode);
  const int result = InChild([&] { return ChildProcess::BecomeNobody(), work(); });
  setModes(0600, 0700);
  return result;
}

int OnFullDisk(unsigned long bytes, const std::function<int()>& work) {
  return InChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    Require(::setrlimit(RLIMIT_FSIZE, &limit) == 0);
    return work();
  });
}

}  // namespace corvane::test
