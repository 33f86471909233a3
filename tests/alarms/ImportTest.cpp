#include "alarms/ExchangeFixture.h"

namespace corvane::test {

class ImportTest : public ExchangeTest {
 protected:
  ImportTest() { Run("Exchange.txt"); }

  /// Three alarms, with a category, and a bundle for the first of them.
  void WriteAlarms(const std::string& first, const std::string& second, const std::string& third) {
    Write(
        "[AlarmCategories]\nCategoryInfo1=D_2|Disk-s|7|8\n[AlarmGroups]\nGroupName1=Brought\n[AlarmsInGroups]\n"
        "GroupingInfo1=1|1\n[Alarms]\nAlarmInfo1=" +
        first + "\nAlarmInfo2=" + second + "\nAlarmInfo3=" + third);
  }

  const std::string Rest = "||D_2|1|||||-1||False|0|0";
};

TEST_F(ImportTest, ListsWhatItUnderstandsOfAnyFile) {
  const std::map<std::string, std::string> texts{
      {"510 x", std::string(510, 'x')}, {"509 x", std::string(509, 'x')}, {"zero", std::string("a\0b", 3)}};
  for (const auto& listing : Cases("alarms/Listings.txt", texts)) {
    std::filesystem::remove(File);
    if (listing[0] == "folder")
      std::filesystem::create_directory(File);
    else
      Write(listing[0]);
    frmAlarmImport form(Main);
    Choose(form);
    std::string rows;
    for (const ui::ListItem& item : form.lvwItemsToImport.Items()) {
      rows += item.Text;
      for (const std::string& cell : item.SubItems) rows += "|" + cell;
      rows += "|\n";
    }
    EXPECT_EQ(listing[1], rows) << listing[0];
  }
}

TEST_F(ImportTest, ShowsTheFieldsOfARowOnAFaceOfItsOwn) {
  WriteAlarms("A & B||D_2|19|s|c|u|p|7|it broke|True|5|60", "x||y|z|||||||no", "bare");
  frmAlarmImport form(Main);
  form.Load();
  EXPECT_EQ("Please select a file, by clicking the browse button.", form.lvwItemsToImport.Item(0).Text);
  EXPECT_FALSE(form.cmdView.Enabled || form.cmdImport.Enabled || form.cmdDelete.Enabled);
  Host.DoubleClick(form.lvwItemsToImport, 0);
  Choose(form);
  OnMessage("SelectItem");
  Host.Click(form.cmdView);
  for (const auto& shown : Cases("alarms/Shown.txt")) {
    Host.DoubleClick(form.lvwItemsToImport, 0);
    std::string fields;
    for (const ui::Label& label : form.lblField) fields += label.Caption + "|";
    EXPECT_EQ(shown[0], fields);
    EXPECT_TRUE(form.lblField[0].Visible && !form.lvwItemsToImport.Visible && !form.cmdImport.Enabled);
    Host.Click(form.cmdAbandon);
    EXPECT_FALSE(form.fraAlarmProps.Visible || form.lblField[0].Visible);
    Host.Click(form.cmdDelete);
  }
  Finish(form, form.cmdImport, "Imported");
  EXPECT_EQ("6\n", Console.Rows("SELECT COUNT(*) FROM Alarms"));
}

// Name and category make an alarm; one that is there already is asked for. What was imported before a failure stays;
// the service is told only after the last one.
TEST_F(ImportTest, MergesWhatFitsAndStopsAtWhatDoesNot) {
  const std::string kept = Console.Rows("SELECT * FROM Merged");
  const std::size_t bad = kept.find('\n') + 1;
  const std::map<std::string, std::string> texts{
      {"256 x", std::string(256, 'x')}, {"bad", kept.substr(0, bad)}, {"full", kept.substr(bad)}};
  for (const auto& merge : Cases("alarms/Merges.txt", texts)) {
    Run("Exchange.txt");
    Main.SaveSetting("LastDBUpdate", "before");
    WriteAlarms("First" + Rest, merge[0], "Last one" + Rest);
    frmAlarmImport form(Main);
    Choose(form);
    if (merge[1] != "-")
      OnMessage("Overwrite", "Bad block", merge[1] == "Yes" ? ui::MsgResult::Yes : ui::MsgResult::No);
    const bool fails = merge[2] != "-";
    Finish(form, form.cmdImport, fails ? "ImportFailure" : "Imported", fails ? merge[2] : "");
    EXPECT_EQ(fails, Console.Setting("LastDBUpdate") == "before");
    EXPECT_EQ(fails, Console.Rows("SELECT * FROM Alarms WHERE Name = 'Last one'").empty());
    EXPECT_EQ(merge[3], Console.Rows("SELECT * FROM Merged")) << merge[0];
    EXPECT_EQ("Brought|First|Disk-s|7|8\n", Console.Rows("SELECT * FROM Linked"));
  }
  EXPECT_EQ(2, std::ranges::count(Host.Boxes, "Overwrite Record", &ShownBox::Title));
}

// The first line that begins with the name decides the bundle, whichever alarm it is. What fails there is told, and the
// import goes on; it needs the file no more.
TEST_F(ImportTest, LinksToTheBundleOfTheFirstLineThatBeginsWithTheName) {
  WriteAlarms("Disk full" + Rest, "Disk" + Rest, "Other" + Rest);
  frmAlarmImport form(Main);
  Choose(form);
  std::filesystem::remove(File);
  Console.Data.FailAfter(0, "FROM AlarmsInGroups");
  OnMessage("BundleLinks", "Disk full:  " + std::to_string(errors::DataLocked) + "\tThe row is locked");
  Finish(form, form.cmdImport, "Imported");
  EXPECT_EQ("Brought|Disk|Disk-s|7|8\n", Console.Rows("SELECT * FROM Linked"));
  // Imported once more an alarm stands in its bundle once.
  WriteAlarms("Disk" + Rest, "", "");
  frmAlarmImport again(Main);
  Choose(again);
  OnMessage("Overwrite", "Disk", ui::MsgResult::Yes);
  Finish(again, again.cmdImport, "Imported");
  EXPECT_EQ("Brought|Disk|Disk-s|7|8\n", Console.Rows("SELECT * FROM Linked"));
}

}  // namespace corvane::test
