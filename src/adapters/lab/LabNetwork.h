#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

#include "adapters/lab/LabFile.h"
#include "adapters/lab/LabModel.h"
#include "adapters/lab/LabStorage.h"

namespace corvane {

/// How the lab waits and what time it is there; tests put their own in place of the real clock.
struct LabTiming {
  LabTiming();

  /// Waits so many milliseconds.
  std::function<void(int)> Sleep;
  /// Milliseconds since 1970.
  std::function<std::int64_t()> Now;
};

/// A small Windows network kept in one file, which everybody who works with it sees at once as the others leave it.
/// Settings: the path of the lab file; the registry file of the console itself, which is also the local computer's. The
/// registries of the other computers lie in the folder `registry` beside the lab file.
class LabNetwork {
 public:
  /// Raises 53 or 75 when the file cannot be read and 380 when it cannot be understood.
  explicit LabNetwork(const std::filesystem::path& file, std::filesystem::path localRegistry = {},
                      LabTiming timing = LabTiming());

  /// The network as the file says at this moment. Raises as the constructor does.
  std::shared_ptr<const LabModel> Model();
  /// Changes the file: `change` gets the present network and edits its text; what it returns is returned. Nothing is
  /// written when that is false. Raises 75 when the file cannot be written.
  bool Change(const std::function<bool(const LabModel&, LabFile&)>& change);
  /// The same for what one asks of a computer: a file that cannot be written is a request that failed, thus false.
  bool Request(const std::function<bool(const LabModel&, LabFile&)>& change);

  /// Addresses a computer and waits for as long as it takes to answer. Status 0 with the computer, 5 when it refuses,
  /// 53 when it is off or not known.
  long Contact(const std::string& name, LabComputer& computer);
  /// Where the registry file of a computer lies. Waits and gives a status as `Contact` does.
  long RemoteRegistry(const std::string& name, std::filesystem::path& file);

  void Wait(int milliseconds) const;
  std::int64_t Now() const { return timing_.Now(); }

 private:
  std::filesystem::path registries_, localRegistry_;
  LabStorage storage_;
  LabTiming timing_;
  std::shared_ptr<const LabModel> model_;
};

}  // namespace corvane
