#include "alarms/AlarmImport.h"

#include "alarms/AlarmNumber.h"
#include "alarms/ImportFile.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/RuntimeError.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

// Texts that are no criterion when they are empty.
bool IsNullWhenEmpty(std::string_view column) {
  return column == "Description" || column == "Source" || column == "Category" || column == "User" ||
         column == "Computer" || column == "EventDescription";
}

}  // namespace

void AlarmImport::Import(const std::string& text) {
  const ExchangeLine line(text);
  const std::string existing = FindAlarmID(main_, line[alarmfield::Name], line[alarmfield::Category]);
  if (!existing.empty() && !MayOverwrite(line[alarmfield::Name])) return;
  WriteAlarm(line, existing);
  ImportCategory(line[alarmfield::Category]);
  ImportBundleLinks(line);
}

bool AlarmImport::MayOverwrite(const std::string& name) {
  return main_.Ui.MsgBox("The Alarm: " + name + " already exists in the database. Do you wish to overwrite?",
                         ui::MsgIcon::Question, ui::MsgButtons::YesNo, "Overwrite Record") == ui::MsgResult::Yes;
}

// The alarm's own notification is a matter of each installation and stays as it is.
void AlarmImport::WriteAlarm(const ExchangeLine& line, const std::string& existingId) {
  const auto found = main_.Platform.Data.NewRecordset();
  if (!existingId.empty())
    found->Open("SELECT * FROM Alarms WHERE AlarmID = " + existingId, *main_.ConfigConnection, CursorType::Keyset,
                LockType::Optimistic);
  Recordset& row = existingId.empty() ? Table("Alarms") : *found;
  if (existingId.empty()) row.AddNew();
  for (std::size_t i = 0; i < AlarmColumns.size(); ++i) {
    const bool isNull = line[i].empty() && IsNullWhenEmpty(AlarmColumns[i]);
    row.SetField(AlarmColumns[i], isNull ? Value() : Value(line[i]));
  }
  row.Update();
}

// The numbers of OS class and log type are taken as they stand in the file.
void AlarmImport::ImportCategory(const std::string& index) {
  const auto existing =
      main_.ConfigConnection->Execute("SELECT * FROM AlarmCategories WHERE Index = " + QuoteSqlText(index));
  const auto line = existing->Eof() ? file_.FindCategory(index) : std::nullopt;
  if (!line) return;
  Recordset& row = Table("AlarmCategories");
  row.AddNew();
  for (std::size_t i = 0; i < CategoryColumns.size(); ++i) row.SetField(CategoryColumns[i], (*line)[i]);
  row.Update();
}

void AlarmImport::ImportBundleLinks(const ExchangeLine& line) {
  try {
    LinkToBundle(line);
  } catch (const RuntimeError& error) {
    main_.Ui.MsgBox("The following error occurred when attempting to add alarm bundle information for alarm " +
                        line[alarmfield::Name] + ":  " + std::to_string(error.Number) + "\t" + error.Description +
                        ".  This alarm has been imported, but you may have to manually adjust its group memberships.",
                    ui::MsgIcon::Exclamation);
  }
}

// The first line that begins with the name stands for the alarm, and of its bundles only the first one counts.
void AlarmImport::LinkToBundle(const ExchangeLine& line) {
  const std::string alarm = FindAlarmID(main_, line[alarmfield::Name], line[alarmfield::Category]);
  const std::string bundleName = file_.FindBundle(file_.FindAlarm(line[alarmfield::Name]));
  if (bundleName.empty()) return;
  const std::string bundle = FindOrAddBundle(bundleName);
  const auto member = main_.ConfigConnection->Execute("SELECT * FROM AlarmsInGroups WHERE AlarmID = " + alarm +
                                                      " AND AlarmGroupID = " + bundle);
  if (!member->Eof()) return;
  Recordset& row = Table("AlarmsInGroups");
  row.AddNew();
  row.SetField("AlarmID", alarm);
  row.SetField("AlarmGroupID", bundle);
  row.Update();
}

std::string AlarmImport::FindOrAddBundle(const std::string& name) {
  const auto bundle = main_.ConfigConnection->Execute("SELECT * FROM AlarmGroups WHERE Name = " + QuoteSqlText(name));
  if (!bundle->Eof()) return ToText(bundle->Field("Index"));
  Recordset& row = Table("AlarmGroups");
  row.AddNew();
  row.SetField("Name", name);
  row.Update();
  return ToText(row.Field("Index"));
}

Recordset& AlarmImport::Table(const std::string& name) {
  std::unique_ptr<Recordset>& table = tables_[name];
  if (table == nullptr) {
    auto opened = main_.Platform.Data.NewRecordset();
    opened->Open(name, *main_.ConfigConnection, CursorType::Keyset, LockType::Optimistic);
    table = std::move(opened);
  }
  return *table;
}

}  // namespace corvane
