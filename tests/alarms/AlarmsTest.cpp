#include <sstream>

#include "AlarmsScreenTest.h"
#include "platform/RuntimeError.h"

namespace corvane::test {

using Statements = std::vector<std::string>;

class AlarmsTest : public AlarmsScreenTest {
 protected:
  /// What the tree holds below a node, each key followed by the text.
  std::string Below(const std::string& key) {
    std::string all;
    for (const ui::NodeId child : Form.tvAlarms.ChildrenOf(Form.tvAlarms.Find(key)))
      all += Form.tvAlarms.Node(child).Key + " " + Form.tvAlarms.Node(child).Text + "\n";
    return all;
  }
  void Rename(const std::string& text) {
    Host.Click(Form.cmdEdit);
    Host.EditLabel(Form.tvAlarms, text);
  }
};

TEST_F(AlarmsTest, EachLevelTellsWhatToDoWithItAndAnAlarmItsComment) {
  Console.Rows("UPDATE Alarms SET Description = 'Make room.' WHERE Name = 'Disk full'");
  EXPECT_EQ("Double click an OS to view log types.", Form.txtDescription.Text) << "the first class is selected";
  for (const auto& c : Cases("alarms/Hints.txt")) {
    Pick(c[0]);
    EXPECT_EQ(c[1], Form.txtDescription.Text);
  }
  EXPECT_TRUE(Form.txtDescription.Locked);
  // A double click on a branch is the view's affair; on an alarm it edits.
  Host.DoubleClick(Form.tvAlarms, Pick(Disk));
  EXPECT_TRUE(ShowsTree());
  Host.DoubleClick(Form.tvAlarms, Pick(Full));
  EXPECT_FALSE(ShowsTree());
}

TEST_F(AlarmsTest, HasTwoFacesWithKeysOfTheirOwn) {
  const auto tellsFace = [&](bool tree) {
    EXPECT_EQ(tree ? &Form.cmdCancel : &Form.cmdSave, Form.DefaultButton());
    EXPECT_EQ(tree ? &Form.cmdCancel : &Form.cmdAbandon, Form.CancelButton());
    // The instructions stand on both faces; seven controls of the tree follow.
    const auto& controls = Form.Controls();
    for (std::size_t i = 1; i < controls.size(); ++i) {
      EXPECT_EQ((i <= 7) == tree, controls[i]->Visible) << controls[i]->Name();
      EXPECT_EQ(controls[i]->Visible, controls[i]->Enabled) << controls[i]->Name();
    }
    EXPECT_EQ(Cases("alarms/Instructions.txt").at(tree ? 0 : 1).at(0), Form.lblInstructions.Caption);
  };
  tellsFace(true);
  Host.Click(Form.cmdAdd);
  tellsFace(false);
  Host.Click(Form.cmdAbandon);
  tellsFace(true);
  Form.CloseBox();
  EXPECT_TRUE(Form.IsUnloaded());
}

// One message ends with a full stop, the other does not: both are settled.
TEST_F(AlarmsTest, OnlyCategoriesAndAlarmsAreEditedAndDeleted) {
  for (const char* key : {"OS\\2", "LOGTYPE\\2\\2", ""}) {
    if (*key) Pick(key);
    if (!*key) Form.tvAlarms.Clear();
    OnMessage("SelectToEdit");
    Host.Click(Form.cmdEdit);
    OnMessage("SelectToDelete");
    Host.Click(Form.cmdDelete);
  }
}

TEST_F(AlarmsTest, RenamesACategoryWithItsAlarmsAndLeavesOpenLeavesStale) {
  const std::string before = Stamp();
  const ui::NodeId node = Pick(Disk);
  Rename("Disks - and more");
  EXPECT_EQ("Disks - and more", Form.tvAlarms.Node(node).Text) << "a hyphen is refused in new categories only";
  EXPECT_EQ("ALARMCAT\\2\\Disks - and more_2", Form.tvAlarms.Node(node).Key);
  EXPECT_EQ("Disks - and more_2|Disks - and more|2|2\n",
            Console.Rows("SELECT * FROM AlarmCategories WHERE Name LIKE 'Disks%'"));
  EXPECT_EQ("2\n", Console.Rows("SELECT COUNT(*) FROM Alarms WHERE AlarmCategory = 'Disks - and more_2'"));
  EXPECT_EQ(before, Stamp()) << "a rename is no news to the service";
  EXPECT_EQ(Full.substr(0, 22), Below("ALARMCAT\\2\\Disks - and more_2").substr(0, 22)) << "leaves keep their keys";
  // An alarm is found by its parent all the same, and a closed category takes its dummy along.
  Host.ClickNode(Form.tvAlarms, Form.tvAlarms.Find(Full));
  Host.Click(Form.cmdEdit);
  EXPECT_FALSE(ShowsTree());
  Host.Click(Form.cmdAbandon);
  Host.Shut(Form.tvAlarms, node);
  Host.ClickNode(Form.tvAlarms, node);
  Rename("Drives");
  EXPECT_EQ("ALARMCAT\\2\\Drives_2\\DUMMYNODE DummyNode\n", Below("ALARMCAT\\2\\Drives_2"));
}

TEST_F(AlarmsTest, ARenameIsRefusedOrFailsWithItsWords) {
  const ui::NodeId node = Pick(Disk);
  Rename("");
  for (const char* name : {"it's", "a\\b", "a\"b"}) {
    OnMessage("CategoryCharacters");
    Rename(name);
  }
  EXPECT_EQ("Disk Errors", Form.tvAlarms.Node(node).Text);
  EXPECT_EQ("1\n", Console.Rows("SELECT COUNT(*) FROM AlarmCategories WHERE [Index] = 'Disk Errors_2'"));
  // The new text stays after a failure, until the branch is read again; what was written before it stays too.
  Console.Data.FailAfter(0, "UPDATE Alarms");
  OnMessage("RenameFailed", std::to_string(errors::DataLocked) + ", The row is locked");
  Rename("Drives");
  EXPECT_EQ("Drives " + Disk, Form.tvAlarms.Node(node).Text + " " + Form.tvAlarms.Node(node).Key);
  EXPECT_EQ("Drives_2|Disk Errors_2\n",
            Console.Rows("SELECT c.[Index], a.AlarmCategory FROM AlarmCategories c, Alarms a "
                         "WHERE c.Name = 'Drives' AND a.Name = 'Disk full'"));
}

// Only what watches a log on its own holds an alarm: ignore events and bundles lose it.
TEST_F(AlarmsTest, DeletesWhatNoLogIsBoundTo) {
  const std::string id = Console.Rows("SELECT AlarmID FROM Alarms WHERE Name = 'Disk full'");
  const std::string bound = "INSERT INTO AlarmsForLogs VALUES ('A1', 'MERIDIAN', " + id + ")";
  Console.Rows(bound + "; INSERT INTO DenyAlarmsForLogs VALUES ('A1', 'MERIDIAN', " + id +
               "); INSERT INTO AlarmsInGroups VALUES (" + id + ", 1)");
  Pick(Full);
  OnMessage("AlarmIsBound");
  Host.Click(Form.cmdDelete);
  Console.Rows("DELETE FROM AlarmsForLogs");
  OnMessage("DeleteAlarm", "Disk full", ui::MsgResult::No);
  Host.Click(Form.cmdDelete);
  Console.Data.Forget();
  OnMessage("DeleteAlarm", "Disk full", ui::MsgResult::Yes);
  Host.Click(Form.cmdDelete);
  EXPECT_EQ((Statements{"DELETE From Alarms WHERE Name = 'Disk full' AND AlarmCategory = 'Disk Errors_2'"}),
            Console.Data.Changes());
  EXPECT_EQ("1|1\n", Console.Rows("SELECT (SELECT COUNT(*) FROM DenyAlarmsForLogs), (SELECT COUNT(*) FROM "
                                  "AlarmsInGroups WHERE AlarmID = " +
                                  id + ")"));
  EXPECT_EQ("ALARM\\2\\Disk Errors_2\\bad block bad block\n", Below(Disk)) << "the parent is read afresh";
  EXPECT_EQ(Form.tvAlarms.Find(Disk), Form.tvAlarms.Selected()) << "and selected";
  EXPECT_EQ("", Stamp());
}

TEST_F(AlarmsTest, ACategoryIsAskedForFirstAndDeletedOnlyWhenEmpty) {
  Pick(Disk);
  OnMessage("DeleteAlarm", "Disk Errors", ui::MsgResult::Yes);
  OnMessage("HasAlarms");
  Host.Click(Form.cmdDelete);
  Console.Rows("DELETE FROM Alarms WHERE AlarmCategory = 'Disk Errors_2'");
  Pick(Disk);
  OnMessage("DeleteAlarm", "Disk Errors", ui::MsgResult::Yes);
  Host.Click(Form.cmdDelete);
  EXPECT_EQ("ALARMCAT\\2\\backup's_2 backup's\n", Below("LOGTYPE\\2\\2"));
  EXPECT_EQ("Disk Errors_1\n", Console.Rows("SELECT [Index] FROM AlarmCategories WHERE Name = 'Disk Errors'"));
}

// A failure is told and leaves what is there; nothing ends the program.
TEST_F(AlarmsTest, TellsWhenTheCatalogueCannotBeReadOrChanged) {
  Pick(Full);
  for (const auto& [fails, act] :
       {std::pair<const char*, ui::Handler>("DELETE", Form.cmdDelete.Click),
        {"AlarmsForLogs", Form.cmdDelete.Click},
        {"FROM Notifications", Form.cmdAdd.Click},
        {"SELECT Description", [this] { Form.tvAlarms.NodeClick(Form.tvAlarms.Selected()); }}}) {
    Console.Data.FailAfter(0, fails);
    if (fails == std::string("DELETE")) OnMessage("DeleteAlarm", "Disk full", ui::MsgResult::Yes);
    OnMessage("Failure", std::to_string(errors::DataLocked) + "\nThe row is locked");
    act();
    EXPECT_TRUE(ShowsTree()) << fails;
  }
  Console.Data.FailAfter(0, "AlarmCategories");
  OnMessage("Failure", std::to_string(errors::DataLocked) + "\nThe row is locked");
  Host.Open(Form.tvAlarms, Form.tvAlarms.Find("LOGTYPE\\2\\1"));
}

}  // namespace corvane::test
