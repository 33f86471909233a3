#include "app/installation/ConfigUpdateFile.h"

#include "app/installation/CatalogueStatements.h"

namespace corvane {

// An empty line, even at the end, would leave the console's update unfinished: each statement closes its own line.
std::string ConfigUpdateText(const Catalogue& catalogue) {
  std::string text = InsertOsClass(OsClassCount) + "\n";
  for (const auto& category : catalogue.Categories)
    if (category.Os == OsClassCount) text += InsertCategory(category) + "\n";
  for (const auto& alarm : catalogue.Alarms)
    if (alarm.Os == OsClassCount) text += InsertAlarm(alarm) + "\n";
  return text;
}

}  // namespace corvane
