#include <sstream>

#include "AlarmsScreenTest.h"
#include "alarms/AlarmStore.h"
#include "platform/RuntimeError.h"

namespace corvane::test {

class AlarmEditorTest : public AlarmsScreenTest {
 protected:
  using Dialog = std::function<void(frmAlarmInformation&)>;

  /// Types into boxes, such as "txtSource=Disk; chkType=2; lstCategory=New"; a number ticks that box of an array.
  void Fill(ui::Form& form, const std::string& fields) {
    std::istringstream all(fields);
    for (std::string field; std::getline(all >> std::ws, field, ';');) {
      const std::string name = field.substr(0, field.find('=')), text = field.substr(field.find('=') + 1);
      const auto control = std::ranges::find_if(form.Controls(), [&](const ui::Control* one) {
        return one->Name() == name && (one->Index < 0 || std::to_string(one->Index) == text);
      });
      Set(**control, text);
    }
  }
  void Set(ui::Control& control, const std::string& text) {
    if (auto* box = dynamic_cast<ui::TextBox*>(&control)) {
      box->Text.clear();
      Host.Type(*box, text);
    } else if (auto* check = dynamic_cast<ui::CheckBox*>(&control)) {
      Host.Click(*check);
    } else if (auto* option = dynamic_cast<ui::OptionButton*>(&control)) {
      Host.Choose(*option);
    } else if (auto* list = dynamic_cast<ui::ComboBox*>(&control)) {
      list->Editable ? Host.Type(*list, text) : Host.Choose(*list, list->IndexOf(text));
    }
  }
  void OnInformation(Dialog script) { Host.OnModal<frmAlarmInformation>("frmAlarmInformation", std::move(script)); }
  void OnInformation(const std::string& fields) {
    OnInformation([=, this](frmAlarmInformation& dialog) {
      Fill(dialog, fields);
      Host.Click(dialog.cmdOK);
    });
  }
};

// Empty boxes are no criteria, and only the description loses its outer blanks.
TEST_F(AlarmEditorTest, WritesWhatTheFieldsSay) {
  Console.Rows("INSERT INTO Notifications (Name) VALUES ('Mail')");
  for (const auto& c : Cases("alarms/Saves.txt")) {
    Pick(Disk);
    Host.Click(Form.cmdAdd);
    Fill(Form, c[0]);
    OnInformation("txtName=New; " + c[1]);
    Host.Click(Form.cmdSave);
    EXPECT_EQ(c[2] + "\n", Alarm("New")) << c[0];
    EXPECT_TRUE(ShowsTree());
    EXPECT_NE("", Stamp());
    // What was written is what an edit shows, so that saving it again changes nothing.
    Pick("ALARM\\2\\Disk Errors_2\\New");
    Host.Click(Form.cmdEdit);
    OnInformation("lstCategory=Disk Errors");
    Host.Click(Form.cmdSave);
    EXPECT_EQ(c[2] + "\n", Alarm("New")) << c[0];
    Console.Rows("DELETE FROM Alarms WHERE Name = 'New'");
    Main.SaveSetting("LastDBUpdate", "");
  }
}

TEST_F(AlarmEditorTest, BoxesTakeAsMuchAsTheirColumns) {
  Host.Click(Form.cmdAdd);
  std::string lengths;
  for (ui::TextBox* box : {&Form.txtSource, &Form.txtUser, &Form.txtComputer, &Form.txtEventID, &Form.txtThreshold,
                           &Form.txtTimeout, &Form.txtCategory, &Form.txtEventDesc}) {
    Host.Type(*box, std::string(300, '1'));
    lengths += std::to_string(box->Text.size()) + " ";
  }
  EXPECT_EQ("250 255 255 12 12 12 300 300 ", lengths);
}

TEST_F(AlarmEditorTest, ThresholdsComeTogetherAsNumbersAboveOne) {
  Host.Click(Form.cmdAdd);
  for (const auto& c : Cases("alarms/Thresholds.txt")) {
    Form.txtThreshold.Text = c[0];
    Form.txtTimeout.Text = c[1];
    std::string focused;
    for (ui::TextBox* box : {&Form.txtThreshold, &Form.txtTimeout}) box->GotFocus = [&, box] { focused = box->Name(); };
    if (c[2].empty())
      OnInformation([&](frmAlarmInformation& dialog) { Host.Click(dialog.cmdCancel); });
    else
      OnMessage(c[2]);
    Host.Click(Form.cmdSave);
    EXPECT_EQ(c[3], focused) << c[0] << " " << c[1];
    EXPECT_FALSE(ShowsTree()) << "what was typed stays";
  }
  EXPECT_EQ("3\n", Console.Rows("SELECT COUNT(*) FROM Alarms"));
}

// There is no transaction: a category that was added stays when its alarm is refused. The fields close all the same.
TEST_F(AlarmEditorTest, AFailedSaveIsToldAndClosesTheFields) {
  for (const auto& c : Cases("alarms/Failures.txt")) {
    Pick(Disk);
    Host.Click(Form.cmdAdd);
    Fill(Form, c[0]);
    OnInformation("txtName=New; lstCategory=" + c[1]);
    OnMessage("Failure", c[2]);
    Host.Click(Form.cmdSave);
    EXPECT_TRUE(ShowsTree());
    EXPECT_EQ("", Alarm("New") + Stamp());
    EXPECT_EQ("1\n", Console.Rows("SELECT COUNT(*) FROM AlarmCategories WHERE Name = '" + c[1] + "' AND OS = 2"));
  }
}

TEST_F(AlarmEditorTest, TheDialogBeginsWhereTheTreeStands) {
  for (const auto& c : Cases("alarms/Preselections.txt")) {
    for (const char* branch : {"OS\\2", "OS\\1"})
      if (!Form.tvAlarms.Node(Form.tvAlarms.Find(branch)).Expanded)
        Host.Open(Form.tvAlarms, Form.tvAlarms.Find(branch));
    Pick(c[0]);
    Host.Click(Form.cmdAdd);
    OnInformation([&](frmAlarmInformation& dialog) {
      EXPECT_EQ("Alarm Information", dialog.Caption);
      EXPECT_EQ(c[1], dialog.lstOS.Text() + "|" + dialog.lstLogType.Text() + "|" + dialog.lstCategory.Text()) << c[0];
      EXPECT_EQ(c[2], std::to_string(dialog.lstLogType.Count()));
      EXPECT_EQ("", dialog.txtName.Text + dialog.txtDescription.Text) << "a new alarm has none of what was selected";
      Host.Click(dialog.cmdCancel);
    });
    Host.Click(Form.cmdSave);
    Host.Click(Form.cmdAbandon);
  }
}

// The logs of the first class are told by its name here, by its number in the tree.
TEST_F(AlarmEditorTest, TheDialogsListsFollowEachOther) {
  Console.Rows("UPDATE OSTypes SET OSName = 'windows nt 4.0' WHERE [Index] = 3");
  Pick(Disk);
  Host.Click(Form.cmdAdd);
  OnInformation([&](frmAlarmInformation& dialog) {
    Host.Choose(dialog.lstOS, dialog.lstOS.IndexOf("windows nt 4.0"));
    EXPECT_EQ(3, dialog.lstLogType.Count());
    Host.Choose(dialog.lstOS, dialog.lstOS.IndexOf("Windows 2000/XP/2003"));
    EXPECT_EQ("Application|Elsewhere", dialog.lstLogType.Text() + "|" + dialog.lstCategory.Text());
    Host.Choose(dialog.lstLogType, dialog.lstLogType.IndexOf("System"));
    EXPECT_EQ("backup's", dialog.lstCategory.Text());
    Console.Data.FailAfter(0, "SELECT");
    OnMessage("Failure", std::to_string(errors::DataLocked) + "\nThe row is locked");
    Host.Choose(dialog.lstLogType, 0);
    Host.Click(dialog.cmdCancel);
  });
  Host.Click(Form.cmdSave);
}

TEST_F(AlarmEditorTest, TheDialogRefusesInItsOrder) {
  const std::string longText(250, 'x');
  Console.Rows("INSERT INTO Alarms (Name, AlarmCategory) VALUES ('Far', 'Elsewhere_2'), ('Old', 'Disk Errors_1')");
  Pick(Disk);
  Host.Click(Form.cmdAdd);
  OnInformation([&](frmAlarmInformation& dialog) {
    for (const auto& c : Cases("alarms/Refusals.txt", {{"long", longText}})) {
      dialog.txtName.Text = c[0];
      dialog.txtDescription.Text = c[1];
      Host.Type(dialog.lstCategory, c[2]);
      OnMessage(c[3], c[3] == "NameInUse" ? c[0] : "");
      Host.Click(dialog.cmdOK);
      EXPECT_FALSE(dialog.IsUnloaded());
    }
    dialog.txtDescription.Text.clear();
    Host.Type(dialog.txtDescription, "one\r\n" + std::string(300, 'x'));
    EXPECT_EQ("one" + std::string(246, 'x'), dialog.txtDescription.Text) << "a line break would end it in a file";
    // Another class may have the name.
    dialog.txtName.Text = "Old";
    Host.Type(dialog.lstCategory, longText);
    Host.Click(dialog.cmdOK);
  });
  Host.Click(Form.cmdSave);
  EXPECT_EQ("1\n",
            Console.Rows("SELECT COUNT(*) FROM Alarms WHERE Name = 'Old' AND AlarmCategory = '" + longText + "_2'"));
}

// A category that differs in its case alone is not new, and the alarm is stored under the case that was typed.
TEST_F(AlarmEditorTest, AnEditKeepsItsNameAndMakesNoCategory) {
  Pick(Full);
  const std::string id = Console.Rows("SELECT AlarmID FROM Alarms WHERE Name = 'Disk full'");
  Console.Rows("INSERT INTO Alarms (Name, AlarmCategory) VALUES ('Disk full', 'Disk Errors_1')");
  for (const auto& [category, name] : {std::pair("DISK errors", "Disk full"), {"Far away", "Disk Full"}}) {
    Host.ClickNode(Form.tvAlarms, Form.tvAlarms.Find(Full));
    Host.Click(Form.cmdEdit);
    Form.txtCategory.Text = "7";
    if (std::string(name) == "Disk Full") OnMessage("NameInUse", name);
    OnInformation([&, category = category, name = name](frmAlarmInformation& dialog) {
      EXPECT_EQ("Disk full", dialog.txtName.Text);
      Fill(dialog, std::string("txtDescription=Mend it.;txtName=") + name + ";lstCategory=" + category);
      Host.Click(dialog.cmdOK);
      if (dialog.IsUnloaded()) return;
      dialog.txtName.Text = "Disk full";  // Its own name passes, in its own case.
      Host.Click(dialog.cmdOK);
    });
    Host.Click(Form.cmdSave);
    EXPECT_EQ(name == std::string("Disk full") ? "Mend it." : "", Form.txtDescription.Text)
        << "the comment is read afresh";
    EXPECT_EQ(std::string(category) + "_2|7|" + id,
              Console.Rows("SELECT AlarmCategory, Category, AlarmID FROM Alarms WHERE AlarmID = " + id));
  }
  EXPECT_EQ("Disk Errors_1|NULL\n",
            Console.Rows("SELECT AlarmCategory, Category FROM Alarms WHERE Name = 'Disk full' AND AlarmID <> " + id))
      << "one of the same name elsewhere is another alarm";
  EXPECT_NE(0, Form.tvAlarms.Find(Full)) << "an edited leaf is not read afresh";
  Pick(Disk);
  Host.Click(Form.cmdAdd);
  OnInformation("txtName=Other;lstCategory=DISK errors");
  Host.Click(Form.cmdSave);
  EXPECT_EQ("1\n", Console.Rows("SELECT COUNT(*) FROM Alarms WHERE AlarmCategory GLOB 'DISK errors_2'"));
  EXPECT_EQ("4\n", Console.Rows("SELECT COUNT(*) FROM AlarmCategories")) << "no row for the category that was typed";
}

// Markers go where the caret stood at the last change or click; one is a change itself.
TEST_F(AlarmEditorTest, MarkersAreWrittenAtTheRememberedCaret) {
  Host.Click(Form.cmdAdd);
  Host.Type(Form.txtEventDesc, "ab");
  Host.Click(Form.cmdTab);
  EXPECT_EQ("ab<TAB>", Form.txtEventDesc.Text);
  Form.txtEventDesc.Text = "\xC3\xA4\xE2\x82\xAC!";
  Host.ClickAt(Form.txtEventDesc, 1);
  Form.txtEventDesc.SelStart = 3;  // The arrow keys tell nobody.
  Host.Click(Form.cmdCRLF);
  Host.Click(Form.cmdTab);
  EXPECT_EQ("\xC3\xA4<CRLF><TAB>\xE2\x82\xAC!", Form.txtEventDesc.Text);
  Host.Click(Form.cmdAbandon);
  Console.Rows("UPDATE Alarms SET EventDescription = 'full' WHERE Name = 'Disk full'");
  Pick(Full);
  Host.Click(Form.cmdEdit);
  Host.Click(Form.cmdCRLF);
  EXPECT_EQ("<CRLF>full", Form.txtEventDesc.Text) << "another alarm begins at its beginning";
}

// What no box refuses: a notification that is gone, an alarm that is gone.
TEST_F(AlarmEditorTest, ShowsWhatIsGoneAsNothing) {
  Console.Rows("UPDATE Alarms SET NotificationName = 'Gone', TypeMask = 31 WHERE Name = 'Disk full'");
  Pick(Full);
  Host.Click(Form.cmdEdit);
  EXPECT_EQ("<NONE>", Form.lstSpecificNotification.Text());
  EXPECT_TRUE(Form.chkType[4].Value);
  Host.Click(Form.cmdAbandon);
  Console.Rows("DELETE FROM Alarms WHERE Name = 'Disk full'");
  Host.Click(Form.cmdEdit);
  EXPECT_FALSE(Form.chkType[4].Value);
}

}  // namespace corvane::test
