#include "notifications/cvbTAPI.h"

#include "core/PassOver.h"
#include "core/Settings.h"
#include "core/modMain.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr std::uint32_t OldestVersion = 0x00010003, NewestVersion = 0x00020002;

constexpr bool Has(std::uint32_t bits, std::uint32_t bit) { return (bits & bit) != 0; }

}  // namespace

cvbTAPI::cvbTAPI(modMain& state, Telephony& lines)
    : state_(state), lines_(lines), registry_(state.Platform.Registry, state.Platform.System) {
  Try([&] {
    const auto callback = [this](std::uint32_t message, std::uint32_t parameter) { lineCallback(message, parameter); };
    status_ = lines_.InitializeEx(application_, callback, state_.Ui.Title, devices_);
    status_ = lines_.NegotiateAPIVersion(application_, device_, OldestVersion, NewestVersion, version_);
    OpenLine();
  });
}

// The line stays open until here: it ends with the application.
cvbTAPI::~cvbTAPI() {
  PassOver([&] {
    if (call_ != 0) lines_.DeallocateCall(call_);
  });
  PassOver([&] { lines_.Shutdown(application_); });
}

int cvbTAPI::Connect(const std::string& dialString) {
  if (line_ == 0) return line::Failed;
  inCall_ = true;
  Try([&] { status_ = lines_.MakeCall(line_, call_, dialString); });
  return status_;
}

int cvbTAPI::Disconnect() {
  if (call_ != 0) {
    Try([&] { status_ = lines_.Drop(call_); });
    Try([&] { status_ = lines_.DeallocateCall(call_); });
  }
  call_ = 0;
  // Also after a call that could not be made, or none could be made again.
  inCall_ = false;
  return status_;
}

int cvbTAPI::ListModems(ui::ComboBox& box) {
  Try([&] {
    for (std::uint32_t device = 0; device < devices_; ++device)
      if (IsModem(device)) box.AddItem(NameOf(device));
    if (box.Count() > 0) box.SetListIndex(0);
  });
  return status_;
}

int cvbTAPI::SetModemToUse(std::uint32_t device) {
  Try([&] {
    if (line_ != 0) status_ = lines_.Close(line_);
    line_ = 0;
    device_ = device;
    OpenLine();
  });
  return status_;
}

template <class Work>
void cvbTAPI::Try(Work work) {
  if (!PassOver(work)) status_ = line::Failed;
}

void cvbTAPI::OpenLine() {
  status_ = lines_.Open(application_, device_, line_, version_, line::PrivilegeOwner, line::MediaModeDataModem);
}

// By the time the other end answers the modem has dialled the message too.
void cvbTAPI::lineCallback(std::uint32_t message, std::uint32_t parameter) {
  if (message != line::MessageCallState || parameter != line::CallStateConnected) return;
  ui::UiHost& host = state_.Ui;
  Disconnect();
  host.DoEvents();
}

bool cvbTAPI::IsModem(std::uint32_t device) {
  LineDeviceCaps caps;
  status_ = lines_.GetDevCaps(application_, device, version_, caps);
  return status_ >= line::Ok && Has(caps.MediaModes, line::MediaModeDataModem) &&
         Has(caps.BearerModes, line::BearerModePassthrough) && Has(caps.LineFeatures, line::FeatureMakeCall);
}

// Three zeros stand before every number, also before one of two digits: the list is for up to ten modems.
std::string cvbTAPI::NameOf(std::uint32_t device) const {
  std::string name = registry_.GetKeyValue(ModemsKey + std::string("\\000") + std::to_string(device), "FriendlyName");
  name.erase(name.find_last_not_of('\0') + 1);
  return name;
}

}  // namespace corvane
