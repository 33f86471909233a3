#include "alarms/ExchangeFixture.h"
#include "alarms/TypeMask.h"

namespace corvane::test {

class ImportTest : public ExchangeTest {
 protected:
  ImportTest() { Run("Exchange.txt"); }

  std::string Listed(frmAlarmImport& form) {
    ChooseFile(form);
    std::string rows;
    for (const ui::ListItem& item : form.lvwItemsToImport.Items()) {
      rows += item.Text + "|";
      for (const std::string& cell : item.SubItems) rows += cell + "|";
      rows += "\n";
    }
    return rows;
  }
  /// Lines of alarms, with a category and a bundle for the first of them.
  void WriteAlarms(const std::vector<std::string>& lines) {
    std::string text = "[Alarms]\r\n";
    for (std::size_t i = 0; i < lines.size(); ++i)
      text += "AlarmInfo" + std::to_string(i + 1) + "=" + lines[i] + "\r\n";
    Write(text +
          "[AlarmCategories]\r\nCategoryInfo1=D_2|Disk-s|7|8\r\n[AlarmGroups]\r\nGroupName1=Brought\r\n"
          "[AlarmsInGroups]\r\nGroupingInfo1=1|1\r\n");
  }
  void Import(frmAlarmImport& form, const std::string& failure = "") {
    OnMessage(failure.empty() ? "Imported" : "ImportFailure", failure);
    Host.Click(form.cmdImport);
    EXPECT_EQ(failure.empty(), form.IsUnloaded());
    EXPECT_EQ(ui::Pointer::Default, form.MousePointer);
  }
  std::string Stamp() { return Console.Setting("LastDBUpdate"); }
};

TEST_F(ImportTest, ListsWhatItUnderstandsOfAnyFile) {
  const std::map<std::string, std::string> texts{
      {"510 x", std::string(510, 'x')}, {"509 x", std::string(509, 'x')}, {"zero", std::string("a\0b", 3)}};
  for (const auto& listing : Cases("alarms/Listings.txt", texts)) {
    Write(listing[0]);
    frmAlarmImport form(Main);
    form.Load();
    EXPECT_EQ(listing[1], Listed(form)) << listing[0];
  }
  std::filesystem::remove(File());
  frmAlarmImport form(Main);
  form.Load();
  EXPECT_EQ("", Listed(form));
  std::filesystem::create_directory(File());
  EXPECT_EQ("", Listed(form));
}

TEST_F(ImportTest, ShowsTheFieldsOfARowOnAFaceOfItsOwn) {
  frmAlarmImport form(Main);
  form.Load();
  EXPECT_EQ("Please select a file, by clicking the browse button.", form.lvwItemsToImport.Item(0).Text);
  EXPECT_FALSE(form.cmdView.Enabled || form.cmdImport.Enabled || form.cmdDelete.Enabled);
  Host.DoubleClick(form.lvwItemsToImport, 0);
  WriteAlarms({"A & B||D_2|19|s|c|u|p|7|it broke|True|5|60", "x||y|z|||||||no", "bare"});
  Listed(form);
  OnMessage("SelectItem");
  Host.Click(form.cmdView);
  const std::string shown[] = {"A && B| |D_2|Information, Warning, Success Audit|s|c|u|p|7|EXACTLY it broke|5|60|",
                               "x| |y| | | | | | |CONTAINS | | |", "bare| | | | | | | | |EXACTLY | | |"};
  for (int row = 0; row < 3; ++row) {
    Host.DoubleClick(form.lvwItemsToImport, row);
    std::string fields;
    for (const ui::Label& label : form.lblField) fields += label.Caption + "|";
    EXPECT_EQ(shown[row], fields);
    EXPECT_FALSE(form.lvwItemsToImport.Visible || form.cmdImport.Enabled);
    Host.Click(form.cmdAbandon);
    EXPECT_FALSE(form.fraAlarmProps.Visible || form.lblField[0].Visible);
  }
  for (int row = 0; row < 3; ++row) {
    Host.SelectOnly(form.lvwItemsToImport, 0);
    Host.Click(form.cmdDelete);
  }
  Import(form);
  EXPECT_EQ("6\n", Console.Rows("SELECT COUNT(*) FROM Alarms"));
}

// What was imported before a failure stays; the service is told only after the last one.
TEST_F(ImportTest, StopsAtWhatDoesNotFitItsColumns) {
  for (const auto& merge : Cases("alarms/Merges.txt", {{"256 x", std::string(256, 'x')}})) {
    Run("Exchange.txt");
    Main.SaveSetting("LastDBUpdate", "before");
    WriteAlarms({"First||D_2|1|||||-1||False|0|0", merge[0], "Last one||D_2|1|||||-1||False|0|0"});
    frmAlarmImport form(Main);
    form.Load();
    Listed(form);
    const bool fails = merge[1] != "0";
    Host.Boxes.clear();
    if (fails) {
      Host.OnBox("");
      Host.Click(form.cmdImport);
      EXPECT_TRUE(Host.Boxes.back().Text.starts_with("The following error has occured:\n" + merge[1] + "\n"))
          << merge[0];
    } else {
      Import(form);
    }
    EXPECT_EQ(fails, Stamp() == "before");
    EXPECT_EQ(fails ? "7\n" : "9\n", Console.Rows("SELECT COUNT(*) FROM Alarms")) << merge[0];
    EXPECT_EQ("D_2|Disk-s|7|8\n", Console.Rows("SELECT * FROM AlarmCategories WHERE [Index] = 'D_2'"));
    EXPECT_EQ("First\n", Console.Rows("SELECT a.Name FROM Alarms a JOIN AlarmsInGroups i USING (AlarmID) JOIN "
                                      "AlarmGroups g ON g.[Index] = AlarmGroupID WHERE g.Name = 'Brought'"));
  }
}

// Name and category make an alarm; each that is there already is asked for by itself.
TEST_F(ImportTest, OverwritesWhatTheUserAgreesTo) {
  WriteAlarms({"Bad block|new|Disks_2|1|||||8||True|2|3", "Full||Disks_2|1|||||-1||False|0|0",
               "FULL||D_2|1|||||-1||False|0|0"});
  frmAlarmImport form(Main);
  form.Load();
  Listed(form);
  const std::string before = Console.Rows("SELECT * FROM Alarms WHERE AlarmID = 2");
  OnMessage("Overwrite", "Bad block", ui::MsgResult::Yes);
  OnMessage("Overwrite", "Full", ui::MsgResult::No);
  Import(form);
  EXPECT_EQ("Overwrite Record", Host.Boxes[0].Title);
  EXPECT_EQ("1|Bad block|new|Disks_2|1|NULL|NULL|NULL|NULL|8|NULL|1|2|3|Duty Desk Popup\n" + before +
                "7|FULL|NULL|D_2|1|NULL|NULL|NULL|NULL|-1|NULL|0|0|0|NULL\n",
            Console.Rows("SELECT * FROM Alarms WHERE AlarmID IN (1, 2, 7)"));
  // With No for all nothing changes, but for the stamp.
  Main.SaveSetting("LastDBUpdate", "before");
  const std::string all = Console.Rows("SELECT * FROM Alarms");
  frmAlarmImport again(Main);
  again.Load();
  Listed(again);
  for (const char* name : {"Bad block", "Full", "FULL"}) OnMessage("Overwrite", name, ui::MsgResult::No);
  Import(again);
  EXPECT_EQ(all, Console.Rows("SELECT * FROM Alarms"));
  EXPECT_NE("before", Stamp());
}

// The first line that begins with the name decides the bundle, whichever alarm it is. What fails there is told, and the
// import goes on.
TEST_F(ImportTest, LinksToTheBundleOfTheFirstLineThatBeginsWithTheName) {
  const std::string rest = "||D_2|1|||||-1||False|0|0";
  WriteAlarms({"Disk full" + rest, "Disk" + rest, "Other" + rest});
  frmAlarmImport form(Main);
  form.Load();
  Listed(form);
  std::filesystem::remove(File());
  Console.Data.FailAfter(0, "FROM AlarmsInGroups");
  OnMessage("BundleLinks", "Disk full:  " + std::to_string(errors::DataLocked) + "\tThe row is locked");
  Import(form);
  EXPECT_EQ("Disk\n",
            Console.Rows("SELECT Name FROM Alarms JOIN AlarmsInGroups USING (AlarmID) WHERE AlarmGroupID = 5"));
  EXPECT_EQ("1\n", Console.Rows("SELECT COUNT(*) FROM AlarmCategories WHERE [Index] = 'D_2'"));
}

}  // namespace corvane::test
