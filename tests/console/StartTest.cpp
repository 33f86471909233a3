#include <sqlite3.h>

#include "admin/frmServiceAccount.h"
#include "app/assembly/RunConsole.h"
#include "app/installation/TextFile.h"
#include "core/Settings.h"
#include "core/console/frmBegin.h"
#include "domains/frmDomainChooser.h"
#include "platform/RuntimeError.h"
#include "support/ChildProcess.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

using Names = std::vector<std::string>;

class Start : public ConsoleTest {
 protected:
  // What the administrator does in the dialogs of a first run, in their order.
  static void Answer(ScriptedHost& host, bool setsAccount) {
    host.OnModal<frmBegin>("frmBegin", [&](frmBegin& form) {
      EXPECT_TRUE(host.Slept.empty());
      host.Click(form.cmdStart);
    });
    host.OnModal<frmDomainChooser>("frmDomainChooser", [&](frmDomainChooser& form) {
      const auto& splash = dynamic_cast<const frmStartup&>(host.Under());
      EXPECT_EQ("Initializing data access...", splash.lblProgress.Caption) << "the splash stays behind";
      host.Choose(form.optDomain[0]);
      form.txtStartupDomain.Text = "meridian";
      host.Click(form.cmdOK);
    });
    const std::string account = "CVCONSOLE1\\corvane";
    host.OnBox(setsAccount ? Message("LocalGranted", account) : Message("Needed"));
    host.OnModal<frmServiceAccount>("frmServiceAccount", [=, &host](frmServiceAccount& form) {
      host.Type(form.lstAccountName, account);
      form.txtPassword.Text = form.txtPassword2.Text = "a word!";
      host.Click(setsAccount ? form.cmdOK : form.cmdCancel);
    });
    host.OnModal("frmComputerEnum", [](ui::Form& form) { form.CloseBox(); });
  }
};

TEST_F(Start, ShowsTheSplashInThreeStagesAndThenTheWindow) {
  for (const char* stage :
       {"1 Initializing data access...", "2 Loading registered logs...", "3 Checking status of services..."})
    Host.OnDoEvents([this, stage] {
      const auto& splash = dynamic_cast<const frmStartup&>(Host.Top());
      EXPECT_EQ(stage, std::to_string(splash.prgStartup.Value) + " " + splash.lblProgress.Caption);
      EXPECT_TRUE(splash.MousePointer == ui::Pointer::Hourglass && !splash.cmdClose.Visible);
    });
  SetService("Corvane Service", "stop pending");
  Console.Start();
  EXPECT_EQ((Names{"frmStartup", "frmCVMain"}), Host.Shown);
  EXPECT_EQ((std::vector<int>{400, 500, 500, 500}), Host.Slept);
  EXPECT_EQ("0 log(s) watched by Corvane; Corvane Service running; Syslog Bridge Service stopped",
            Panel(0) + "; " + Panel(1) + "; " + Panel(2));
}

TEST_F(Start, ASecondConsoleEndsWithoutAWord) {
  Console.Start();
  ScriptedHost host;
  InstalledPlatform second(Console.Folder(), host);
  corvane::Console other(second.Ports());
  other.Main();
  EXPECT_FALSE(other.Started());
  EXPECT_TRUE(host.Shown.empty() && host.Boxes.empty());
  Host.Click(Window().mnuViewRefresh);
}

TEST_F(Start, OnlyAnAccountEndsTheFirstRuns) {
  const Names dialogs{"frmBegin",          "frmStartup",      "frmDomainChooser",
                      "frmServiceAccount", "frmComputerEnum", "frmCVMain"};
  for (const bool set : {false, true}) {
    TestConsole console(Installation::Kind::FirstRun);
    Answer(console.Host, set);
    console.Start();
    EXPECT_EQ(dialogs, console.Host.Shown);
    const Reghack& settings = console.App.State().Registry;
    const char* source = "System\\CurrentControlSet\\Services\\EventLog\\Application\\Corvane Service";
    EXPECT_EQ("C:\\Corvane\\corvane.exe", settings.DeNullString(settings.GetKeyValue(source, "EventMessageFile")));
    EXPECT_EQ("7", settings.GetKeyValue(source, "TypesSupported"));
    EXPECT_EQ("11_16_2026_14_5_9", console.Setting("LastUpgradeCheck"));
    EXPECT_EQ(set ? 0 : 1, std::count(console.Host.HelpTopics.begin(), console.Host.HelpTopics.end(), 280));
    EXPECT_EQ("running", console.Window().stbMain.Panels[2].Picture) << "the bridge was started on the way";
    EXPECT_EQ(set ? "1" : "", console.Setting("Created"));
    console.Host.Shown.clear();
    console.Host.Slept.clear();
    if (!set) Answer(console.Host, false);
    corvane::Console again(console.Ports);
    again.Main();
    EXPECT_TRUE(again.Started());
    EXPECT_EQ(set ? Names({"frmStartup", "frmCVMain"}) : dialogs, console.Host.Shown);
  }
}

