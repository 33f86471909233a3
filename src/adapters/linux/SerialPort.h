#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/linux/Descriptor.h"

namespace corvane {

/// A serial device to which nobody else talks meanwhile: 9600 baud, 8 data bits, no parity, no flow control.
class SerialPort {
 public:
  using Deadline = std::chrono::steady_clock::time_point;
  enum class Event { Line, TimeOut, Stopped, Unplugged };

  /// Nothing for a device that is missing, in use or not serial.
  static std::optional<SerialPort> Open(const std::string& device);

  /// False when the device does not take it at once, or is gone.
  bool Write(std::string_view bytes);
  /// Waits for the next line that is not empty; a descriptor that becomes readable stops the waiting.
  Event ReadLine(std::string& line, Deadline deadline, int stop);
  /// Drops the DTR signal, upon which a modem hangs up (ITU-T V.24, circuit 108), and forgets what was not sent yet.
  void DropDtr();

 private:
  explicit SerialPort(Descriptor device) : device_(std::move(device)) {}

  bool Configure();
  bool TakeLine(std::string& line);
  bool Receive();

  Descriptor device_;
  std::string received_;
};

}  // namespace corvane
