#include "notifications/frmNotifications.h"

#include "app/installation/TextFile.h"
#include "core/ConfigDatabase.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/TestStore.h"
#include "support/TestTargets.h"

namespace corvane::test {

// The screen without notifications, on a computer with a modem.
class NotificationsTest : public ConsoleTest {
 protected:
  NotificationsTest() {
    Console.Rows("DELETE FROM Notifications; INSERT INTO CustomNotifications VALUES ('Brief', '%0', '%9')");
    Main.InitGlobals();
    Main.SaveSetting("DataModemIndex", "1");
    OpenConfigDatabase(Main);
    Form.BuildPriority = [](ui::TextBox& priority) { priority.Text = "191"; };
    Form.Load();
  }
  void Add(const std::string& name, const std::vector<ui::CheckBox*>& ways) {
    Host.Click(Form.cmdAdd);
    Host.Type(Form.txtName, name);
    for (ui::CheckBox* way : ways) Host.Click(*way);
  }
  void BrowseServer(const std::string& connection) {
    Host.Choose(Form.optDatabaseType[1]);
    Host.OnPromptConnection([=](const auto&) { return connection; });
    Host.Click(Form.cmdDataODBCBrowse);
  }
  void ClickAndTell(ui::CommandButton& button, const std::string& message, const std::string& with = "") {
    OnMessage(message, with, ui::MsgResult::Yes);
    Host.Click(button);
  }
  /// The connection, the tables, and the text of their box, parted by strokes.
  std::string Target() {
    std::string target = Form.txtDBConnection.Text + "|";
    for (const std::string& table : Form.lstTableName.All()) target += table + "|";
    return target + Form.lstTableName.Text();
  }

