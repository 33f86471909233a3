#include "alarms/frmAlarmGroups.h"
#include "app/installation/TextFile.h"
#include "core/ConfigDatabase.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

// The screen over three bundles of a small catalogue, two of them of one name.
class BundlesTest : public ConsoleTest {
 protected:
  BundlesTest() {
    Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/BundleRows.txt"));
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    Form.Load();
  }
  ui::NodeId Bundle(int id) { return Form.tvAlarmGroups.Find("GROUP\\" + std::to_string(id)); }
  void Edit(int id) { Host.DoubleClick(Form.tvAlarmGroups, Bundle(id)); }
  void Begin(const std::string& name) {
    Host.Click(Form.cmdAdd);
    Host.Type(Form.txtGroupName, name);
  }
  /// Picks nodes of the catalogue and adds them one by one.
  void Add(const std::vector<std::string>& keys) {
    for (const char* above : {"OS\\2", "LOGTYPE\\2\\2", "LOGTYPE\\2\\5", "OS\\3", "LOGTYPE\\3\\2"})
      Host.Open(Form.tvAlarms, Form.tvAlarms.Find(above));
    for (const std::string& key : keys) {
      Host.ClickNode(Form.tvAlarms, Form.tvAlarms.Find(key));
      Host.Drop(Form.tvAlarms, Form.lvwAlarms);
    }
  }
  std::string Listed() {
    std::string keys;
    for (const ui::ListItem& item : Form.lvwAlarms.Items()) keys += item.Key + " ";
    return keys;
  }
  const std::string Disk = "ALARMCAT\\2\\Disk_2", NewDisk = "ALARMCAT\\3\\Disk_3",
                    BadBlock = "ALARM\\2\\Disk_2\\Bad block";
  frmAlarmGroups Form{Main};
};

TEST_F(BundlesTest, WritesStatementByStatementAndStampsWhatIsSaved) {
  Begin("Mine");
  Add({"ALARMCAT\\2\\Replication_2", Disk});
  EXPECT_EQ((std::vector<std::string>{"Replication", "Directory Server", "Windows 2000/XP/2003"}),
            Form.lvwAlarms.Item(0).SubItems);
  Host.Click(Form.cmdSave);
  // Bundles are found by their names: of two the older one gets the members of the new one, and is opened and emptied.
  Begin("Links");
  Add({Disk});
  Host.Click(Form.cmdSave);
  Edit(3);
  EXPECT_EQ("ID_14 ID_11 ID_12 ", Listed());
  Host.Click(Form.cmdSave);
  // Members whose alarm or category is gone are not listed, and gone for good when the bundle is saved.
  Edit(1);
  Console.Rows("UPDATE AlarmGroups SET Name = 'Renamed elsewhere' WHERE [Index] = 1");
  Host.Type(Form.txtGroupName, " 2");
  Host.Click(Form.cmdSave);
  // The first bundle is set on a log. The second is only ignored there and may go; the service is not told.
  OnMessage("BundleIsBound");
  Host.Click(Form.cmdDelete);
  Console.System.Clock = [] { return MakeDateTime(2028, 1, 1, 0, 0, 0); };
  Form.tvAlarmGroups.Select(Bundle(3));
  for (const auto answer : {ui::MsgResult::No, ui::MsgResult::Yes}) {
    OnMessage("DeleteBundle", "Links", answer);
    Host.Click(Form.cmdDelete);
  }
  std::string changes;
  for (const std::string& sql : Console.Data.Changes()) changes += sql + "\n";
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/BundleChanges.txt"), changes);
  EXPECT_EQ("2026-11-16-14-5-9", Console.Setting("LastDBUpdate"));
  EXPECT_EQ(Bundle(1), Form.tvAlarmGroups.Selected()) << "the one now in its place";
}

