#include <arpa/inet.h>

#include <random>

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
  std::vector<std::string> texts{
      "",          ".",       "1.2.3.4",    "010.0x1F.8.255", "08.1.1.1",        "0x.1",
      "1.2.3.256", "1.65535", "1.16777216", "1.2.65536",      "4294967296",      "0xffffffff",
      "1.2.3.4.5", "1.2.3. ", "1.2.3.4 x",  "1e1.2.3.4",      "255.255.255.255", "00000000377"};
  std::mt19937 random(5);
  const std::string characters = "0012345789....xXaF -";
  while (texts.size() < 20000) {
    std::string& text = texts.emplace_back(random() % 14, ' ');
    for (char& c : text) c = characters[random() % characters.size()];
  }
  for (const std::string& text : texts) EXPECT_EQ(ntohl(::inet_addr(text.c_str())), InetAddr(text)) << text;
}

// The list of the main window, the files and the pipe behind it.
class SyslogDevicesTest : public ConsoleTest, public NamedPipes {
 protected:
  SyslogDevicesTest() {
    Main.InitGlobals();
    OpenConfigDatabase(Main);
    Console.Rows("INSERT INTO SyslogDevices VALUES ('Core 1', '10.0.0.1')");
    List("Core 1", "10.0.0.1");
  }
  bool Call(const std::string& pipe, std::string_view message, std::string&, std::size_t size, int timeout) override {
    Calls += pipe + " " + std::string(message) + " " + std::to_string(size) + " " + std::to_string(timeout);
    return false;
  }
  void List(const std::string& name, const std::string& address) { Devices.Add({"", name, {address}, "", false}); }
  std::string File(const char* name) { return ReadTextFile(Console.Folder() / name); }

  frmSyslogDevice Form{Main};
  ui::ListView Devices{Form, "lvwSyslogs"};
  std::string Calls;
};

TEST_F(SyslogDevicesTest, GoToTheBridgeInTwoFiles) {
  using namespace std::string_literals;
  List("Z\xC3\xBCrich \xE2\x82\xAC\xCE\xA9", "010.2.258");
  List("Odd", "1e1.0.0.1");
  UpdateSyslogBridgeOrTell(Main, *this, Devices);
  EXPECT_EQ("\3\0\0\0\x0A\0\0\1\x08\2\1\2\xFF\xFF\xFF\xFF"s, File("syslog.dat"));
  EXPECT_EQ("\3\0\0\0\6\0\0\0Core 1\x09\0\0\0Z\xFCrich \x80?\3\0\0\0Odd"s, File("syslogex.dat"));
  EXPECT_EQ("\\\\.\\pipe\\corvanesyslog \1\0\0\0 4 1000"s, Calls);
  // Shorter ones replace them, and files that cannot be replaced or have no path are told; the bridge then hears
  // nothing.
  Devices.Clear();
  EXPECT_TRUE(WriteSyslogDataFiles(Main, Devices));
  EXPECT_EQ(File("syslog.dat") + File("syslogex.dat"), "\0\0\0\0\0\0\0\0"s);
  Calls.clear();
  for (const std::string path : {"C:\\Corvane\\none\\syslogex.dat", "C:\\Corvane\\help", ""}) {
    Main.SaveSetting("DataFileEx", path);
    OnMessage("DataFilesNotWritten");
    UpdateSyslogBridgeOrTell(Main, *this, Devices);
  }
  EXPECT_EQ("", Calls);
}

TEST_F(SyslogDevicesTest, AreAddedAsTypedOnceTheyPass) {
  for (const auto& c : Cases("notifications/Devices.txt")) {
    frmSyslogDevice form(Main);
    form.InitForm(false, Devices);
    Host.Type(form.txtDeviceName, c[0]);
    for (std::size_t i = 0; i < 4; ++i) form.txtIP[i].Text = c[i + 1];
    const bool passes = c[5].find('|') != std::string::npos;
    if (!passes) OnMessage(c[5]);
    Host.Click(form.cmdOK);
    EXPECT_EQ(passes, form.IsUnloaded()) << c[1];
    const std::string newest = Console.Rows("SELECT * FROM SyslogDevices ORDER BY rowid DESC LIMIT 1");
    EXPECT_EQ(passes ? c[5] : "Core 1|10.0.0.1\n", newest);
    Console.Rows("DELETE FROM SyslogDevices WHERE DeviceName <> 'Core 1'");
  }
}

TEST_F(SyslogDevicesTest, AreEditedUnderTheirOldName) {
  Console.Rows("INSERT INTO SyslogDevices VALUES ('Core 2', '10.0.0.2')");
  Devices.Select(0);
  Form.InitForm(true, Devices);
  std::string moves;
  for (ui::TextBox& box : Form.txtIP) {
    moves += box.Text + " ";
    box.Text.clear();
    box.GotFocus = [&] { moves += std::to_string(box.Index); };
  }
  Host.Type(Form.txtIP[0], "192.7.");
  Host.Type(Form.txtIP[1], "1.");
  Host.Type(Form.txtIP[2], "2");
  Host.Type(Form.txtIP[3], "3.");
  EXPECT_EQ("10 0 0 1 112", moves) << "a dot ends a full part too, and leads nowhere from the last one";
  Form.txtDeviceName.Text = "CORE 2";
  OnMessage("DeviceNotSaved");
  Host.Click(Form.cmdOK);
  Form.txtDeviceName.Text = "Core 3";
  Host.Click(Form.cmdOK);
  EXPECT_EQ("Core 2|10.0.0.2\nCore 3|192.1.2.3.\n", Console.Rows("SELECT * FROM SyslogDevices ORDER BY DeviceName"));
}

TEST_F(SyslogDevicesTest, PrioritiesAreTakenApartAndPutTogether) {
  for (const auto& c : Cases("notifications/Priorities.txt")) {
    frmPriorityBuilder builder(Main);
    Form.txtDeviceName.Text = c[0];
    builder.InitForm(Form.txtDeviceName);
    EXPECT_EQ(c[1] + c[2], builder.lstFacility.Text() + builder.lstLevel.Text()) << c[0];
    Host.Click(builder.cmdOK);
    EXPECT_EQ(c[3], Form.txtDeviceName.Text);
    EXPECT_TRUE(builder.IsUnloaded());
  }
}

}  // namespace corvane::test
