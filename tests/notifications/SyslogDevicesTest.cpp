#include <arpa/inet.h>

#include "core/ConfigDatabase.h"
#include "notifications/InetAddr.h"
#include "notifications/SyslogDataFiles.h"
#include "notifications/frmPriorityBuilder.h"
#include "notifications/frmSyslogDevice.h"
#include "platform/NamedPipes.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

TEST(InetAddr, AnswersAsTheSystemDoes) {
  for (const auto& c : Cases("notifications/Addresses.txt"))
    for (std::size_t i = 0; i <= c[0].size(); ++i)
      for (const char more : std::string("0189.xaF -")) {
        const std::string text = c[0].substr(0, i) + more + c[0].substr(i);
        EXPECT_EQ(ntohl(::inet_addr(text.c_str())), InetAddr(text)) << text;
      }
}

class SyslogDevicesTest : public ConsoleTest, public NamedPipes {
 protected:
  SyslogDevicesTest() {
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    List("Core 1", "10.0.0.1");
  }
  bool Call(const std::string& pipe, std::string_view message, std::string&, std::size_t size, int timeout) override {
    Calls += pipe + " " + std::string(message) + " " + std::to_string(size) + " " + std::to_string(timeout);
    return false;
  }
  void List(const std::string& name, const std::string& address) { Devices.Add({"", name, {address}, "", false}); }

  frmSyslogDevice Form{Main};
  ui::ListView Devices{Form, "lvwSyslogs"};
  std::string Calls;
};

TEST_F(SyslogDevicesTest, GoToTheBridgeInTwoFiles) {
  using namespace std::string_literals;
  EXPECT_TRUE(WriteSyslogDataFiles(Main, Devices)) << "there are no files yet";
  List("Z\xC3\xBCrich \xE2\x82\xAC\xCE\xA9", "010.2.258");
  List("Odd", "1e1.0.0.1");
  UpdateSyslogBridgeOrTell(Main, *this, Devices);
  EXPECT_EQ(
      "\3\0\0\0\x0A\0\0\1\x08\2\1\2\xFF\xFF\xFF\xFF|"
      "\3\0\0\0\6\0\0\0Core 1\x09\0\0\0Z\xFCrich \x80?\3\0\0\0Odd"s,
      ReadTextFile(Console.Folder() / "syslog.dat") + "|" + ReadTextFile(Console.Folder() / "syslogex.dat"));
  EXPECT_EQ("\\\\.\\pipe\\corvanesyslog \1\0\0\0 4 1000"s, std::exchange(Calls, ""));
  for (const std::string path : {"C:\\Corvane\\none\\syslogex.dat", "C:\\Corvane\\help", ""}) {
    Main.SaveSetting("DataFileEx", path);
    OnMessage("DataFilesNotWritten");
    UpdateSyslogBridgeOrTell(Main, *this, Devices);
  }
  EXPECT_EQ("", Calls) << "the bridge hears of files that are whole";
}

TEST_F(SyslogDevicesTest, AreSavedAsTypedOnceTheyPass) {
  Devices.Select(0);
  for (const auto& c : Cases("notifications/Devices.txt", {{"both", "Core 1|10.0.0.1\nCore 2|10.0.0.2\n"}})) {
    Console.Rows(
        "DELETE FROM SyslogDevices; INSERT INTO SyslogDevices VALUES ('Core 1', '10.0.0.1'), ('Core 2', '10.0.0.2')");
    frmSyslogDevice form(Main);
    form.InitForm(c[0] == "edit", Devices);
    ui::TextBox* box = form.txtIP.data();
    EXPECT_EQ(c[0] == "edit" ? "Core 1 10" : " ", form.txtDeviceName.Text + " " + box->Text);
    form.txtDeviceName.Text = c[1];
    for (ui::TextBox& one : form.txtIP) {
      one.Text.clear();
      one.GotFocus = [&] { box = &one; };
    }
    for (const char typed : c[2]) Host.Type(*box, std::string(1, typed));
    if (c.size() > 4) OnMessage(c[4]);
    Host.Click(form.cmdOK);
    EXPECT_EQ(c.size() == 4, form.IsUnloaded()) << c[2];
    EXPECT_EQ(c[3], Console.Rows("SELECT * FROM SyslogDevices ORDER BY rowid"));
  }
}

TEST_F(SyslogDevicesTest, PrioritiesAreTakenApartAndPutTogether) {
  for (const auto& c : Cases("notifications/Priorities.txt")) {
    frmPriorityBuilder builder(Main);
    Form.txtDeviceName.Text = c[0];
    builder.InitForm(Form.txtDeviceName);
    EXPECT_EQ(c[1] + c[2], builder.lstFacility.Text() + builder.lstLevel.Text()) << c[0];
    Host.Click(builder.cmdOK);
    EXPECT_EQ(c[3], Form.txtDeviceName.Text);
  }
}

}  // namespace corvane::test
