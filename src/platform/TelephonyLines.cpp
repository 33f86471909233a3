#include "platform/TelephonyLines.h"

#include <algorithm>
#include <utility>

namespace corvane {
namespace {

// The interface as it stands, 2.2.
constexpr std::uint32_t NewestVersion = 0x00020002;

constexpr int StatusOf(bool done) { return done ? line::Ok : line::Failed; }

}  // namespace

TelephonyLines::TelephonyLines(Poster post) : post_(std::move(post)) {}

int TelephonyLines::InitializeEx(std::uint32_t& application, Callback callback, const std::string&,
                                 std::uint32_t& devices) {
  devices = Devices();
  application = ++lastHandle_;
  applications_.emplace(application, std::move(callback));
  return line::Ok;
}

int TelephonyLines::NegotiateAPIVersion(std::uint32_t application, std::uint32_t device, std::uint32_t low,
                                        std::uint32_t high, std::uint32_t& version) {
  if (!applications_.contains(application) || device >= Devices() || low > NewestVersion) return line::Failed;
  version = std::min(high, NewestVersion);
  return line::Ok;
}

int TelephonyLines::Open(std::uint32_t application, std::uint32_t device, std::uint32_t& line, std::uint32_t version,
                         std::uint32_t, std::uint32_t mediaModes) {
  LineDeviceCaps caps;
  if (GetDevCaps(application, device, version, caps) != line::Ok || (caps.MediaModes & mediaModes) != mediaModes)
    return line::Failed;
  line = ++lastHandle_;
  lines_.emplace(line, Line{application, device});
  return line::Ok;
}

int TelephonyLines::GetDevCaps(std::uint32_t application, std::uint32_t device, std::uint32_t, LineDeviceCaps& caps) {
  return StatusOf(applications_.contains(application) && Capabilities(device, caps));
}

int TelephonyLines::MakeCall(std::uint32_t line, std::uint32_t& call, const std::string& dialString) {
  const auto owner = lines_.find(line);
  if (owner == lines_.end() || IsBusy(owner->second.Device)) return line::Failed;
  const auto made = std::make_shared<Call>(Call{line, applications_.at(owner->second.Application), nullptr});
  // Looked at on the one thread only, where a call also ends: so it is told of nothing after its end.
  const auto tell = [post = post_, call = std::weak_ptr<Call>(made)](std::uint32_t state) {
    post([call, state] {
      const auto still = call.lock();
      if (still && still->Dialled) still->Told(line::MessageCallState, state);
    });
  };
  made->Dialled = Dial(owner->second.Device, dialString, tell);
  if (!made->Dialled) return line::Failed;
  call = ++lastHandle_;
  calls_.emplace(call, made);
  return line::Ok;
}

int TelephonyLines::Drop(std::uint32_t call) {
  const auto found = calls_.find(call);
  if (found == calls_.end()) return line::Failed;
  found->second->Dialled.reset();
  return line::Ok;
}

int TelephonyLines::DeallocateCall(std::uint32_t call) {
  if (Drop(call) != line::Ok) return line::Failed;
  calls_.erase(call);
  return line::Ok;
}

int TelephonyLines::Close(std::uint32_t line) {
  for (auto it = calls_.begin(); it != calls_.end();) {
    const std::uint32_t call = it->first;
    const bool ends = it++->second->Line == line;
    if (ends) DeallocateCall(call);
  }
  return StatusOf(lines_.erase(line) == 1);
}

int TelephonyLines::Shutdown(std::uint32_t application) {
  for (auto it = lines_.begin(); it != lines_.end();) {
    const std::uint32_t line = it->first;
    const bool ends = it++->second.Application == application;
    if (ends) Close(line);
  }
  return StatusOf(applications_.erase(application) == 1);
}

bool TelephonyLines::IsBusy(std::uint32_t device) const {
  return std::any_of(calls_.begin(), calls_.end(), [&](const auto& call) {
    return call.second->Dialled && lines_.at(call.second->Line).Device == device;
  });
}

}  // namespace corvane
