#include "app/tour/Notifications.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <array>

#include "app/tour/Script.h"

namespace corvane::tour {
namespace {

constexpr const char* Main = "frmCVMain";
constexpr const char* Templates = "frmCustomNotifications";
constexpr const char* Notifications = "frmNotifications";
constexpr const char* Priority = "frmPriorityBuilder";
constexpr const char* Test = "frmNotificationsTest";
constexpr const char* Tables = "frmCreateTable";
constexpr const char* Device = "frmSyslogDevice";

QAbstractItemView& View(const char* form, const char* name) { return Driver::Find<QAbstractItemView>(form, name); }
QLineEdit& Line(const char* form, const char* name) { return Driver::Find<QLineEdit>(form, name); }
QComboBox& Box(const char* form, const char* name) { return Driver::Find<QComboBox>(form, name); }

/// Receives the datagrams of the test.
class Receiver {
 public:
  Receiver() : socket_(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
    sockaddr_in here{};
    here.sin_family = AF_INET;
    here.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* address = reinterpret_cast<sockaddr*>(&here);
    socklen_t size = sizeof here;
    if (::bind(socket_, address, size) != 0 || ::getsockname(socket_, address, &size) != 0)
      throw Failure("no port for a receiver");
    port_ = ntohs(here.sin_port);
  }
  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;
  ~Receiver() { ::close(socket_); }

  int Port() const { return port_; }
  /// The next datagram; empty when there is none.
  QString Next() const {
    std::array<char, 2048> bytes{};
    const ssize_t size = ::recv(socket_, bytes.data(), bytes.size(), 0);
    return QString::fromUtf8(bytes.data(), std::max<ssize_t>(size, 0));
  }

