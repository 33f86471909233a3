#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <stdlib.h>

#include "adapters/linux/SerialTelephony.h"
#include "support/PostedWork.h"
#include "support/TempFolder.h"

namespace corvane::test {

using namespace std::chrono_literals;

// A modem on a pseudo-terminal, seen from its own side.
class ScriptedModem {
 public:
  ScriptedModem() : side_(::posix_openpt(O_RDWR | O_NOCTTY)) {
    ::grantpt(side_.Get());
    ::unlockpt(side_.Get());
    Device = ::ptsname(side_.Get());
  }
  void Say(const std::string& text) { ASSERT_GT(::write(side_.Get(), text.data(), text.size()), 0); }
  void Unplug() { const Descriptor gone(std::move(side_)); }
  // What the computer sends until it has sent this, or is silent for a time.
  std::string Hear(const std::string& end, int milliseconds = 2000) {
    std::string heard;
    for (pollfd waiting{side_.Get(), POLLIN, 0}; !heard.ends_with(end) && ::poll(&waiting, 1, milliseconds) > 0;) {
      char byte = 0;
      if (::read(side_.Get(), &byte, 1) != 1) break;
      heard += byte;
    }
    return heard;
  }

  std::string Device;

 private:
  Descriptor side_;
};

// A line through such a modem, which is the second device; the first is none.
struct ModemLine {
  ModemLine() {
    std::uint32_t application = 0, devices = 0;
    Lines.InitializeEx(
        application, [this](std::uint32_t, std::uint32_t state) { Told.push_back(state); }, "", devices);
    EXPECT_LT(Lines.Open(application, 0, Line, 0, line::PrivilegeOwner, line::MediaModeDataModem), 0);
    EXPECT_EQ(Lines.Open(application, 1, Line, 0, line::PrivilegeOwner, line::MediaModeDataModem), line::Ok);
  }
  int Dial(const std::string& digits) { return Lines.MakeCall(Line, Call, digits); }
  // The modem hears each command and says what it has to say to it.
  void Answer(const std::string& digits, const std::vector<std::string>& replies) {
    const std::string commands[] = {"ATZ\r", "ATV1S12=10\r", "ATDT" + digits + "\r"};
    for (std::size_t i = 0; i < replies.size(); ++i) {
      EXPECT_EQ(Modem.Hear("\r"), commands[i]);
      replies[i] == "unplug" ? Modem.Unplug() : Modem.Say(replies[i] + "\r\n");
    }
  }
  // How long ending the call takes.
  std::chrono::steady_clock::duration Drop() {
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(Lines.DeallocateCall(Call), line::Ok);
    return std::chrono::steady_clock::now() - begin;
  }

  PostedWork Posted;
  ScriptedModem Modem;
  TempFolder Folder;
  std::uint32_t Line = 0, Call = 0;
  std::vector<std::uint32_t> Told;
  SerialTelephony Lines{
      {Folder.Write("plain", ""), Modem.Device}, [this](auto action) { Posted.Post(action); }, {200ms, 300ms}};
};

TEST(Modem, EveryCallEndsAsItTellsOrInTime) {
  const std::string noise(3000, '\xfe');
  const std::pair<std::vector<std::string>, std::uint32_t> calls[] = {
      {{"ATZ\r\r\nOK", "ERROR", "BUSY"}, line::CallStateBusy},
      {{"OK", "OK", "OK\r\nCONNECTED\r\nBUSY"}, line::CallStateBusy},
      {{"OK", "OK", "NO CARRIER"}, line::CallStateDisconnected},
      {{"OK", "OK", "NO DIALTONE"}, line::CallStateDisconnected},
      {{"OK", "OK", "ERROR"}, line::CallStateDisconnected},
      {{"OK", "OK", noise + "\r\nRING"}, line::CallStateDisconnected},
      {{"OK", noise}, line::CallStateDisconnected},
      {{}, line::CallStateDisconnected},
      {{"unplug"}, line::CallStateDisconnected},
      {{"OK", "OK", "unplug"}, line::CallStateDisconnected}};
  for (const auto& [replies, expected] : calls) {
    ModemLine on;
    ASSERT_EQ(on.Dial("(555) 01-42"), line::Ok);
    on.Answer("5550142", replies);
    ASSERT_TRUE(on.Posted.Await(1));
    on.Posted.Run();
    EXPECT_EQ(on.Told, std::vector{expected}) << testing::PrintToString(replies).substr(0, 60);
    EXPECT_LT(on.Drop(), 1s);
  }
}

TEST(Modem, HangsUpWithinASecondWhateverItDoes) {
  ModemLine on;
  on.Dial("1,2");
  on.Answer("1,2", {"OK", "OK"});
  on.Modem.Hear("\r");
  EXPECT_FALSE(on.Posted.Await(1, 500ms)) << "a pause is no silence";
  on.Modem.Say("CONNECT 2400\r\nOK\r\n");
  ASSERT_TRUE(on.Posted.Await(1));
  on.Posted.Run();
  const auto took = on.Drop();
  EXPECT_TRUE(took > 400ms && took < 1s) << "there is silence around +++";
  EXPECT_EQ(on.Modem.Hear("ATH\r"), "+++ATH\r");

  on.Dial("3");
  on.Answer("3", {
                     "OK",
                     "OK",
                     "CONNECT",
                 });
  on.Posted.Await(2);
  on.Modem.Say("NO CARRIER\r\n");
  ASSERT_TRUE(on.Posted.Await(3));
  on.Posted.Run();
  EXPECT_EQ(on.Told, (std::vector{line::CallStateConnected, line::CallStateConnected, line::CallStateDisconnected}));
  on.Drop();
  on.Modem.Hear("nothing", 50);

  on.Dial("4");
  on.Answer("4", {"OK", "OK"});
  on.Modem.Hear("\r");
  EXPECT_LT(on.Drop(), 1s);
  EXPECT_EQ(on.Modem.Hear("ATH\r"), "\rATH\r") << "any character ends the dialling";
}

TEST(Modem, DialsNothingButNumbersAndOnlyOnAFreeDevice) {
  ModemLine on;
  for (const char* digits : {"", " -", "1;", "1\rATH", "1-800-PAGER", "1\n"}) EXPECT_LT(on.Dial(digits), 0) << digits;
  EXPECT_EQ(on.Modem.Hear("\r", 50), "");
  auto taken = SerialPort::Open(on.Modem.Device);
  ASSERT_TRUE(taken);
  EXPECT_LT(on.Dial("1"), 0);
  taken.reset();
  EXPECT_EQ(on.Dial("#1*2A"), line::Ok);
  EXPECT_FALSE(SerialPort::Open(on.Modem.Device));
  on.Drop();
  on.Modem.Unplug();
  EXPECT_LT(on.Dial("1"), 0);
}

}  // namespace corvane::test