  TestTargets Targets;
  frmNotifications Form{Main, Targets};
  const std::string Hint = "<Type in new name or choose from existing tables below>";
};

TEST_F(NotificationsTest, EveryUnionOfWaysIsSavedShownAndTakenBack) {
  ui::CheckBox* const ways[] = {&Form.chkEmail, &Form.chkPager, &Form.chkPopup, &Form.chkDB, &Form.chkSysLog};
  ui::TextBox* const targets[] = {&Form.txtRecipient, &Form.txtPhone, &Form.txtNetwork, &Form.txtDBConnection,
                                  &Form.txtSyslogServer};
  for (unsigned mask = 0; mask < 32; ++mask) {
    const std::string name = "N" + std::to_string(mask);
    Add(name, {});
    for (unsigned way = 0; way < 5; ++way) {
      if (!(mask >> way & 1)) continue;
      Host.Click(*ways[way]);
      Host.Type(*targets[way], "x");
      if (way == 3) Form.lstTableName.AddItem("");
      if (way == 4) Host.Choose(Form.txtUDPPort, 0);
    }
    for (const unsigned saved : {mask, 0U}) {
      Host.Click(Form.cmdSave);
      EXPECT_EQ(std::to_string(saved) + "\n",
                Console.Rows("SELECT TypesSupported FROM Notifications WHERE Name = '" + name + "'"));
      Host.Click(Form.cmdEdit);
      for (unsigned way = 0; way < 5; ++way) {
        EXPECT_TRUE(ways[way]->Value == (saved >> way & 1) && targets[way]->Enabled == ways[way]->Value) << mask;
        if (ways[way]->Value) Host.Click(*ways[way]);
      }
    }
    Form.CloseBox();
  }
}

TEST_F(NotificationsTest, WritesStatementByStatementAndCarriesANewNameWhereItBelongs) {
  Add("Night shift", {&Form.chkCustom, &Form.chkSysLog, &Form.chkDB});
  Host.Choose(Form.cmbCustom, 0);
  Host.Type(Form.txtSyslogServer, "loghost,10.32.0.4");
  Host.Type(Form.txtUDPPort, "1514 (ours)");
  Host.Click(Form.cmdPriority);
  BrowseServer("DSN=events;PWD=it's;");
  Host.Type(Form.lstTableName, "SEEN");
  Host.Click(Form.cmdSave);
  Console.Rows(
      "INSERT INTO NotificationsForLogs VALUES ('A1', 'MERIDIAN', 'Night shift'); "
      "UPDATE Alarms SET NotificationName = 'Night shift' WHERE AlarmID = 1");
  Main.SaveSetting("PingNotification", " NIGHT SHIFT ");
  for (const std::string name : {"night shift", "Day shift", "Day shift"}) {
    Host.Click(Form.cmdEdit);
    EXPECT_EQ("1514 191", Form.txtUDPPort.Text() + " " + Form.txtPriority.Text);
    EXPECT_EQ("DSN=events;PWD=it's;|Seen|SEEN", Target());
    Form.txtName.Text = name;
    Host.Click(Form.cmdSave);
    EXPECT_EQ(name + "|" + name + "\n" + name,
              Console.Rows("SELECT A.NotificationName, L.NotificationName FROM Alarms A, "
                           "NotificationsForLogs L WHERE AlarmID = 1") +
                  Console.Setting("PingNotification"));
  }
  EXPECT_EQ("night shift|Brief\nDay shift|Brief\n", Console.Rows("SELECT * FROM CustomNotsForNots"));
  EXPECT_EQ("2026-11-16-14-5-9", Console.Setting("LastDBUpdate"));
  // What holds a notification is looked at in this order; an alarm holds none.
  ClickAndTell(Form.cmdDelete, "NotificationOnLog");
  Console.Rows("DELETE FROM NotificationsForLogs");
  ClickAndTell(Form.cmdDelete, "NotificationForPing");
  Main.SaveSetting("PingNotification", "");
  ClickAndTell(Form.cmdDelete, "DeleteNotification", "Day shift");
  Host.Click(Form.cmdEdit);
  std::string changes;
  for (const std::string& sql : Console.Data.Changes()) changes += sql + "\n";
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/notifications/NotificationChanges.txt"), changes);
}

TEST_F(NotificationsTest, ARefusedSaveStaysOpenAndATableThatWasMadeStays) {
  Add("", {&Form.chkSysLog, &Form.chkDB});
  Host.Type(Form.txtSyslogServer, "loghost");
  BrowseServer("DSN=events;");
  for (const auto& c : Cases("notifications/Refusals.txt")) {
    Form.txtUDPPort.SetText(c[0]);
    Form.txtPriority.Text = c[1];
    Form.txtName.Text = c[2];
    ClickAndTell(Form.cmdSave, c[3], c[4]);
    EXPECT_EQ(c[3] == "Failure" ? 1U : 3U, Targets.Calls.size());
  }
  // The hint is the name of no table either. The table comes before the name is looked at, and is made once.
  EXPECT_EQ(0U, Targets.Calls.at(2).find("CREATE TABLE [" + Hint + "] ("));
  // A failure half-way leaves what was done, and what has its row by then is edited.
  for (const char* fails : {"INSERT INTO Notifications", "DELETE FROM CustomNotsForNots", "UPDATE Alarms"}) {
    Form.txtName.Text = *fails == 'U' ? "Whole" : "Half";
    Console.Data.FailAfter(0, fails);
    ClickAndTell(Form.cmdSave, "Failure", "-2147217887\nThe row is locked");
  }
  EXPECT_EQ("", Console.Setting("LastDBUpdate"));
  Host.Click(Form.cmdSave);
  EXPECT_EQ("Whole|514|7\n", Console.Rows("SELECT Name, SyslogUDPPort, SyslogPriority FROM Notifications"));
}

TEST_F(NotificationsTest, DatabasesAreFoundAndTablesMadeInTheWayOfTheirSystem) {
  SqliteProvider::CreateStore(Console.Folder() / "old.mdb", "CREATE TABLE Hits (N INTEGER)", 3);
  Add("Files", {&Form.chkDB});
  Targets.Fails = "bad";
  for (const auto& c : Cases("notifications/Targets.txt", {{"folder", Console.Folder().string()}, {"hint", Hint}})) {
    const auto chosen = c[1].empty() ? std::nullopt : std::optional(c[1]);
    if (!c[2].empty()) OnMessage(c[2], c[3]);
    if (c[2] == "TableFailure") OnMessage("NoNewTable");
    if (c[0] == "type") Host.Choose(Form.optDatabaseType[1]);
    if (c[0] == "dbms") Targets.DbmsName = c[1];
    if (c[0] == "table") Host.Type(Form.lstTableName, c[1]);
    if (c[0] == "file") Host.OnOpenFile(chosen);
    if (c[0] == "server")
      Host.OnPromptConnection([&](const ui::ConnectionPrompt& prompt) {
        EXPECT_EQ("It is not to be", prompt.Test("good") + prompt.Test("bad"));
        return chosen;
      });
    if (c[0] == "file" || c[0] == "server") Host.Click(Form.cmdDataODBCBrowse);
    if (c[0] == "save") Host.Click(Form.cmdSave);
    if (c[0] == "edit") Host.Click(Form.cmdEdit);
    EXPECT_EQ(c[4], Target()) << c[0] << " " << c[1];
  }
  EXPECT_EQ("Select an existing Access database, or type in a new filename to create one.", Host.OpenDialogs[0].Title);
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/notifications/Columns.txt"),
            Ask(Console.Folder() / "new.mdb", "SELECT name, type FROM pragma_table_info('Rows')"));
  for (const auto& c : Cases("notifications/NewTables.txt")) {
    Targets.DbmsName = c[0];
    Targets.Fails = c[3];
    std::istringstream answers(c[2]);
    for (std::string answer, title = "Schema"; answers >> answer; title = answer == "-" ? title : "Tablespace") {
      Host.OnInputBox("Oracle DB Detected - Enter " + title, answer == "-" ? "" : answer);
      if (title == "Schema" && answer == "-")
        OnMessage("SchemaNeeded", "", answers.eof() ? ui::MsgResult::No : ui::MsgResult::Yes);
    }
    if (!c[3].empty()) OnMessage("TableFailure", "A driver\nDescription:  It is not to be");
    Form.lstTableName.SetText(c[1]);
    EXPECT_EQ(!c[5].empty(), Form.CreateTable(c[1])) << c[1];
    EXPECT_EQ(c[4] + (c[5].empty() ? c[1] : c[5]), Targets.Calls.back() + Form.lstTableName.Text());
  }
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/notifications/Questions.txt"),
            Host.InputTexts[0] + "\n" + Host.InputTexts[1] + "\n");
}

