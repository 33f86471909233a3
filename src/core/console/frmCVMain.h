#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "core/MainWindow.h"
#include "platform/ui/Commands.h"
#include "platform/ui/Form.h"
#include "platform/ui/ImageList.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// The console's one long-lived window: the watched logs of a domain on one tab, the accepted syslog devices on the
/// other. What it shows is read when a list is filled; nothing here watches live.
class frmCVMain : public ui::Form, public MainWindow {
 public:
  explicit frmCVMain(modMain& main);

  ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
  ui::MenuItem mnuFileAdd{mnuFile, "mnuFileAdd", "&Watch a New Log..."};
  ui::MenuItem mnuFileEdit{mnuFile, "mnuFileEdit", "&Edit the Selected Log..."};
  ui::MenuItem mnuFileBar1{mnuFile, "mnuFileBar1", "-"};
  ui::MenuItem mnuFileEventViewer{mnuFile, "mnuFileEventViewer", "Event &Viewer..."};
  ui::MenuItem mnuFileBar2{mnuFile, "mnuFileBar2", "-"};
  ui::MenuItem mnuFileExit{mnuFile, "mnuFileExit", "E&xit"};
  ui::MenuItem mnuView{*this, "mnuView", "&View"};
  ui::MenuItem mnuViewRefresh{mnuView, "mnuViewRefresh", "&Refresh"};
  ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
  ui::MenuItem mnuHelpCVHelpFile{mnuHelp, "mnuHelpCVHelpFile", "&Corvane Help File"};
  ui::MenuItem mnuHelpAbout{mnuHelp, "mnuHelpAbout", "&About Corvane"};
  ui::MenuItem mnuHidden{*this, "mnuHidden", ""};
  ui::MenuItem mnuHiddenAdd{mnuHidden, "mnuHiddenAdd", "&Watch a New Log..."};
  ui::MenuItem mnuHiddenEdit{mnuHidden, "mnuHiddenEdit", "&Edit the Selected Log..."};
  ui::MenuItem mnuHiddenBar1{mnuHidden, "mnuHiddenBar1", "-"};
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
  /// Shows a service in its panel of the status bar, 1 the monitoring service, 2 the bridge.
  void ShowService(std::size_t panel, bool running);

  ui::ComboBox& DomainBox() override { return lstDomain; }
  const ui::ListView& WatchedLogs() const override { return lvwComputers; }
  std::string CurrentIDName() const override;
  const ui::ImageList& Images() const override { return images_; }
  void SetPointer(ui::Pointer pointer) override;

 protected:
  void Form_Unload() override;

 private:
  void SetCaptions();
  void SetToolbar();
  void SetLists();
  void WireMenus();
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
  void mnuFileEventViewer_Click();
  void mnuViewRefresh_Click();
  void mnuHelpAbout_Click();

  void EnableLogCommands(bool on);

  modMain& main_;
  ui::ImageList images_;
  std::array<bool, 2> syslogSortState_{};
};

}  // namespace corvane
