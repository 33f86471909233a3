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
#include "support/ConsoleTest.h"
#include "support/TestTargets.h"

namespace corvane::test {
namespace {

template <class T>
std::string CaptionAs(const ui::Control& control) {
  const auto* captioned = dynamic_cast<const T*>(&control);
  return captioned ? captioned->Caption : "";
}

// All texts that the user sees of a control: its name and behind it each text, or nothing where there is none.
std::string TextsOf(const ui::Control& control) {
  std::vector<std::string> all{CaptionAs<ui::Label>(control),        CaptionAs<ui::CommandButton>(control),
                               CaptionAs<ui::CheckBox>(control),     CaptionAs<ui::Frame>(control),
                               CaptionAs<ui::OptionButton>(control), CaptionAs<ui::MenuItem>(control)};
  if (const auto* tabs = dynamic_cast<const ui::TabControl*>(&control))
    all.insert(all.end(), tabs->Captions.begin(), tabs->Captions.end());
  if (const auto* list = dynamic_cast<const ui::ListView*>(&control))
    for (const ui::ListColumn& column : list->Columns) all.push_back(column.Header);
  all.push_back(control.ToolTip);
  std::string texts;
  for (const std::string& text : all)
    if (!text.empty()) texts += " | " + text;
  if (texts.empty() || texts == " | -") return "";
  return std::string(control.Name()) + (control.Index < 0 ? "" : "_" + std::to_string(control.Index)) + texts + "\n";
}

std::string TextsOf(ui::Form& form) {
  form.Load();
  std::string shown = "[" + std::string(form.Name()) + "] " + form.Caption + "\n";
  for (const ui::Control* control : form.Controls()) shown += TextsOf(*control);
  return shown + "\n";
}

template <class T>
std::string TextsOn(modMain& main) {
  T form(main);
  return TextsOf(form);
}

// The words on the screens are settled to the letter, odd spellings and double blanks included.
TEST_F(ConsoleTest, CaptionsAreTheSettledOnes) {
  Console.Start();
  frmControlService stop(Main, {}), start(Main, {});
  start.IsStart = true;
  for (frmControlService* form : {&stop, &start}) form->InitForm();
  TestTargets targets;
  frmNotifications notifications(Main, targets);
  frmCreateTable tables(Main, targets);
  cvbTAPI pager(Main, Main.Platform.Phones);
  frmNotificationsTest test(Main, pager);
  test.RunTest("Duty Desk Popup");
  AlarmPlace place;
  frmAlarmInformation information(Main, place);
  information.InitForm(frmAlarms(Main).tvAlarms);
  frmSyslogDevice device(Main);
  device.InitForm(false, Window().lvwSyslogs);
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/console/Captions.txt"),
            TextsOf(Window()) + TextsOn<frmBegin>(Main) + TextsOn<frmStartup>(Main) + TextsOn<frmLogEdit>(Main) +
                TextsOf(stop) + TextsOf(start) + TextsOn<frmLogView>(Main) + TextsOn<frmDomainChooser>(Main) +
                TextsOn<frmComputerEnum>(Main) + TextsOn<frmCustomDomainManager>(Main) +
                TextsOn<frmServiceAccount>(Main) + TextsOn<frmAlarmGroups>(Main) + TextsOn<frmAlarmExport>(Main) +
                TextsOn<frmAlarmImport>(Main) + TextsOn<frmAlarms>(Main) + TextsOf(information) +
                TextsOn<frmCustomNotifications>(Main) + TextsOf(device) + TextsOn<frmPriorityBuilder>(Main) +
                TextsOf(notifications) + TextsOf(tables) + TextsOf(test));
}

}  // namespace
}  // namespace corvane::test
