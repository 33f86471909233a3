#include "alarms/ExchangeFixture.h"

namespace corvane::test {

class ImportTest : public ExchangeTest {
 protected:
  ImportTest() { Run("Exchange.txt"); }

  std::string Listed() {
    frmAlarmImport form(Main);
    Choose(form);
    std::string rows;
    for (const ui::ListItem& item : form.lvwItemsToImport.Items()) {
      rows += item.Text;
      for (const std::string& cell : item.SubItems) rows += "|" + cell;
      rows += "|\n";
    }
    return rows;
  }
  /// Lines of alarms, with a category, and a bundle for the first of them.
  void WriteAlarms(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
      text += "AlarmInfo" + std::to_string(&line - &lines[0] + 1) + "=" + line + "\n";
    Write("[Alarms]\n" + text +
          "[AlarmCategories]\nCategoryInfo1=D_2|Disk-s|7|8\n[AlarmGroups]\nGroupName1=Brought\n"
          "[AlarmsInGroups]\nGroupingInfo1=1|1\n");
  }

  const std::string Rest = "||D_2|1|||||-1||False|0|0";
};

TEST_F(ImportTest, ListsWhatItUnderstandsOfAnyFile) {
  const std::map<std::string, std::string> texts{
      {"510 x", std::string(510, 'x')}, {"509 x", std::string(509, 'x')}, {"zero", std::string("a\0b", 3)}};
  for (const auto& listing : Cases("alarms/Listings.txt", texts)) {
    Write(listing[0]);
    EXPECT_EQ(listing[1], Listed()) << listing[0];
  }
  std::filesystem::remove(File);
  EXPECT_EQ("", Listed());
  std::filesystem::create_directory(File);
  EXPECT_EQ("", Listed());
}

TEST_F(ImportTest, ShowsTheFieldsOfARowOnAFaceOfItsOwn) {
  WriteAlarms({"A & B||D_2|19|s|c|u|p|7|it broke|True|5|60", "x||y|z|||||||no", "bare"});
  frmAlarmImport form(Main);
  form.Load();
  EXPECT_EQ("Please select a file, by clicking the browse button.", form.lvwItemsToImport.Item(0).Text);
  EXPECT_FALSE(form.cmdView.Enabled || form.cmdImport.Enabled || form.cmdDelete.Enabled);
  Host.DoubleClick(form.lvwItemsToImport, 0);
  Choose(form);
  OnMessage("SelectItem");
  Host.Click(form.cmdView);
  for (const char* shown : {"A && B| |D_2|Information, Warning, Success Audit|s|c|u|p|7|EXACTLY it broke|5|60|",
                            "x| |y| | | | | | |CONTAINS | | |", "bare| | | | | | | | |EXACTLY | | |"}) {
    Host.DoubleClick(form.lvwItemsToImport, 0);
    std::string fields;
    for (const ui::Label& label : form.lblField) fields += label.Caption + "|";
    EXPECT_EQ(shown, fields);
    EXPECT_FALSE(form.lvwItemsToImport.Visible || form.cmdImport.Enabled);
    Host.Click(form.cmdAbandon);
    EXPECT_FALSE(form.fraAlarmProps.Visible || form.lblField[0].Visible);
    Host.Click(form.cmdDelete);
  }
  Finish(form, form.cmdImport, "Imported");
  EXPECT_EQ("6\n", Console.Rows("SELECT COUNT(*) FROM Alarms"));
}

// What was imported before a failure stays; the service is told only after the last one.
TEST_F(ImportTest, StopsAtWhatDoesNotFitItsColumns) {
  for (const auto& merge : Cases("alarms/Merges.txt", {{"256 x", std::string(256, 'x')}})) {
    Run("Exchange.txt");
    Main.SaveSetting("LastDBUpdate", "before");
    WriteAlarms({"First" + Rest, merge[0], "Last one" + Rest});
    frmAlarmImport form(Main);
    Choose(form);
    const bool fails = merge.size() > 1;
    Finish(form, form.cmdImport, fails ? "ImportFailure" : "Imported", fails ? merge[1] : "");
    EXPECT_EQ(fails, Console.Setting("LastDBUpdate") == "before");
    EXPECT_EQ(fails ? "7\n" : "9\n", Console.Rows("SELECT COUNT(*) FROM Alarms")) << merge[0];
    EXPECT_EQ("First|Disk-s|7|8\n",
              Console.Rows("SELECT a.Name, c.Name, OS, LogType FROM Alarms a JOIN AlarmCategories c "
                           "ON AlarmCategory = c.[Index] JOIN AlarmsInGroups USING (AlarmID) "
                           "JOIN AlarmGroups g ON g.[Index] = AlarmGroupID WHERE g.Name = 'Brought'"));
  }
}

// Name and category make an alarm; each that is there already is asked for by itself.
TEST_F(ImportTest, OverwritesWhatTheUserAgreesTo) {
  WriteAlarms({"Bad block|new|Disks_2|1|||||8||True|2|3", "Full||Disks_2|1|||||-1||False|0|0", "FULL" + Rest});
  const auto import = [&](ui::MsgResult first, bool isNew) {
    Main.SaveSetting("LastDBUpdate", "before");
    frmAlarmImport form(Main);
    Choose(form);
    OnMessage("Overwrite", "Bad block", first);
    OnMessage("Overwrite", "Full", ui::MsgResult::No);
    if (!isNew) OnMessage("Overwrite", "FULL", ui::MsgResult::No);
    Finish(form, form.cmdImport, "Imported");
    EXPECT_NE("before", Console.Setting("LastDBUpdate"));
    return Console.Rows("SELECT * FROM Alarms WHERE AlarmID IN (1, 2) OR AlarmID > 6");
  };
  const std::string kept = Console.Rows("SELECT * FROM Alarms WHERE AlarmID = 2");
  const std::string rows = "1|Bad block|new|Disks_2|1|NULL|NULL|NULL|NULL|8|NULL|1|2|3|Duty Desk Popup\n" + kept +
                           "7|FULL|NULL|D_2|1|NULL|NULL|NULL|NULL|-1|NULL|0|0|0|NULL\n";
  EXPECT_EQ(rows, import(ui::MsgResult::Yes, true));
  EXPECT_EQ("Overwrite Record", Host.Boxes[0].Title);
  EXPECT_EQ(rows, import(ui::MsgResult::No, false));
}

// The first line that begins with the name decides the bundle, whichever alarm it is. What fails there is told, and the
// import goes on; it needs the file no more.
TEST_F(ImportTest, LinksToTheBundleOfTheFirstLineThatBeginsWithTheName) {
  WriteAlarms({"Disk full" + Rest, "Disk" + Rest, "Other" + Rest});
  frmAlarmImport form(Main);
  Choose(form);
  std::filesystem::remove(File);
  Console.Data.FailAfter(0, "FROM AlarmsInGroups");
  OnMessage("BundleLinks", "Disk full:  " + std::to_string(errors::DataLocked) + "\tThe row is locked");
  Finish(form, form.cmdImport, "Imported");
  EXPECT_EQ("Disk|D_2\n",
            Console.Rows("SELECT Name, AlarmCategory FROM Alarms JOIN AlarmsInGroups USING (AlarmID) WHERE "
                         "AlarmGroupID = 5"));
}

}  // namespace corvane::test
