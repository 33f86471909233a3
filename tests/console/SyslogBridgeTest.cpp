#include <sys/socket.h>
#include <sys/un.h>

#include "notifications/frmSyslogDevice.h"
#include "support/ChildProcess.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

// A bridge of its own process: it tells the size of the file of addresses each time it is told to read.
void ServeAsBridge(ChildProcess& self, const std::filesystem::path& folder) {
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  std::filesystem::create_directory(folder / Installation::PipeFolder);
  (folder / Installation::PipeFolder / "corvanesyslog").string().copy(place.sun_path, sizeof place.sun_path - 1);
  const int listening = ::socket(AF_UNIX, SOCK_STREAM, 0);
  ::bind(listening, reinterpret_cast<const sockaddr*>(&place), sizeof place);
  ::listen(listening, 1);
  for (self.Tell(0);;) {
    char message[4] = {};
    const int call = ::accept(listening, nullptr, nullptr);
    if (::recv(call, message, sizeof message, MSG_WAITALL) != sizeof message || message[0] != 1) return;
    self.Tell(static_cast<int>(std::filesystem::file_size(folder / "syslog.dat")));
    ::send(call, message, sizeof message, 0);
    ::close(call);
  }
}

// At the start and after each change the files follow the table, and the bridge is told. One that is gone is no
// failure.
TEST_F(ConsoleTest, TheSyslogBridgeLearnsOfEveryChange) {
  ChildProcess bridge([this](ChildProcess& self) { ServeAsBridge(self, Console.Folder()); });
  ASSERT_EQ(0, bridge.Hear());
  Console.Start();
  EXPECT_EQ(4, bridge.Hear()) << "no device yet";
  Host.BringToFront(Window().tabMain, 1);
  const auto on = [&](const char* caption, const char* name) {
    Host.OnModal<frmSyslogDevice>("frmSyslogDevice", [=, this](frmSyslogDevice& form) {
      EXPECT_EQ(caption, form.Caption);
      form.txtDeviceName.Text = name;
      for (ui::TextBox& part : form.txtIP) part.Text = "10";
      Host.Click(form.cmdOK);
    });
  };
  for (const char* name : {"Switch", "Router"}) {
    on("Add New Syslog Device", name);
    Host.Click(Window().mnuFileSyslogAdd);
    EXPECT_EQ(name == std::string("Switch") ? 8 : 12, bridge.Hear());
  }
  on("Edit Syslog Device", "Core Router");
  Host.DoubleClick(Window().lvwSyslogs, 0);
  EXPECT_EQ(12, bridge.Hear());
  EXPECT_EQ("Core Router|10.10.10.10\nSwitch|10.10.10.10\n",
            Console.Rows("SELECT * FROM SyslogDevices ORDER BY DeviceName"));
  Host.SelectOnly(Window().lvwSyslogs, 1);
  OnMessage("StopListening", "the Switch syslog", ui::MsgResult::Yes);
  Host.Click(Window().mnuFileSyslogDelete);
  EXPECT_EQ(8, bridge.Hear());
  bridge.Kill();
  Main.SaveSetting("DataFile", "C:\\Corvane\\none\\syslog.dat");
  on("Add New Syslog Device", "Printer");
  OnMessage("DataFilesNotWritten");
  Host.Click(Window().mnuFileSyslogAdd);
}

}  // namespace corvane::test
