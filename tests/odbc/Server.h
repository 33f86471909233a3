#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "adapters/odbc/OdbcConnector.h"
#include "platform/RuntimeError.h"
#include "support/RecordingDriver.h"

namespace corvane::test {

/// A database server of the test's own, see `serve`, stopped with this object.
class Server {
 public:
  Server(const std::string& kind, const std::string& driver, const std::string& attributes) {
    UseTestDrivers();
    const std::string path = folder_.Path();
    if (process_ = ::fork(); process_ == 0)
      ::execl(CORVANE_SOURCE_DIR "/tests/odbc/serve", "serve", kind.c_str(), path.c_str(), nullptr), ::_exit(1);
    unlocked_ = "DRIVER={" + driver + "};" + attributes;
    unlocked_.replace(unlocked_.find("FOLDER"), 6, path);
  }
  ~Server() { Stop(); }

  void Stop() {
    if (process_ > 0) ::kill(process_, SIGQUIT), ::waitpid(process_, nullptr, 0);
    process_ = 0;
  }

  std::string String(const std::string& password = "{geheim;{1}}}") const { return unlocked_ + "PWD=" + password; }

  /// A connection, as soon as the server takes one; raises its last refusal after 20 seconds.
  std::unique_ptr<TargetConnection> Wait() const {
    for (int i = 0;; ++i) try {
        return OdbcConnector().Open(String());
      } catch (const RuntimeError&) {
        if (i == 200) throw;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
      }
  }

 private:
  TempFolder folder_;
  pid_t process_;
  std::string unlocked_;
};

}  // namespace corvane::test
