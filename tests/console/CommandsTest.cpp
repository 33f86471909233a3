#include <gtest/gtest.h>

#include <set>

#include "core/console/frmControlService.h"
#include "platform/Launcher.h"
#include "support/ReplacedPorts.h"
#include "support/Switchboard.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

class WitnessLauncher : public Launcher {
 public:
  void Run(const std::string& commandLine) override { Ran.push_back(commandLine); }
  std::vector<std::string> Ran;
};

class CommandsTest : public ::testing::Test {
 protected:
  CommandsTest() {
    console.Rows("INSERT INTO RegisteredServers VALUES ('MERA1', 'MERIDIAN', 'MERA', 1, 0, 0, 0, 0)");
    app.Main();
    host.SelectOnly(window().lvwComputers, 0);
  }
  frmCVMain& window() { return app.MainWindow(); }
  ui::MenuItem& Item(const std::string& name) {
    for (ui::Control* control : window().Controls())
      if (control->Kind() == ui::ControlKind::MenuItem && control->Name() == name)
        return static_cast<ui::MenuItem&>(*control);
    throw std::runtime_error("no item " + name);
  }
  void SetService(const std::string& name, const std::string& state, const std::string& refuses = "nothing") {
    console.SetLab("Service " + name, "State", state);
    console.SetLab("Service " + name, "Until", "0");
    console.SetLab("Service " + name, "Refuses", refuses);
  }
  std::string Panel(int panel) {
    const ui::StatusPanel& shown = window().stbMain.Panels[static_cast<std::size_t>(panel)];
    return shown.Text + " " + shown.Picture;
  }

  TestConsole console;
  ScriptedHost& host = console.Host;
  WitnessLauncher launcher;
  Platform ports = Replace(console.Ports, {.Launcher = &launcher});
  Console app{ports};
};

TEST_F(CommandsTest, EveryWayLeadsToItsScreen) {
  app.State().SaveSetting("Created", "1");
  for (const Command& command : Switchboard) {
    if (command.Form.empty()) continue;
    const auto opens = [&](const std::function<void()>& act) {
      host.OnModal(command.Form, [](ui::Form& form) { form.CloseBox(); });
      act();
      host.SelectOnly(window().lvwComputers, 0);
    };
    if (!command.Key.empty()) opens([&] { host.Press(window().tbrMain, command.Key); });
    for (const std::string& name : command.Items) opens([&] { host.Click(Item(name)); });
  }
  // Keys of the toolbar are compared without regard to case.
  host.OnModal("frmControlService", [](ui::Form& form) { form.CloseBox(); });
  window().tbrMain.ButtonClick("StartService");
}

// No button and no item is there that the switchboard does not know.
TEST_F(CommandsTest, NothingLeadsNowhere) {
  std::set<std::string> keys, items;
  for (const Command& command : Switchboard) {
    keys.insert(command.Key);
    items.insert(command.Items.begin(), command.Items.end());
  }
  for (const ui::ToolButton& button : window().tbrMain.Buttons) EXPECT_EQ(1U, keys.count(button.Key)) << button.Key;
  for (const ui::Control* control : window().Controls()) {
    if (control->Kind() != ui::ControlKind::MenuItem) continue;
    const auto& item = static_cast<const ui::MenuItem&>(*control);
    if (!item.Items.empty() || item.Caption == "-") continue;
    EXPECT_EQ(1U, items.count(std::string(item.Name()))) << item.Name();
    EXPECT_TRUE(item.Click) << item.Name();
  }
}

TEST_F(CommandsTest, OtherCommandsActAtOnce) {
  frmCVMain& main = window();
  const std::string site = "xdg-open \"https://www.tarnwick.example";
  host.Press(main.tbrMain, "eventviewer");
  host.Click(main.mnuFileEventViewer);
  host.Click(main.mnuHelpVisitTarnwick);
  host.Click(main.mnuHelpTarnwickSoftwareCatalog);
  host.Click(main.mnuHelpUpgradeCheck);
  EXPECT_EQ((std::vector<std::string>{"eventvwr MERA", "eventvwr MERA", site + "\"", site + "/catalog\"",
                                      site + "/upgrade?Product=CV&Version=1.0.0\""}),
            launcher.Ran);
  EXPECT_EQ("11_16_2026_14_5_9", console.Setting("LastUpgradeCheck"));
  host.OnBox("Please select one of the wizards/tools by clicking the down arrow next to this button.");
  host.Press(main.tbrMain, "databasetools");
  host.PressItem(main.tbrMain, "databasetools", "Creating Tables on Other ODBC Servers");
  host.Click(main.mnuDatabaseOther);
  host.Click(main.mnuHelpCVHelpFile);
  EXPECT_EQ((std::vector<int>{670, 670, 0}), host.HelpTopics);
}

