#include "logs/frmLogEdit.h"

#include "core/ConfigDatabase.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "domains/Computers.h"
#include "domains/CustomDomains.h"
#include "logs/LogInspection.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 120;

enum Tab { ComputerTab = 0, IgnoreTab = 1, AlarmTab = 2, NotificationTab = 3 };

}  // namespace

frmLogEdit::frmLogEdit(modMain& main)
    : Form(main.Ui, "frmLogEdit"),
      main_(main),
      ignores_(main, {tvDenyAlarms, lvwDenyGroups, tvSelectedDenyAlarms, cmdDenyAdd, cmdDenyDown}, IgnoreTables,
               duplicateReported_),
      alarms_(main, {tvAlarms, lvwAlarmGroups, tvSelectedAlarms, cmdAdd, cmdDown}, AlarmTables, duplicateReported_),
      notifications_(main, lvwNotifications, lvwActiveNotifications) {
  HelpContext = HelpTopic;
  SetCaptions();
  WireHandlers();
  lstComputerName.Editable = true;
  for (const std::string& name : LogTypeNames) lstLogType.AddItem(name);
  cmdOK.Default = true;
  cmdCancel.Cancel = true;
  lblWait.Visible = false;
  tmrLoad.Interval = 75;
}

void frmLogEdit::SetCaptions() {
  Caption = "Log Watching Options";
  tabMain.Captions = {"Choose Computer and Log", "Event(s) to Ignore", "Set Alarm(s)", "Set Notification(s)"};
  fraComputerName.Caption = "&Computer";
  fraLogType.Caption = "Event &Log";
  fraServerStatistics.Caption = "Computer and Log Statistics";
  fraStatistics.Caption = "&Scanning Statistics";
  lblSelectedDenyAlarms.Caption = "E&vents to Ignore on This Log";
  lblDenyAlarms.Caption = "Available &Events";
  lblDenyGroups.Caption = "Available &Bundles";
  cmdDenyAdd.Caption = "&Add Ignore Event(s)";
  cmdDenyDown.Caption = "&Remove Ignore Event(s)";
  lblSelectedAlarms.Caption = "Alarms &Set on This Log";
  lblAlarms.Caption = "A&vailable Alarms";
  lblAlarmGroups.Caption = "Available &Bundles";
  cmdAdd.Caption = "&Add Alarm(s)";
  cmdDown.Caption = "R&emove Alarm(s)";
  lblActiveNotifications.Caption = "Notifications &Set on This Log";
  lblNotifications.Caption = "A&vailable Notifications";
  cmdNotAdd.Caption = "&Add Notification(s)";
  cmdNotDown.Caption = "&Remove Notification(s)";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
}

