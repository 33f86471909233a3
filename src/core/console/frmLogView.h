#pragma once

#include <array>
#include <string>

#include "core/console/ServiceEvents.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;
struct EventRecord;

/// Columns of the list of events.
namespace eventcolumn {
enum { Date, Description };
}

/// "Corvane Log Entries": what the monitoring service has logged in the Application log of this computer. Open it with
/// `ShowModal`; it reads the log by itself.
class frmLogView : public ui::Form {
 public:
  explicit frmLogView(modMain& main);

  ui::Frame fraEvents{*this, "fraEvents"};
  ui::ListView lvEvents{*this, "lvEvents"};
  std::array<ui::CheckBox, 3> chkEventsToShow{ui::CheckBox{*this, "chkEventsToShow"},
                                              ui::CheckBox{*this, "chkEventsToShow"},
                                              ui::CheckBox{*this, "chkEventsToShow"}};
  ui::Frame fraDescription{*this, "fraDescription"};
  ui::TextBox txtDescription{*this, "txtDescription"};
  ui::CommandButton cmdClipboard{*this, "cmdClipboard"};
  ui::CommandButton cmdRefresh{*this, "cmdRefresh"};
  ui::CommandButton cmdExport{*this, "cmdExport"};
  ui::CommandButton cmdClose{*this, "cmdClose"};
  ui::Timer tmrInitialLoad{*this, "tmrInitialLoad"};

 protected:
  void Form_Unload() override;

 private:
  void SetCaptions();
  void SetControls();

  void tmrInitialLoad_Timer();
  void chkEventsToShow_Click();
  void cmdClipboard_Click();
  void cmdRefresh_Click();
  void cmdExport_Click();
  void cmdClose_Click();

  void LockFormControls();
  void UnlockFormControls();
  void EnableControls(bool on);
  void FetchCVServiceEvents();
  void ReadEvents();
  void Keep(const EventRecord& record);
  void FillCVEventsList();
  void ClickActiveEvent();
  bool IsToShow(const ServiceEvent& event) const;
  void WriteReport(const std::string& path);
  void ServeWindow(int& count);

  modMain& main_;
  ServiceEvents events_;
};

}  // namespace corvane
