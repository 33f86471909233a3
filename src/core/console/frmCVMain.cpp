#include "core/console/frmCVMain.h"

#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/console/SyslogDeviceList.h"
#include "core/console/WatchedLogList.h"
#include "core/console/frmStartup.h"
#include "core/modMain.h"
#include "domains/DomainList.h"
#include "logs/frmLogEdit.h"
#include "platform/Launcher.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 110;
constexpr int LogTab = 0;
constexpr int SyslogTab = 1;

// A click on a column that the list sorts itself: descending first, then turn about.
void SortByColumn(ui::ListView& list, int column, bool& ascendingNext) {
  list.SortBy(column, ascendingNext ? ui::SortOrder::Ascending : ui::SortOrder::Descending);
  ascendingNext = !ascendingNext;
}

}  // namespace

// Screens name these pictures by number too: 21 is an alarm.
frmCVMain::frmCVMain(modMain& main)
    : Form(main.Ui, "frmCVMain"), main_(main), images_{"computer",   "syslogdevice", "warning",      "success",
                                                       "error",      "os",           "editlog",      "alarmcat",
                                                       "alarmgroup", "info",         "successaudit", "failureaudit",
                                                       "add",        "edit",         "delete",       "refresh",
                                                       "log",        "domain",       "running",      "stopped",
                                                       "alarm",      "notification"} {
  HelpContext = HelpTopic;
  SetCaptions();
  SetToolbar();
  SetLists();
  WireMenus();
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
  for (auto* item : {&mnuFileAdd, &mnuHiddenAdd}) item->Picture = "add";
  for (auto* item : {&mnuFileEdit, &mnuHiddenEdit}) item->Picture = "edit";
  for (auto* item : {&mnuFileEventViewer, &mnuHiddenEventViewer}) item->Picture = "eventviewer";
  mnuViewRefresh.Picture = "refresh";
  mnuHelpCVHelpFile.Picture = "help";
  mnuHelpAbout.Picture = "about";
}

void frmCVMain::SetToolbar() {
  const ui::ToolButton separator{"", "", "", "", true, true};
  tbrMain.Buttons = {{"add", "Watch Log", "Watch a New Log", "add"},
                     {"edit", "Edit Log", "Edit the Selected Log", "edit"},
                     separator,
                     {"eventviewer", "Event Viewer", "Open the Event Viewer on the Selected Computer", "eventviewer"},
                     separator,
                     {"refresh", "Refresh", "Refresh the List", "refresh"}};
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
  mnuFileEventViewer.Click = mnuHiddenEventViewer.Click = [this] { mnuFileEventViewer_Click(); };
  mnuFileExit.Click = [this] { Unload(); };
  mnuViewRefresh.Click = [this] { mnuViewRefresh_Click(); };
  mnuHelpCVHelpFile.Click = [this] { main_.Ui.ShowHelp(0); };
  mnuHelpAbout.Click = [this] { mnuHelpAbout_Click(); };
}

void frmCVMain::WireControls() {
  tbrMain.ButtonClick = [this](const std::string& key) { tbrMain_ButtonClick(key); };
  lstDomain.Click = [this] { lstDomain_Click(); };
  tabMain.Click = [this] { tabMain_Click(); };
  lvwComputers.ColumnClick = [this](int column) { lvwComputers_ColumnClick(column); };
  lvwSyslogs.ColumnClick = [this](int column) { lvwSyslogs_ColumnClick(column); };
  lvwComputers.DblClick = [this] { mnuFileEdit_Click(); };
  lvwComputers.MouseUp = [this](ui::MouseButton button) { lvwComputers_MouseUp(button); };
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

void frmCVMain::ShowService(std::size_t panel, bool running) {
  stbMain.Panels[panel].Text = panel == 1 ? "Corvane Service" : "Syslog Bridge Service";
  stbMain.Panels[panel].Picture = imgplay[running ? 0 : 1].Picture;
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
  for (ui::MenuItem* item :
       {&mnuFileAdd, &mnuFileEdit, &mnuFileEventViewer, &mnuHiddenAdd, &mnuHiddenEdit, &mnuHiddenEventViewer})
    item->Enabled = on;
  for (const char* key : {"add", "edit", "eventviewer"}) tbrMain.Button(key).Enabled = on;
}

void frmCVMain::tbrMain_ButtonClick(const std::string& key) {
  if (key == "add") mnuFileAdd_Click();
  if (key == "edit") mnuFileEdit_Click();
  if (key == "eventviewer") mnuFileEventViewer_Click();
  if (key == "refresh") mnuViewRefresh_Click();
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

void frmCVMain::mnuFileEventViewer_Click() {
  const int row = lvwComputers.SelectedRow();
  if (row < 0) return;
  if (!PassOver([&] { main_.Platform.Launcher.Run("eventvwr " + lvwComputers.Item(row).Text); }))
    main_.Ui.MsgBox("The Event Viewer could not be started on this computer.", ui::MsgIcon::Exclamation);
}

void frmCVMain::mnuViewRefresh_Click() {
  if (tabMain.Tab == SyslogTab)
    RefillSyslogs(false);
  else
    RefillLogs(false);
}

void frmCVMain::mnuHelpAbout_Click() {
  frmStartup about(main_);
  about.Load();
  about.SetAbout(true);
  about.ShowModal();
}

}  // namespace corvane
