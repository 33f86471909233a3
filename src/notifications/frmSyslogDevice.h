#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/ui/Form.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;
namespace ui {
class ListView;
}

/// "Add New Syslog Device" and "Edit Syslog Device": name and address of a device whose syslog messages are accepted.
class frmSyslogDevice : public ui::Form {
 public:
  explicit frmSyslogDevice(modMain& main);

  /// Sets the form up to add a device, or to edit the selected one of the list, whose second column is its address.
  /// Raises when there is none to edit.
  void InitForm(bool isEdit, const ui::ListView& devices);

  ui::Label lblInfo{*this, "lblInfo"};
  ui::Label lblDeviceName{*this, "lblDeviceName"};
  ui::TextBox txtDeviceName{*this, "txtDeviceName"};
  ui::Label lblIP{*this, "lblIP"};
  std::array<ui::TextBox, 4> txtIP{ui::TextBox{*this, "txtIP"}, ui::TextBox{*this, "txtIP"},
                                   ui::TextBox{*this, "txtIP"}, ui::TextBox{*this, "txtIP"}};
  std::array<ui::Label, 3> lblDot{ui::Label{*this, "lblDot"}, ui::Label{*this, "lblDot"}, ui::Label{*this, "lblDot"}};
  ui::CommandButton cmdOK{*this, "cmdOK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void SetCaptions();
  void SetUpAddress();
  void ShowAddress(const std::string& address);

  void cmdOK_Click();

  /// Why the entry cannot be saved; empty when it can.
  std::string Fault() const;
  std::string AddressAsTyped() const;
  std::string Statement() const;

  modMain& main_;
  /// The name of the device that is being edited; nothing while one is being added.
  std::optional<std::string> oldName_;
};

}  // namespace corvane