TEST_F(BundlesTest, ComparesTheNameThatIsPickedAndTellsADuplicateOnce) {
  Begin("Mine");
  Host.Click(Form.cmdAlarmAdd);
  Add({"OS\\2", "LOGTYPE\\2\\2", Disk});
  EXPECT_EQ("ID_11 ID_12 1", Listed() + std::to_string(Form.tvAlarms.Node(Form.tvAlarms.Find(Disk)).Expanded));
  // A name is one alarm, whatever its OS class and case. With a category it is the category's name that is compared.
  OnMessage("SelectedTwice");
  Add({BadBlock, BadBlock, NewDisk, "ALARM\\3\\Disk_3\\bad block", NewDisk, BadBlock});
  EXPECT_EQ("ID_11 ID_12 ID_13 ID_16 ", Listed());
  // The message is not repeated for the next bundle, and what was picked for this one holds no member back there.
  Host.Click(Form.cmdAbandon);
  Console.Rows("INSERT INTO AlarmsInGroups VALUES (12, 1)");
  Edit(1);
  Add({Disk, BadBlock});
  EXPECT_EQ("ID_11 ID_12 ", Listed());
}

TEST_F(BundlesTest, LeavesWhatWasDoneBeforeAFailureAndGoesOn) {
  const char* members = "SELECT AlarmGroupID, AlarmID FROM AlarmsInGroups WHERE AlarmGroupID > 3";
  Begin("Mine");
  Add({Disk});
  Console.Data.FailAfter(1, "INSERT INTO AlarmsInGroups");
  OnMessage("Failure", "-2147217887\nThe row is locked");
  Host.Click(Form.cmdSave);
  EXPECT_EQ("4|11\n" + Console.Setting("LastDBUpdate"), Console.Rows(members));
  // The bundle stands by now, so that saving again makes no second one.
  Host.Click(Form.cmdSave);
  EXPECT_EQ("4|11\n4|12\n", Console.Rows(members));
  // One that could not be read whole is not opened: the rest would be lost when it is saved.
  Console.Data.FailAfter(0, "FROM Alarms, AlarmCategories");
  OnMessage("Failure", "-2147217887\nThe row is locked");
  Edit(1);
  EXPECT_TRUE(Form.tvAlarmGroups.Visible);
}

TEST_F(BundlesTest, HasTwoFacesAndRefusesOrAsksBeforeItActs) {
  const auto tellsFace = [&](bool list) {
    EXPECT_EQ(list ? &Form.cmdCancel : &Form.cmdSave, Form.DefaultButton());
    EXPECT_EQ(list ? &Form.cmdCancel : &Form.cmdAbandon, Form.CancelButton());
    for (const ui::Control* control : Form.Controls())
      EXPECT_TRUE(control->Visible == control->Enabled && control->Visible == ((control <= &Form.cmdCancel) == list));
  };
  tellsFace(true);
  Form.tvAlarmGroups.Select(0);
  for (int time = 0; time < 2; ++time) OnMessage("SelectBundle");
  for (ui::CommandButton* button : {&Form.cmdEdit, &Form.cmdDelete}) Host.Click(*button);
  Begin("");
  for (const std::string name : {"", "Bob's", "\"hi\"", "a-b"}) {
    Form.txtGroupName.Text = name;
    OnMessage(name.empty() ? "NoBundleName" : "ObjectCharacters");
    Host.Click(Form.cmdSave);
  }
  Add({Disk, NewDisk});
  for (const auto answer : {ui::MsgResult::No, ui::MsgResult::Yes}) {
    for (const int row : {1, 3}) Form.lvwAlarms.Select(row);
    OnMessage("RemoveMembers", "2", answer);
    Host.Click(Form.cmdDown);
  }
  Form.lvwAlarms.Select(0);
  for (int time = 0; time < 2; ++time) Host.Click(Form.cmdDown);
  EXPECT_EQ("ID_13 ", Listed()) << "one goes without a question, and then none is selected";
  tellsFace(false);
  Form.CloseBox();
  tellsFace(true);
  Form.CloseBox();
  EXPECT_TRUE(Form.IsUnloaded() && Console.Data.Changes().empty());
}

}  // namespace corvane::test
