#pragma once

#include <cstdint>
#include <string>

#include "core/Reghack.h"
#include "platform/Telephony.h"
#include "platform/ui/ListControls.h"

namespace corvane {

class modMain;

/// Dials a numeric pager with a modem and hangs up as soon as the other end answers: the message is in the digits, and
/// no data follow. Status numbers are those of the lines. No member raises: a failure is kept as the status alone.
class cvbTAPI {
 public:
  /// Opens the line of the first device.
  cvbTAPI(modMain& state, Telephony& lines);
  cvbTAPI(const cvbTAPI&) = delete;
  ~cvbTAPI();

  /// True from `Connect`, even one that failed, until `Disconnect`.
  bool isConnected() const { return inCall_; }
  /// Dials the pager's number, directly followed by its message; a comma is a pause. Does nothing without a line.
  int Connect(const std::string& dialString);
  int Disconnect();
  /// Adds the names of this computer's data modems to a box and chooses its first entry.
  int ListModems(ui::ComboBox& box);
  /// Dials from now on with this device, counted from 0.
  int SetModemToUse(std::uint32_t device);

 private:
  template <class Work>
  void Try(Work work);
  void OpenLine();
  void lineCallback(std::uint32_t message, std::uint32_t parameter);
  bool IsModem(std::uint32_t device);
  std::string NameOf(std::uint32_t device) const;

  modMain& state_;
  Telephony& lines_;
  Reghack registry_;
  std::uint32_t application_ = 0, line_ = 0, call_ = 0;
  std::uint32_t devices_ = 0, version_ = 0, device_ = 0;
  bool inCall_ = false;
  int status_ = line::Ok;
};

}  // namespace corvane