TEST_F(NotificationsTest, HasTwoFacesHintsAndAPagerOnlyWithAModem) {
  Console.Rows(
      "INSERT INTO Notifications VALUES ('Log', 18, NULL, '555', '911', NULL, NULL, NULL, 'a', 6260, 0); "
      "INSERT INTO CustomNotsForNots VALUES ('Log', 'Renamed')");
  Add("x", {});
  int tab = 0;
  for (const auto& hint : Cases("notifications/Hints.txt")) {
    Host.BringToFront(Form.tabMain, tab++);
    EXPECT_EQ(hint[0], Form.lblInfo.Caption);
  }
  Form.CloseBox();
  for (const bool hasModem : {true, false}) {
    for (const ui::Control* control : Form.Controls())
      EXPECT_EQ(control <= &Form.cmdCancel && control != &Form.cmdTest, control->Visible) << control->Name();
    Main.SaveSetting("DataModemIndex", hasModem ? "1" : "0");
    Host.Click(Form.cmdEdit);
    EXPECT_TRUE(Form.chkCustom.Value && Form.cmbCustom.ListIndex() == -1) << "the template is gone";
    EXPECT_EQ("6260 (Default Corvane Listener Console Port)0", Form.txtUDPPort.Text() + Form.txtPriority.Text);
    for (const bool is : {Form.chkPager.Enabled, Form.chkPager.Value, Form.txtPhone.Enabled}) EXPECT_EQ(hasModem, is);
    Host.Click(Form.cmdSave);
    EXPECT_EQ("18|555|911\n", Console.Rows("SELECT TypesSupported, PhoneNumber, PagerString FROM Notifications"));
  }
}

}  // namespace corvane::test
