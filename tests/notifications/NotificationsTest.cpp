#include "notifications/frmNotifications.h"

#include "app/installation/TextFile.h"
#include "core/ConfigDatabase.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/TestStore.h"
#include "support/TestTargets.h"

namespace corvane::test {

using Texts = std::vector<std::string>;

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
  void Add(const std::string& name) {
    Host.Click(Form.cmdAdd);
    Host.Type(Form.txtName, name);
  }
  void Edit(const std::string& name) {
    for (int row = 0; row < Form.lvwNotifications.Count(); ++row)
      if (Form.lvwNotifications.Item(row).Text == name) return Host.DoubleClick(Form.lvwNotifications, row);
    FAIL() << name << " is not listed";
  }
  void TickServer(const std::string& connection) {
    if (!Form.chkDB.Value) Host.Click(Form.chkDB);
    Host.Choose(Form.optDatabaseType[1]);
    Host.OnPromptConnection([=](const auto&) { return connection; });
    Host.Click(Form.cmdDataODBCBrowse);
  }
  void Browse(const std::string& file) {
    Host.OnOpenFile("C:\\Corvane\\" + file);
    Host.Click(Form.cmdDataODBCBrowse);
  }
  // The connection, the tables, and the text of their box.
  Texts Target() {
    Texts target{Form.txtDBConnection.Text};
    for (const std::string& table : Form.lstTableName.All()) target.push_back(table);
    target.push_back(Form.lstTableName.Text());
    return target;
  }

  TestTargets Targets;
  frmNotifications Form{Main, Targets};
  const std::string Hint = "<Type in new name or choose from existing tables below>",
                    OracleHint = "<Type in a new table name or find one in the list>",
                    TooNew = "' cannot be opened: the provider does not know its format.";
};

TEST_F(NotificationsTest, EveryUnionOfWaysIsSavedShownAndTakenBack) {
  Targets.Tables = {{"", "Events", "TABLE"}};
  const std::pair<ui::CheckBox*, ui::TextBox*> ways[] = {{&Form.chkEmail, &Form.txtRecipient},
                                                         {&Form.chkPager, &Form.txtPhone},
                                                         {&Form.chkPopup, &Form.txtNetwork},
                                                         {&Form.chkDB, &Form.txtDBConnection},
                                                         {&Form.chkSysLog, &Form.txtSyslogServer}};
  for (unsigned mask = 0; mask < 32; ++mask) {
    const std::string name = "Mask " + std::to_string(mask), where = " FROM Notifications WHERE Name = '" + name + "'";
    Add(name);
    for (unsigned bit = 0; bit < 5; ++bit) {
      EXPECT_FALSE(ways[bit].first->Value || ways[bit].second->Enabled || !ways[bit].second->Text.empty()) << name;
      if (!(mask >> bit & 1)) continue;
      if (bit == 3) {
        TickServer("DSN=events;");
        Host.Choose(Form.lstTableName, 0);
        continue;
      }
      Host.Click(*ways[bit].first);
      Host.Type(*ways[bit].second, "target");
      if (bit == 4) Host.Choose(Form.txtUDPPort, 0);
    }
    Host.Click(Form.cmdSave);
    EXPECT_EQ(std::to_string(mask) + (mask & 16 ? "|514\n" : "|0\n"),
              Console.Rows("SELECT TypesSupported, SyslogUDPPort" + where));
    Edit(name);
    for (unsigned bit = 0; bit < 5; ++bit) {
      EXPECT_EQ(mask >> bit & 1, ways[bit].first->Value) << name;
      if (ways[bit].first->Value) Host.Click(*ways[bit].first);
    }
    Host.Click(Form.cmdSave);
    EXPECT_EQ("0|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|0|0\n",
              Console.Rows("SELECT TypesSupported, EmailRecipient, PhoneNumber, PagerString, NetworkName, "
                           "DataConnectionString, TableName, SyslogServer, NULL, SyslogUDPPort, SyslogPriority" +
                           where));
  }
}

