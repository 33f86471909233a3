#pragma once

#include <array>
#include <map>
#include <string_view>
#include <vector>

#include "core/MainWindow.h"
#include "core/console/ServiceCommands.h"
#include "platform/ui/Commands.h"
#include "platform/ui/Form.h"
#include "platform/ui/ImageList.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class cvbTAPI;
class modMain;

/// The console's one long-lived window: the watched logs of a domain on one tab, the accepted syslog devices on the
/// other. What it shows is read when a list is filled; nothing here watches live.
class frmCVMain : public ui::Form, public MainWindow {
 public:
  /// `pager` makes the calls of a notification's test.
  frmCVMain(modMain& main, cvbTAPI& pager);

  ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
  ui::MenuItem mnuFileAdd{mnuFile, "mnuFileAdd", "&Watch a New Log..."};
  ui::MenuItem mnuFileEdit{mnuFile, "mnuFileEdit", "&Edit the Selected Log..."};
  ui::MenuItem mnuFileDelete{mnuFile, "mnuFileDelete", "&Delete the Selected Log(s)"};
  ui::MenuItem mnuFileBar1{mnuFile, "mnuFileBar1", "-"};
  ui::MenuItem mnuFileSyslogAdd{mnuFile, "mnuFileSyslogAdd", "&Add a New Syslog Device"};
  ui::MenuItem mnuFileSyslogEdit{mnuFile, "mnuFileSyslogEdit", "Edit a S&yslog Device"};
  ui::MenuItem mnuFileSyslogDelete{mnuFile, "mnuFileSyslogDelete", "Delete Sys&log Device(s)"};
  ui::MenuItem mnuFileBar2{mnuFile, "mnuFileBar2", "-"};
  ui::MenuItem mnuFileEventViewer{mnuFile, "mnuFileEventViewer", "Event &Viewer..."};
  ui::MenuItem mnuFileBar3{mnuFile, "mnuFileBar3", "-"};
  ui::MenuItem mnuFileExit{mnuFile, "mnuFileExit", "E&xit"};
  ui::MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
  ui::MenuItem mnuEditDefineAlarms{mnuEdit, "mnuEditDefineAlarms", "Define &Alarms..."};
  ui::MenuItem mnuEditDefineAlarmGroups{mnuEdit, "mnuEditDefineAlarmGroups", "Define Alarm &Bundles..."};
  ui::MenuItem mnuEditDefineNotifications{mnuEdit, "mnuEditDefineNotifications", "Define &Notifications..."};
  ui::MenuItem mnuEditCustomNotifications{mnuEdit, "mnuEditCustomNotifications", "&Custom Notifications..."};
  ui::MenuItem mnuEditBar1{mnuEdit, "mnuEditBar1", "-"};
  ui::MenuItem mnuEditExport{mnuEdit, "mnuEditExport", "Ex&port Alarms..."};
  ui::MenuItem mnuEditImport{mnuEdit, "mnuEditImport", "&Import Alarms..."};
  ui::MenuItem mnuView{*this, "mnuView", "&View"};
  ui::MenuItem mnuViewRefresh{mnuView, "mnuViewRefresh", "&Refresh"};
  ui::MenuItem mnuTools{*this, "mnuTools", "&Tools"};
  ui::MenuItem mnuToolsDatabase{mnuTools, "mnuToolsDatabase", "&Database Helpers"};
  ui::MenuItem mnuDatabaseAccess{mnuToolsDatabase, "mnuDatabaseAccess", "Create &Access Table(s)"};
  ui::MenuItem mnuDatabaseSQL{mnuToolsDatabase, "mnuDatabaseSQL", "Create Microsoft &SQL Server Table(s)"};
  ui::MenuItem mnuDatabaseOracle{mnuToolsDatabase, "mnuDatabaseOracle", "Create O&racle Table(s)"};
  ui::MenuItem mnuDatabaseOther{mnuToolsDatabase, "mnuDatabaseOther", "Creating Tables on &Other ODBC Servers"};
  ui::MenuItem mnuToolsViewLogEntries{mnuTools, "mnuToolsViewLogEntries", "&View Corvane Log Entries"};
  ui::MenuItem mnuOptions{*this, "mnuOptions", "&Options"};
  ui::MenuItem mnuOptionsServiceAccount{mnuOptions, "mnuOptionsServiceAccount", "&Set Corvane Service Account"};
  ui::MenuItem mnuOptionsBar1{mnuOptions, "mnuOptionsBar1", "-"};
  ui::MenuItem mnuOptionsStartService{mnuOptions, "mnuOptionsStartService", "St&art the Corvane Service"};
  ui::MenuItem mnuOptionsStopService{mnuOptions, "mnuOptionsStopService", "Sto&p the Corvane Service"};
  ui::MenuItem mnuOptionsStartService2{mnuOptions, "mnuOptionsStartService2", "Sta&rt the Syslog Bridge Service"};
  ui::MenuItem mnuOptionsStopService2{mnuOptions, "mnuOptionsStopService2", "Stop the Syslog &Bridge Service"};
  ui::MenuItem mnuOptionsBar2{mnuOptions, "mnuOptionsBar2", "-"};
  ui::MenuItem mnuOptionsDefaultDomain{mnuOptions, "mnuOptionsDefaultDomain", "Set &Default Domain or Workgroup"};
  ui::MenuItem mnuOptionsCustomDomains{mnuOptions, "mnuOptionsCustomDomains",
                                       "&Manage Custom Domain to Computer Mappings..."};
  ui::MenuItem mnuOptionsComputerNames{mnuOptions, "mnuOptionsComputerNames", "Retrie&ve Computer Names From"};
  ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
  ui::MenuItem mnuHelpVisitTarnwick{mnuHelp, "mnuHelpVisitTarnwick", "&Visit Tarnwick on the Web"};
  ui::MenuItem mnuHelpTarnwickSoftwareCatalog{mnuHelp, "mnuHelpTarnwickSoftwareCatalog", "Tarnwick &Software Catalog"};
  ui::MenuItem mnuHelpUpgradeCheck{mnuHelp, "mnuHelpUpgradeCheck", "&Check for Product Upgrades"};
  ui::MenuItem mnuHelpBar1{mnuHelp, "mnuHelpBar1", "-"};
  ui::MenuItem mnuHelpCVHelpFile{mnuHelp, "mnuHelpCVHelpFile", "&Corvane Help File"};
  ui::MenuItem mnuHelpAbout{mnuHelp, "mnuHelpAbout", "&About Corvane"};
  ui::MenuItem mnuHidden{*this, "mnuHidden", ""};
  ui::MenuItem mnuHiddenAdd{mnuHidden, "mnuHiddenAdd", "&Watch a New Log..."};
  ui::MenuItem mnuHiddenEdit{mnuHidden, "mnuHiddenEdit", "&Edit the Selected Log..."};
  ui::MenuItem mnuHiddenDelete{mnuHidden, "mnuHiddenDelete", "&Delete the Selected Log(s)"};
  ui::MenuItem mnuHiddenBar1{mnuHidden, "mnuHiddenBar1", "-"};
  ui::MenuItem mnuHiddenSyslogAdd{mnuHidden, "mnuHiddenSyslogAdd", "&Add a New Syslog Device"};
  ui::MenuItem mnuHiddenSyslogEdit{mnuHidden, "mnuHiddenSyslogEdit", "Edit a S&yslog Device"};
  ui::MenuItem mnuHiddenSyslogDelete{mnuHidden, "mnuHiddenSyslogDelete", "Delete Sys&log Device(s)"};
  ui::MenuItem mnuHiddenBar2{mnuHidden, "mnuHiddenBar2", "-"};
  ui::MenuItem mnuHiddenEventViewer{mnuHidden, "mnuHiddenEventViewer", "Event &Viewer..."};

