#include "core/console/frmCVMain.h"

#include "admin/frmCreateTable.h"
#include "admin/frmServiceAccount.h"
#include "alarms/frmAlarmExport.h"
#include "alarms/frmAlarmGroups.h"
#include "alarms/frmAlarmImport.h"
#include "alarms/frmAlarms.h"
#include "core/Browser.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/ServiceControl.h"
#include "core/console/LogDeletion.h"
#include "core/console/SyslogDeletion.h"
#include "core/console/SyslogDeviceList.h"
#include "core/console/UpgradeReminder.h"
#include "core/console/WatchedLogList.h"
#include "core/console/frmControlService.h"
#include "core/console/frmLogView.h"
#include "core/console/frmStartup.h"
#include "core/modMain.h"
#include "domains/DomainList.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmCustomDomainManager.h"
#include "domains/frmDomainChooser.h"
#include "logs/frmLogEdit.h"
#include "notifications/SyslogDataFiles.h"
#include "notifications/frmCustomNotifications.h"
#include "notifications/frmNotifications.h"
#include "notifications/frmNotificationsTest.h"
#include "notifications/frmPriorityBuilder.h"
#include "notifications/frmSyslogDevice.h"
#include "platform/Conversions.h"
#include "platform/Launcher.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 110;
constexpr int OtherDatabasesTopic = 670;
constexpr int PauseBeforeReminder = 15000;
constexpr int LogTab = 0;
constexpr int SyslogTab = 1;

// A click on a column that the list sorts itself: descending first, then turn about.
void SortByColumn(ui::ListView& list, int column, bool& ascendingNext) {
  list.SortBy(column, ascendingNext ? ui::SortOrder::Ascending : ui::SortOrder::Descending);
  ascendingNext = !ascendingNext;
}

}  // namespace

// Screens name these pictures by number too: 21 is an alarm.
frmCVMain::frmCVMain(modMain& main, cvbTAPI& pager)
    : Form(main.Ui, "frmCVMain"), main_(main), pager_(pager), images_{"computer",    "syslogdevice", "warning",
                                                                      "success",     "error",        "os",
                                                                      "editlog",     "alarmcat",     "alarmgroup",
                                                                      "info",        "successaudit", "failureaudit",
                                                                      "add",         "edit",         "delete",
                                                                      "refresh",     "log",          "domain",
                                                                      "running",     "stopped",      "alarm",
                                                                      "notification"} {
  HelpContext = HelpTopic;
  SetCaptions();
  SetPictures();
  SetToolbar();
  SetLists();
  WireMenus();
  WireEditMenu();
  WireOptionsMenu();
  WireControls();
}

void frmCVMain::SetCaptions() {
  Caption = "Corvane";
  lblDomain.Caption = "&Domain:";
  lstDomain.ToolTip = "Choose a Domain to Watch Logs From";
  tabMain.Captions = {"Eve&nt Logs Watched by Corvane", "&Syslog Devices Forwarding to Corvane"};
  lblBanner.Caption = "Press 'F5' to refresh log scanning details...";
  stbMain.Panels = {{"LogCount", "", ""}, {"ServiceStatus", "", ""}, {"ServiceStatus2", "", ""}};
  imgplay[0].Picture = "running";
  imgplay[1].Picture = "stopped";
  for (int i = 0; i < 2; ++i) {
    imgplay[static_cast<std::size_t>(i)].Index = i;
    imgplay[static_cast<std::size_t>(i)].Visible = false;
  }
  mnuHidden.Popup = true;
  mnuViewRefresh.Shortcut = "F5";
  tmrUpgradeCheck.Interval = PauseBeforeReminder;
}

