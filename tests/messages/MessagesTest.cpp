#include <gtest/gtest.h>

#include <thread>

#include "adapters/linux/LinuxMessageSender.h"
#include "adapters/linux/LinuxNamedPipes.h"
#include "adapters/linux/LinuxSystem.h"
#include "notifications/TestMessages.h"
#include "support/ChildProcess.h"
#include "support/TempFolder.h"

namespace corvane::test {

using std::chrono::milliseconds;

class MessagesTest : public testing::Test {
 protected:
  void SetUp() override {
    Folder.Write("fault", "");
    // A package of the system's own Python.
    Servers = StartProgram("/usr/bin/python3", CORVANE_SOURCE_DIR "/tests/messages/servers.py", Folder.Path().c_str());
    ASSERT_TRUE(Await([&] { return bool(std::istringstream(Folder.Read("ports")) >> MailPort >> PopupPort); }));
  }

  // Waits for what another process does, ten seconds at the most.
  static bool Await(const std::function<bool()>& condition) {
    for (int i = 0; i < 400; ++i, std::this_thread::sleep_for(milliseconds(25)))
      if (condition()) return true;
    return false;
  }
  LinuxMessageSender Sender() {
    return LinuxMessageSender([this] { ++Waits; }, {Limit, PopupPort});
  }
  int Mail(const std::string& message, const std::string& sender = "from@b.c") {
    return Sender().SendSMTPMessageAsyncCP("127.0.0.1", true, "to@b.c", sender, message, "TEST", MailPort);
  }
  int Popup(const std::string& text) { return Sender().SendNetPopupAsync(R"(\\localhost)", text, "TEST"); }
  int Pipe(const std::string& pipe = R"(\\.\PIPE\corvanesyslog)") {
    std::string reply;
    return LinuxNamedPipes(Folder.Path()).Call(pipe, "\1\2\3\4", reply, 4, int(Limit.count())) && reply == "\2\3\4\5";
  }

