#pragma once

#include <sys/types.h>

#include <functional>

namespace corvane::test {

/// Starts a process that runs `work` and ends.
pid_t StartChild(const std::function<void()>& work);

/// Starts `count` processes at once that run `work` with their number, and waits for their end.
void InChildren(int count, const std::function<void(int number)>& work);

/// Runs `work` in a process of its own and gives its result; -1 when that process died on the way.
long InChild(const std::function<long()>& work);

/// The same as a user without any rights to files of others.
long AsNobody(const std::function<long()>& work);

/// The same where no file can grow beyond `bytes`, as on a full disk.
long WithFullDisk(unsigned long bytes, const std::function<long()>& work);

}  // namespace corvane::test
