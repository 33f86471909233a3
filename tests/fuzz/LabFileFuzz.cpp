#include "adapters/lab/LabReader.h"
#include "fuzz/Fuzz.h"

// A lab file is understood or refused; what the console writes into one that it can read is read back.
void corvane::fuzz::Try(const std::string& input) {
  RequireErrors({errors::InvalidPropertyValue}, [&] {
    LabFile file(input);
    for (const LabService& service : ReadLabModel(file).Services) {
      file.Set("Service " + service.Name, "Until", "12");
      Require(ReadLabModel(LabFile(file.Text())).FindService(service.Name)->Until == 12);
    }
  });
}