TEST_F(Start, AFirstRunCanBeLeftAtItsFirstQuestion) {
  Main.SaveSetting("Created", "");
  Host.OnModal<frmBegin>("frmBegin", [&](frmBegin& form) {
    form.imgEA.Click(6);
    OnMessage("Trademark");
    form.imgEA.Click(7);
    Host.Click(form.cmdStart);
  });
  Host.OnModal<frmDomainChooser>("frmDomainChooser", [&](frmDomainChooser& form) {
    for (const auto answer : {ui::MsgResult::No, ui::MsgResult::Yes}) {
      OnMessage("EndNow", "", answer);
      Host.Click(form.cmdCancel);
      EXPECT_FALSE(form.IsUnloaded());
    }
  });
  EXPECT_EQ(0, RunConsole(Console.Ports, [] { return 1; }));
  EXPECT_EQ("frmDomainChooser", Host.Shown.back());
}

TEST_F(Start, OnlyTheVersionsThatHaveThemGetTheNetworkObjects) {
  for (const int version : {4, 5, 6}) {
    TestConsole console;
    console.System.Version = version;
    console.Start();
    EXPECT_EQ(version >= 5, console.App.State().DirectoryApi != nullptr) << version;
    EXPECT_EQ(version >= 6, console.App.State().HasChannelApi && console.App.State().ChannelReader) << version;
    EXPECT_EQ((Names{"MERIDIAN", "HARBOR", "DEPOT"}), console.Window().lstDomain.All()) << version;
  }
}

TEST_F(Start, TheNumberOfRapidConfigurationMustBeThere) {
  const std::pair<Value, bool> cases[] = {{"1.0", false}, {"0", false},    {"1.4", false},
                                          {1, false},     {"often", true}, {"", true}};
  for (const auto& [stored, ends] : cases) {
    TestConsole console;
    console.App.State().Registry.SetKeyValue(
        SettingsKey, "RCAtStartup", stored,
        std::holds_alternative<std::string>(stored) ? registry::String : registry::Number);
    if (ends) console.Host.OnBox(Message("TypeMismatch"));
    // The code of the end is the loop's, or 1 where the loop was not reached.
    EXPECT_EQ(ends ? 1 : 7, RunConsole(console.Ports, [] { return 7; }));
    EXPECT_EQ("frmCVMain", console.Host.Shown.back());
  }
}

TEST_F(Start, AStoreThatCannotBeOpenedLeavesEmptyListsAndSaysNothing) {
  for (const std::string content : {"missing", "not a database at all", "", "without a path"}) {
    TestConsole console;
    const auto file = console.Folder() / Installation::DatabaseFile;
    if (content == "missing")
      std::filesystem::remove(file);
    else if (content == "without a path")
      console.App.State().Registry.DeleteKeyValue(SettingsKey, "ConfigMDBPath");
    else
      WriteTextFile(file, content);
    console.Start();
    EXPECT_EQ("0 log(s) watched by Corvane", console.Window().stbMain.Panels[0].Text) << content;
    EXPECT_EQ(ObjectState::Closed, console.App.State().ConfigConnection->State()) << content;
    EXPECT_EQ(content != "missing", std::filesystem::exists(file));
  }
}

TEST_F(Start, AStoreHeldByAnotherProcessLeavesEmptyListsUntilItIsFree) {
  const auto file = Console.Folder() / Installation::DatabaseFile;
  Watch("MERA", 1);
  ChildProcess service([&](ChildProcess& self) {
    sqlite3* engine = nullptr;
    sqlite3_open(file.c_str(), &engine);
    const char* hold = "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; DELETE FROM SyslogDevices";
    self.Tell(sqlite3_exec(engine, hold, nullptr, nullptr, nullptr));
    self.Wait();
  });
  ASSERT_EQ(SQLITE_OK, service.Hear());
  Console.Start();
  EXPECT_EQ("0 log(s) watched by Corvane", Panel(0));
  EXPECT_EQ("MERIDIAN", Window().lstDomain.Text());
  service.Kill();
  Host.Click(Window().mnuViewRefresh);
  EXPECT_EQ("ok\n1\n", Console.Rows("PRAGMA integrity_check") + Console.Rows("SELECT COUNT(*) FROM RegisteredServers"));
}

// Without its settings the console takes this for a first run, and ends where a setting must be there.
TEST_F(Start, AnUnreadableRegistryIsAFirstRunThatEndsWithItsError) {
  const auto file = Console.Folder() / Installation::RegistryFile;
  const std::string garbled = "[HKEY_LOCAL_MACHINE\n\"cut short";
  WriteTextFile(file, garbled);
  Answer(Host, false);
  OnMessage("TypeMismatch");
  EXPECT_EQ(1, RunConsole(Console.Ports, [] { return 0; }));
  EXPECT_EQ(garbled, ReadTextFile(file));
}

TEST_F(Start, AnObjectThatCannotBeMadeEndsTheProgram) {
  Console.Ports.CreateChannelReader = []() -> std::unique_ptr<ChannelReader> {
    throw RuntimeError(errors::CannotCreateObject, "ActiveX component can't create object");
  };
  Host.OnBox("Run-time error '429':\n\nActiveX component can't create object");
  EXPECT_EQ(1, RunConsole(Console.Ports, [] { return 0; }));
  EXPECT_TRUE(Host.Shown.empty());
}

}  // namespace corvane::test
