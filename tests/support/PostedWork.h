#pragma once

#include <chrono>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace corvane::test {

/// What other threads posted to the one thread, run when a test says so.
class PostedWork {
 public:
  void Post(std::function<void()> action) {
    const std::lock_guard guard(posting_);
    actions_.push_back(std::move(action));
  }
  /// True as soon as so much was posted in all, false when it is not within the time.
  bool Await(std::size_t count, std::chrono::milliseconds time = std::chrono::seconds(5)) {
    for (; time.count() > 0; time -= std::chrono::milliseconds(5)) {
      if (const std::lock_guard guard(posting_); actions_.size() >= count) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
  }
  void Run() {
    const std::lock_guard guard(posting_);
    for (const auto& action : actions_) action();
  }

 private:
  std::mutex posting_;
  std::vector<std::function<void()>> actions_;
};

}  // namespace corvane::test