  ui::Toolbar tbrMain{*this, "tbrMain"};
  ui::Label lblDomain{*this, "lblDomain"};
  ui::ComboBox lstDomain{*this, "lstDomain"};
  ui::TabControl tabMain{*this, "tabMain"};
  ui::ListView lvwComputers{*this, "lvwComputers"};
  ui::ListView lvwSyslogs{*this, "lvwSyslogs"};
  ui::Label lblBanner{*this, "lblBanner"};
  ui::StatusBar stbMain{*this, "stbMain"};
  std::array<ui::Image, 2> imgplay{ui::Image{*this, "imgplay"}, ui::Image{*this, "imgplay"}};
  ui::Timer tmrUpgradeCheck{*this, "tmrUpgradeCheck"};

  /// Fills the box of domains with the default domain and those it trusts, and lists the logs of the chosen one.
  void FillTrustingDomains();
  /// Adds the domains that only registered logs tell of.
  void FillDatabaseDomains();
  /// Refill the list of watched logs of the chosen domain, or that of the accepted syslog devices.
  void RefillLogs(bool descending);
  void RefillSyslogs(bool descending);
  void RefillLogs() override { RefillLogs(false); }
  void RefillSyslogs() override { RefillSyslogs(false); }
  /// Brings the logs to the front and sets the commands accordingly.
  void InitActiveTab();
  /// Shows a service in its panel of the status bar.
  void ShowService(Service service, bool running);
  /// Run the commands of the Options menu that start and stop a service.
  void StartCorvaneService(Service service);
  void StopCorvaneService(Service service);
  /// Opens the choice of the default domain.
  void ShowDefaultDomain() { mnuOptionsDefaultDomain_Click(); }

