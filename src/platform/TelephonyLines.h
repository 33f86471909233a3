#pragma once

#include <map>
#include <memory>

#include "platform/Telephony.h"

namespace corvane {

/// A call that was dialled. Destroying it hangs up and returns when nothing more is told of it.
class LineCall {
 public:
  virtual ~LineCall() = default;
};

/// Telephone lines whose handles are kept here, for any number of applications at once; what derives from it knows the
/// devices and how to dial. A device carries one call at a time.
class TelephonyLines : public Telephony {
 public:
  /// Takes work to the program's one thread, later and from any thread.
  using Poster = std::function<void(std::function<void()>)>;

  explicit TelephonyLines(Poster post);

  int InitializeEx(std::uint32_t& application, Callback callback, const std::string& title,
                   std::uint32_t& devices) override;
  int NegotiateAPIVersion(std::uint32_t application, std::uint32_t device, std::uint32_t low, std::uint32_t high,
                          std::uint32_t& version) override;
  int Open(std::uint32_t application, std::uint32_t device, std::uint32_t& line, std::uint32_t version,
           std::uint32_t privileges, std::uint32_t mediaModes) override;
  int GetDevCaps(std::uint32_t application, std::uint32_t device, std::uint32_t version, LineDeviceCaps& caps) override;
  int MakeCall(std::uint32_t line, std::uint32_t& call, const std::string& dialString) override;
  /// Of a dropped call nothing is told any more, not even what was posted before.
  int Drop(std::uint32_t call) override;
  int DeallocateCall(std::uint32_t call) override;
  int Close(std::uint32_t line) override;
  int Shutdown(std::uint32_t application) override;

 protected:
  /// Tells a call's new state; from any thread.
  using Teller = std::function<void(std::uint32_t state)>;

  /// How many devices there are. Raises what looking for them raises.
  virtual std::uint32_t Devices() = 0;
  /// False for a device that is not there now.
  virtual bool Capabilities(std::uint32_t device, LineDeviceCaps& caps) = 0;
  /// Begins to dial. Nothing when that is not possible. The call must not need this object any more.
  virtual std::unique_ptr<LineCall> Dial(std::uint32_t device, const std::string& digits, Teller tell) = 0;

 private:
  struct Line {
    std::uint32_t Application, Device;
  };
  struct Call {
    std::uint32_t Line;
    Callback Told;
    /// Empty once it was dropped.
    std::unique_ptr<LineCall> Dialled;
  };

  bool IsBusy(std::uint32_t device) const;

  Poster post_;
  std::uint32_t lastHandle_ = 0;
  std::map<std::uint32_t, Callback> applications_;
  std::map<std::uint32_t, Line> lines_;
  std::map<std::uint32_t, std::shared_ptr<Call>> calls_;
};

}  // namespace corvane
