#pragma once

#include <functional>

namespace corvane::bench {

/// `Processor` leaves out the time in which others had the processor, and the waiting for a disk.
enum class Clock { Processor, Wall };

/// How long the action takes, in seconds.
double SecondsOf(Clock clock, const std::function<void()>& action);

/// Times a work and the bare work under it in turn, so that both meet the same load of the machine, and keeps the
/// quickest run of each. Both give their own time in seconds, so that they may leave out what prepares them.
class Duel {
 public:
  /// Runs the two once more and gives the time of the work. Without bare work the work alone is timed.
  double Round(const std::function<double()>& work, const std::function<double()>& bare = {});

  double Work() const { return work_; }
  double Bare() const { return bare_; }

 private:
  double work_ = 0;
  double bare_ = 0;
};

}  // namespace corvane::bench
