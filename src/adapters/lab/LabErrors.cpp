#include "adapters/lab/LabErrors.h"

#include "platform/RegistryStore.h"
#include "platform/RuntimeError.h"

namespace corvane {

void RaiseUnlessOk(long status) {
  if (status == registry::AccessDenied) throw RuntimeError(errors::AutomationError, "Access is denied.");
  if (status != registry::Ok) throw RuntimeError(errors::AutomationError, "The network path was not found.");
}

void RaiseNoObject() { throw RuntimeError(errors::AutomationError, "There is no such object on the server."); }

}  // namespace corvane
