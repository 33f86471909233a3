#include "settings/ChildProcess.h"

#include <grp.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <vector>

namespace corvane::test {

pid_t StartChild(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no child process");
  if (child > 0) return child;
  work();
  ::_exit(0);
}

void InChildren(int count, const std::function<void(int)>& work) {
  std::vector<pid_t> children;
  for (int number = 0; number < count; ++number) children.push_back(StartChild([&] { work(number); }));
  for (const pid_t child : children) ::waitpid(child, nullptr, 0);
}

long InChild(const std::function<long()>& work) {
  int ends[2];
  if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
  long result = -1;
  InChildren(1, [&](int) {
    result = work();
    if (::write(ends[1], &result, sizeof result) < 0) ::_exit(1);
  });
  ::close(ends[1]);
  if (::read(ends[0], &result, sizeof result) != sizeof result) result = -1;
  ::close(ends[0]);
  return result;
}

long AsNobody(const std::function<long()>& work) {
  return InChild([&]() -> long {
    constexpr int nobody = 65534;
    const bool isRoot = ::geteuid() == 0;
    if (isRoot && (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0)) return -1;
    return work();
  });
}

long WithFullDisk(unsigned long bytes, const std::function<long()>& work) {
  return InChild([&]() -> long {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? work() : -1;
  });
}

}  // namespace corvane::test