TEST_F(NotificationsTest, WritesStatementByStatementAndCarriesANewNameWhereItBelongs) {
  Targets.Tables = {{"", "Events", "TABLE"}};
  Add("Night shift");
  Host.Click(Form.chkCustom);
  Host.Choose(Form.cmbCustom, 0);
  Host.Click(Form.chkSysLog);
  Host.Type(Form.txtSyslogServer, "loghost,10.32.0.4");
  Host.Type(Form.txtUDPPort, "1514 (ours)");
  Host.Click(Form.cmdPriority);
  TickServer("DSN=events;PWD=it's;");
  Host.Type(Form.lstTableName, "EVENTS");
  Host.Click(Form.cmdSave);
  Console.Rows(
      "INSERT INTO NotificationsForLogs VALUES ('A1', 'MERIDIAN', 'Night shift'); "
      "UPDATE Alarms SET NotificationName = 'Night shift' WHERE AlarmID = 1");
  Main.SaveSetting("PingNotification", " NIGHT SHIFT ");
  for (const std::string name : {"night shift", "Day shift", "Day shift"}) {
    Edit(Form.lvwNotifications.Item(0).Text);
    EXPECT_EQ("1514", Form.txtUDPPort.Text());
    EXPECT_EQ("191", Form.txtPriority.Text);
    EXPECT_EQ((Texts{"DSN=events;PWD=it's;", "Events", "EVENTS"}), Target());
    Form.txtName.Text = name;
    Host.Click(Form.cmdSave);
    EXPECT_EQ(name, Console.Setting("PingNotification"));
    EXPECT_EQ(name + "\n", Console.Rows("SELECT NotificationName FROM NotificationsForLogs"));
    EXPECT_EQ(name + "\n", Console.Rows("SELECT NotificationName FROM Alarms WHERE AlarmID = 1"));
  }
  EXPECT_EQ("night shift|Brief\nDay shift|Brief\n", Console.Rows("SELECT * FROM CustomNotsForNots"))
      << "the old name's row stays";
  EXPECT_EQ("2026-11-16-14-5-9", Console.Setting("LastDBUpdate"));
  Main.SaveSetting("LastDBUpdate", "");
  // What holds a notification is looked at in this order; an alarm holds none.
  OnMessage("NotificationOnLog");
  Host.Click(Form.cmdDelete);
  Console.Rows("DELETE FROM NotificationsForLogs");
  OnMessage("NotificationForPing");
  Host.Click(Form.cmdDelete);
  Main.SaveSetting("PingNotification", "");
  for (const auto answer : {ui::MsgResult::No, ui::MsgResult::Yes}) {
    OnMessage("DeleteNotification", "Day shift", answer);
    Host.Click(Form.cmdDelete);
  }
  for (ui::CommandButton* button : {&Form.cmdEdit, &Form.cmdDelete}) Host.Click(*button);
  std::string changes;
  for (const std::string& sql : Console.Data.Changes()) changes += sql + "\n";
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/notifications/NotificationChanges.txt"), changes);
  EXPECT_EQ("", Console.Setting("LastDBUpdate") + (Form.lvwNotifications.Count() == 0 ? "" : "still listed"));
}

TEST_F(NotificationsTest, ARefusedSaveStaysOpenAndATableThatWasMadeStays) {
  Add("");
  Host.Click(Form.chkSysLog);
  Host.Type(Form.txtSyslogServer, "loghost");
  TickServer("DSN=events;");
  for (const auto& [port, priority] : {std::pair("", "0"), {" 514", "0"}, {"x", "0"}, {"514", ""}, {"514", "high"}}) {
    Form.txtUDPPort.SetText(port);
    Form.txtPriority.Text = priority;
    OnMessage("Failure", "13\nType mismatch");
    Host.Click(Form.cmdSave);
  }
  Form.txtPriority.Text = "7";
  // The hint is the name of no table either, and the table comes before the name is looked at.
  Targets.Calls.clear();
  for (const char* name : {"", "Bob's", "\"hi\"", "a-b"}) {
    Form.txtName.Text = name;
    OnMessage(*name ? "NotificationCharacters" : "NoNotificationName");
    Host.Click(Form.cmdSave);
  }
  EXPECT_EQ(2U, Targets.Calls.size()) << "the table is made once";
  EXPECT_EQ(0U, Targets.Calls.back().find("CREATE TABLE [" + Hint + "] ("));
  // A failure half-way leaves what was done, and what has its row by then is edited.
  Form.txtName.Text = "Half";
  for (const char* statement : {"INSERT INTO Notifications", "DELETE FROM CustomNotsForNots"}) {
    Console.Data.FailAfter(0, statement);
    OnMessage("Failure", "-2147217887\nThe row is locked");
    Host.Click(Form.cmdSave);
  }
  EXPECT_EQ("Half|514|7\n" + Console.Setting("LastDBUpdate"),
            Console.Rows("SELECT Name, SyslogUDPPort, SyslogPriority FROM Notifications"));
  Form.txtName.Text = "Whole";
  Console.Data.FailAfter(0, "UPDATE Alarms");
  for (const bool fails : {true, false}) {
    if (fails) OnMessage("Failure", "-2147217887\nThe row is locked");
    Host.Click(Form.cmdSave);
  }
  EXPECT_EQ("Whole\n", Console.Rows("SELECT Name FROM Notifications"));
}