void frmLogEdit::WireHandlers() {
  tmrLoad.Tick = [this] { tmrLoad_Timer(); };
  tabMain.Click = [this] { tabMain_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdDenyAdd.Click = [this] { ignores_.AddSelected(); };
  cmdDenyDown.Click = [this] { ignores_.RemoveSelected(); };
  cmdAdd.Click = [this] { alarms_.AddSelected(); };
  cmdDown.Click = [this] { alarms_.RemoveSelected(); };
  cmdNotAdd.Click = [this] { notifications_.AddSelected(); };
  cmdNotDown.Click = [this] { notifications_.RemoveSelected(); };
}

// All slow work waits for the timer, so that the window is on the screen before it begins.
bool frmLogEdit::Form_Load() {
  tabMain.Tab = ComputerTab;
  return true;
}

void frmLogEdit::tmrLoad_Timer() {
  tmrLoad.Enabled = false;
  SetBusy(true);
  alarms_.FillAvailable();
  ignores_.FillAvailable();
  notifications_.LoadNotificationList();
  tabMain_Click();
  if (main_.IsNewLog)
    OpenForAdd();
  else
    OpenForEdit();
  SetBusy(false);
}

void frmLogEdit::OpenForAdd() {
  tabMain.Captions[ComputerTab] = "Choose Computer and Log";
  fraServerStatistics.Visible = fraStatistics.Visible = false;
  if (!IsCustomDomain(Domain())) {
    lblWait.Caption = "Please wait ... retrieving computer names...";
    lblWait.Visible = true;
    PassOver([&] { FillComputerList(main_, Domain(), lstComputerName); });
    lblWait.Visible = false;
  }
  PassOver([&] { LoadCustomDomainComputers(main_, Domain(), lstComputerName); });
  if (lstComputerName.ListIndex() < 0 && lstComputerName.Count() > 0) lstComputerName.SetListIndex(0);
  lstLogType.Enabled = lstComputerName.Enabled = true;
  lstLogType.SetListIndex(0);
  lvwNotifications.SelectNone();
}

void frmLogEdit::OpenForEdit() {
  tabMain.Captions[ComputerTab] = "Statistics";
  lstLogType.Enabled = lstComputerName.Enabled = false;
  fraServerStatistics.Visible = fraStatistics.Visible = true;
  lblWait.Caption = "Loading settings... Please wait...";
  lblWait.Visible = true;
  const std::string idName = main_.CVMain->CurrentIDName();
  alarms_.LoadAttached(idName);
  ignores_.LoadAttached(idName);
  notifications_.LoadAssociatedNotifications(idName);
  PassOver([&] { LoadComputerAndLog(idName); });
  PassOver([&] { LoadStatistics(main_, idName, lstStatistics); });
  PassOver([&] { InspectComputerAndLog(main_, lstComputerName.Text(), lstLogType.Text(), lstServerStatistics); });
  lblWait.Visible = false;
}

void frmLogEdit::LoadComputerAndLog(const std::string& idName) {
  const auto row = main_.Platform.Data.NewRecordset();
  row->Open("SELECT * FROM RegisteredServers WHERE IDName = '" + idName + "' AND [Domain] = '" + Domain() + "'",
            *main_.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
  lstComputerName.SetText(NullToEmpty(row->Field("ComputerName")));
  lstLogType.SetListIndex(ToNumber(row->Field("LogType")) - 1);
}

void frmLogEdit::SetBusy(bool busy) { main_.CVMain->SetPointer(busy ? ui::Pointer::Hourglass : ui::Pointer::Default); }

void frmLogEdit::tabMain_Click() {
  if (tabMain.Tab == ComputerTab)
    lblInfo.Caption = main_.IsNewLog ? "Select the computer and event log type you wish to monitor."
                                     : "View monitoring statistics about the current log.";
  if (tabMain.Tab == IgnoreTab)
    lblInfo.Caption = "Select events you wish to ignore by dragging alarms or alarm bundles to the left.";
  if (tabMain.Tab == AlarmTab)
    lblInfo.Caption =
        "Select the events that will trigger notifications by dragging alarms or alarm bundles to the left.";
  if (tabMain.Tab == NotificationTab)
    lblInfo.Caption =
        "Select notifications that will be performed when alarms are detected by dragging notifications to the left.";
}

void frmLogEdit::cmdOK_Click() {
  MousePointer = ui::Pointer::Hourglass;
  try {
    if (!HasAssociatedAlarm())
      Refuse("You must select at least one alarm to associate with this log.");
    else if (main_.IsNewLog ? CheckNewLog() : UpdateWatchedLog())
      Unload();
  } catch (const RuntimeError& error) {
    Refuse("The following error has occurred.\nNumber:  " + std::to_string(error.Number) +
           "\nDescription:  " + error.Description);
  }
  MousePointer = ui::Pointer::Default;
}

void frmLogEdit::cmdCancel_Click() { Unload(); }

bool frmLogEdit::HasAssociatedAlarm() const { return tvSelectedAlarms.Count() > 0; }

// Looks at what the main list shows, not at the database: a row that waits for its deletion is met by the insert.
bool frmLogEdit::CheckNewLog() {
  const std::string& computer = lstComputerName.Text();
  const std::string& log = lstLogType.Text();
  for (const ui::ListItem& item : main_.CVMain->WatchedLogs().Items()) {
    if (UpperCase(item.Text) != UpperCase(computer) || item.Cell(1) != log) continue;
    Refuse("The " + log + " log is already being monitored on " + computer +
           ".  Please choose a computer and log which are not already being monitored by Corvane.");
    return false;
  }
  if (!InsertWatchedLog()) return false;
  main_.SelectedName = computer;
  main_.SelectedDetail = log;
  return true;
}

bool frmLogEdit::InsertWatchedLog() {
  try {
    RecordCounters counters;
    if (ReadRecordCounters(main_, lstComputerName.Text(), lstLogType.Text(), counters) ==
        CountersResult::NewerThanConsole) {
      Refuse(
          "You cannot monitor Microsoft Windows Vista, Windows Server 2008, or later EVTX format logs from legacy "
          "operating systems.  To do so, please install Corvane on a Microsoft Vista or later operating system.");
      return false;
    }
    InsertServerRow(IDName(), std::to_string(counters.First), std::to_string(counters.Second));
    SaveAttachments(IDName());
    return true;
  } catch (const RuntimeError&) {
    Refuse(
        "Corvane could not successfully insert this log for monitoring in the log monitoring database.  A duplicate "
        "record pending deletion may exist in the database.  Please wait a minute, and try again.");
    return false;
  }
}

void frmLogEdit::InsertServerRow(const std::string& idName, const std::string& first, const std::string& second) {
  main_.ConfigConnection->Execute("INSERT INTO RegisteredServers VALUES ('" + idName + "', '" + Domain() + "', '" +
                                  lstComputerName.Text() + "', " + std::to_string(lstLogType.ListIndex() + 1) +
                                  ", 0, 0, " + first + ", " + second + ")");
}

bool frmLogEdit::UpdateWatchedLog() {
  try {
    const std::string idName = IDName();
    DeleteAlarmsAndNots(main_, idName, Domain());
    DeleteDenyAlarms(main_, idName, Domain());
    SaveAttachments(idName);
    return true;
  } catch (const RuntimeError&) {
    Refuse(
        "Corvane could not successfully update this entry in the log monitoring database.  The record may be locked.  "
        "Please wait a minute, and try again.");
    return false;
  }
}

void frmLogEdit::SaveAttachments(const std::string& idName) {
  AttachmentRows rows(main_, idName, Domain());
  notifications_.SaveNotifications(rows);
  ignores_.SaveAlarms(rows);
  alarms_.SaveAlarms(rows);
  StampLastDBUpdate(main_);
}

std::string frmLogEdit::IDName() const { return MakeIDName(lstComputerName.Text(), lstLogType.ListIndex() + 1); }

std::string frmLogEdit::Domain() const { return main_.CVMain->DomainBox().Text(); }

void frmLogEdit::Refuse(const std::string& text) { main_.Ui.MsgBox(text, ui::MsgIcon::Exclamation); }

}  // namespace corvane
