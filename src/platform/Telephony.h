#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace corvane {

/// What a line device can do: sums of the bits below.
struct LineDeviceCaps {
  std::uint32_t MediaModes = 0;
  std::uint32_t BearerModes = 0;
  std::uint32_t LineFeatures = 0;
};

namespace line {
inline constexpr std::uint32_t MediaModeDataModem = 16;
inline constexpr std::uint32_t BearerModePassthrough = 64;
inline constexpr std::uint32_t FeatureMakeCall = 8;
inline constexpr std::uint32_t PrivilegeOwner = 4;
inline constexpr std::uint32_t MessageCallState = 2;
inline constexpr std::uint32_t CallStateBusy = 0x40;
inline constexpr std::uint32_t CallStateConnected = 0x100;
inline constexpr std::uint32_t CallStateDisconnected = 0x4000;
inline constexpr int Ok = 0;
inline constexpr int Failed = -1;
}  // namespace line

/// The telephone lines of this computer. Every call gives a status, 0 or above for success and negative for failure; a
/// handle is a number, and 0 is none. Devices count from 0.
class Telephony {
 public:
  /// Told on the program's one thread about what happens to a call: the message, and its first parameter.
  using Callback = std::function<void(std::uint32_t message, std::uint32_t parameter)>;

  virtual ~Telephony() = default;

  virtual int InitializeEx(std::uint32_t& application, Callback callback, const std::string& title,
                           std::uint32_t& devices) = 0;
  virtual int NegotiateAPIVersion(std::uint32_t application, std::uint32_t device, std::uint32_t low,
                                  std::uint32_t high, std::uint32_t& version) = 0;
  virtual int Open(std::uint32_t application, std::uint32_t device, std::uint32_t& line, std::uint32_t version,
                   std::uint32_t privileges, std::uint32_t mediaModes) = 0;
  virtual int GetDevCaps(std::uint32_t application, std::uint32_t device, std::uint32_t version,
                         LineDeviceCaps& caps) = 0;
  /// Dials digits; a comma is a pause of the modem. Returns at once, and the callback tells when the other end answers.
  virtual int MakeCall(std::uint32_t line, std::uint32_t& call, const std::string& dialString) = 0;
  virtual int Drop(std::uint32_t call) = 0;
  virtual int DeallocateCall(std::uint32_t call) = 0;
  virtual int Close(std::uint32_t line) = 0;
  /// Ends everything, open lines included. No callback comes after it.
  virtual int Shutdown(std::uint32_t application) = 0;
};

}  // namespace corvane
