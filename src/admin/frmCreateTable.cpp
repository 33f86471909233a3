#include "admin/frmCreateTable.h"

#include "core/modMain.h"
#include "platform/RuntimeError.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 390;

}  // namespace

frmCreateTable::frmCreateTable(modMain& main, TargetConnector& connector)
    : Form(main.Ui, "frmCreateTable"), main_(main), targets_(main, connector) {
  HelpContext = HelpTopic;
  lblInfo.Caption =
      "Database notifications write a row for each event.  Choose the database that they are to be written into, and "
      "type the name of the table to create there.";
  cmdDataODBCBrowse.Caption = "&Browse and choose your database";
  lblDataODBC.Caption = "&Database:";
  lblTables.Caption = "Tables &found:";
  lblNewTable.Caption = "T&able Name:";
  lblSchema.Caption = "&Schema (required - must be entered):";
  lblTablespace.Caption = "Tabl&espace (leave blank for default):";
  cmdAdd.Caption = "&Create Table";
  cmdCancel.Caption = "Close";
  txtDataODBC.Locked = true;
  cmdDataODBCBrowse.Click = [this] { cmdDataODBCBrowse_Click(); };
  txtNewTable.Change = [this] { txtNewTable_Change(); };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdCancel.Click = [this] { Unload(); };
  cmdAdd.Default = cmdCancel.Cancel = true;
  txtNewTable_Change();
  InitForm(Kind::Access);
}

void frmCreateTable::InitForm(Kind kind) {
  kind_ = kind;
  Caption = kind == Kind::Access      ? "Create Corvane Table in Access"
            : kind == Kind::SqlServer ? "Create Corvane Table on Microsoft SQL Server"
                                      : "Create Corvane Table on Oracle";
  ui::ShowFace({&lblSchema, &txtSchema, &lblTablespace, &txtTableSpace}, kind == Kind::Oracle);
}

void frmCreateTable::cmdDataODBCBrowse_Click() {
  ListTables([this] { return kind_ == Kind::Access ? BrowseFile() : BrowseServer(); });
}

void frmCreateTable::ListTables(const std::function<std::optional<std::vector<std::string>>()>& find) {
  std::optional<std::vector<std::string>> tables;
  try {
    tables = find();
  } catch (const RuntimeError& error) {
    if (error.Number == errors::DataCancelled) return;
    Refuse(
        "An error occured when trying to connect to your data source.  Make sure you have chosen a valid Access "
        "database or ODBC data source and try again.");
  }
  lstTableName.Clear();
  for (const std::string& table : tables.value_or(std::vector<std::string>())) lstTableName.AddItem(table);
}

std::optional<std::vector<std::string>> frmCreateTable::BrowseFile() {
  const auto path = targets_.AskForFile();
  if (!path) throw RuntimeError(errors::DataCancelled, "");
  txtDataODBC.Text = *path;
  return targets_.TablesOfFile(*path);
}

std::optional<std::vector<std::string>> frmCreateTable::BrowseServer() {
  const TargetListing listing = targets_.Prompt();
  txtDataODBC.Text = listing.ConnectionString;
  return listing.Tables;
}

void frmCreateTable::txtNewTable_Change() { cmdAdd.Enabled = !txtNewTable.Text.empty(); }

// Names are told apart by their case here: what is the same to the database is left for it to refuse.
void frmCreateTable::cmdAdd_Click() {
  const std::string& name = txtNewTable.Text;
  if (lstTableName.IndexOf(name) >= 0) {
    Refuse(name + " is not a unique table name.  Please create a new table name and try again.");
    return main_.Ui.SetFocus(txtNewTable);
  }
  if (kind_ == Kind::Oracle && txtSchema.Text.empty())
    return Refuse(
        "You must enter a schema name when creating an Oracle table.  If you are unsure of the schema name you should "
        "use, please contact your Oracle database administrator.");
  if (!TellTableFailure(main_, [this] { Create(); })) return;
  Refresh();
  txtNewTable.Text.clear();
  txtNewTable_Change();
  main_.Ui.SetFocus(txtNewTable);
}

void frmCreateTable::Create() const {
  if (kind_ == Kind::Access) return targets_.CreateInFile(txtDataODBC.Text, txtNewTable.Text);
  const auto connection = targets_.Open(txtDataODBC.Text);
  if (kind_ == Kind::Oracle)
    TargetTables::CreateOnOracle(*connection, txtSchema.Text, txtNewTable.Text, txtTableSpace.Text);
  else
    TargetTables::CreateOnServer(*connection, txtNewTable.Text);
}

void frmCreateTable::Refresh() {
  ListTables([this] {
    return kind_ == Kind::Access ? targets_.TablesOfFile(txtDataODBC.Text)
                                 : std::optional(targets_.ListingOf(txtDataODBC.Text).Tables);
  });
}

void frmCreateTable::Refuse(const std::string& text) { main_.Ui.MsgBox(text, ui::MsgIcon::Exclamation); }

}  // namespace corvane
