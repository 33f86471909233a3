#include "core/ConfigDatabase.h"
#include "notifications/TargetTables.h"
#include "notifications/cvbTAPI.h"
#include "notifications/frmNotificationsTest.h"
#include "platform/MessageSender.h"
#include "platform/RuntimeError.h"
#include "platform/Telephony.h"
#include "platform/data/TargetConnection.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {

// Notes what is sent to whom; what holds the text is refused.
class Witness : public MessageSender, public TargetConnector, public TargetConnection {
 public:
  int SendSMTPMessageAsyncCP(const std::string& server, bool isAddress, const std::string& recipient,
                             const std::string& sender, const std::string& message, const std::string& tag,
                             int port) override {
    EXPECT_TRUE(message.find("To: " + recipient + "\r\n") != message.npos && message.ends_with("\r\n\r\n.\r\n"));
    return Note("mail " + server + ":" + std::to_string(port) + (isAddress ? " address " : " name ") + recipient + " " +
                sender + " " + tag);
  }
  int SendSysLogMessage(const std::string& host, int port, bool isAddress, const std::string& message,
                        const std::string& tag) override {
    return Note("syslog " + host + ":" + std::to_string(port) + (isAddress ? " address " : " name ") + message + tag);
  }
  int SendSysLogMessageAsync(const std::string& host, int port, bool isAddress, const std::string& message,
                             const std::string& tag) override {
    return SendSysLogMessage("async " + host, port, isAddress, message, tag);
  }
  int SendNetPopupAsync(const std::string& target, const std::string& message, const std::string& tag) override {
    EXPECT_FALSE(message.ends_with(".\r\n\r\n.\r\n"));
    return Note("popup " + target + " " + tag);
  }
  std::unique_ptr<TargetConnection> Open(const std::string& text) override {
    auto connection = std::make_unique<Witness>();
    connection->Parent = this;
    connection->Dbms = text.substr(text.find('=') + 1);
    return connection;
  }
  std::string ConnectionString() const override { return {}; }
  std::string DbmsName() const override { return Dbms; }
  std::vector<TargetTable> Tables() override { return {}; }
  void Execute(const std::string& sql) override {
    if (Parent->Note(sql) < 1) throw RuntimeError(errors::DataFailure, "Refused");
  }
  std::vector<std::string> Drivers() override { return {}; }
  std::vector<std::string> DataSources() override { return {}; }

  int Note(const std::string& call) {
    Calls += call + "\n";
    return !Refused.empty() && call.find(Refused) != call.npos ? 0 : 1;
  }

  std::string Calls, Refused, Dbms;
  Witness* Parent = nullptr;
};

class SendingTest : public ConsoleTest {
 protected:
  SendingTest() {
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    Main.SaveSetting("NotifySenderEmail", "me@x.example");
    Console.Rows("DELETE FROM Notifications");
  }
  /// What the screen tells about a notification of these columns: mask, connection, table.
  std::string Tested(const std::string& mask, const std::string& connection, const std::string& table) {
    Console.Rows("DELETE FROM Notifications; INSERT INTO Notifications VALUES ('Duty', " + mask +
                 ", 'a@x.example, b@x.example', '555', ',,911', 'DESK', '" + connection + "', '" + table +
                 "', '10.0.0.1,log.example', 514, 132)");
    frmNotificationsTest form(Main, Pager);
    EXPECT_TRUE(form.RunTest("Duty"));
    EXPECT_EQ("Notification Name:  Duty", form.lblNotificationName.Caption);
    form.Show();
    Host.Pass(1499);
    EXPECT_EQ("Test Details:  ", form.lblTestDetails.Caption) << "the screen is shown first";
    Host.Pass(1500);
    form.CloseBox();
    EXPECT_FALSE(Pager.isConnected()) << "a call is dropped when the screen closes";
    return form.lblTestDetails.Caption.substr(15);
  }

  Witness Sent;
  Platform Ports = Replace(Console.Ports, {.Messages = &Sent, .Targets = &Sent});
  modMain Main{Ports};
  cvbTAPI Pager{Main, Ports.Phones};
};

// Popup, mail, syslog, database, pager: each tells for itself, and none holds up the next.
TEST_F(SendingTest, EachWayIsTriedInTurnAndToldTruthfully) {
  EXPECT_FALSE(frmNotificationsTest(Main, Pager).RunTest("Nobody"));
  Main.SaveSetting("DataModemIndex", "1");
  // A file of the newer format is opened by the second attempt.
  ASSERT_TRUE(CreateAccessDatabase(Main, "C:\\Corvane\\hits.mdb"));
  TargetTables(Main, Sent).CreateInFile("C:\\Corvane\\hits.mdb", "Hits");
  for (const auto& c : Cases("notifications/Sendings.txt")) {
    Sent.Calls.clear();
    Sent.Refused = c[3];
    EXPECT_EQ(c[4], Tested(c[0], c[1], c[2])) << c[0] << c[3];
    EXPECT_EQ(c[5], Sent.Calls) << c[0];
  }
  Pager.Connect("555");
  EXPECT_EQ("\nPhone call could not be placed!  The phone line may be in use or the modem may not be responding...\n",
            Tested("2", "", ""))
      << "one call at a time";
  Main.SaveSetting("DataModemIndex", "0");
  EXPECT_EQ("", Tested("2", "", "")) << "no modem, no call";
}

}  // namespace corvane::test
