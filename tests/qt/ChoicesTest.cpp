#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "HostFixture.h"
#include "platform/RuntimeError.h"

namespace corvane::test {

TEST_F(HostTest, OptionsLeaveEachOtherAndChecksTurn) {
  std::string order;
  for (int i : {0, 1}) form.optSource[static_cast<std::size_t>(i)].Click = [&order, i] { order += std::to_string(i); };
  form.chkAll.Click = [&] { order += form.chkAll.Value ? "+" : "-"; };
  form.Show();
  // Only the circle and the text take a click.
  EXPECT_EQ(-1, ui::ChosenOption(form.optSource));
  for (const ui::Control* control :
       std::initializer_list<ui::Control*>{&form.optSource[1], &form.optSource[0], &form.chkAll, &form.chkAll})
    WidgetOf<QAbstractButton>(*control).click();
  EXPECT_EQ(0, ui::ChosenOption(form.optSource));
  EXPECT_EQ("10+-", order);
  // What the program chooses is shown and fires nothing, and so is that nothing is chosen.
  for (const int chosen : {1, -1}) {
    ui::ChooseOption(form.optSource, chosen);
    form.chkAll.Value = chosen == 1;
    Serve(20);
    Host.DoEvents();
    EXPECT_FALSE(WidgetOf<QRadioButton>(form.optSource[0]).isChecked());
    EXPECT_EQ(chosen == 1, WidgetOf<QRadioButton>(form.optSource[1]).isChecked());
    EXPECT_EQ(chosen == 1, WidgetOf<QCheckBox>(form.chkAll).isChecked());
  }
  EXPECT_EQ("10+-", order);
}

TEST_F(HostTest, ABoxRefusesCharactersHoweverTheyCome) {
  form.txtName.Text = "a b";
  std::string asked;
  form.txtName.KeyPress = [&](char32_t character) {
    asked += static_cast<char>(character);
    return character != ' ';
  };
  form.Show();
  auto& line = WidgetOf<QLineEdit>(form.txtName);
  line.setCursorPosition(1);
  QTest::keyClicks(&line, "x y");
  EXPECT_EQ("axy b", form.txtName.Text) << "what stands there stays";
  EXPECT_EQ("x y", asked);
  QGuiApplication::clipboard()->setText(QString::fromUtf8("p \xC3\xBC  q"));
  line.setSelection(1, 2);
  line.paste();
  EXPECT_EQ("ap\xC3\xBCq b", form.txtName.Text);
  EXPECT_EQ(4, line.cursorPosition());
  line.backspace();
  EXPECT_EQ("ap\xC3\xBC b", form.txtName.Text);
  // What is refused is told also when the line is full, and may move the caret.
  form.txtName.MaxLength = 3;
  form.txtName.Refused = [&] { form.txtName.SelStart = 1; };
  InHandler([&] { form.txtName.Text = "192"; });
  EXPECT_EQ(3, line.cursorPosition()) << "behind a new text where nothing else is said";
  QTest::keyClicks(&line, "7 ");
  EXPECT_EQ("192 at 1", form.txtName.Text + " at " + std::to_string(line.cursorPosition()));
  frmTest other(Host);
  other.txtName.IsPassword = true;
  other.Show();
  EXPECT_EQ(QLineEdit::Password, WidgetOf<QLineEdit>(other.txtName).echoMode());
}

TEST_F(HostTest, ABoxOfSeveralLinesTellsItsCaretAndRefusesLikeTheOthers) {
  std::string order;
  form.txtNotes.Text = "\xC3\xA4\r\nb";
  form.txtNotes.Change = [&] { order += "change" + std::to_string(form.txtNotes.SelStart) + " "; };
  form.txtNotes.Click = [&] { order += "click "; };
  form.Show();
  auto& edit = WidgetOf<QPlainTextEdit>(form.txtNotes);
  edit.moveCursor(QTextCursor::End);
  EXPECT_EQ(4, form.txtNotes.SelStart) << "a line break counts as two";
  QTest::keyClicks(&edit, "c");
  ClickAt(*edit.viewport(), MiddleOf(edit));
  Serve();
  EXPECT_EQ("change5 click ", order);
  // Code that writes into the text leaves the caret where it was.
  form.txtNotes.SelStart = 3;
  InHandler([&] { form.txtNotes.Text.insert(4, "<TAB>"); });
  EXPECT_EQ(2, edit.textCursor().position());
  QTest::keyClick(&edit, Qt::Key_Return);
  EXPECT_EQ("\xC3\xA4\r\n\r\n<TAB>bc", form.txtNotes.Text);
  // What is too much of a paste is left out, and what stands behind it stays.
  form.txtNotes.MaxLength = 6;
  form.txtNotes.KeyPress = [](char32_t character) { return character != '\n'; };
  InHandler([&] { form.txtNotes.Text = "abcd"; });
  QGuiApplication::clipboard()->setText("1\n234");
  edit.moveCursor(QTextCursor::Start);
  edit.paste();
  EXPECT_EQ("12abcd", form.txtNotes.Text);
  EXPECT_EQ(2, edit.textCursor().position());
  form.cmdOK.Click = [&] { form.Unload(); };
  Key(form.txtNotes, Qt::Key_Return);
  EXPECT_TRUE(form.IsUnloaded()) << "Enter that makes no line presses the default button";
}

TEST_F(HostTest, AContainerIsChosenFromItsTree) {
  bool broken = true;
  std::string asked;
  const ui::ContainersOf containers = [&](const std::string& path) -> std::vector<DirectoryContainer> {
    asked += path + " ";
    if (path == "/a" && std::exchange(broken, false)) throw RuntimeError(errors::AutomationError, "No answer");
    if (path == "/") return {{"A", "/a"}, {"B", "/b"}};
    return path == "/a" ? std::vector<DirectoryContainer>{{"C", "/a/c"}} : std::vector<DirectoryContainer>{};
  };
  const auto choose = [&](auto act) {
    Soon([act] {
      auto& dialog = *QApplication::activeModalWidget();
      act(dialog, *dialog.findChild<QTreeWidget*>());
    });
    return Host.ChooseContainer("Corvane", {"Root", "/"}, containers);
  };
  const auto chosen = choose([](QWidget& dialog, QTreeWidget& tree) {
    QTreeWidgetItem* first = tree.topLevelItem(0)->child(0);
    first->setExpanded(true);
    EXPECT_EQ("No answer", first->child(0)->text(0));
    first->setExpanded(false);
    first->setExpanded(true);
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "nothing is chosen yet";
    tree.setCurrentItem(first->child(0));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  ASSERT_TRUE(chosen);
  EXPECT_EQ("C /a/c", chosen->Name + " " + chosen->Path);
  EXPECT_EQ("/ /a /a ", asked) << "a branch is read when it is opened";
  EXPECT_FALSE(choose([](QWidget& dialog, QTreeWidget& tree) {
    tree.setCurrentItem(tree.topLevelItem(0));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }));
}

TEST_F(HostTest, ATextIsAskedForAndAConnectionPutTogether) {
  const auto answer = [](const char* line, const char* text, Qt::Key key) {
    Soon([=] {
      QWidget& dialog = *QApplication::activeModalWidget();
      QTest::keyClicks(dialog.findChild<QLineEdit*>(line), text);
      QTest::keyClick(&dialog, key);
    });
  };
  answer("", "dbo", Qt::Key_Return);
  EXPECT_EQ("dbo", Host.InputBox("Which <schema>?", "Enter Schema"));
  answer("", "dbo", Qt::Key_Escape);
  EXPECT_EQ("", Host.InputBox("Which schema?", "Enter Schema"));
  std::string tried;
  const ui::ConnectionPrompt prompt{{"Driver A", "Driver B"}, {}, [&](const std::string& text) {
                                      tried = text;
                                      return "Server not found";
                                    }};
  Soon([&] {
    QWidget& dialog = *QApplication::activeModalWidget();
    dialog.findChild<QComboBox*>("driver")->setCurrentIndex(1);
    for (const auto& [line, text] :
         {std::pair("server", "db1"), {"user", "a;b"}, {"password", "p}=q"}, {"other", "X=1"}})
      QTest::keyClicks(dialog.findChild<QLineEdit*>(line), text);
    dialog.findChild<QPushButton*>("test")->click();
    EXPECT_EQ("Server not found", dialog.findChild<QLabel*>("outcome")->text());
    dialog.findChild<QPushButton*>("ok")->click();
  });
  EXPECT_EQ("DRIVER={Driver B};SERVER=db1;UID={a;b};PWD={p}}=q};X=1;", Host.PromptConnection(prompt));
  EXPECT_EQ("DRIVER={Driver B};SERVER=db1;UID={a;b};PWD={p}}=q};X=1;", tried);
  answer("server", "", Qt::Key_Escape);
  EXPECT_EQ(std::nullopt, Host.PromptConnection(prompt));
}

}  // namespace corvane::test
