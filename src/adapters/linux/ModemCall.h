#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <thread>

#include "adapters/linux/SerialPort.h"
#include "platform/TelephonyLines.h"

namespace corvane {

/// How long a modem may take, in milliseconds.
struct ModemTiming {
  /// To answer a command.
  std::chrono::milliseconds Command{3000};
  /// To tell what came of a call, counted from the end of its pauses.
  std::chrono::milliseconds Answer{90000};
};

/// A call through a modem that obeys the AT commands of ITU-T V.250, carried by a thread of its own. It ends by itself
/// when the modem tells so, says nothing in time or is unplugged.
class ModemCall : public LineCall {
 public:
  /// `command` is what `DialCommand` gave. `tell` is called from the call's thread, at most twice. Raises 75 when the
  /// machine has no descriptor to spare.
  ModemCall(SerialPort port, std::string command, ModemTiming timing, std::function<void(std::uint32_t)> tell);
  /// Hangs up, within a second.
  ~ModemCall() override;

  /// The command that dials these digits by tones: the marks that people put between digits are left out. Empty when
  /// there is nothing to dial, or a character that no number has: a modem would take it for a command.
  static std::string DialCommand(const std::string& digits);

 private:
  /// What a modem replies, and what happens in place of a reply.
  enum class Reply { None, Ok, Connected, Busy, Failed, TimeOut, Stopped, Unplugged };

  using Replies = std::initializer_list<Reply>;

  static Reply Understand(const std::string& line);
  void Run();
  Reply Dial();
  Reply Send(const std::string& command, std::chrono::milliseconds patience, Replies wanted);
  Reply Await(SerialPort::Deadline deadline, int stop, Replies wanted);
  void HangUp(bool isConnected);

  SerialPort port_;
  std::string command_;
  ModemTiming timing_;
  std::function<void(std::uint32_t)> tell_;
  /// Becomes readable when the call is to end.
  Descriptor stop_;
  std::thread worker_;
};

}  // namespace corvane