TEST_F(NotificationsTest, FilesAreFoundMadeAndRefused) {
  const auto file = [&](const std::string& name) { return "C:\\Corvane\\" + name; };
  const auto failure = [&](const std::string& name, const std::string& why) {
    OnMessage("Failure", "-2147467259\nThe database '" + (Console.Folder() / name).string() + why);
  };
  SqliteProvider::CreateStore(Console.Folder() / "old.mdb", "CREATE TABLE Hits (N INTEGER)", 3);
  std::ofstream(Console.Folder() / "foreign.mdb")
      << std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(80, 'x');
  Add("Files");
  Host.Click(Form.chkDB);
  Host.OnOpenFile(std::nullopt);
  Host.Click(Form.cmdDataODBCBrowse);
  EXPECT_EQ("Microsoft Access (*.mdb)", Host.OpenDialogs[0].Filter);
  EXPECT_EQ("Select an existing Access database, or type in a new filename to create one.", Host.OpenDialogs[0].Title);
  EXPECT_TRUE(Host.OpenDialogs[0].MayBeNew);
  Browse("old.mdb");
  EXPECT_EQ((Texts{file("old.mdb"), "Hits", Hint}), Target());
  failure("foreign.mdb", "' cannot be opened: it was made by Microsoft Access, which this computer cannot read.");
  Browse("foreign.mdb");
  OnMessage("NoNewDatabase");
  Browse("nowhere\\new.mdb");
  EXPECT_EQ((Texts{file("nowhere\\new.mdb"), ""}), Target());
  Browse("new.mdb");
  Host.Type(Form.lstTableName, "Event rows");
  Host.Click(Form.cmdSave);
  EXPECT_EQ(
      "DateAndTime DATETIME|Source VARCHAR(100)|TypeOfEvent VARCHAR(50)|Category VARCHAR(250)|EventID INTEGER|"
      "AccountInfo VARCHAR(150)|Computer VARCHAR(100)|Description LONGTEXT|LogType INTEGER\n",
      Ask(Console.Folder() / "new.mdb",
          "SELECT group_concat(name || ' ' || type, '|') FROM pragma_table_info('Event rows')"));
  // A new file has the newer format, which only browsing opens. So its tables are not listed when it is edited, and a
  // save takes the one that is stored for a new one.
  failure("new.mdb", TooNew);
  Edit("Files");
  EXPECT_TRUE(Form.optDatabaseType[0].Value);
  EXPECT_EQ((Texts{file("new.mdb"), "Event rows"}), Target());
  OnMessage("TableFailure",
            "Corvane Store\nDescription:  Syntax error in the statement: table [Event rows] already exists.");
  OnMessage("NoNewTable");
  Host.Click(Form.cmdSave);
  Browse("new.mdb");
  EXPECT_EQ((Texts{file("new.mdb"), "Event rows", Hint}), Target());
  Host.Choose(Form.lstTableName, 0);
  Host.Click(Form.cmdSave);
  EXPECT_TRUE(Form.lvwNotifications.Visible);
}

