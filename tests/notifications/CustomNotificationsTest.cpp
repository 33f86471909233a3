#include "core/ConfigDatabase.h"
#include "notifications/frmCustomNotifications.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

class CustomNotificationsTest : public ConsoleTest {
 protected:
  CustomNotificationsTest() {
    Console.Rows(
        "INSERT INTO CustomNotifications VALUES ('Short', '%0%1%2%3%4%5%6%7%8%9', '%'), ('Brief', '100%, %%05', 'At "
        "%3');"
        "INSERT INTO CustomNotsForNots VALUES ('Desk', 'Brief')");
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    Form.Load();
  }
  void SaveTwice(const char* statement, const char* message) {
    Console.Data.FailAfter(0, statement);
    OnMessage(message, "-2147217887\nThe row is locked");
    for (int time = 0; time < 2; ++time) Host.Click(Form.cmdSave);
  }
  std::string Shown() { return Form.txtSubjectExpanded.Text + "|" + Form.txtBodyExpanded.Text; }
  frmCustomNotifications Form{Main};
};

TEST_F(CustomNotificationsTest, AreWrittenOnceTheyPassAndDeletedOnceNothingUsesThem) {
  EXPECT_EQ("100%, %[Alarm Name]5|At [Date/Time]", Shown());
  OnMessage("TemplateIsLinked");
  Host.Click(Form.cmdDelete);
  Host.Click(Form.cmdAdd);
  for (const auto& c : Cases("notifications/TemplateRefusals.txt")) {
    Form.txtName.Text = c[0];
    Form.txtSubject.Text = c[1];
    OnMessage(c[2]);
    Host.Click(Form.cmdSave);
  }
  Host.Type(Form.txtBody, "One %9");
  SaveTwice("INSERT", "Failure");
  EXPECT_EQ("It's [Alarm Name]|One [Description]", Shown()) << "the first one is selected";
  EXPECT_EQ("2026-11-16-14-5-9", Console.Setting("LastDBUpdate"));
  // What is linked stays linked to the old name, and so the new one may be deleted.
  Host.DoubleClick(Form.lvwCustomNotifications, 1);
  Host.Type(Form.txtName, " 2");
  SaveTwice("UPDATE", "TemplateUpdateFailure");
  EXPECT_EQ("Brief\n", Console.Rows("SELECT CustomNotificationName FROM CustomNotsForNots"));
  for (const std::string name : {"No", "Acme", "Brief 2", "Short"}) {
    OnMessage("DeleteTemplate", name == "No" ? "Acme" : name, name == "No" ? ui::MsgResult::No : ui::MsgResult::Yes);
    Host.Click(Form.cmdDelete);
  }
  EXPECT_EQ("|", Shown());
  Host.Click(Form.cmdDelete);
  OnMessage("SelectTemplate");
  Host.Click(Form.cmdEdit);
  std::string changes;
  for (const std::string& sql : Console.Data.Changes()) changes += sql + "\n";
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/notifications/TemplateChanges.txt"), changes);
}

TEST_F(CustomNotificationsTest, InsertsWhereTheCaretLastWas) {
  const auto insert = [&](int placeholder) {
    Host.Choose(Form.cmbPlaceholders, placeholder);
    Host.Click(Form.cmdInsert);
    EXPECT_NE(Form.txtBody.Highlighted, Form.txtSubject.Highlighted);
    const ui::TextBox& box = Form.txtBody.Highlighted ? Form.txtBody : Form.txtSubject;
    return box.Text + " " + std::to_string(box.SelStart);
  };
  std::string offered;
  for (const std::string& entry : Form.cmbPlaceholders.All()) offered += entry + "\n";
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/notifications/PlaceholderList.txt"), offered);
  Host.SelectOnly(Form.lvwCustomNotifications, 1);
  EXPECT_EQ("[Alarm Name][Log Type][Event Type][Date/Time][Source][Category][Event ID][User][Computer][Description]|%",
            Shown());
  Host.DoubleClick(Form.lvwCustomNotifications, 0);
  EXPECT_EQ("%2At %3 3", insert(2));
  EXPECT_EQ("%2A%4t %3 6", insert(4)) << "the caret is left one behind the end of the placeholder";
  Host.ClickAt(Form.txtSubject, 2);
  Form.txtSubject.SelStart = 0;  // The arrow keys tell nobody.
  EXPECT_EQ("10%90%, %%05 5", insert(9));
  Host.Type(Form.txtSubject, "e");
  EXPECT_EQ("10%90%, %%05e%0 16", insert(0));
  EXPECT_EQ("10%90%, %%05e%0%1 19", insert(1)) << "beyond the end is the end";
  Form.CloseBox();
  EXPECT_TRUE(Form.cmdAdd.Visible && !Form.IsUnloaded()) << "the close box goes back to the list";
  Host.Click(Form.cmdAdd);
  EXPECT_FALSE(Form.txtSubject.Highlighted || Form.txtBody.Highlighted);
  EXPECT_EQ("%0 3", insert(0)) << "another one begins anew";
}

}  // namespace corvane::test
