#include "notifications/frmSyslogDevice.h"

#include <sstream>

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/ListView.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 350;
constexpr int LongestPart = 3;
constexpr int AddressColumn = 1;

}  // namespace

frmSyslogDevice::frmSyslogDevice(modMain& main) : Form(main.Ui, "frmSyslogDevice"), main_(main) {
  HelpContext = HelpTopic;
  SetCaptions();
  SetUpAddress();
  cmdOK.Default = cmdCancel.Cancel = true;
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmSyslogDevice::SetCaptions() {
  lblInfo.Caption =
      "Corvane accepts syslog messages from registered devices only.  Enter a name for the device, and the IP address "
      "that its messages come from.";
  lblDeviceName.Caption = "&Device Name:";
  lblIP.Caption = "&IP Address:";
  for (ui::Label& dot : lblDot) dot.Caption = ".";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
}

// A dot ends a part wherever it is typed, also where the part has room left, and stays in none of the first three.
void frmSyslogDevice::SetUpAddress() {
  int index = 0;
  for (ui::Label& dot : lblDot) dot.Index = index++;
  for (std::size_t i = 0; i < txtIP.size(); ++i) {
    txtIP[i].Index = static_cast<int>(i);
    txtIP[i].MaxLength = LongestPart;
    if (i + 1 == txtIP.size()) continue;
    txtIP[i].KeyPress = [](char32_t character) { return character != U'.'; };
    txtIP[i].Refused = [this, i] { main_.Ui.SetFocus(txtIP[i + 1]); };
  }
}

void frmSyslogDevice::InitForm(bool isEdit, const ui::ListView& devices) {
  Caption = isEdit ? "Edit Syslog Device" : "Add New Syslog Device";
  if (!isEdit) return;
  const ui::ListItem& device = devices.Item(devices.SelectedRow());
  oldName_ = txtDeviceName.Text = device.Text;
  ShowAddress(device.Cell(AddressColumn));
}

void frmSyslogDevice::ShowAddress(const std::string& address) {
  std::istringstream parts(address);
  for (ui::TextBox& box : txtIP) {
    std::getline(parts, box.Text, '.');
    box.Text.resize(BytesOfCharacters(box.Text, LongestPart));
  }
}

// The parts are stored as they were typed: leading zeros and the like are left to whoever reads the address.
std::string frmSyslogDevice::AddressAsTyped() const {
  std::string address;
  for (const ui::TextBox& box : txtIP) address += (box.Index == 0 ? "" : ".") + box.Text;
  return address;
}

// Only this one loopback address is refused, not its whole network.
std::string frmSyslogDevice::Fault() const {
  if (txtDeviceName.Text.empty()) return "You must enter a device name to continue.";
  std::array<double, 4> parts{};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const auto part = ParseNumber(txtIP[i].Text);
    if (!part || *part < 0 || *part > 255)
      return "You have entered an invalid IP address.  Please re-enter the address to continue";
    parts[i] = *part;
  }
  if (parts == std::array<double, 4>{127, 0, 0, 1})
    return "Corvane cannot register the loopback address as a syslog device.  If you want to receive syslog messages "
           "from the local machine, please enter its actual IP address.";
  return "";
}

std::string frmSyslogDevice::Statement() const {
  const std::string name = QuoteSqlText(txtDeviceName.Text), address = QuoteSqlText(AddressAsTyped());
  if (oldName_)
    return "UPDATE SyslogDevices SET DeviceName = " + name + ", DeviceIP = " + address +
           " WHERE DeviceName = " + QuoteSqlText(*oldName_);
  return "INSERT INTO SyslogDevices (DeviceName, DeviceIP) VALUES (" + name + ", " + address + ")";
}

void frmSyslogDevice::cmdOK_Click() {
  std::string fault = Fault();
  if (fault.empty() && PassOver([&] { main_.ConfigConnection->Execute(Statement()); })) return Unload();
  if (fault.empty())
    fault =
        "Your entry could not be added/updated in the Corvane configuration database.  You may be attempting to add a "
        "duplicate device name to the database.";
  main_.Ui.MsgBox(fault, ui::MsgIcon::Exclamation);
}

}  // namespace corvane
