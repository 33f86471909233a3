#include "adapters/lab/LabNetwork.h"

#include <chrono>
#include <thread>

#include "adapters/lab/LabReader.h"
#include "platform/Conversions.h"
#include "platform/RegistryStore.h"
#include "platform/RuntimeError.h"

namespace corvane {

LabTiming::LabTiming()
    : Sleep([](int milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }), Now([] {
        const auto since = std::chrono::system_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
      }) {}

LabNetwork::LabNetwork(const std::filesystem::path& file, std::filesystem::path localRegistry, LabTiming timing)
    : registries_(file.parent_path() / "registry"),
      localRegistry_(std::move(localRegistry)),
      storage_(file),
      timing_(std::move(timing)) {
  Model();
}

std::shared_ptr<const LabModel> LabNetwork::Model() {
  if (!model_ || storage_.Changed()) {
    model_.reset();
    model_ = std::make_shared<const LabModel>(ReadLabModel(LabFile(storage_.Read())));
  }
  return model_;
}

bool LabNetwork::Change(const std::function<bool(const LabModel&, LabFile&)>& change) {
  bool changed = false;
  storage_.Exclusively([&] {
    LabFile file(storage_.Read());
    changed = change(ReadLabModel(file), file);
    if (changed) storage_.Replace(file.Text());
  });
  model_.reset();
  return changed;
}

bool LabNetwork::Request(const std::function<bool(const LabModel&, LabFile&)>& change) {
  try {
    return Change(change);
  } catch (const RuntimeError&) {
    return false;
  }
}

long LabNetwork::Contact(const std::string& name, LabComputer& computer) {
  const auto model = Model();
  const LabComputer* found = model->FindComputer(name);
  if (!found || found->State == LabState::Off) {
    Wait(model->TimeoutMs);
    return registry::NetworkPathNotFound;
  }
  Wait(found->DelayMs);
  if (found->State == LabState::Refusing) return registry::AccessDenied;
  computer = *found;
  return registry::Ok;
}

long LabNetwork::RemoteRegistry(const std::string& name, std::filesystem::path& file) {
  LabComputer computer;
  const long status = Contact(name, computer);
  if (status != registry::Ok) return status;
  const bool local = SameText(computer.Name, Model()->LocalComputer);
  file = local && !localRegistry_.empty() ? localRegistry_ : registries_ / (computer.Name + ".reg");
  return registry::Ok;
}

void LabNetwork::Wait(int milliseconds) const {
  if (milliseconds > 0) timing_.Sleep(milliseconds);
}

}  // namespace corvane
