#include <fcntl.h>
#include <poll.h>

#include "adapters/linux/SerialTelephony.h"
#include "support/Cases.h"
#include "support/ScriptedHost.h"

namespace corvane::test {

using namespace std::chrono_literals;

// A modem on a pseudo-terminal, seen from its own side, and the line through it: the second device; the first is none.
struct Modem {
  Modem() {
    std::uint32_t application = 0, devices = 0;
    ::unlockpt(Side.Get());
    const auto tell = [this](std::uint32_t, std::uint32_t state) { Told += std::to_string(state) + ";"; };
    Lines.InitializeEx(application, tell, "", devices);
    EXPECT_LT(Lines.Open(application, 0, Line, 0, line::PrivilegeOwner, line::MediaModeDataModem), 0);
    EXPECT_EQ(Lines.Open(application, 1, Line, 0, line::PrivilegeOwner, line::MediaModeDataModem), line::Ok);
  }
  void Say(const std::string& text) { EXPECT_GT(::write(Side.Get(), text.data(), text.size()), 0); }
  std::string Hear(const std::string& end) {
    std::string heard;
    char byte = 0;
    for (pollfd waiting{Side.Get(), POLLIN, 0}; !heard.ends_with(end); heard += byte)
      if (::poll(&waiting, 1, 2000) <= 0 || ::read(Side.Get(), &byte, 1) != 1) break;
    return heard;
  }
  void Dial(const std::vector<std::string>& replies) {
    EXPECT_EQ(Lines.MakeCall(Line, Call, "(555) 01-42,*#"), line::Ok);
    for (std::size_t i = 0; i < replies.size(); ++i) {
      EXPECT_EQ(Hear("\r"), (std::array{"ATZ\r", "ATV1S12=10\r", "ATDT5550142,*#\r"}[i]));
      replies[i] == "unplug" ? void(Side = Descriptor()) : Say(replies[i] + "\r\n");
    }
  }
  // Whether this is all that is told, within some seconds.
  bool Tells(const std::string& states) {
    for (int i = 0; i == 0 || (i < 1000 && Told.size() < states.size()); ++i, Host.RunPosted())
      std::this_thread::sleep_for(5ms);
    return std::exchange(Told, "") == states;
  }
  void Drop(std::chrono::milliseconds least = 0ms) {
    const auto begin = std::chrono::steady_clock::now();
    Lines.Drop(Call);
    const auto took = std::chrono::steady_clock::now() - begin;
    EXPECT_TRUE(took >= least && took < 1s);
  }

  Descriptor Side{::posix_openpt(O_RDWR | O_NOCTTY)};
  ScriptedHost Host;
  std::uint32_t Line = 0, Call = 0;
  std::string Told;
  SerialTelephony Lines{
      {"/dev/none", ::ptsname(Side.Get())}, [this](auto action) { Host.Post(action); }, {500ms, 500ms}};
};

TEST(ModemTest, EveryCallEndsAsTheModemTellsOrInTime) {
  for (const auto& one : Cases("modem/Calls.txt", {{"noise", std::string(3000, '\xfe')}})) {
    Modem modem;
    modem.Dial({one.begin() + 1, one.end()});
    EXPECT_TRUE(modem.Tells(one[0])) << one.back().substr(0, 60);
    modem.Drop();
  }
}

TEST(ModemTest, DialsNumbersOnAFreeDeviceAndHangsUpWithinASecond) {
  Modem modem;
  for (const char* digits : {"", " -", "1;", "1\rATH", "1-800-PAGER"})
    EXPECT_LT(modem.Lines.MakeCall(modem.Line, modem.Call, digits), 0) << digits;
  modem.Dial({"OK", "OK"});
  EXPECT_FALSE(SerialPort::Open(::ptsname(modem.Side.Get()))) << "the modem is in use";
  modem.Hear("\r");
  modem.Drop();
  EXPECT_EQ(modem.Hear("ATH\r"), "\rATH\r") << "any character ends the dialling";
  modem.Dial({"OK", "OK", "CONNECT 2400\r\nOK"});
  std::this_thread::sleep_for(500ms);
  modem.Drop(400ms);
  EXPECT_EQ(modem.Hear("ATH\r"), "+++ATH\r") << "with silence around the escape";
  EXPECT_TRUE(modem.Tells("")) << "what was posted before its end is not told after it";
  modem.Dial({"OK", "OK"});
  std::this_thread::sleep_for(700ms);
  modem.Say("CONNECT\r\n");
  EXPECT_TRUE(modem.Tells("256;")) << "a pause is no silence";
  modem.Side = Descriptor();
  EXPECT_TRUE(modem.Tells("16384;")) << "unplugged";
  modem.Drop();
  EXPECT_LT(modem.Lines.MakeCall(modem.Line, modem.Call, "1"), 0);
}

}  // namespace corvane::test