 private:
  int socket_;
  int port_ = 0;
};

void MakeATemplate(Script& script) {
  script.On(Main, [] { Driver::ClickTool(Main, "customnotifications"); });
  script.On(Templates, [] { Driver::Click(Templates, "cmdAdd"); });
  script.On(Templates, [] {
    Driver::Type(Line(Templates, "txtName"), "Short Form");
    Driver::Type(Line(Templates, "txtSubject"), "%0 on %8");
    QTest::keyClicks(&Driver::Find<QPlainTextEdit>(Templates, "txtBody"), "%3: ");
    Driver::Choose(Box(Templates, "cmbPlaceholders"), "%9 - Description");
    Driver::Click(Templates, "cmdInsert");
  });
  script.Picture(Templates, "custom-notification");
  script.On(Templates, [] { Driver::Click(Templates, "cmdSave"); });
  script.Picture(Templates, "define-custom-notifications");
  script.On(Templates, [] { Driver::Click(Templates, "cmdCancel"); });
}

void ChooseADatabase(Script& script) {
  script.On(Notifications, [] {
    Driver::BringToFront(Notifications, 4);
    Driver::Click(Notifications, "chkDB");
    Driver::Click(Notifications, "cmdDataODBCBrowse");
  });
  script.On("OpenDialog", [file = script.Folder() + "/events.mdb"] {
    Driver::Find<QLineEdit>("OpenDialog", "fileNameEdit").setText(QString::fromStdString(file));
    QTest::keyClick(Driver::Window("OpenDialog"), Qt::Key_Return);
  });
  script.When(
      "the file is chosen",
      [] {
        return Driver::Window("OpenDialog") == nullptr && !Line(Notifications, "txtDBConnection").text().isEmpty();
      },
      [] { Driver::Type(Box(Notifications, "lstTableName"), "Night Events"); });
  script.Picture(Notifications, "notification-database");
}

void ForwardToSyslog(Script& script, int port) {
  script.On(Notifications, [=] {
    Driver::BringToFront(Notifications, 5);
    Driver::Click(Notifications, "chkSysLog");
    Driver::Type(Line(Notifications, "txtSyslogServer"), "127.0.0.1");
    Driver::Type(Box(Notifications, "txtUDPPort"), QString::number(port));
    Driver::Click(Notifications, "cmdPriority");
  });
  script.On(Priority, [] {
    Driver::Choose(Box(Priority, "lstFacility"), "Local3");
    Driver::Choose(Box(Priority, "lstLevel"), "Warning");
  });
  script.Picture(Priority, "priority-code");
  script.On(Priority, [] { Driver::Click(Priority, "cmdOK"); });
  script.Picture(Notifications, "notification-syslog");
}

void WriteANotification(Script& script, int port) {
  script.On(Main, [] { Driver::ClickTool(Main, "notification"); });
  script.On(Notifications, [] { Driver::Click(Notifications, "cmdAdd"); });
  script.On(Notifications, [] {
    Driver::Type(Line(Notifications, "txtName"), "Night Shift");
    Driver::Click(Notifications, "chkCustom");
    Driver::Choose(Box(Notifications, "cmbCustom"), "Short Form");
  });
  script.Picture(Notifications, "notification");
  ChooseADatabase(script);
  ForwardToSyslog(script, port);
  script.On(Notifications, [] { Driver::Click(Notifications, "cmdSave"); });
  script.When(
      "the notification is saved", [] { return View(Notifications, "lvwNotifications").isVisible(); },
      [] { Driver::Pick(View(Notifications, "lvwNotifications"), {"Night Shift"}); });
  script.Picture(Notifications, "define-notifications");
}

void TestIt(Script& script, const std::shared_ptr<Receiver>& receiver) {
  script.On(Notifications, [] { Driver::Click(Notifications, "cmdTest"); });
  script.When(
      "both ways have been tried",
      [] {
        return Driver::Window(Test) != nullptr &&
               Driver::Find<QLabel>(Test, "lblTestDetails").text().contains("Access database");
      },
      [receiver] {
        if (const QString sent = receiver->Next(); !sent.startsWith("<156>") || !sent.endsWith("Test Message:"))
          throw Failure("what arrived is \"" + sent.toStdString() + "\"");
      });
  script.Picture(Test, "notification-test");
  script.On(Test, [] { Driver::Click(Test, "cmdClose"); });
  script.On(Notifications, [] { Driver::Click(Notifications, "cmdCancel"); });
}

void MakeATable(Script& script) {
  script.On(Main, [] { Driver::Window(Main)->findChild<QAction*>("mnuDatabaseOracle")->trigger(); });
  script.Picture(Tables, "create-table");
  script.On(Tables, [] { Driver::Click(Tables, "cmdDataODBCBrowse"); });
  script.Picture("ConnectionDialog", "connection");
  script.On("ConnectionDialog", [] { QTest::keyClick(Driver::Window("ConnectionDialog"), Qt::Key_Escape); });
  script.On(Tables, [] { Driver::Click(Tables, "cmdCancel"); });
}

void AcceptADevice(Script& script) {
  script.On(Main, [] { Driver::BringToFront(Main, 1); });
  script.On(Main, [] { Driver::ClickTool(Main, "addsyslog"); });
  script.On(Device, [] {
    Driver::Type(Line(Device, "txtDeviceName"), "Core Switch");
    QTest::keyClicks(&Line(Device, "txtIP_0"), "192.0.2.7");
    for (const auto& [box, part] : {std::pair("txtIP_1", "0"), {"txtIP_2", "2"}, {"txtIP_3", "7"}})
      if (Line(Device, box).text().isEmpty()) Driver::Type(Line(Device, box), part);
  });
  script.Picture(Device, "syslog-device");
  script.On(Device, [] { Driver::Click(Device, "cmdOK"); });
  script.When(
      "the device is listed", [] { return View(Main, "lvwSyslogs").model()->rowCount() == 1; }, [] {});
  script.Picture(Main, "accepted-devices");
  script.On(Main, [] { Driver::Window(Main)->close(); });
}

}  // namespace

void AddNotifications(Script& script) {
  const auto receiver = std::make_shared<Receiver>();
  MakeATemplate(script);
  WriteANotification(script, receiver->Port());
  TestIt(script, receiver);
  MakeATable(script);
  AcceptADevice(script);
}

}  // namespace corvane::tour
