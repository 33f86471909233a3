#include "adapters/linux/WaitForWork.h"

#include <future>
#include <system_error>
#include <thread>
#include <utility>

namespace corvane {

bool WaitForWork(std::function<bool()> work, std::chrono::milliseconds limit,
                 const std::function<void()>& whileWaiting) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  std::packaged_task<bool()> task(std::move(work));
  std::future<bool> done = task.get_future();
  try {
    // Not joined: a look-up of a name can outlast every limit.
    std::thread(std::move(task)).detach();
  } catch (const std::system_error&) {
    return false;
  }
  while (done.wait_for(std::chrono::milliseconds(25)) != std::future_status::ready) {
    if (std::chrono::steady_clock::now() >= deadline) return false;
    whileWaiting();
  }
  return done.get();
}

}  // namespace corvane
