#include "alarms/AlarmNumber.h"

#include "core/SqlText.h"
#include "core/modMain.h"

namespace corvane {

std::string FindAlarmID(modMain& main, const std::string& name, const std::string& categoryIndex) {
  const auto alarm = main.ConfigConnection->Execute("SELECT * FROM Alarms WHERE Name = " + QuoteSqlText(name) +
                                                    " AND AlarmCategory = " + QuoteSqlText(categoryIndex));
  return alarm->Eof() ? std::string() : ToText(alarm->Field("AlarmID"));
}

}  // namespace corvane
