#include "adapters/linux/ModemCall.h"

#include <sys/eventfd.h>

#include <algorithm>
#include <utility>

#include "platform/RuntimeError.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// A comma makes the modem wait so long, unless its register S8 says otherwise.
constexpr auto CommaPause = 2000ms;
// The silence around "+++", which is 1 s as modems come, is cut to 200 ms (20 ms are one unit), so that hanging up is
// quick.
constexpr const char* Preparation = "ATV1S12=10";
constexpr auto Silence = 220ms;
constexpr auto LastReply = 150ms;
constexpr int NoStop = -1;

// Without it the thread could not be ended.
Descriptor MakeSignal() {
  Descriptor signal(::eventfd(0, EFD_CLOEXEC));
  if (!signal) throw RuntimeError(errors::PathFileAccess, "A call cannot be made: no descriptor is left");
  return signal;
}

}  // namespace

ModemCall::ModemCall(SerialPort port, std::string command, ModemTiming timing, std::function<void(std::uint32_t)> tell)
    : port_(std::move(port)),
      command_(std::move(command)),
      timing_(timing),
      tell_(std::move(tell)),
      stop_(MakeSignal()),
      worker_([this] { Run(); }) {}

ModemCall::~ModemCall() {
  ::eventfd_write(stop_.Get(), 1);
  worker_.join();
}

std::string ModemCall::DialCommand(const std::string& digits) {
  std::string dialled;
  for (const char c : digits) {
    if (std::string_view("0123456789ABCDabcd*#+,W!@").find(c) != std::string_view::npos)
      dialled += c;
    else if (std::string_view(" -()./").find(c) == std::string_view::npos)
      return {};
  }
  return dialled.empty() ? dialled : "ATDT" + dialled;
}

void ModemCall::Run() {
  const Reply reply = Dial();
  if (reply == Reply::Connected) {
    tell_(line::CallStateConnected);
    if (Await(SerialPort::Deadline::max(), stop_.Get(), {Reply::Failed}) == Reply::Stopped)
      HangUp(true);
    else
      tell_(line::CallStateDisconnected);
  } else {
    if (reply == Reply::TimeOut || reply == Reply::Stopped) HangUp(false);
    if (reply != Reply::Stopped) tell_(reply == Reply::Busy ? line::CallStateBusy : line::CallStateDisconnected);
  }
  port_.DropDtr();
}

ModemCall::Reply ModemCall::Dial() {
  const Reply reset = Send("ATZ", timing_.Command, {Reply::Ok, Reply::Failed});
  if (reset != Reply::Ok) return reset;
  // A modem that does not know these is slow to hang up and works all the same.
  const Reply prepared = Send(Preparation, timing_.Command, {Reply::Ok, Reply::Failed});
  if (prepared != Reply::Ok && prepared != Reply::Failed) return prepared;
  const auto pauses = std::count(command_.begin(), command_.end(), ',') * CommaPause;
  return Send(command_, timing_.Answer + pauses, {Reply::Connected, Reply::Busy, Reply::Failed});
}

ModemCall::Reply ModemCall::Send(const std::string& command, std::chrono::milliseconds patience, Replies wanted) {
  if (!port_.Write(command + "\r")) return Reply::Unplugged;
  return Await(Clock::now() + patience, stop_.Get(), wanted);
}

// Passes over echoes, noise, and replies that come late to what was sent before.
ModemCall::Reply ModemCall::Await(SerialPort::Deadline deadline, int stop, Replies wanted) {
  for (std::string line;;) {
    const SerialPort::Event event = port_.ReadLine(line, deadline, stop);
    if (event == SerialPort::Event::TimeOut) return Reply::TimeOut;
    if (event == SerialPort::Event::Stopped) return Reply::Stopped;
    if (event == SerialPort::Event::Unplugged) return Reply::Unplugged;
    const Reply reply = Understand(line);
    if (std::find(wanted.begin(), wanted.end(), reply) != wanted.end()) return reply;
  }
}

ModemCall::Reply ModemCall::Understand(const std::string& line) {
  static constexpr std::pair<std::string_view, Reply> Known[] = {{"OK", Reply::Ok},
                                                                 {"CONNECT", Reply::Connected},
                                                                 {"BUSY", Reply::Busy},
                                                                 {"ERROR", Reply::Failed},
                                                                 {"NO CARRIER", Reply::Failed},
                                                                 {"NO ANSWER", Reply::Failed},
                                                                 {"NO DIALTONE", Reply::Failed},
                                                                 {"NO DIAL TONE", Reply::Failed}};
  // The speed may follow.
  const std::string_view words = line.starts_with("CONNECT ") ? std::string_view("CONNECT") : line;
  const auto found =
      std::find_if(std::begin(Known), std::end(Known), [&](auto& known) { return known.first == words; });
  return found == std::end(Known) ? Reply::None : found->second;
}

// Before the other end answers any character ends the dialling; then the modem has to be called away from the data.
void ModemCall::HangUp(bool isConnected) {
  if (isConnected) std::this_thread::sleep_for(Silence);
  port_.Write(isConnected ? "+++" : "\r");
  std::this_thread::sleep_for(Silence);
  port_.Write("ATH\r");
  Await(Clock::now() + LastReply, NoStop, {Reply::Ok});
}

}  // namespace corvane
