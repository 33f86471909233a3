#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "adapters/lab/LabReader.h"
#include "platform/RuntimeError.h"
#include "platform/ServiceManager.h"

using namespace corvane;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

// What the console writes into a lab file that it can read must be read back, with all else as it was.
void CheckChange(LabFile& file, const LabModel& model) {
  for (const LabService& service : model.Services) {
    const std::string section = "Service " + service.Name;
    file.Set(section, "State", "running");
    file.Set(section, "Until", "12");
    const LabModel changed = ReadLabModel(LabFile(file.Text()));
    const LabService* found = changed.FindService(service.Name);
    Require(found && found->State == service::Running && found->Until == 12 && found->StartMs == service.StartMs);
    Require(changed.Services.size() == model.Services.size());
    Require(changed.Computers.size() == model.Computers.size());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    LabFile file(std::string(data, data + size));
    Require(LabFile(file.Text()).Text() == file.Text());
    const LabModel model = ReadLabModel(file);
    for (const LabComputer& computer : model.Computers) Require(model.FindComputer(computer.Name) == &computer);
    for (const LabDomain& domain : model.Domains) {
      const LabComputer* controller = model.FindController(domain.Name);
      Require(!controller || controller->Role == LabRole::Controller);
    }
    CheckChange(file, model);
  } catch (const RuntimeError& error) {
    Require(error.Number == errors::InvalidPropertyValue);
  }
  return 0;
}
