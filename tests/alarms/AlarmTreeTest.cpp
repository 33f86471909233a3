#include "alarms/AlarmTree.h"

#include "app/installation/TextFile.h"
#include "core/ConfigDatabase.h"
#include "platform/RuntimeError.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

using namespace std::string_literals;

// The tree over a catalogue of a few categories and alarms.
class AlarmTreeTest : public ConsoleTest {
 protected:
  AlarmTreeTest() {
    Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/Catalogue.txt"));
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    Tree.FillOSNodes();
  }

  ui::NodeId At(const std::string& key) {
    const ui::NodeId node = View.Find(key);
    EXPECT_NE(0, node) << key;
    return node;
  }
  void Open(const std::string& key) { Tree.Expand(At(key)); }
  std::vector<ui::NodeId> Children(const std::string& key) { return View.ChildrenOf(key.empty() ? 0 : At(key)); }
  /// Key, text and picture of all nodes below; for a dummy its key alone.
  std::string Below(const std::string& key, const std::string& indent = "") {
    std::string all;
    for (const ui::NodeId child : Children(key)) {
      const ui::TreeNode& node = View.Node(child);
      all += indent + node.Key + (node.Text == "DummyNode" ? "" : " | " + node.Text + " | " + node.Image) + "\n";
      all += Below(node.Key, indent + "  ");
    }
    return all;
  }

  const std::string OS = "OS\\2", System = "LOGTYPE\\2\\2", Disk = "ALARMCAT\\2\\Disk Errors_2",
                    Backups = "ALARMCAT\\2\\backup's_2", Path = "ALARM\\2\\backup's_2\\Path C:\\x",
                    Alarm = "ALARM\\2\\Disk Errors_2\\";
  ui::Form Form{Host, "frmTest"};
  ui::TreeView View{Form, "tvAlarms"};
  AlarmTree Tree{Main, View};
};

TEST_F(AlarmTreeTest, GrowsLevelByLevelWithADummyBelowEveryBranch) {
  for (const std::string& key : {OS, "OS\\1"s, "OS\\3"s, System, Disk, Backups}) {
    EXPECT_EQ(key + "\\DUMMYNODE\n", Below(key));
    Open(key);
  }
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/Tree.txt"), Below(""));
  Open(Path);
  Tree.Collapse(At(Path));
  EXPECT_EQ("", Below(Path)) << "an alarm is no branch";
  EXPECT_EQ("x whole", GetLastKeyPart(Path) + " " + GetLastKeyPart("whole"));
}

TEST_F(AlarmTreeTest, ReadsAfreshAtEveryOpeningAndKeepsNothingClosed) {
  for (const std::string& key : {OS, System, Disk}) Open(key);
  Console.Rows(
      "INSERT INTO Alarms (Name, AlarmCategory) VALUES ('Controller', 'Disk Errors_2');"
      "DELETE FROM Alarms WHERE Name = 'bad block'");
  // Opened again without being closed: what is new comes, what stands stays once.
  for (const auto& [key, count] : {std::pair(Disk, 3U), {System, 2U}, {OS, 6U}}) {
    Open(key);
    EXPECT_EQ(count, Children(key).size());
  }
  Tree.Collapse(At(Disk));
  Open(Disk);
  EXPECT_EQ(Alarm + "Controller | Controller | alarm\n" + Alarm + "Disk full | Disk full | alarm\n", Below(Disk));
  // Closed a second time it holds one dummy still; so do the other two classes.
  for (int time = 0; time < 2; ++time) Tree.Collapse(At("OS\\2"));
  EXPECT_EQ("OS\\2\\DUMMYNODE\n", Below("OS\\2"));
  EXPECT_EQ(3 * 2, View.Count());
}

// Filled whole it holds every level with the same keys, and nothing is there to be replaced when a branch is opened.
TEST_F(AlarmTreeTest, FillsAllLevelsAtOnceWithoutDummies) {
  Tree.FillWhole();
  std::string expected = ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/Tree.txt");
  for (std::size_t at; (at = expected.find("DUMMYNODE")) != expected.npos;)
    expected.erase(expected.rfind('\n', at) + 1, expected.find('\n', at) - expected.rfind('\n', at));
  const auto add = [&](const std::string& below, const std::string& line) {
    const std::size_t end = expected.find('\n', expected.find(below));
    expected.insert(end + 1, line + "\n");
  };
  add("LOGTYPE\\2\\1 ", "    ALARMCAT\\2\\Elsewhere_2 | Elsewhere | alarmcat");
  add("LOGTYPE\\1\\2 ", "    ALARMCAT\\1\\Disk Errors_1 | Disk Errors | alarmcat");
  EXPECT_EQ(expected, Below(""));
}

TEST_F(AlarmTreeTest, GivesTheAlarmsThatAPickedNodeStandsFor) {
  for (const std::string& key : {OS, System}) Open(key);
  const auto picked = [&](const std::string& key) {
    std::string all;
    Tree.ForEachPicked(At(key), [&](const std::string& name, const std::string& os) { all += name + "@" + os + " "; });
    return all;
  };
  EXPECT_EQ("", picked(OS) + picked(System)) << "only alarms and categories stand for alarms";
  EXPECT_EQ("bad block@Windows 2000/XP/2003 Disk full@Windows 2000/XP/2003 ", picked(Disk)) << "read though it is shut";
  EXPECT_EQ("bad block@Windows 2000/XP/2003 ", picked(Alarm + "bad block"));
  Console.Rows("DELETE FROM Alarms WHERE AlarmCategory = 'backup''s_2'");
  EXPECT_EQ("", picked(Backups));
}

TEST_F(AlarmTreeTest, ARefreshedBranchIsFreshAndOpen) {
  Open(OS);
  for (const bool wasOpen : {false, true}) {
    Console.Rows("INSERT INTO AlarmCategories VALUES ('New" + std::to_string(wasOpen) + "_2', 'New', 2, 2)");
    Tree.Refresh(At(System));
    EXPECT_TRUE(View.Node(At(System)).Expanded);
    EXPECT_EQ(wasOpen ? 4U : 3U, Children(System).size());
  }
  Tree.Refresh(At(Disk));
  Tree.Refresh(At(Alarm + "bad block"));
  EXPECT_EQ(2U, Children(Disk).size());
}

TEST_F(AlarmTreeTest, KeepsTheNodesAddedBeforeAFailure) {
  // A row that cannot be read stands between the second log and the third.
  Console.Rows("INSERT INTO LogTypes VALUES (NULL, 'Disk')");
  const std::string first = "LOGTYPE\\2\\1", second = "LOGTYPE\\2\\5";
  EXPECT_THROW(Open("OS\\2"), RuntimeError);
  EXPECT_EQ((std::vector<ui::NodeId>{At(first), At(second)}), Children(OS));
  Console.Data.FailAfter(0, "AlarmCategories");
  EXPECT_THROW(Open(first), RuntimeError);
  EXPECT_EQ("", Below(first));
  Open(first);
  EXPECT_EQ(std::vector<ui::NodeId>{At("ALARMCAT\\2\\Elsewhere_2")}, Children(first));
}

}  // namespace corvane::test
