#include "core/ConfigDatabase.h"

#include <initializer_list>

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Files.h"
#include "platform/System.h"

namespace corvane {
namespace {

bool HasNewestOSType(modMain& main) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open("SELECT * FROM OSTypes WHERE Index=3", *main.ConfigConnection, CursorType::ForwardOnly,
             LockType::ReadOnly);
  return !(rows->Eof() && rows->Bof());
}

enum class UpdateEnd { EndOfFile, ShortLine, ForeignLine };

UpdateEnd RunUpdateLines(LineReader& file, Connection& connection) {
  std::string line;
  while (file.ReadLine(line)) {
    // A short line stops here with the transaction left open: the file must not hold one.
    if (line.size() < 10) return UpdateEnd::ShortLine;
    if (line.substr(0, 6) != "INSERT") return UpdateEnd::ForeignLine;
    PassOver([&] { connection.Execute(line); });
  }
  return UpdateEnd::EndOfFile;
}

void DeleteAttachments(modMain& main, std::initializer_list<const char*> tables, const std::string& idName,
                       const std::string& domain, OnFailure failure) {
  for (const char* table : tables) {
    const auto remove = [&] {
      main.ConfigConnection->Execute(std::string("DELETE FROM ") + table + " WHERE IDName = " + QuoteSqlText(idName) +
                                     " AND [Domain] = " + QuoteSqlText(domain));
    };
    if (failure == OnFailure::Raise)
      remove();
    else
      PassOver(remove);
  }
}

}  // namespace

std::string JetString(const char* version, const std::string& path) {
  return std::string("Provider=Microsoft.Jet.OLEDB.") + version + ";Data Source=" + path + ";";
}

void OpenConfigDatabase(modMain& main) {
  main.ConfigConnection = main.Platform.Data.NewConnection();
  main.SharedRecordset = main.Platform.Data.NewRecordset();
  main.ConfigConnection->CursorLocation = CursorLocation::Client;
  if (!PassOver([&] { main.ConfigConnection->Open(JetString("3.51", main.ConfigDbPath)); }))
    OpenWithJet40(*main.ConfigConnection, main.ConfigDbPath);
}

bool OpenWithJet40(Connection& connection, const std::string& path) {
  return PassOver([&] { connection.Open(JetString("4.0", path)); });
}

bool CreateAccessDatabase(modMain& main, const std::string& path) {
  const auto catalog = main.Platform.Data.NewCatalog();
  return PassOver([&] { catalog->Create(JetString("4.0", path)); }) ||
         PassOver([&] { catalog->Create(JetString("3.51", path)); });
}

void ApplyConfigUpdate(modMain& main) {
  bool current = true;
  if (!PassOver([&] { current = HasNewestOSType(main); }) || current) return;
  PassOver([&] { main.ConfigConnection->BeginTrans(); });
  const std::string path = main.Platform.System.ProgramFolder() + "\\configupdate01.dat";
  std::unique_ptr<LineReader> file;
  auto end = UpdateEnd::ForeignLine;
  if (PassOver([&] { file = main.Platform.Files.OpenForInput(path); }))
    PassOver([&] { end = RunUpdateLines(*file, *main.ConfigConnection); });
  if (end == UpdateEnd::ForeignLine) PassOver([&] { main.ConfigConnection->RollbackTrans(); });
  if (end != UpdateEnd::EndOfFile) return;
  file.reset();
  PassOver([&] { main.ConfigConnection->CommitTrans(); });
  PassOver([&] { main.Platform.Files.Delete(path); });
}

void StampLastDBUpdate(modMain& main) {
  // Each field is read from the clock by itself; the service compares the text for change, not for order.
  const auto now = [&] { return PartsOf(main.Platform.System.Now()); };
  std::string stamp = std::to_string(now().Year);
  stamp += "-" + std::to_string(now().Month);
  stamp += "-" + std::to_string(now().Day);
  stamp += "-" + std::to_string(now().Hour);
  stamp += "-" + std::to_string(now().Minute);
  stamp += "-" + std::to_string(now().Second);
  main.SaveSetting("LastDBUpdate", stamp);
}

void DeleteAlarmsAndNots(modMain& main, const std::string& idName, const std::string& domain, OnFailure failure) {
  DeleteAttachments(main, {"AlarmsForLogs", "NotificationsForLogs", "AlarmGroupsForLogs"}, idName, domain, failure);
}

void DeleteDenyAlarms(modMain& main, const std::string& idName, const std::string& domain, OnFailure failure) {
  DeleteAttachments(main, {"DenyAlarmsForLogs", "DenyAlarmGroupsForLogs"}, idName, domain, failure);
}

}  // namespace corvane
