#include "admin/frmCreateTable.h"

#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/TestStore.h"
#include "support/TestTargets.h"

namespace corvane::test {

using Texts = std::vector<std::string>;

class CreateTable : public ConsoleTest {
 protected:
  void Begin(frmCreateTable::Kind kind) {
    Form.InitForm(kind);
    const char* places[] = {"in Access", "on Microsoft SQL Server", "on Oracle"};
    EXPECT_EQ(std::string("Create Corvane Table ") + places[static_cast<int>(kind) - 1], Form.Caption);
    EXPECT_EQ(kind == frmCreateTable::Kind::Oracle, Form.txtSchema.Visible && Form.txtTableSpace.Visible &&
                                                        Form.lblSchema.Visible && Form.lblTablespace.Visible);
  }
  void Browse(const std::string& target, bool isFile) {
    if (isFile)
      Host.OnOpenFile(target);
    else
      Host.OnPromptConnection([=](const auto&) { return target; });
    Host.Click(Form.cmdDataODBCBrowse);
  }
  void Create(const std::string& name) {
    EXPECT_FALSE(Form.cmdAdd.Enabled);
    Host.Type(Form.txtNewTable, name);
    Host.Click(Form.cmdAdd);
  }

  TestTargets Targets;
  frmCreateTable Form{Main, Targets};
};

TEST_F(CreateTable, InAFileThatIsThereOrIsMade) {
  Begin(frmCreateTable::Kind::Access);
  for (const char* broken : {"nowhere\\x.mdb", "lab.ini"}) {
    OnMessage(*broken == 'n' ? "NoNewDatabase" : "NoDataSource");
    Browse(std::string("C:\\Corvane\\") + broken, true);
  }
  Browse("C:\\Corvane\\events.mdb", true);
  for (const char* name : {"Hits", "All hits"}) Create(name);
  EXPECT_EQ((Texts{"All hits", "Hits"}), Form.lstTableName.All());
  Host.OnOpenFile(std::nullopt);
  Host.Click(Form.cmdDataODBCBrowse);
  OnMessage("TableNotUnique", "Hits");
  Create("Hits");
  // In another case it is left to the database, which refuses it; what was typed stays.
  Form.txtNewTable.Text = "HITS";
  OnMessage("TableFailure", "Corvane Store\nDescription:  Syntax error in the statement: table [HITS] already exists.");
  Host.Click(Form.cmdAdd);
  EXPECT_EQ("HITS", Form.txtNewTable.Text);
  EXPECT_EQ("DateAndTime,Source,TypeOfEvent,Category,EventID,AccountInfo,Computer,Description,LogType\n",
            Ask(Console.Folder() / "events.mdb", "SELECT group_concat(name) FROM pragma_table_info('All hits')"));
}

TEST_F(CreateTable, OnServersInTheWayOfEachKind) {
  Targets.Tables = {{"APP", "Seen", "TABLE"}, {"SYS", "Dual", "SYSTEM TABLE"}, {"APP", "Shown", "VIEW"}};
  for (const auto& c : Cases("admin/NewTables.txt")) {
    const bool isOracle = c[0] == "Oracle";
    Targets.DbmsName = c[0];
    Targets.Calls.clear();
    Begin(isOracle ? frmCreateTable::Kind::Oracle : frmCreateTable::Kind::SqlServer);
    Browse("DSN=events;PWD=lantern;", false);
    EXPECT_EQ((isOracle ? Texts{"APP.Seen", "SYS.Dual"} : Texts{"Seen"}), Form.lstTableName.All());
    Form.txtSchema.Text = isOracle ? c[2] : "";
    Form.txtTableSpace.Text = isOracle ? c[3] : "";
    const bool isMade = c[4] != "DSN=events;PWD=lantern;";
    if (!isMade) OnMessage("NoSchema");
    Create(c[1]);
    // Browsing, creating and the list after it each open the connection.
    ASSERT_EQ(isMade ? 4U : 1U, Targets.Calls.size());
    EXPECT_EQ(c[4], Targets.Calls[isMade ? 2 : 0]);
    EXPECT_EQ(isMade ? "" : c[1], Form.txtNewTable.Text);
    Form.txtNewTable.Text.clear();
    Form.txtNewTable.Change();
  }
  Begin(frmCreateTable::Kind::SqlServer);
  for (const char* fails : {"CREATE", "DSN"}) {
    Targets.Fails = fails;
    OnMessage("TableFailure", "A driver\nDescription:  It is not to be");
    Form.txtNewTable.Text.clear();
    Form.txtNewTable.Change();
    Create("Late");
    EXPECT_EQ("Late2", Form.txtNewTable.Text + std::to_string(Form.lstTableName.Count()));
  }
  Host.OnPromptConnection([](const auto&) { return std::nullopt; });
  Host.Click(Form.cmdDataODBCBrowse);
  EXPECT_EQ(2, Form.lstTableName.Count());
  OnMessage("NoDataSource");
  Browse("DSN=gone;", false);
  EXPECT_EQ(0, Form.lstTableName.Count());
  Form.CloseBox();
}

}  // namespace corvane::test
