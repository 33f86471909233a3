#include "support/BenchAlarms.h"

#include <string>

#include "support/BareStore.h"

namespace corvane::bench {

void FillCatalogue(const std::filesystem::path& database, int alarms) {
  BareStore store(database);
  store.Run("BEGIN; DELETE FROM Alarms; DELETE FROM AlarmCategories");
  store.Run("INSERT INTO AlarmCategories VALUES ('Bench_2', 'Bench', 2, 2)");
  for (int i = 0; i < alarms; ++i)
    store.Run("INSERT INTO Alarms (Name, AlarmCategory, TypeMask, Source, EventID) VALUES ('Alarm " +
              std::to_string(i) + "', 'Bench_2', 4, 'Disk', " + std::to_string(i) + ")");
  store.Run("COMMIT");
}

}  // namespace corvane::bench