TEST_F(CommandsTest, ServicesAreStartedAndStopped) {
  frmCVMain& main = window();
  const struct {
    const char *Service, *Name;
    int Panel;
    ui::MenuItem *Start, *Stop;
  } services[] = {
      {"Corvane Service", "The Corvane Service", 1, &main.mnuOptionsStartService, &main.mnuOptionsStopService},
      {"CVSyslogBridge", "The Syslog Bridge Service", 2, &main.mnuOptionsStartService2, &main.mnuOptionsStopService2}};
  for (const auto& one : services) {
    SCOPED_TRACE(one.Service);
    const std::string name = one.Name;
    const std::string panel = name.substr(4) + " ";
    SetService(one.Service, "stopped");
    host.OnBox(name + " is already stopped.");
    one.Stop->Click();
    EXPECT_EQ(ui::MsgIcon::Exclamation, host.Boxes.back().Icon);
    host.OnBox(name + " has been started successfully.");
    host.Click(*one.Start);
    EXPECT_EQ(ui::MsgIcon::Information, host.Boxes.back().Icon);
    EXPECT_EQ(panel + "running", Panel(one.Panel));
    // On its way down a service still counts as running.
    SetService(one.Service, "stop pending");
    host.OnBox(name + " is already running.");
    one.Start->Click();
    host.Click(*one.Stop);
    SetService(one.Service, "running");
    host.OnBox(name + " has been stopped successfully.");
    host.Click(*one.Stop);
    EXPECT_EQ(panel + "stopped", Panel(one.Panel));
    // A service that cannot be opened is not "already" anything, and a request that fails says nothing.
    SetService(one.Service, "running", "everything");
    one.Start->Click();
    one.Stop->Click();
    EXPECT_EQ(panel + "stopped", Panel(one.Panel));
  }
  EXPECT_EQ(ui::Pointer::Default, main.lvwComputers.MousePointer);
}

TEST_F(CommandsTest, TheOptionsMenuReadsTheStatesAnew) {
  frmCVMain& main = window();
  SetService("Corvane Service", "running");
  SetService("CVSyslogBridge", "running", "everything");
  main.mnuOptions.Click();
  EXPECT_EQ("Corvane Service running", Panel(1));
  EXPECT_EQ("Syslog Bridge Service stopped", Panel(2));
  EXPECT_FALSE(main.mnuOptionsStartService.Enabled || main.mnuOptionsStopService2.Enabled);
  EXPECT_TRUE(main.mnuOptionsStopService.Enabled && main.mnuOptionsStartService2.Enabled);
}

TEST_F(CommandsTest, TheServiceDialogOffersWhatCanBeDone) {
  const struct {
    bool Start;
    const char *Monitoring, *Bridge, *First, *Second;
    int Chosen;
  } cases[] = {{true, "stopped", "running", "&Start the Corvane Service (currently stopped)+",
                "S&tart the Corvane Syslog Bridge Service (currently running)-", 0},
               {true, "running", "stopped", "&Start the Corvane Service (currently running)-",
                "S&tart the Corvane Syslog Bridge Service (currently stopped)+", 1},
               {true, "running", "stop pending", "&Start the Corvane Service (currently running)-",
                "S&tart the Corvane Syslog Bridge Service (currently running)-", -1},
               {false, "stopped", "running", "&Stop the Corvane Service (currently stopped)-",
                "S&top the Corvane Syslog Bridge Service (currently running)+", 1},
               {false, "running", "stopped", "&Stop the Corvane Service (currently running)+",
                "S&top the Corvane Syslog Bridge Service (currently stopped)-", 0}};
  for (const auto& c : cases) {
    SetService("Corvane Service", c.Monitoring);
    SetService("CVSyslogBridge", c.Bridge);
    host.OnModal<frmControlService>("frmControlService", [&](frmControlService& form) {
      const auto shown = [](const ui::OptionButton& option) { return option.Caption + (option.Enabled ? "+" : "-"); };
      EXPECT_EQ(c.First, shown(form.optControlService[0]));
      EXPECT_EQ(c.Second, shown(form.optControlService[1]));
      EXPECT_EQ(c.Chosen, ui::ChosenOption(form.optControlService));
      EXPECT_EQ(c.Start ? "Start" : "Stop", form.cmdAction.Caption);
      EXPECT_EQ(c.Chosen >= 0, form.cmdAction.Enabled);
      if (c.Chosen < 0) return form.CloseBox();
      host.OnBox(std::string(c.Chosen == 0 ? "The Corvane Service" : "The Syslog Bridge Service") + " has been " +
                 (c.Start ? "started" : "stopped") + " successfully.");
      host.Click(form.cmdAction);
    });
    host.Press(window().tbrMain, c.Start ? "startservice" : "stopservice");
  }
  // A missing service counts as stopped.
  SetService("CVSyslogBridge", "running", "everything");
  host.OnModal<frmControlService>("frmControlService", [&](frmControlService& form) {
    EXPECT_TRUE(form.optControlService[1].Enabled);
    host.Choose(form.optControlService[1]);
    host.Click(form.cmdAction);
  });
  host.Press(window().tbrMain, "startservice");
}

TEST_F(CommandsTest, TheUserIsRemindedOfUpgradesAfterSixtyDays) {
  const std::string question =
      "It has been over 60 days since you last checked available upgrades for Corvane.  Would you like to check for "
      "upgrades now?";
  const auto remind = [&](const std::string& last) {
    app.State().SaveSetting("LastUpgradeCheck", last);
    window().tmrUpgradeCheck.Enabled = true;
    host.Pass(14999);
    EXPECT_TRUE(window().tmrUpgradeCheck.Enabled);
    host.Pass(60000);
    EXPECT_FALSE(window().tmrUpgradeCheck.Enabled);
    return console.Setting("LastUpgradeCheck");
  };
  // Exactly 60 days are not over 60 days; what cannot be read asks nothing.
  for (const char* last : {"", "soon", "11_16_2026", "9_17_2026_14_5_9"}) EXPECT_EQ(last, remind(last));
  host.OnBox(question, ui::MsgResult::No);
  EXPECT_EQ("11_16_2026_14_5_9", remind("9_17_2026_14_5_8"));
  EXPECT_TRUE(launcher.Ran.empty());
  host.OnBox(question, ui::MsgResult::Yes);
  remind("1_1_2020_0_0_0");
  EXPECT_EQ(1U, launcher.Ran.size());
}

}  // namespace
}  // namespace corvane::test