void frmCVMain::SetPictures() {
  const std::pair<ui::MenuItem*, const char*> pictures[] = {{&mnuFileAdd, "add"},
                                                            {&mnuHiddenAdd, "add"},
                                                            {&mnuFileEdit, "edit"},
                                                            {&mnuHiddenEdit, "edit"},
                                                            {&mnuFileDelete, "delete"},
                                                            {&mnuHiddenDelete, "delete"},
                                                            {&mnuFileSyslogAdd, "syslogadd"},
                                                            {&mnuHiddenSyslogAdd, "syslogadd"},
                                                            {&mnuFileSyslogEdit, "syslogedit"},
                                                            {&mnuHiddenSyslogEdit, "syslogedit"},
                                                            {&mnuEditDefineNotifications, "notification"},
                                                            {&mnuEditCustomNotifications, "customnotification"},
                                                            {&mnuFileSyslogDelete, "syslogdelete"},
                                                            {&mnuHiddenSyslogDelete, "syslogdelete"},
                                                            {&mnuFileEventViewer, "eventviewer"},
                                                            {&mnuHiddenEventViewer, "eventviewer"},
                                                            {&mnuEditDefineAlarms, "alarm"},
                                                            {&mnuEditDefineAlarmGroups, "alarmgroup"},
                                                            {&mnuEditExport, "exportalarms"},
                                                            {&mnuEditImport, "importalarms"},
                                                            {&mnuViewRefresh, "refresh"},
                                                            {&mnuToolsDatabase, "database"},
                                                            {&mnuToolsViewLogEntries, "log"},
                                                            {&mnuOptionsServiceAccount, "account"},
                                                            {&mnuOptionsStartService, "running"},
                                                            {&mnuOptionsStopService, "stopped"},
                                                            {&mnuOptionsStartService2, "running"},
                                                            {&mnuOptionsStopService2, "stopped"},
                                                            {&mnuOptionsDefaultDomain, "domain"},
                                                            {&mnuOptionsCustomDomains, "customdomain"},
                                                            {&mnuOptionsComputerNames, "computers"},
                                                            {&mnuHelpUpgradeCheck, "upgrade"},
                                                            {&mnuHelpCVHelpFile, "help"},
                                                            {&mnuHelpAbout, "about"}};
  for (const auto& [item, picture] : pictures) item->Picture = picture;
}

// The commands of every hour bear their names, the others their pictures alone: all of them have to fit into one row.
void frmCVMain::SetToolbar() {
  const auto add = [this](ui::ToolButton button, ui::Handler command) {
    toolCommands_[button.Key] = std::move(command);
    tbrMain.Buttons.push_back(std::move(button));
  };
  const auto separate = [this] { tbrMain.Buttons.push_back({"", "", "", "", true, true}); };
  add({"add", "Watch Log", "Watch a New Log", "add"}, [this] { mnuFileAdd_Click(); });
  add({"edit", "Edit Log", "Edit the Selected Log", "edit"}, [this] { mnuFileEdit_Click(); });
  add({"delete", "Delete Log(s)", "Stop Watching the Selected Log(s)", "delete"}, [this] { mnuFileDelete_Click(); });
  separate();
  add({"addsyslog", "", "Add a New Syslog Device", "syslogadd"}, [this] { mnuFileSyslogAdd_Click(); });
  add({"editsyslog", "", "Edit a Syslog Device", "syslogedit"}, [this] { mnuFileSyslogEdit_Click(); });
  add({"deletesyslog", "", "Delete Syslog Device(s)", "syslogdelete"}, [this] { mnuFileSyslogDelete_Click(); });
  separate();
  add({"eventviewer", "", "Open the Event Viewer on the Selected Computer", "eventviewer"},
      [this] { mnuFileEventViewer_Click(); });
  separate();
  add({"alarm", "", "Define Alarms", "alarm"}, [this] { mnuEditDefineAlarms_Click(); });
  add({"alarmgroups", "", "Define Alarm Bundles", "alarmgroup"}, [this] { mnuEditDefineAlarmGroups_Click(); });
  add({"notification", "", "Define Notifications", "notification"}, [this] { mnuEditDefineNotifications_Click(); });
  add({"customnotifications", "", "Custom Notifications", "customnotification"},
      [this] { frmCustomNotifications(main_).ShowModal(); });
  add({"exportalarms", "", "Export Alarms", "exportalarms"}, [this] { mnuEditExport_Click(); });
  add({"importalarms", "", "Import Alarms", "importalarms"}, [this] { mnuEditImport_Click(); });
  separate();
  add({"refresh", "", "Refresh the List", "refresh"}, [this] { mnuViewRefresh_Click(); });
  separate();
  add({"databasetools",
       "",
       "Database Helpers",
       "database",
       true,
       false,
       {{"Create Access Table(s)", [this] { mnuDatabaseAccess.Click(); }},
        {"Create Microsoft SQL Server Table(s)", [this] { mnuDatabaseSQL.Click(); }},
        {"Create Oracle Table(s)", [this] { mnuDatabaseOracle.Click(); }},
        {"Creating Tables on Other ODBC Servers", [this] { mnuDatabaseOther.Click(); }}}},
      [this] { AskForDropDown(); });
  add({"viewlogentries", "", "View Corvane Log Entries", "log"}, [this] { mnuToolsViewLogEntries_Click(); });
  separate();
  add({"setserviceaccount", "", "Set Corvane Service Account", "account"},
      [this] { mnuOptionsServiceAccount_Click(); });
  add({"startservice", "", "Start a Service", "running"}, [this] { ControlService(true); });
  add({"stopservice", "", "Stop a Service", "stopped"}, [this] { ControlService(false); });
  add({"setdefaultdomain", "", "Set Default Domain or Workgroup", "domain"},
      [this] { mnuOptionsDefaultDomain_Click(); });
  add({"customdomains", "", "Manage Custom Domain to Computer Mappings", "customdomain"},
      [this] { mnuOptionsCustomDomains_Click(); });
  add({"retrievecomputersfrom", "", "Retrieve Computer Names From", "computers"},
      [this] { mnuOptionsComputerNames_Click(); });
}

