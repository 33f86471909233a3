#include <gtest/gtest.h>
#include <sqlite3.h>

#include "admin/frmServiceAccount.h"
#include "app/assembly/RunConsole.h"
#include "core/Settings.h"
#include "core/console/frmBegin.h"
#include "domains/frmDomainChooser.h"
#include "platform/RuntimeError.h"
#include "support/ChildProcess.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

void Overwrite(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

TEST(Start, ShowsTheSplashInThreeStagesAndThenTheWindow) {
  TestConsole console;
  std::vector<std::string> stages;
  for (int i = 0; i < 3; ++i)
    console.Host.OnDoEvents([&] {
      const auto& splash = dynamic_cast<const frmStartup&>(console.Host.Top());
      EXPECT_EQ(ui::Pointer::Hourglass, splash.MousePointer);
      EXPECT_FALSE(splash.cmdClose.Visible);
      stages.push_back(std::to_string(splash.prgStartup.Value) + " " + splash.lblProgress.Caption);
    });
  console.Start();
  EXPECT_EQ((std::vector<std::string>{"1 Initializing data access...", "2 Loading registered logs...",
                                      "3 Checking status of services..."}),
            stages);
  EXPECT_EQ((std::vector<std::string>{"frmStartup", "frmCVMain"}), console.Host.Shown);
  EXPECT_EQ((std::vector<int>{400, 500, 500, 500}), console.Host.Slept);
  EXPECT_EQ("MERIDIAN", console.Window().lstDomain.Text());
  EXPECT_EQ("0 log(s) watched by Corvane", console.Window().stbMain.Panels[0].Text);
  EXPECT_EQ("Corvane Service", console.Window().stbMain.Panels[1].Text);
  EXPECT_EQ("stopped", console.Window().stbMain.Panels[1].Picture);
  EXPECT_EQ("Syslog Bridge Service", console.Window().stbMain.Panels[2].Text);
  EXPECT_EQ("stopped", console.Window().stbMain.Panels[2].Picture);
}

TEST(Start, ShowsRunningServices) {
  TestConsole console;
  console.SetLab("Service Corvane Service", "State", "running");
  console.SetLab("Service CVSyslogBridge", "State", "stop pending");
  console.Start();
  EXPECT_EQ("running", console.Window().stbMain.Panels[1].Picture);
  EXPECT_EQ("running", console.Window().stbMain.Panels[2].Picture);
}

TEST(Start, ASecondConsoleEndsWithoutAWord) {
  TestConsole console;
  console.Start();
  ScriptedHost host;
  InstalledPlatform second(console.Folder(), host);
  Console other(second.Ports());
  other.Main();
  EXPECT_FALSE(other.Started());
  EXPECT_TRUE(host.Shown.empty() && host.Boxes.empty());
  console.Host.Click(console.Window().mnuViewRefresh);
}

// What the administrator does in the dialogs of a first run, in their order.
class FirstRun {
 public:
  explicit FirstRun(TestConsole& console) : host_(console.Host) {
    host_.OnModal<frmBegin>("frmBegin", [this](frmBegin& form) {
      EXPECT_TRUE(host_.Slept.empty());
      host_.Click(form.cmdStart);
    });
    host_.OnModal<frmDomainChooser>("frmDomainChooser", [this](frmDomainChooser& form) {
      EXPECT_EQ("Initializing data access...", Splash().lblProgress.Caption) << "the splash stays behind";
      host_.Choose(form.optDomain[0]);
      form.txtStartupDomain.Text = "meridian";
      host_.Click(form.cmdOK);
    });
  }
  void LeaveAccount() {
    host_.OnModal<frmServiceAccount>("frmServiceAccount", [this](frmServiceAccount& form) {
      host_.OnBox(
          "You must give the Corvane Service a valid service account before the software will function properly.  If "
          "you "
          "suspect that a network or permissions issue is preventing you from assigning a service account, press 'OK' "
          "to "
          "close this dialog and read a help topic explaining how to manually set your Corvane Service account.  "
          "Otherwise, press 'Cancel' and try again.");
      host_.Click(form.cmdCancel);
    });
  }
  void SetAccount(const std::string& account, const std::string& password, const std::string& outcome) {
    host_.OnModal<frmServiceAccount>("frmServiceAccount", [=, this](frmServiceAccount& form) {
      host_.Type(form.lstAccountName, account);
      form.txtPassword.Text = form.txtPassword2.Text = password;
      host_.OnBox(outcome);
      host_.Click(form.cmdOK);
    });
  }
  void LeaveComputerNames() {
    host_.OnModal("frmComputerEnum", [](ui::Form& form) { form.CloseBox(); });
  }

 private:
  const frmStartup& Splash() { return dynamic_cast<const frmStartup&>(host_.Under()); }

  ScriptedHost& host_;
};

const std::vector<std::string> FirstRunForms{"frmBegin",          "frmStartup",      "frmDomainChooser",
                                             "frmServiceAccount", "frmComputerEnum", "frmCVMain"};

TEST(Start, AFirstRunWalksThroughItsChain) {
  TestConsole console(Installation::Kind::FirstRun);
  FirstRun run(console);
  run.LeaveAccount();
  run.LeaveComputerNames();
  console.Start();
  EXPECT_EQ(FirstRunForms, console.Host.Shown);
  const Reghack& settings = console.App.State().Registry;
  const char* source = "System\\CurrentControlSet\\Services\\EventLog\\Application\\Corvane Service";
  EXPECT_EQ("C:\\Corvane\\corvane.exe", settings.DeNullString(settings.GetKeyValue(source, "EventMessageFile")));
  EXPECT_EQ("7", settings.GetKeyValue(source, "TypesSupported"));
  EXPECT_EQ("11_16_2026_14_5_9", console.Setting("LastUpgradeCheck"));
  EXPECT_EQ((std::vector<int>{280}), console.Host.HelpTopics);
  // The bridge was started on the way, and the domain is the one that was chosen.
  EXPECT_EQ("running", console.Window().stbMain.Panels[2].Picture);
  EXPECT_EQ("MERIDIAN", console.Window().lstDomain.Text());
}

TEST(Start, OnlyAnAccountMakesTheNextStartANormalOne) {
  for (const bool set : {false, true}) {
    TestConsole console(Installation::Kind::FirstRun);
    FirstRun first(console);
    if (set)
      first.SetAccount("CVCONSOLE1\\corvane", "a word!",
                       "The CVCONSOLE1\\corvane account has been granted two user rights on CVCONSOLE1 so that the "
                       "Corvane Service can work correctly:\n1.) Log on as a service\n2.) Act as part of the operating "
                       "system");
    else
      first.LeaveAccount();
    first.LeaveComputerNames();
    console.Start();
    EXPECT_EQ(set ? "1" : "", console.Setting("Created"));
    console.Host.Shown.clear();
    console.Host.Slept.clear();
    std::optional<FirstRun> second;
    if (!set) {
      second.emplace(console);
      second->LeaveAccount();
      second->LeaveComputerNames();
    }
    Console again(console.Ports);
    again.Main();
    EXPECT_TRUE(again.Started());
    EXPECT_EQ(set ? std::vector<std::string>({"frmStartup", "frmCVMain"}) : FirstRunForms, console.Host.Shown);
  }
}

TEST(Start, AFirstRunCanBeLeftAtItsFirstQuestion) {
  TestConsole console(Installation::Kind::FirstRun);
  console.Host.OnModal<frmBegin>("frmBegin", [&](frmBegin& form) {
    form.imgEA.Click(6);
    console.Host.OnBox("Corvane is a trademark of Tarnwick Software.  All rights reserved.");
    form.imgEA.Click(7);
    console.Host.Click(form.cmdStart);
  });
  console.Host.OnModal<frmDomainChooser>("frmDomainChooser", [&](frmDomainChooser& form) {
    console.Host.OnBox(
        "You must select a domain or workgroup to continue.  Would you like to end this application now?",
        ui::MsgResult::Yes);
    console.Host.Click(form.cmdCancel);
  });
  EXPECT_EQ(0, RunConsole(console.Ports, [] { return 1; }));
  EXPECT_EQ("frmDomainChooser", console.Host.Shown.back());
}

TEST(Start, OnlyTheVersionsThatHaveThemGetTheNetworkObjects) {
  for (const int version : {4, 5, 6}) {
    TestConsole console;
    console.System.Version = version;
    console.Start();
    EXPECT_EQ(version >= 5, console.App.State().DirectoryApi != nullptr) << version;
    EXPECT_EQ(version >= 6, console.App.State().ChannelReader != nullptr) << version;
    EXPECT_EQ("MERIDIAN", console.Window().lstDomain.Text()) << version;
    EXPECT_EQ((std::vector<std::string>{"MERIDIAN", "HARBOR", "DEPOT"}), console.Window().lstDomain.All()) << version;
  }
}

TEST(Start, TheNumberOfRapidConfigurationMustBeThere) {
  const struct {
    Value Stored;
    std::uint32_t Type;
    bool Ends;
  } cases[] = {{"1.0", registry::String, false}, {"0", registry::String, false},    {"1.4", registry::String, false},
               {1, registry::Number, false},     {"often", registry::String, true}, {"", registry::String, true}};
  for (const auto& one : cases) {
    TestConsole console;
    console.App.State().Registry.SetKeyValue(SettingsKey, "RCAtStartup", one.Stored, one.Type);
    if (one.Ends) console.Host.OnBox("Run-time error '13':\n\nType mismatch");
    bool looped = false;
    EXPECT_EQ(one.Ends ? 1 : 0, RunConsole(console.Ports, [&] {
                looped = true;
                return 0;
              }));
    EXPECT_EQ(!one.Ends, looped);
    EXPECT_EQ("frmCVMain", console.Host.Shown.back());
  }
}

TEST(Start, AStoreThatCannotBeOpenedLeavesEmptyListsAndSaysNothing) {
  for (const char* content : {"missing", "not a database at all", ""}) {
    TestConsole console;
    const auto file = console.Folder() / Installation::DatabaseFile;
    if (std::string(content) == "missing")
      std::filesystem::remove(file);
    else
      Overwrite(file, content);
    console.Start();
    EXPECT_EQ("0 log(s) watched by Corvane", console.Window().stbMain.Panels[0].Text) << content;
    EXPECT_EQ(ObjectState::Closed, console.App.State().ConfigConnection->State()) << content;
    EXPECT_EQ("frmCVMain", console.Host.Shown.back());
    EXPECT_EQ(std::string(content) != "missing", std::filesystem::exists(file));
  }
}

TEST(Start, AStoreHeldByAnotherProcessLeavesEmptyListsUntilItIsFree) {
  TestConsole console;
  const auto file = console.Folder() / Installation::DatabaseFile;
  console.Rows("INSERT INTO RegisteredServers VALUES ('MERA1', 'MERIDIAN', 'MERA', 1, 0, 0, 0, 0)");
  ChildProcess service([&](ChildProcess& self) {
    sqlite3* engine = nullptr;
    sqlite3_open(file.c_str(), &engine);
    const char* hold = "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; DELETE FROM SyslogDevices";
    self.Tell(sqlite3_exec(engine, hold, nullptr, nullptr, nullptr));
    self.Wait();
  });
  ASSERT_EQ(SQLITE_OK, service.Hear());
  console.Start();
  EXPECT_EQ("0 log(s) watched by Corvane", console.Window().stbMain.Panels[0].Text);
  EXPECT_EQ("MERIDIAN", console.Window().lstDomain.Text());
  service.Kill();
  console.Host.Click(console.Window().mnuViewRefresh);
  EXPECT_EQ("ok\n", console.Rows("PRAGMA integrity_check"));
  EXPECT_EQ("1\n", console.Rows("SELECT COUNT(*) FROM RegisteredServers"));
}

TEST(Start, AMissingPathOfTheStoreIsMetLikeAMissingStore) {
  TestConsole console;
  console.App.State().Registry.DeleteKeyValue(SettingsKey, "ConfigMDBPath");
  console.Start();
  EXPECT_EQ("0 log(s) watched by Corvane", console.Window().stbMain.Panels[0].Text);
  EXPECT_EQ("MERIDIAN", console.Window().lstDomain.Text());
}

// Without its settings the console takes this for a first run, and ends where a setting must be there.
TEST(Start, AnUnreadableRegistryIsAFirstRunThatEndsWithItsError) {
  TestConsole console;
  const auto file = console.Folder() / Installation::RegistryFile;
  const std::string garbled = "[HKEY_LOCAL_MACHINE\n\"cut short";
  Overwrite(file, garbled);
  FirstRun run(console);
  run.LeaveAccount();
  console.Host.OnModal("frmComputerEnum", [&](ui::Form& form) {
    form.CloseBox();
    console.Host.OnBox("Run-time error '13':\n\nType mismatch");
  });
  EXPECT_EQ(1, RunConsole(console.Ports, [] { return 0; }));
  std::ifstream kept(file, std::ios::binary);
  EXPECT_EQ(garbled, std::string(std::istreambuf_iterator<char>(kept), {}));
}

TEST(Start, AnObjectThatCannotBeMadeEndsTheProgram) {
  TestConsole console;
  console.Ports.CreateChannelReader = []() -> std::unique_ptr<ChannelReader> {
    throw RuntimeError(errors::CannotCreateObject, "ActiveX component can't create object");
  };
  console.Host.OnBox("Run-time error '429':\n\nActiveX component can't create object");
  EXPECT_EQ(1, RunConsole(console.Ports, [] { return 0; }));
  EXPECT_TRUE(console.Host.Shown.empty());
}

}  // namespace
}  // namespace corvane::test