  TempFolder Folder;
  std::unique_ptr<ChildProcess> Servers;
  milliseconds Limit{10000};
  int MailPort = 0, PopupPort = 0, Waits = 0;
};

TEST_F(MessagesTest, MailsArriveByteForByte) {
  std::string dots;
  for (std::size_t i = 0; i < 30000; ++i) dots += std::string(i % 4, '.') + "\r\n";
  const std::string built = BuildTestMessage("to@b.c", "from@b.c", MakeDateTime(2026, 11, 9), {}, true);
  for (const std::string& text : {built, std::string("\r\n.\r\n"), ".\r\n..\r\n" + dots + ".\r\n"}) {
    EXPECT_EQ(Mail(text), 1);
    EXPECT_TRUE(Folder.Read("mail") + ".\r\n" == "from@b.c ['to@b.c']\n" + text) << text.substr(0, 200);
  }
  EXPECT_EQ(Mail("\u20AC \u00E9 \u0416\r\n.\r\n", ""), 1);
  EXPECT_EQ(Folder.Read("mail"), "<> ['to@b.c']\n\x80 \xE9 ?\r\n");
}

TEST_F(MessagesTest, PopupsGoInBlocks) {
  const std::string own = LinuxSystem().ComputerName()->substr(0, 15), text(125, 'a');
  EXPECT_EQ(Popup("\u20AC\r\n" + text + "bc"), 1);
  const std::string names = "\4" + own + "~\4LOCALHOST~", length(1, static_cast<char>(names.size()));
  std::string expected = "LOCALHOST      \3" + own + std::string(15 - own.size(), ' ') + "~\nSMB\xD5~" + length + "~" +
                         names + "\nSMB\xD7\1\7\1\x83~\1\x80~\x80\r\n" + text +
                         "\nSMB\xD7\1\7\1\5~\1\2~bc\nSMB\xD6\1\7\1~~";
  std::replace(expected.begin(), expected.end(), '~', '\0');
  EXPECT_EQ(Folder.Read("popup"), expected);
}

TEST_F(MessagesTest, WhatGoesWrongAtAnyStageIsSeenInTime) {
  const std::pair<std::function<int()>, std::vector<std::string>> ways[] = {
      {[&] { return Mail("x"); }, {"CONNECT", "EHLO", "MAIL", "RCPT", "DATA", "END"}},
      {[&] { return Popup("x"); }, {"SESSION", "D5", "D7", "D6"}},
      {[&] { return Pipe(); }, {"PIPE"}}};
  for (const std::string kind : {"refuse ", "drop ", "hang "}) {
    if (kind == "hang ") Limit = milliseconds(500);
    for (const auto& [send, stages] : ways)
      for (const std::string& stage : stages) {
        Folder.Write("fault", kind + stage);
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(send(), 0) << kind << stage;
        EXPECT_LT(std::chrono::steady_clock::now() - begin, milliseconds(2000)) << kind << stage;
      }
    // By then the message is taken, and the farewell not awaited.
    Folder.Write("fault", kind + "QUIT");
    EXPECT_EQ(Mail("x") + Popup("x") + Pipe(), 3) << kind;
  }
  EXPECT_GT(Waits, 100);
}

TEST_F(MessagesTest, WhatCannotBeReachedIsAFailure) {
  Limit = milliseconds(500);
  const auto expectFailures = [&](const std::string& host, bool isAddress, int port) {
    EXPECT_EQ(Sender().SendSMTPMessageAsyncCP(host, isAddress, "a@b.c", "a@b.c", "x", "", port), 0) << host;
    EXPECT_EQ(Sender().SendSysLogMessage(host, port, isAddress, "x", ""), 0) << host;
    PopupPort = port;
    EXPECT_EQ(Sender().SendNetPopupAsync(host, "x", ""), 0) << host;
  };
  for (const char* host : {"no-such.invalid", "a b", " "}) expectFailures(host, false, MailPort);
  for (const int port : {1, 65536 + MailPort}) expectFailures("127.0.0.1", true, port);
  expectFailures("256.0.0.1", true, MailPort);
  EXPECT_EQ(Mail("x", "a@b.c>\r\nRSET"), 0);
  for (const char* pipe : {R"(\\.\pipe\none)", R"(\\.\pipe\)", R"(\\.\pipe\/../corvanesyslog)", "corvanesyslog"})
    EXPECT_EQ(Pipe(pipe), 0) << pipe;
}

TEST_F(MessagesTest, SyslogServersUnderstandBothForms) {
  const auto send = [&](const std::string& text, const std::string& host = "127.0.0.1", bool isAddress = true) {
    return Sender().SendSysLogMessageAsync(host, MailPort, isAddress, text, "TEST") == 1;
  };
  EXPECT_FALSE(send("nobody"));
  const auto settings = Folder.Write(
      "conf", "global(net.enableDNS=\"off\")\n$ModLoad imudp\n$UDPServerAddress 127.0.0.1\n$UDPServerRun " +
                  std::to_string(MailPort) + "\n$template t,\"%pri%|%hostname%|%rawmsg%\\n\"\n*.* " +
                  (Folder.Path() / "log").string() + ";t\n");
  Servers = StartProgram("/usr/sbin/rsyslogd", "-n", "-f", settings.c_str(), "-i", (Folder.Path() / "pid").c_str());
  EXPECT_TRUE(Await([&] { return send("<13> ready"); }));
  EXPECT_TRUE(send("<9> \u20AC", " 0177.1 ") && send("<9> x", "localhost", false));
  std::string expected = "13|127.0.0.1|<13> ready\n9|127.0.0.1|<9> \x80\n9|127.0.0.1|<9> x\n";
  for (const bool isLong : {true, false})
    for (const int day : {9, 10}) {
      const std::string text = BuildSyslogMessage(190, isLong, MakeDateTime(2026, 11, day, 14, 5, 9), "SERVER");
      EXPECT_TRUE(send(text));
      expected += (isLong ? "190|SERVER|" : "190|127.0.0.1|") + text + "\n";
    }
  EXPECT_TRUE(Await([&] { return Folder.Read("log") == expected; })) << Folder.Read("log");
}

}  // namespace corvane::test