void frmCVMain::SetLists() {
  lvwComputers.Columns = {{"Computer", 2550, false},
                          {"Log", 2550, false},
                          {"Last Check Time", 1950, false},
                          {"Scan Duration", 1800, false},
                          {"# of Alarms Set", 1950, false},
                          {"# of Notifications Set", 2400, false},
                          {"DateNum", 0, false},
                          {"SecsNum", 0, false}};
  lvwSyslogs.Columns = {{"Device Name", 4000, false}, {"IP Address", 2600, false}};
}

void frmCVMain::WireMenus() {
  mnuFile.Click = [this] { mnuFile_Click(); };
  mnuFileAdd.Click = mnuHiddenAdd.Click = [this] { mnuFileAdd_Click(); };
  mnuFileEdit.Click = mnuHiddenEdit.Click = [this] { mnuFileEdit_Click(); };
  mnuFileDelete.Click = mnuHiddenDelete.Click = [this] { mnuFileDelete_Click(); };
  mnuFileSyslogAdd.Click = mnuHiddenSyslogAdd.Click = [this] { mnuFileSyslogAdd_Click(); };
  mnuFileSyslogEdit.Click = mnuHiddenSyslogEdit.Click = [this] { mnuFileSyslogEdit_Click(); };
  mnuFileSyslogDelete.Click = mnuHiddenSyslogDelete.Click = [this] { mnuFileSyslogDelete_Click(); };
  mnuFileEventViewer.Click = mnuHiddenEventViewer.Click = [this] { mnuFileEventViewer_Click(); };
  mnuFileExit.Click = [this] { Unload(); };
  mnuViewRefresh.Click = [this] { mnuViewRefresh_Click(); };
  mnuDatabaseAccess.Click = [this] { CreateTables(1); };
  mnuDatabaseSQL.Click = [this] { CreateTables(2); };
  mnuDatabaseOracle.Click = [this] { CreateTables(3); };
  mnuDatabaseOther.Click = [this] { main_.Ui.ShowHelp(OtherDatabasesTopic); };
  mnuToolsViewLogEntries.Click = [this] { mnuToolsViewLogEntries_Click(); };
  mnuHelpVisitTarnwick.Click = [this] { OpenInBrowser(main_, VendorSite); };
  mnuHelpTarnwickSoftwareCatalog.Click = [this] { OpenInBrowser(main_, main_.CatalogLink); };
  mnuHelpUpgradeCheck.Click = [this] { CheckForUpgrades(main_); };
  mnuHelpCVHelpFile.Click = [this] { main_.Ui.ShowHelp(0); };
  mnuHelpAbout.Click = [this] { mnuHelpAbout_Click(); };
}

void frmCVMain::WireEditMenu() {
  mnuEditDefineAlarms.Click = [this] { mnuEditDefineAlarms_Click(); };
  mnuEditDefineAlarmGroups.Click = [this] { mnuEditDefineAlarmGroups_Click(); };
  mnuEditDefineNotifications.Click = [this] { mnuEditDefineNotifications_Click(); };
  mnuEditCustomNotifications.Click = [this] { frmCustomNotifications(main_).ShowModal(); };
  mnuEditExport.Click = [this] { mnuEditExport_Click(); };
  mnuEditImport.Click = [this] { mnuEditImport_Click(); };
}

