#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <functional>
#include <set>

#include "Hands.h"
#include "StartedConsole.h"
#include "admin/frmCreateTable.h"
#include "admin/frmServiceAccount.h"
#include "alarms/frmAlarmExport.h"
#include "alarms/frmAlarmGroups.h"
#include "alarms/frmAlarmImport.h"
#include "alarms/frmAlarmInformation.h"
#include "alarms/frmAlarms.h"
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
#include "notifications/cvbTAPI.h"
#include "notifications/frmCustomNotifications.h"
#include "notifications/frmNotifications.h"
#include "notifications/frmNotificationsTest.h"
#include "notifications/frmPriorityBuilder.h"
#include "notifications/frmSyslogDevice.h"
#include "support/TestTargets.h"

namespace corvane::test {

class FormsTest : public StartedConsole {
 protected:
  TestTargets Targets;
  /// Every form of the console, shown one after the other; each page of its tabs in front in turn.
  void ForEachForm(const std::function<void(ui::Form&)>& visit) {
    frmBegin begin(State());
    frmStartup splash(State()), about(State());
    frmLogEdit editor(State());
    frmLogView events(State());
    frmDomainChooser domain(State());
    frmComputerEnum computers(State());
    frmCustomDomainManager mappings(State());
    frmServiceAccount account(State());
    frmControlService services(State(), [](Service) {});
    frmAlarms alarms(State()), alarmFields(State());
    frmAlarmGroups bundles(State()), bundleFields(State());
    frmAlarmExport exporter(State());
    frmAlarmImport importer(State()), importFields(State());
    AlarmPlace place{"Logon failures", "Somebody tries doors.", "", "", "", false};
    frmAlarmInformation information(State(), place);
    frmCustomNotifications templates(State()), templateFields(State());
    frmSyslogDevice device(State());
    frmPriorityBuilder priority(State());
    frmNotifications notifications(State(), Targets), ways(State(), Targets);
    frmCreateTable tables(State(), Targets);
    cvbTAPI pager(State(), State().Platform.Phones);
    frmNotificationsTest sending(State(), pager);
    SaveCustomMappings(State(), {{"192.0.2.77", "BRANCH"}, {"KIOSK1", "LOBBY"}, {"SCANNER2", "BRANCH"}});
    State().IsNewLog = true;
    for (ui::Form* form : std::initializer_list<ui::Form*>{
             &Main(),       &begin,    &splash,        &about,        &editor,      &events,      &domain,
             &computers,    &mappings, &account,       &services,     &alarms,      &alarmFields, &bundles,
             &bundleFields, &exporter, &importer,      &importFields, &information, &templates,   &templateFields,
             &device,       &priority, &notifications, &ways,         &tables,      &sending}) {
      form->Load();
      if (form == &about) about.SetAbout(true);
      if (form == &services) services.InitForm();
      if (form == &alarmFields) alarmFields.cmdAdd.Click();
      if (form == &bundleFields) bundleFields.cmdEdit.Click();
      if (form == &importFields) {
        importFields.lvwItemsToImport.Select(0);
        importFields.cmdView.Click();
      }
      if (form == &information) information.InitForm(alarms.tvAlarms);
      if (form == &ways) ways.cmdEdit.Click();
      if (form == &tables) tables.InitForm(frmCreateTable::Kind::Oracle);
      if (form == &templateFields) templateFields.cmdAdd.Click();
      if (form == &sending) sending.RunTest("Duty Desk Popup");
      if (form == &device) device.InitForm(false, Main().lvwSyslogs);
      if (form == &priority) priority.InitForm(device.txtIP[0]);
      if (form != &Main()) form->Show();
      QTest::qWait(form == &editor || form == &events || form == &account ? 400 : 20);
      visit(*form);
    }
  }
  void ForEachPage(const std::function<void(ui::Form&)>& visit) {
    ForEachForm([&](ui::Form& form) {
      auto* tabs = Window(form).findChild<QTabWidget*>("tabMain");
      for (int page = 0; page < (tabs != nullptr ? tabs->count() : 1); ++page) {
        if (tabs != nullptr) tabs->setCurrentIndex(page);
        QTest::qWait(10);
        visit(form);
      }
    });
  }
};

TEST_F(FormsTest, EveryControlHasItsWidgetAndEveryWidgetItsControl) {
  std::set<std::string> seen;
  ForEachForm([&](ui::Form& form) {
    seen.emplace(form.Name());
    for (const std::string& mismatch : Host.ViewOf(form)->Mismatches())
      ADD_FAILURE() << form.Name() << ": " << mismatch;
  });
  for (const std::string& name : qt::FormRegistry::Console().Names()) EXPECT_EQ(1U, seen.count(name)) << name;
}

TEST_F(FormsTest, TheSplashHasItsSizeOnEveryScreen) {
  frmStartup splash(State());
  splash.Show();
  EXPECT_EQ(QSize(600, 365), Window(splash).size());
}

// A widget is never smaller than its own text, and one letter stands for one thing on what is visible together.
TEST_F(FormsTest, NoTextIsCutAndNoMnemonicGivenTwice) {
  ForEachPage([&](ui::Form& form) {
    std::set<QString> letters;
    const auto take = [&](const QString& text) {
      const QString letter = QKeySequence::mnemonic(text).toString();
      EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << form.Name() << " " << text.toStdString();
    };
    for (const QWidget* widget : Window(form).findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      const auto* label = qobject_cast<const QLabel*>(widget);
      const auto* button = qobject_cast<const QPushButton*>(widget);
      if (button != nullptr) take(button->text());
      if (label != nullptr && label->buddy()) take(label->text());
      if (auto* group = qobject_cast<const QGroupBox*>(widget)) take(group->title());
      if (auto* bar = qobject_cast<const QTabBar*>(widget))
        for (int tab = 0; tab < bar->count(); ++tab) take(bar->tabText(tab));
      if (label == nullptr && button == nullptr) continue;
      const bool wraps = label != nullptr && label->wordWrap();
      const QSize needed(wraps ? 0 : widget->sizeHint().width(),
                         wraps ? label->heightForWidth(label->width()) : widget->minimumSizeHint().height());
      EXPECT_EQ(widget->size(), needed.expandedTo(widget->size()))
          << form.Name() << " " << widget->objectName().toStdString();
    }
  });
}

// Each screen has a page of its own, from wherever the focus is; the contents lead to it, and its picture is shown.
TEST_F(FormsTest, F1OpensThePageOfEveryScreen) {
  const std::string contents = ReadTextFile(CORVANE_SOURCE_DIR "/data/help/index.html");
  ForEachPage([&](ui::Form& form) {
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

}  // namespace corvane::test
