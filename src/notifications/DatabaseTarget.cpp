#include "notifications/DatabaseTarget.h"

#include <algorithm>

#include "core/TellFailure.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/RuntimeError.h"
#include "platform/ui/UiHost.h"

namespace corvane {

void DatabaseTarget::Clear() {
  connection_.Text.clear();
  table_.Clear();
}

void DatabaseTarget::Load(const std::string& connection, const std::string& table) {
  ui::ChooseOption(type_, TargetTables::IsFile(connection) ? Access : Odbc);
  connection_.Text = connection;
  RefreshTableList();
  table_.SetText(table);
}

void DatabaseTarget::Browse() {
  TellFailure(main_, [this] {
    try {
      type_[Access].Value ? BrowseFile() : BrowseServer();
    } catch (const RuntimeError& error) {
      if (error.Number != errors::DataCancelled) throw;
    }
  });
}

void DatabaseTarget::BrowseFile() {
  const auto path = targets_.AskForFile();
  if (!path) return;
  connection_.Text = *path;
  table_.Clear();
  if (const auto tables = targets_.TablesOfFile(*path)) Show(*tables, false);
}

void DatabaseTarget::BrowseServer() {
  const TargetListing listing = targets_.Prompt();
  Show(listing.Tables, listing.IsOracle);
  connection_.Text = listing.ConnectionString;
}

// Here a file is opened with the older provider alone: one of the newer format lists its tables only when it is browsed
// for.
void DatabaseTarget::RefreshTableList() {
  table_.Clear();
  TellFailure(main_, [this] {
    if (TargetTables::IsFile(connection_.Text)) return Show(targets_.TablesOfOldFile(connection_.Text), false);
    const TargetListing listing = targets_.ListingOf(connection_.Text);
    Show(listing.Tables, listing.IsOracle);
  });
}

void DatabaseTarget::Show(const std::vector<std::string>& tables, bool isOracle) {
  table_.Clear();
  for (const std::string& table : tables) table_.AddItem(table);
  table_.SetText(isOracle ? "<Type in a new table name or find one in the list>"
                          : "<Type in new name or choose from existing tables below>");
}

bool DatabaseTarget::IsListed() const {
  return std::ranges::any_of(table_.All(), [this](const auto& table) { return SameText(table, table_.Text()); });
}

bool DatabaseTarget::CreateTable(const std::string& name) {
  bool isMade = false;
  return TellTableFailure(main_, [&] { isMade = Create(name); }) && isMade;
}

bool DatabaseTarget::Create(const std::string& name) {
  if (type_[Access].Value) {
    targets_.CreateInFile(connection_.Text, name);
  } else {
    const auto connection = targets_.Open(connection_.Text);
    if (TargetTables::IsOracle(*connection)) return CreateOnOracle(*connection, name);
    TargetTables::CreateOnServer(*connection, name);
  }
  ShowNew(name);
  return true;
}

bool DatabaseTarget::CreateOnOracle(TargetConnection& connection, const std::string& name) {
  const std::string schema = AskForSchema(name);
  if (schema.empty()) return false;
  const std::string tablespace = main_.Ui.InputBox(
      "Please enter the tablespace where you would like the " + name +
          " table to be stored.  Leave this option blank to use the default tablespace of your login.",
      "Oracle DB Detected - Enter Tablespace");
  TargetTables::CreateOnOracle(connection, schema, name, tablespace);
  ShowNew(schema + "." + name);
  return true;
}

// Empty when the user gives up.
std::string DatabaseTarget::AskForSchema(const std::string& name) {
  for (;;) {
    const std::string schema =
        main_.Ui.InputBox("Please enter the schema where you would like the " + name +
                              " table to be located.  You must specify a schema to continue.  Contact your Oracle DBA "
                              "if you are unsure of the schema you should use.",
                          "Oracle DB Detected - Enter Schema");
    if (!schema.empty() ||
        main_.Ui.MsgBox("You must explicitly specify the schema where you want your table to be created.  Would you "
                        "like to try this operation again?",
                        ui::MsgIcon::Question, ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
      return schema;
  }
}

// Listed from now on, so that a save that is refused after it does not make it a second time.
void DatabaseTarget::ShowNew(const std::string& name) {
  table_.AddItem(name);
  table_.SetText(name);
}

}  // namespace corvane