void frmCVMain::WireOptionsMenu() {
  mnuOptions.Click = [this] { mnuOptions_Click(); };
  mnuOptionsServiceAccount.Click = [this] { mnuOptionsServiceAccount_Click(); };
  mnuOptionsStartService.Click = [this] { StartCorvaneService(Service::Monitoring); };
  mnuOptionsStopService.Click = [this] { StopCorvaneService(Service::Monitoring); };
  mnuOptionsStartService2.Click = [this] { StartCorvaneService(Service::SyslogBridge); };
  mnuOptionsStopService2.Click = [this] { StopCorvaneService(Service::SyslogBridge); };
  mnuOptionsDefaultDomain.Click = [this] { mnuOptionsDefaultDomain_Click(); };
  mnuOptionsCustomDomains.Click = [this] { mnuOptionsCustomDomains_Click(); };
  mnuOptionsComputerNames.Click = [this] { mnuOptionsComputerNames_Click(); };
}

void frmCVMain::WireControls() {
  tbrMain.ButtonClick = [this](const std::string& key) { tbrMain_ButtonClick(key); };
  lstDomain.Click = [this] { lstDomain_Click(); };
  tabMain.Click = [this] { tabMain_Click(); };
  lvwComputers.ColumnClick = [this](int column) { lvwComputers_ColumnClick(column); };
  lvwSyslogs.ColumnClick = [this](int column) { lvwSyslogs_ColumnClick(column); };
  lvwComputers.DblClick = [this] { mnuFileEdit_Click(); };
  lvwComputers.MouseUp = [this](ui::MouseButton button) { lvwComputers_MouseUp(button); };
  tmrUpgradeCheck.Tick = [this] { tmrUpgradeCheck_Timer(); };
  lvwSyslogs.DblClick = [this] { mnuFileSyslogEdit_Click(); };
  lvwSyslogs.MouseUp = [this](ui::MouseButton button) { lvwSyslogs_MouseUp(button); };
}

// Nothing is saved here: every change was written when it was made.
void frmCVMain::Form_Unload() {
  main_.Ui.CloseHelp();
  main_.SharedRecordset.reset();
  if (main_.ConfigConnection && main_.ConfigConnection->State() == ObjectState::Open) main_.ConfigConnection->Close();
  main_.ConfigConnection.reset();
  main_.Ui.EndProgram();
}

void frmCVMain::FillTrustingDomains() {
  FillDomainList(main_, lstDomain);
  lstDomain_Click();
}

void frmCVMain::FillDatabaseDomains() { AddDatabaseDomains(main_, lstDomain); }

void frmCVMain::InitActiveTab() {
  tabMain.Tab = LogTab;
  tabMain_Click();
}

void frmCVMain::ShowService(Service service, bool running) {
  ui::StatusPanel& panel = stbMain.Panels[static_cast<std::size_t>(service)];
  panel.Text = service == Service::Monitoring ? "Corvane Service" : "Syslog Bridge Service";
  panel.Picture = imgplay[running ? 0 : 1].Picture;
}

void frmCVMain::StartCorvaneService(Service service) {
  SetPointer(ui::Pointer::Hourglass);
  if (StartServiceByCommand(main_, service)) ShowService(service, true);
  SetPointer(ui::Pointer::Default);
}

void frmCVMain::StopCorvaneService(Service service) {
  SetPointer(ui::Pointer::Hourglass);
  if (StopServiceByCommand(main_, service)) ShowService(service, false);
  SetPointer(ui::Pointer::Default);
}

std::string frmCVMain::CurrentIDName() const {
  const int row = lvwComputers.SelectedRow();
  if (row < 0) return {};
  const ui::ListItem& item = lvwComputers.Item(row);
  const int log = LogNumber(item.Cell(logcolumn::Log));
  return log == 0 ? std::string() : MakeIDName(item.Text, log);
}

void frmCVMain::SetPointer(ui::Pointer pointer) { MousePointer = lvwComputers.MousePointer = pointer; }

void frmCVMain::RefillLogs(bool descending) {
  LoadWatchedLogs(main_, lstDomain.Text(), lvwComputers, stbMain, descending);
}

void frmCVMain::RefillSyslogs(bool descending) { LoadSyslogDevices(main_, lvwSyslogs, stbMain, descending); }

void frmCVMain::lstDomain_Click() { RefillLogs(false); }

void frmCVMain::tabMain_Click() {
  EnableLogCommands(tabMain.Tab == LogTab);
  mnuViewRefresh_Click();
}