TEST_F(NotificationsTest, TablesBehindOdbcAreListedAndMadeInTheWayOfTheirSystem) {
  Targets.Tables = {{"APP", "Hits", "TABLE"}, {"SYS", "Dual", "SYSTEM TABLE"}, {"APP", "Seen", "VIEW"}};
  Add("Server");
  TickServer("DSN=events;");
  EXPECT_EQ((Texts{"DSN=events;", "Hits", Hint}), Target());
  Host.OnPromptConnection([&](const ui::ConnectionPrompt& prompt) {
    EXPECT_EQ((Texts{"A driver", "events", ""}),
              (Texts{prompt.Drivers[0], prompt.DataSources[0], prompt.Test("good")}));
    Targets.Fails = "bad";
    EXPECT_EQ("It is not to be", prompt.Test("bad"));
    return std::nullopt;
  });
  Host.Click(Form.cmdDataODBCBrowse);
  OnMessage("Failure", "-2147467259\nIt is not to be");
  TickServer("DSN=bad;");
  EXPECT_EQ((Texts{"", ""}), Target()) << "a click on the type empties both";
  Targets.DbmsName = "an ORACLE server";
  TickServer("DSN=ora;");
  EXPECT_EQ((Texts{"DSN=ora;", "APP.Hits", "SYS.Dual", OracleHint}), Target());
  for (const auto& c : Cases("notifications/NewTables.txt")) {
    Targets.DbmsName = c[0];
    Targets.Fails = c[3];
    Targets.Calls.clear();
    std::istringstream answers(c[2]);
    for (std::string answer, title = "Schema"; answers >> answer;) {
      if (answer == "-") answer.clear();
      Host.OnInputBox("Oracle DB Detected - Enter " + title, answer);
      if (title == "Schema" && answer.empty())
        OnMessage("SchemaNeeded", "", answers.eof() ? ui::MsgResult::No : ui::MsgResult::Yes);
      else
        title = "Tablespace";
    }
    if (!c[3].empty()) OnMessage("TableFailure", "A driver\nDescription:  It is not to be");
    Form.lstTableName.SetText(c[1]);
    EXPECT_EQ(!c[5].empty(), Form.CreateTable(c[1])) << c[1];
    EXPECT_EQ(c[4], Targets.Calls.back());
    EXPECT_EQ(c[5].empty() ? c[1] : c[5], Form.lstTableName.Text());
  }
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/notifications/Questions.txt"),
            Host.InputTexts[0] + "\n" + Host.InputTexts[1] + "\n");
}

TEST_F(NotificationsTest, HasTwoFacesHintsAndAPagerOnlyWithAModem) {
  const auto tellsFace = [&](bool list) {
    EXPECT_EQ(list ? &Form.cmdCancel : &Form.cmdSave, Form.DefaultButton());
    EXPECT_EQ(list ? &Form.cmdCancel : &Form.cmdAbandon, Form.CancelButton());
    for (const ui::Control* control : Form.Controls())
      EXPECT_EQ(control != &Form.cmdTest && (control <= &Form.cmdCancel) == list, control->Visible) << control->Name();
  };
  tellsFace(true);
  Console.Rows("INSERT INTO Notifications VALUES ('Pager', 2, NULL, '5550100', '911', NULL, NULL, NULL, NULL, 0, 0)");
  Console.Rows("INSERT INTO Notifications VALUES ('Log', 16, NULL, NULL, NULL, NULL, NULL, NULL, 'a', 6260, 0)");
  Console.Rows("INSERT INTO CustomNotsForNots VALUES ('Log', 'Renamed')");
  Add("x");
  tellsFace(false);
  for (int tab = 0; tab < 6; ++tab) {
    Host.BringToFront(Form.tabMain, tab);
    EXPECT_EQ(Cases("notifications/Hints.txt")[static_cast<std::size_t>(tab)][0], Form.lblInfo.Caption);
  }
  Form.CloseBox();
  tellsFace(true);
  for (const char* modem : {"1", "0"}) {
    Main.SaveSetting("DataModemIndex", modem);
    Edit("Pager");
    EXPECT_EQ("5550100911", Form.txtPhone.Text + Form.txtPagerString.Text);
    EXPECT_TRUE(Form.chkPager.Enabled == (*modem == '1') && Form.chkPager.Value == (*modem == '1'));
    EXPECT_EQ(*modem == '1', Form.txtPhone.Enabled);
    Host.Click(Form.cmdSave);
    EXPECT_EQ("2|5550100|911\n", Console.Rows("SELECT TypesSupported, PhoneNumber, PagerString FROM Notifications "
                                              "WHERE Name = 'Pager'"));
  }
  Edit("Log");
  EXPECT_EQ("6260 (Default Corvane Listener Console Port)0", Form.txtUDPPort.Text() + Form.txtPriority.Text);
  EXPECT_TRUE(Form.chkCustom.Value && Form.cmbCustom.ListIndex() == -1) << "the template is gone";
  Form.CloseBox();
  std::string tested;
  frmNotifications other(Main, Targets);
  other.Test = [&](const std::string& name) { tested = name; };
  other.Load();
  Host.Click(other.cmdTest);
  EXPECT_EQ("Log", tested);
  Host.Click(other.cmdAdd);
  EXPECT_FALSE(other.cmdPriority.Visible);
}

}  // namespace corvane::test
