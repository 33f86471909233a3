#include "alarms/AlarmTree.h"

#include "core/ConfigDatabase.h"
#include "platform/RuntimeError.h"
#include "support/ConsoleTest.h"

namespace corvane::test {
namespace {

using Lines = std::vector<std::string>;

// The tree over a catalogue of a few categories and alarms.
class AlarmTreeTest : public ConsoleTest {
 protected:
  AlarmTreeTest() {
    Console.Rows(R"(
      DELETE FROM Alarms; DELETE FROM AlarmCategories;
      INSERT INTO AlarmCategories ([Index], Name, OS, LogType) VALUES
        ('Disk Errors_2', 'Disk Errors', 2, 2), ('backup''s_2', 'backup''s', 2, 2),
        ('Disk Errors_1', 'Disk Errors', 1, 2), ('Elsewhere_2', 'Elsewhere', 2, 1);
      INSERT INTO Alarms (Name, AlarmCategory) VALUES
        ('Disk full', 'Disk Errors_2'), ('bad block', 'Disk Errors_2'), ('Path C:\x', 'backup''s_2'))");
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
  /// Key, text and picture of each child; for a dummy its key alone.
  Lines Below(const std::string& key) {
    Lines lines;
    for (const ui::NodeId child : View.ChildrenOf(key.empty() ? 0 : At(key))) {
      const ui::TreeNode& node = View.Node(child);
      lines.push_back(node.Text == "DummyNode" ? node.Key : node.Key + " | " + node.Text + " | " + node.Image);
    }
    return lines;
  }
  Lines Opened(const std::string& key) {
    EXPECT_EQ(Lines{key + "\\DUMMYNODE"}, Below(key));
    Open(key);
    return Below(key);
  }

  const std::string System = "LOGTYPE\\2\\2", Disk = "ALARMCAT\\2\\Disk Errors_2", Backups = "ALARMCAT\\2\\backup's_2",
                    Path = "ALARM\\2\\backup's_2\\Path C:\\x", Alarm = "ALARM\\2\\Disk Errors_2\\";
  ui::Form Form{Host, "frmTest"};
  ui::TreeView View{Form, "tvAlarms"};
  AlarmTree Tree{Main, View};
};

TEST_F(AlarmTreeTest, GrowsLevelByLevelWithADummyBelowEveryBranch) {
  EXPECT_EQ((Lines{"OS\\2 | Windows 2000/XP/2003 | os", "OS\\1 | Windows NT 4.0 | os",
                   "OS\\3 | Windows Vista/Windows Server 2008 | os"}),
            Below(""));
  EXPECT_EQ((Lines{"LOGTYPE\\2\\1 | Application | editlog", "LOGTYPE\\2\\5 | Directory Service | editlog",
                   "LOGTYPE\\2\\4 | DNS Server | editlog", "LOGTYPE\\2\\6 | File Replication Service | editlog",
                   "LOGTYPE\\2\\3 | Security | editlog", System + " | System | editlog"}),
            Opened("OS\\2"));
  // The oldest systems have three logs, the newest as many as those between.
  EXPECT_EQ((Lines{"LOGTYPE\\1\\1 | Application | editlog", "LOGTYPE\\1\\3 | Security | editlog",
                   "LOGTYPE\\1\\2 | System | editlog"}),
            Opened("OS\\1"));
  EXPECT_EQ(6U, Opened("OS\\3").size());
  EXPECT_EQ((Lines{Backups + " | backup's | alarmcat", Disk + " | Disk Errors | alarmcat"}), Opened(System));
  EXPECT_EQ((Lines{Alarm + "bad block | bad block | alarm", Alarm + "Disk full | Disk full | alarm"}), Opened(Disk));
  EXPECT_EQ(Lines{Path + " | Path C:\\x | alarm"}, Opened(Backups));
  Open(Path);
  Tree.Collapse(At(Path));
  EXPECT_EQ(Lines{}, Below(Path)) << "an alarm is no branch";
}

TEST_F(AlarmTreeTest, ReadsAfreshAtEveryOpeningAndKeepsNothingClosed) {
  for (const std::string& key : {std::string("OS\\2"), System, Disk}) Open(key);
  Console.Rows(
      "INSERT INTO Alarms (Name, AlarmCategory) VALUES ('Controller', 'Disk Errors_2');"
      "DELETE FROM Alarms WHERE Name = 'bad block'");
  // Opened again without being closed: what is new comes, what stands stays once.
  for (const auto& [key, count] : {std::pair(Disk, 3U), {System, 2U}, {"OS\\2", 6U}}) {
    Open(key);
    EXPECT_EQ(count, Below(key).size());
  }
  Tree.Collapse(At(Disk));
  EXPECT_EQ((Lines{Alarm + "Controller | Controller | alarm", Alarm + "Disk full | Disk full | alarm"}), Opened(Disk));
  // Closed a second time it holds one dummy still; so do the other two classes.
  for (int time = 0; time < 2; ++time) Tree.Collapse(At("OS\\2"));
  EXPECT_EQ(Lines{"OS\\2\\DUMMYNODE"}, Below("OS\\2"));
  EXPECT_EQ(3 * 2, View.Count());
}

TEST_F(AlarmTreeTest, KeepsTheNodesAddedBeforeAFailure) {
  // A row that cannot be read stands between the second log and the third.
  Console.Rows("INSERT INTO LogTypes VALUES (NULL, 'Disk')");
  EXPECT_THROW(Open("OS\\2"), RuntimeError);
  EXPECT_EQ((Lines{"LOGTYPE\\2\\1 | Application | editlog", "LOGTYPE\\2\\5 | Directory Service | editlog"}),
            Below("OS\\2"));
  Console.Data.FailAfter(0, "AlarmCategories");
  EXPECT_THROW(Open("LOGTYPE\\2\\1"), RuntimeError);
  EXPECT_EQ(Lines{}, Below("LOGTYPE\\2\\1"));
  Open("LOGTYPE\\2\\1");
  EXPECT_EQ(Lines{"ALARMCAT\\2\\Elsewhere_2 | Elsewhere | alarmcat"}, Below("LOGTYPE\\2\\1"));
}

TEST(LastKeyPart, IsWhatFollowsTheLastBackslash) {
  EXPECT_EQ("x", GetLastKeyPart("ALARM\\2\\c_2\\Path C:\\x"));
  EXPECT_EQ("whole", GetLastKeyPart("whole"));
}

}  // namespace
}  // namespace corvane::test