// Buttons are named by their keys: their places shift as screens come in.
void frmCVMain::EnableLogCommands(bool on) {
  for (ui::MenuItem* item : {&mnuFileAdd, &mnuFileEdit, &mnuFileDelete, &mnuFileEventViewer, &mnuHiddenAdd,
                             &mnuHiddenEdit, &mnuHiddenDelete, &mnuHiddenEventViewer})
    item->Enabled = on;
  for (const char* key : {"add", "edit", "delete", "eventviewer"}) tbrMain.Button(key).Enabled = on;
  for (ui::MenuItem* item : {&mnuFileSyslogAdd, &mnuFileSyslogEdit, &mnuFileSyslogDelete, &mnuHiddenSyslogAdd,
                             &mnuHiddenSyslogEdit, &mnuHiddenSyslogDelete})
    item->Enabled = !on;
  for (const char* key : {"addsyslog", "editsyslog", "deletesyslog"}) tbrMain.Button(key).Enabled = !on;
}

void frmCVMain::tbrMain_ButtonClick(const std::string& key) {
  for (const auto& [name, command] : toolCommands_)
    if (SameText(name, key)) return command();
}

// A button that only drops down: what it offers is behind its arrow.
void frmCVMain::AskForDropDown() {
  main_.Ui.MsgBox("Please select one of the wizards/tools by clicking the down arrow next to this button.",
                  ui::MsgIcon::Exclamation);
}

// The computers are put in order by the database, and times and durations by keys that the user does not see.
void frmCVMain::lvwComputers_ColumnClick(int column) {
  if (column < 0 || column > logcolumn::Notifications) return;
  bool& ascendingNext = main_.ColumnSortState[static_cast<std::size_t>(column)];
  if (column == logcolumn::Computer) {
    lvwComputers.Unsort();
    ascendingNext = !ascendingNext;
    RefillLogs(ascendingNext);
    return;
  }
  int key = column;
  if (column == logcolumn::LastCheck) key = logcolumn::DateNum;
  if (column == logcolumn::ScanDuration) key = logcolumn::SecsNum;
  SortByColumn(lvwComputers, key, ascendingNext);
}

void frmCVMain::lvwSyslogs_ColumnClick(int column) {
  if (column < 0 || column > 1) return;
  bool& ascendingNext = syslogSortState_[static_cast<std::size_t>(column)];
  if (column == 0) {
    lvwSyslogs.Unsort();
    ascendingNext = !ascendingNext;
    RefillSyslogs(ascendingNext);
    return;
  }
  SortByColumn(lvwSyslogs, column, ascendingNext);
}

void frmCVMain::lvwComputers_MouseUp(ui::MouseButton button) {
  if (button != ui::MouseButton::Right) return;
  mnuHiddenEventViewer.Enabled = lvwComputers.SelectedRow() >= 0;
  main_.Ui.PopupMenu(mnuHidden);
}

void frmCVMain::lvwSyslogs_MouseUp(ui::MouseButton button) {
  if (button == ui::MouseButton::Right) main_.Ui.PopupMenu(mnuHidden);
}

void frmCVMain::mnuFile_Click() {
  if (tabMain.Tab == LogTab) mnuFileEventViewer.Enabled = lvwComputers.SelectedRow() >= 0;
}

void frmCVMain::mnuFileAdd_Click() {
  main_.IsNewLog = true;
  frmLogEdit editor(main_);
  editor.ShowModal();
  RefillLogs(false);
  lvwComputers.SetMultiSelect(true);
}

void frmCVMain::mnuFileEdit_Click() {
  const int row = lvwComputers.SelectedRow();
  if (row < 0) return;
  main_.SelectedName = lvwComputers.Item(row).Text;
  main_.SelectedDetail = lvwComputers.Item(row).Cell(logcolumn::Log);
  main_.IsNewLog = false;
  frmLogEdit editor(main_);
  editor.ShowModal();
  RefillLogs(false);
}

void frmCVMain::mnuFileDelete_Click() {
  if (CurrentIDName().empty()) return;
  std::vector<DoomedLog> logs;
  for (const ui::ListItem& item : lvwComputers.Items())
    if (item.Selected) logs.push_back({item.Text, item.Cell(logcolumn::Log)});
  DeleteWatchedLogs(main_, logs, lstDomain.Text());
}

void frmCVMain::mnuFileSyslogAdd_Click() {
  const bool wasEmpty = lvwSyslogs.Count() == 0;
  frmSyslogDevice device(main_);
  device.InitForm(false, lvwSyslogs);
  device.ShowModal();
  ShowChangedSyslogs();
  // A list that was empty has always been filled twice.
  if (wasEmpty) RefillSyslogs(false);
}

