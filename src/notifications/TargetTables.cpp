#include "notifications/TargetTables.h"

#include "core/ConfigDatabase.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "platform/data/Connection.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr const char* OldProvider = "3.51";
constexpr const char* NewProvider = "4.0";
constexpr std::string_view FileEnding = ".MDB";

bool HasBlank(const std::string& name) { return name.find(' ') != name.npos; }

std::vector<std::string> NamesOf(TargetConnection& connection, bool isOracle) {
  std::vector<std::string> names;
  for (const TargetTable& table : connection.Tables()) {
    if (isOracle && (table.Type == "TABLE" || table.Type == "SYSTEM TABLE"))
      names.push_back(table.Schema + "." + table.Name);
    else if (!isOracle && table.Type == "TABLE")
      names.push_back(table.Name);
  }
  return names;
}

TargetListing List(TargetConnection& connection) {
  const bool isOracle = TargetTables::IsOracle(connection);
  return {connection.ConnectionString(), isOracle, NamesOf(connection, isOracle)};
}

}  // namespace

bool TargetTables::IsFile(const std::string& connectionText) { return UpperCase(connectionText).ends_with(FileEnding); }

bool TargetTables::IsOracle(const TargetConnection& connection) {
  return UpperCase(connection.DbmsName()).find("ORACLE") != std::string::npos;
}

std::optional<std::string> TargetTables::AskForFile() const {
  return main_.Ui.OpenFile({"Select an existing Access database, or type in a new filename to create one.",
                            "Microsoft Access (*.mdb)", /*MayBeNew=*/true});
}

// A file that may not be looked at is there.
bool TargetTables::Exists(const std::string& path) const {
  try {
    main_.Platform.Files.Length(path);
  } catch (const RuntimeError& error) {
    return error.Number != errors::FileNotFound && error.Number != errors::PathNotFound;
  }
  return true;
}

std::vector<std::string> TargetTables::ListFile(const char* version, const std::string& path) const {
  const auto catalog = main_.Platform.Data.NewCatalog();
  catalog->SetActiveConnection(JetString(version, path));
  return catalog->Tables();
}

std::vector<std::string> TargetTables::TablesOfOldFile(const std::string& path) const {
  return ListFile(OldProvider, path);
}

// Each step is taken once: a file is made once, and opened once with the newer provider.
std::optional<std::vector<std::string>> TargetTables::TablesOfFile(const std::string& path) const {
  try {
    return ListFile(OldProvider, path);
  } catch (const RuntimeError& error) {
    if (error.Number != errors::DataFailure) throw;
  }
  if (!Exists(path) && !CreateAccessDatabase(main_, path)) {
    main_.Ui.MsgBox(
        "Corvane could not create a Microsoft Access database on disk.  Make sure you have the latest Jet and MDAC "
        "libraries installed from Microsoft.",
        ui::MsgIcon::Exclamation);
    return std::nullopt;
  }
  return ListFile(NewProvider, path);
}

TargetListing TargetTables::Prompt() const {
  const auto test = [this](const std::string& connectionString) {
    try {
      connector_.Open(connectionString);
      return std::string();
    } catch (const RuntimeError& error) {
      return error.Description;
    }
  };
  const auto chosen = main_.Ui.PromptConnection({connector_.Drivers(), connector_.DataSources(), test});
  if (!chosen) throw RuntimeError(errors::DataCancelled, "The operation was cancelled by the user.");
  return ListingOf(*chosen);
}

TargetListing TargetTables::ListingOf(const std::string& connectionString) const {
  return List(*connector_.Open(connectionString));
}

void TargetTables::CreateInFile(const std::string& path, const std::string& table) const {
  const auto catalog = main_.Platform.Data.NewCatalog();
  catalog->SetActiveConnection(JetString(NewProvider, path));
  catalog->AppendTable(table, {{"DateAndTime", ColumnType::Date},
                               {"Source", ColumnType::Text, 100},
                               {"TypeOfEvent", ColumnType::Text, 50},
                               {"Category", ColumnType::Text, 250},
                               {"EventID", ColumnType::Integer},
                               {"AccountInfo", ColumnType::Text, 150},
                               {"Computer", ColumnType::Text, 100},
                               {"Description", ColumnType::LongText},
                               {"LogType", ColumnType::Integer}});
}

void TargetTables::CreateOnServer(TargetConnection& connection, const std::string& table) {
  connection.Execute(
      "CREATE TABLE " + (HasBlank(table) ? "[" + table + "]" : table) +
      " (RecordNum int IDENTITY (1, 1) NOT NULL ,DateAndTime datetime NOT NULL ,Source varchar (100) NOT NULL "
      ",TypeOfEvent varchar (50) NOT NULL ,Category varchar (250) NOT NULL ,EventID int NOT NULL ,AccountInfo varchar "
      "(150) NOT NULL ,Computer varchar (100) NOT NULL ,Description text NOT NULL ,LogType int NOT NULL)");
}

// The category has room for 255 characters here and for 250 elsewhere, and the description may be Null: the service
// knows the tables so.
void TargetTables::CreateOnOracle(TargetConnection& connection, const std::string& schema, const std::string& table,
                                  const std::string& tablespace) {
  connection.Execute(
      "CREATE TABLE " + schema + "." + (HasBlank(table) ? "\"" + table + "\"" : table) +
      " (DATEANDTIME DATE NOT NULL, SOURCE VARCHAR2(100) NOT NULL, TYPEOFEVENT VARCHAR2(50) NOT NULL, CATEGORY "
      "VARCHAR2(255) NOT NULL, EVENTID NUMBER(6) NOT NULL, ACCOUNTINFO VARCHAR2(150) NOT NULL, COMPUTER VARCHAR2(100) "
      "NOT NULL, DESCRIPTION LONG, LOGTYPE NUMBER(4) NOT NULL)" +
      (tablespace.empty() ? "" : " TABLESPACE " + tablespace));
}

bool TellTableFailure(modMain& main, const std::function<void()>& create) {
  try {
    create();
    return true;
  } catch (const RuntimeError& error) {
    main.Ui.MsgBox("The following error occured when attempting to add your table:  \nSource:  " + error.Source +
                       "\nDescription:  " + error.Description,
                   ui::MsgIcon::Exclamation);
    return false;
  }
}

}  // namespace corvane
