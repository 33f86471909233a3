#include "core/ConfigDatabase.h"
#include "notifications/Placeholders.h"
#include "notifications/frmCustomNotifications.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

TEST(Placeholders, AreToldInWordsWhereverTheyStand) {
  EXPECT_EQ("[Alarm Name][Log Type][Event Type][Date/Time][Source][Category][Event ID][User][Computer][Description]",
            ExpandPlaceholders("%0%1%2%3%4%5%6%7%8%9"));
  EXPECT_EQ("100%, %[Alarm Name]5 %x\r\n%", ExpandPlaceholders("100%, %%05 %x\r\n%"));
}

class CustomNotificationsTest : public ConsoleTest {
 protected:
  CustomNotificationsTest() {
    Console.Rows(
        "INSERT INTO CustomNotifications VALUES ('Short', '%0 on %8', '%9'), ('Brief', 'Alarm', 'At %3');"
        "INSERT INTO CustomNotsForNots VALUES ('Desk', 'Brief')");
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    Form.Load();
  }
  void Fill(const std::string& name, const std::string& subject, const std::string& body) {
    Form.txtName.Text = name;
    Form.txtSubject.Text = subject;
    Form.txtBody.Text = body;
  }
  /// Name, subject and body in words of the selected one, as the boxes below the list show them.
  std::string Selected() {
    const int row = Form.lvwCustomNotifications.SelectedRow();
    return (row < 0 ? "" : Form.lvwCustomNotifications.Item(row).Text) + "|" + Form.txtSubjectExpanded.Text + "|" +
           Form.txtBodyExpanded.Text;
  }
  std::string Changes() {
    std::string changes;
    for (const std::string& sql : Console.Data.Changes()) changes += sql + "\n";
    return changes;
  }
  frmCustomNotifications Form{Main};
};

TEST_F(CustomNotificationsTest, RefusesThenWritesStampsAndShowsTheFirst) {
  Host.Click(Form.cmdAdd);
  for (const auto& [message, name, subject, body] :
       std::vector<std::array<std::string, 4>>{{"NoTemplateName", "", "", ""},
                                               {"TemplateCharacters", "a-b", "", ""},
                                               {"TemplateCharacters", "a\"b", "", ""},
                                               {"TemplateCharacters", "a'b", "", ""},
                                               {"NoSubject", "Acme", "", ""},
                                               {"NoBody", "Acme", "It's %0", ""}}) {
    Fill(name, subject, body);
    OnMessage(message);
    Host.Click(Form.cmdSave);
  }
  Fill("Acme", "It's %0", "One\r\n%9");
  Console.Data.FailAfter(0, "INSERT");
  OnMessage("Failure", "-2147217887\nThe row is locked");
  Host.Click(Form.cmdSave);
  EXPECT_EQ("", Console.Setting("LastDBUpdate"));
  Host.Click(Form.cmdSave);
  EXPECT_EQ("Acme|It's [Alarm Name]|One\r\n[Description]", Selected());
  EXPECT_EQ("2026-11-16-14-5-9", Console.Setting("LastDBUpdate"));
  // The name of another one is refused by the table alone; a new name leaves what is linked to the old one.
  Host.DoubleClick(Form.lvwCustomNotifications, 1);
  EXPECT_EQ("BriefAlarmAt %3", Form.txtName.Text + Form.txtSubject.Text + Form.txtBody.Text);
  Form.txtName.Text = "Desk";
  Console.Data.FailAfter(0, "UPDATE");
  OnMessage("TemplateUpdateFailure", "-2147217887\nThe row is locked");
  Host.Click(Form.cmdSave);
  Host.Click(Form.cmdSave);
  const std::string insert = "INSERT INTO CustomNotifications VALUES ('Acme', 'It''s %0', 'One\r\n%9')\n",
                    update =
                        "UPDATE CustomNotifications SET Name = 'Desk', Subject = 'Alarm', MessageBody = 'At %3' "
                        "WHERE Name = 'Brief'\n";
  EXPECT_EQ(insert + insert + update + update, Changes());
  EXPECT_EQ("Brief\n", Console.Rows("SELECT CustomNotificationName FROM CustomNotsForNots"));
}

TEST_F(CustomNotificationsTest, DeletesAfterAQuestionWhatNoNotificationUses) {
  EXPECT_EQ("Brief|Alarm|At [Date/Time]", Selected());
  OnMessage("TemplateIsLinked");
  Host.Click(Form.cmdDelete);
  Console.Rows("UPDATE CustomNotsForNots SET CustomNotificationName = 'Gone'");
  for (const auto& [name, answer] :
       {std::pair("Brief", ui::MsgResult::No), {"Brief", ui::MsgResult::Yes}, {"Short", ui::MsgResult::Yes}}) {
    OnMessage("DeleteTemplate", name, answer);
    Host.Click(Form.cmdDelete);
  }
  EXPECT_EQ(
      "DELETE FROM CustomNotifications WHERE Name = 'Brief'\nDELETE FROM CustomNotifications WHERE Name = 'Short'\n",
      Changes());
  EXPECT_EQ("||", Selected());
  Host.Click(Form.cmdDelete);
  OnMessage("SelectTemplate");
  Host.Click(Form.cmdEdit);
}

TEST_F(CustomNotificationsTest, InsertsWhereTheCaretLastWas) {
  const auto insert = [&](int placeholder) {
    Host.Choose(Form.cmbPlaceholders, placeholder);
    Host.Click(Form.cmdInsert);
    const ui::TextBox& box = Form.txtBody.Highlighted ? Form.txtBody : Form.txtSubject;
    EXPECT_NE(Form.txtBody.Highlighted, Form.txtSubject.Highlighted);
    return box.Text + " " + std::to_string(box.SelStart);
  };
  Host.DoubleClick(Form.lvwCustomNotifications, 0);
  EXPECT_EQ("%2At %3 3", insert(2));
  EXPECT_EQ("%2A%4t %3 6", insert(4)) << "the caret is left one behind the end of the placeholder";
  Host.ClickAt(Form.txtSubject, 2);
  Form.txtSubject.SelStart = 0;  // The arrow keys tell nobody.
  EXPECT_EQ("Al%9arm 5", insert(9));
  Host.Type(Form.txtSubject, "\xC3\xA4");
  Form.txtSubject.SelStart = 8;
  Form.txtSubject.Change();
  EXPECT_EQ("Al%9arm\xC3\xA4%0 11", insert(0));
  EXPECT_EQ("Al%9arm\xC3\xA4%0%1 14", insert(1)) << "beyond the end is the end";
  Host.Click(Form.cmdAbandon);
  Host.Click(Form.cmdAdd);
  EXPECT_FALSE(Form.txtSubject.Highlighted || Form.txtBody.Highlighted);
  EXPECT_EQ("%0 3", insert(0)) << "another one begins anew";
}

TEST_F(CustomNotificationsTest, HasTwoFaces) {
  for (const bool list : {true, false, true}) {
    for (const ui::Control* control : Form.Controls())
      EXPECT_TRUE(control->Visible == control->Enabled && control->Visible == ((control <= &Form.cmdCancel) == list));
    EXPECT_EQ(list ? &Form.cmdCancel : &Form.cmdSave, Form.DefaultButton());
    if (list)
      Host.Click(Form.cmdAdd);
    else
      Form.CloseBox();
  }
  EXPECT_FALSE(Form.IsUnloaded());
}

}  // namespace corvane::test
