#include "support/Duel.h"

#include <ctime>

namespace corvane::bench {
namespace {

void KeepQuicker(double& best, double seconds) {
  if (best == 0 || seconds < best) best = seconds;
}

}  // namespace

double SecondsOf(Clock clock, const std::function<void()>& action) {
  const clockid_t id = clock == Clock::Wall ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID;
  timespec start, end;
  ::clock_gettime(id, &start);
  action();
  ::clock_gettime(id, &end);
  return static_cast<double>(end.tv_sec - start.tv_sec) + 1e-9 * static_cast<double>(end.tv_nsec - start.tv_nsec);
}

double Duel::Round(const std::function<double()>& work, const std::function<double()>& bare) {
  if (bare) KeepQuicker(bare_, bare());
  const double seconds = work();
  KeepQuicker(work_, seconds);
  return seconds;
}

}  // namespace corvane::bench
