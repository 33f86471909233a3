#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <functional>
#include <set>

#include "Hands.h"
#include "StartedConsole.h"
#include "admin/frmServiceAccount.h"
#include "app/installation/TextFile.h"
#include "core/console/frmBegin.h"
#include "core/console/frmControlService.h"
#include "core/console/frmLogView.h"
#include "core/console/frmStartup.h"
#include "domains/CustomDomains.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmCustomDomainManager.h"
#include "domains/frmDomainChooser.h"
#include "logs/frmLogEdit.h"

namespace corvane::test {

class FormsTest : public StartedConsole {
 protected:
  QTreeView& View(const ui::Control& control) {
    return *Window(control.Parent()).findChild<QTreeView*>(QString::fromStdString(std::string(control.Name())));
  }

  /// Every form of the console, shown one after the other; each page of its tabs in front in turn.
  void ForEachForm(const std::function<void(ui::Form&)>& visit);
  void ForEachPage(const std::function<void(ui::Form&, int page)>& visit);
};

void FormsTest::ForEachForm(const std::function<void(ui::Form&)>& visit) {
  frmBegin begin(State());
  frmStartup splash(State()), about(State());
  frmLogEdit editor(State());
  frmLogView events(State());
  frmDomainChooser domain(State());
  frmComputerEnum computers(State());
  frmCustomDomainManager mappings(State());
  frmServiceAccount account(State());
  frmControlService services(State(), [](Service) {});
  SaveCustomMappings(State(), {{"192.0.2.77", "BRANCH"}, {"KIOSK1", "LOBBY"}, {"SCANNER2", "BRANCH"}});
  State().IsNewLog = true;
  for (ui::Form* form : std::initializer_list<ui::Form*>{&Main(), &begin, &splash, &about, &editor, &events, &domain,
                                                         &computers, &mappings, &account, &services}) {
    form->Load();
    if (form == &about) about.SetAbout(true);
    if (form == &services) services.InitForm();
    if (form != &Main()) form->Show();
    QTest::qWait(form == &editor || form == &events || form == &account ? 400 : 20);
    visit(*form);
  }
}

void FormsTest::ForEachPage(const std::function<void(ui::Form&, int page)>& visit) {
  ForEachForm([&](ui::Form& form) {
    auto* tabs = Window(form).findChild<QTabWidget*>("tabMain");
    for (int page = 0; page < (tabs != nullptr ? tabs->count() : 1); ++page) {
      if (tabs != nullptr) tabs->setCurrentIndex(page);
      QTest::qWait(10);
      visit(form, page);
    }
  });
}

TEST_F(FormsTest, EveryControlHasItsWidgetAndEveryWidgetItsControl) {
  std::set<std::string> seen;
  ForEachForm([&](ui::Form& form) {
    seen.emplace(form.Name());
    for (const std::string& mismatch : Host.ViewOf(form)->Mismatches())
      ADD_FAILURE() << form.Name() << ": " << mismatch;
  });
  for (const std::string& name : qt::FormRegistry::Console().Names()) EXPECT_EQ(1U, seen.count(name)) << name;
}

// A widget is never smaller than its own text.
TEST_F(FormsTest, NoTextIsCut) {
  ForEachPage([&](ui::Form& form, int) {
    for (const QWidget* widget : Window(form).findChildren<QWidget*>()) {
      const auto* label = qobject_cast<const QLabel*>(widget);
      if (!widget->isVisible() || (label == nullptr && qobject_cast<const QPushButton*>(widget) == nullptr)) continue;
      const bool wraps = label != nullptr && label->wordWrap();
      const QSize needed(wraps ? 0 : widget->sizeHint().width(),
                         wraps ? label->heightForWidth(label->width()) : widget->minimumSizeHint().height());
      EXPECT_EQ(widget->size(), needed.expandedTo(widget->size()))
          << form.Name() << " " << widget->objectName().toStdString();
    }
  });
}

// One letter stands for one thing on what is visible together.
TEST_F(FormsTest, NoMnemonicIsGivenTwice) {
  ForEachPage([&](ui::Form& form, int) {
    std::set<QString> letters;
    const auto take = [&](const QString& text) {
      const QString letter = QKeySequence::mnemonic(text).toString();
      EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << form.Name() << " " << text.toStdString();
    };
    for (const QWidget* widget : Window(form).findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      if (auto* button = qobject_cast<const QPushButton*>(widget)) take(button->text());
      if (auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && label->buddy()) take(label->text());
      if (auto* group = qobject_cast<const QGroupBox*>(widget)) take(group->title());
      if (auto* bar = qobject_cast<const QTabBar*>(widget))
        for (int tab = 0; tab < bar->count(); ++tab) take(bar->tabText(tab));
    }
  });
}

TEST_F(FormsTest, TheSplashHasItsSizeAndAboutGoesWithAClick) {
  frmStartup about(State());
  about.Load();
  about.SetAbout(true);
  QTimer::singleShot(50, qApp, [&] {
    EXPECT_EQ(QSize(600, 365), Window(about).size());
    ClickAt(Window(about), {300, 250});
  });
  about.ShowModal();
  EXPECT_TRUE(about.IsUnloaded());
}

TEST_F(FormsTest, ABundleDraggedToTheChosenSideIsAdded) {
  State().IsNewLog = true;
  frmLogEdit editor(State());
  editor.Show();
  QTest::qWait(400);
  Window(editor).findChild<QTabWidget*>("tabMain")->setCurrentIndex(2);
  Host.SetFocus(editor.lvwAlarmGroups);
  QTest::qWait(20);
  const QTreeView& bundles = View(editor.lvwAlarmGroups);
  const QTreeView& chosen = View(editor.tvSelectedAlarms);
  Drag(bundles, MiddleOf(bundles, bundles.model()->index(1, 0)), MiddleOf(chosen));
  ASSERT_EQ(1, chosen.model()->rowCount());
  EXPECT_EQ(editor.lvwAlarmGroups.Item(1).Text, chosen.model()->index(0, 0).data().toString().toStdString());
}

// Each screen has a page of its own, from wherever the focus is; the contents lead to it, and its picture is shown.
TEST_F(FormsTest, F1OpensThePageOfEveryScreen) {
  const std::string contents = ReadTextFile(CORVANE_SOURCE_DIR "/data/help/index.html");
  ForEachPage([&](ui::Form& form, int) {
    const std::string page = std::to_string(form.HelpContext) + ".html";
    EXPECT_NE(contents.npos, contents.find("\"" + page + "\"")) << form.Name();
    QWidget* focus = Window(form).focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &Window(form), Qt::Key_F1);
    EXPECT_EQ(page, Help().source().fileName().toStdString()) << form.Name();
    const QString picture = Help().toHtml().section("<img src=\"", 1, 1).section('"', 0, 0);
    EXPECT_TRUE(!picture.isEmpty() && Help().loadResource(QTextDocument::ImageResource, QUrl(picture)).isValid())
        << page << " does not show " << picture.toStdString();
    Host.CloseHelp();
  });
}

// A picture of every screen, for whoever wants to judge it.
TEST_F(FormsTest, EveryScreenCanBePictured) {
  const std::string folder = CORVANE_BINARY_DIR "/screens";
  std::filesystem::create_directories(folder);
  ForEachPage([&](ui::Form& form, int page) {
    const std::string file = folder + "/" + std::string(form.Name()) + "-" + std::to_string(page) + ".png";
    EXPECT_TRUE(Host.SavePicture(form, file)) << file;
    const QImage picture = Host.Picture(form);
    std::set<QRgb> colours;
    for (int x = 0; x < picture.width(); x += 3)
      for (int y = 0; y < picture.height(); y += 3) colours.insert(picture.pixel(x, y));
    EXPECT_GT(colours.size(), 20U) << file;
  });
}

}  // namespace corvane::test