  ui::ComboBox& DomainBox() override { return lstDomain; }
  const ui::ListView& WatchedLogs() const override { return lvwComputers; }
  std::string CurrentIDName() const override;
  const ui::ImageList& Images() const override { return images_; }
  void SetPointer(ui::Pointer pointer) override;

 protected:
  void Form_Unload() override;

 private:
  void SetCaptions();
  void SetPictures();
  void SetToolbar();
  void SetLists();
  void WireMenus();
  void WireEditMenu();
  void WireOptionsMenu();
  void WireControls();

  void lstDomain_Click();
  void tabMain_Click();
  void tbrMain_ButtonClick(const std::string& key);
  void lvwComputers_ColumnClick(int column);
  void lvwSyslogs_ColumnClick(int column);
  void lvwComputers_MouseUp(ui::MouseButton button);
  void lvwSyslogs_MouseUp(ui::MouseButton button);
  void mnuFile_Click();
  void mnuFileAdd_Click();
  void mnuFileEdit_Click();
  void mnuFileDelete_Click();
  void mnuFileSyslogAdd_Click();
  void mnuFileSyslogEdit_Click();
  void mnuFileSyslogDelete_Click();
  void mnuFileEventViewer_Click();
  void mnuEditDefineAlarms_Click();
  void mnuEditDefineAlarmGroups_Click();
  void mnuEditDefineNotifications_Click();
  void mnuEditExport_Click();
  void mnuEditImport_Click();
  void mnuViewRefresh_Click();
  void mnuToolsViewLogEntries_Click();
  void mnuOptions_Click();
  void mnuOptionsServiceAccount_Click();
  void mnuOptionsDefaultDomain_Click();
  void mnuOptionsCustomDomains_Click();
  void mnuOptionsComputerNames_Click();
  void mnuHelpAbout_Click();
  void CreateTables(int kind);
  void AskForDropDown();
  void ControlService(bool start);
  void tmrUpgradeCheck_Timer();

  void EnableLogCommands(bool on);
  void ShowChangedSyslogs();

  modMain& main_;
  cvbTAPI& pager_;
  ui::ImageList images_;
  /// What the buttons of the toolbar do, by key.
  std::map<std::string, ui::Handler> toolCommands_;
  std::array<bool, 2> syslogSortState_{};
};

}  // namespace corvane