void frmCVMain::mnuFileSyslogEdit_Click() {
  const int row = lvwSyslogs.SelectedRow();
  if (row < 0) return;
  main_.SelectedName = lvwSyslogs.Item(row).Text;
  main_.SelectedDetail = lvwSyslogs.Item(row).Cell(1);
  frmSyslogDevice device(main_);
  device.InitForm(true, lvwSyslogs);
  device.ShowModal();
  ShowChangedSyslogs();
}

void frmCVMain::mnuFileSyslogDelete_Click() {
  if (DeleteSyslogDevices(main_, lvwSyslogs)) ShowChangedSyslogs();
}

// The bridge reads files that follow the list.
void frmCVMain::ShowChangedSyslogs() {
  RefillSyslogs(false);
  UpdateSyslogBridgeOrTell(main_, main_.Platform.Pipes, lvwSyslogs);
}

void frmCVMain::mnuFileEventViewer_Click() {
  const int row = lvwComputers.SelectedRow();
  if (row < 0) return;
  if (!PassOver([&] { main_.Platform.Launcher.Run("eventvwr " + lvwComputers.Item(row).Text); }))
    main_.Ui.MsgBox("The Event Viewer could not be started on this computer.", ui::MsgIcon::Exclamation);
}

void frmCVMain::mnuEditDefineAlarms_Click() { frmAlarms(main_).ShowModal(); }

void frmCVMain::mnuEditDefineAlarmGroups_Click() { frmAlarmGroups(main_).ShowModal(); }

void frmCVMain::mnuEditDefineNotifications_Click() {
  frmNotifications notifications(main_, main_.Platform.Targets);
  notifications.BuildPriority = [this](ui::TextBox& priority) {
    frmPriorityBuilder builder(main_);
    builder.InitForm(priority);
    builder.ShowModal();
  };
  notifications.Test = [this](const std::string& name) {
    frmNotificationsTest test(main_, pager_);
    if (test.RunTest(name)) test.ShowModal();
  };
  notifications.ShowModal();
}

void frmCVMain::mnuEditExport_Click() { frmAlarmExport(main_).ShowModal(); }

void frmCVMain::mnuEditImport_Click() { frmAlarmImport(main_).ShowModal(); }

void frmCVMain::CreateTables(int kind) {
  frmCreateTable tables(main_, main_.Platform.Targets);
  tables.InitForm(static_cast<frmCreateTable::Kind>(kind));
  tables.ShowModal();
}

void frmCVMain::mnuViewRefresh_Click() {
  if (tabMain.Tab == SyslogTab)
    RefillSyslogs(false);
  else
    RefillLogs(false);
}

void frmCVMain::mnuToolsViewLogEntries_Click() {
  frmLogView viewer(main_);
  viewer.ShowModal();
}

// The states are read each time the menu opens: nothing watches the services in between.
void frmCVMain::mnuOptions_Click() {
  SetPointer(ui::Pointer::Hourglass);
  ServiceManager& services = main_.Platform.Services;
  const bool watching = CorvaneServiceState(services) == 1;
  ShowService(Service::Monitoring, watching);
  mnuOptionsStartService.Enabled = !watching;
  mnuOptionsStopService.Enabled = watching;
  const bool bridging = SyslogBridgeState(services) == 1;
  ShowService(Service::SyslogBridge, bridging);
  mnuOptionsStartService2.Enabled = !bridging;
  mnuOptionsStopService2.Enabled = bridging;
  SetPointer(ui::Pointer::Default);
}

void frmCVMain::mnuOptionsServiceAccount_Click() {
  frmServiceAccount account(main_);
  account.ShowModal();
}

void frmCVMain::mnuOptionsDefaultDomain_Click() {
  frmDomainChooser chooser(main_);
  chooser.ShowModal();
}

void frmCVMain::mnuOptionsCustomDomains_Click() {
  frmCustomDomainManager manager(main_);
  manager.ShowModal();
}

void frmCVMain::mnuOptionsComputerNames_Click() {
  frmComputerEnum source(main_);
  source.ShowModal();
}

void frmCVMain::ControlService(bool start) {
  frmControlService control(main_, [&](Service service) {
    if (start)
      StartCorvaneService(service);
    else
      StopCorvaneService(service);
  });
  control.Load();
  control.IsStart = start;
  control.InitForm();
  control.ShowModal();
}

void frmCVMain::tmrUpgradeCheck_Timer() {
  tmrUpgradeCheck.Enabled = false;
  RemindOfUpgrades(main_);
}

void frmCVMain::mnuHelpAbout_Click() {
  frmStartup about(main_);
  about.Load();
  about.SetAbout(true);
  about.ShowModal();
}

}  // namespace corvane
