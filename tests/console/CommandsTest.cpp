#include <algorithm>
#include <set>

#include "adapters/lab/LabServiceManager.h"
#include "core/Browser.h"
#include "core/console/frmBegin.h"
#include "core/console/frmControlService.h"
#include "platform/Launcher.h"
#include "platform/RuntimeError.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"
#include "support/Switchboard.h"

namespace corvane::test {

// Notes what is to be started; a program without a name, or any when told so, is not found.
class WitnessLauncher : public Launcher {
 public:
  void Run(const std::string& commandLine) override {
    if (Fails || commandLine.starts_with(" ")) throw RuntimeError(errors::FileNotFound, "File not found");
    Ran.push_back(commandLine);
  }
  std::vector<std::string> Ran;
  bool Fails = false;
};

class CommandsTest : public ConsoleTest {
 protected:
  CommandsTest() {
    Watch("MERA", 1);
    App.Main();
    Host.SelectOnly(Window().lvwComputers, 0);
  }
  frmCVMain& Window() override { return App.MainWindow(); }

  WitnessLauncher Programs;
  Platform Ports = Replace(Console.Ports, {.Launcher = &Programs});
  corvane::Console App{Ports};
  modMain& Main = App.State();
};

TEST_F(CommandsTest, EveryWayLeadsToItsScreen) {
  const auto opens = [&](const std::string& form, const std::function<void()>& act) {
    Host.OnModal(form, [](ui::Form& shown) { shown.CloseBox(); });
    act();
    if (Window().tabMain.Tab == 0) Host.SelectOnly(Window().lvwComputers, 0);
  };
  for (const Command& command : Switchboard) {
    if (command.Form.empty()) continue;
    // The commands of a tab are off while the other one is in front.
    Host.BringToFront(Window().tabMain, command.IsForSyslogs() ? 1 : 0);
    if (!command.IsForSyslogs()) Host.SelectOnly(Window().lvwComputers, 0);
    if (!command.Key.empty()) opens(command.Form, [&] { Host.Press(Window().tbrMain, command.Key); });
    for (ui::Control* control : Window().Controls())
      if (std::count(command.Items.begin(), command.Items.end(), control->Name()) > 0)
        opens(command.Form, [&] { Host.Click(static_cast<ui::MenuItem&>(*control)); });
  }
}

// No button and no item is there that the switchboard does not know, and none that it knows is missing.
TEST_F(CommandsTest, NothingLeadsNowhere) {
  std::set<std::string> keys, items, known{""}, knownItems;
  for (const Command& command : Switchboard) {
    known.insert(command.Key);
    knownItems.insert(command.Items.begin(), command.Items.end());
  }
  for (const ui::ToolButton& button : Window().tbrMain.Buttons) keys.insert(button.Key);
  for (const ui::Control* control : Window().Controls()) {
    const auto* item = dynamic_cast<const ui::MenuItem*>(control);
    if (!item || !item->Items.empty() || item->Caption == "-") continue;
    items.insert(std::string(item->Name()));
    EXPECT_TRUE(item->Click) << item->Name();
  }
  EXPECT_EQ(known, keys);
  EXPECT_EQ(knownItems, items);
  // Keys are compared without regard to case.
  Host.OnModal("frmControlService", [](ui::Form& form) { form.CloseBox(); });
  Window().tbrMain.ButtonClick("StartService");
}

TEST_F(CommandsTest, OtherCommandsActAtOnce) {
  frmCVMain& main = Window();
  const std::string site = "xdg-open \"https://www.tarnwick.example";
  for (ui::MenuItem* item : {&main.mnuFileEventViewer, &main.mnuHelpVisitTarnwick, &main.mnuHelpTarnwickSoftwareCatalog,
                             &main.mnuHelpUpgradeCheck, &main.mnuHelpCVHelpFile})
    Host.Click(*item);
  Host.Press(main.tbrMain, "eventviewer");
  EXPECT_EQ((std::vector<std::string>{"eventvwr MERA", site + "\"", site + "/catalog\"",
                                      site + "/upgrade?Product=CV&Version=1.0.0\"", "eventvwr MERA"}),
            Programs.Ran);
  EXPECT_EQ("11_16_2026_14_5_9", Console.Setting("LastUpgradeCheck"));
  Programs.Fails = true;
  OnMessage("NoEventViewer");
  Host.Press(main.tbrMain, "eventviewer");
  OnMessage("PickATool");
  Host.Press(main.tbrMain, "databasetools");
  Host.PressItem(main.tbrMain, "databasetools", "Creating Tables on Other ODBC Servers");
  Host.Click(main.mnuDatabaseOther);
  EXPECT_EQ((std::vector<int>{0, 670, 670}), Host.HelpTopics);
  EXPECT_THROW(Host.Click(main.mnuFileExit), ui::ProgramEnd);
  EXPECT_TRUE(Host.HelpTopics.empty());
  EXPECT_EQ(nullptr, Main.ConfigConnection);
}

TEST_F(CommandsTest, TheEditorIsToldWhatItEditsAndAboutClosesByAClick) {
  for (const bool isNew : {false, true})
    Host.OnModal("frmLogEdit", [&, isNew](ui::Form& form) {
      EXPECT_EQ("MERA Application", Main.SelectedName + " " + Main.SelectedDetail);
      EXPECT_EQ(isNew, Main.IsNewLog);
      form.CloseBox();
    });
  Host.Click(Window().mnuHiddenEdit);
  Host.Press(Window().tbrMain, "add");
  Window().lvwComputers.SelectNone();
  Host.Press(Window().tbrMain, "edit");
  Host.OnModal<frmStartup>("frmStartup", [&](frmStartup& about) {
    EXPECT_FALSE(about.prgStartup.Visible || about.lblProgress.Visible);
    about.Click();
  });
  Host.Click(Window().mnuHelpAbout);
}

TEST_F(CommandsTest, ServicesAreStartedAndStoppedAndTheMenuReadsTheirStatesAnew) {
  frmCVMain& main = Window();
  const struct {
    const char *Service, *Name;
    std::size_t Panel;
    ui::MenuItem *Start, *Stop;
  } services[] = {
      {"Corvane Service", "The Corvane Service", 1, &main.mnuOptionsStartService, &main.mnuOptionsStopService},
      {"CVSyslogBridge", "The Syslog Bridge Service", 2, &main.mnuOptionsStartService2, &main.mnuOptionsStopService2}};
  for (const auto& one : services) {
    for (const auto& step : Cases("console/ServiceCommands.txt")) {
      SetService(one.Service, step[0], step[1]);
      if (!step[3].empty()) OnMessage(step[3], one.Name);
      (step[2] == "start" ? one.Start : one.Stop)->Click();
      EXPECT_EQ(std::string(one.Name).substr(4) + " " + step[4], Panel(one.Panel));
    }
  }
  EXPECT_EQ(ui::Pointer::Default, main.lvwComputers.MousePointer);
  EXPECT_EQ(0U, dynamic_cast<LabServiceManager&>(Console.Ports.Services).OpenHandles());
  SetService("Corvane Service", "running");
  main.mnuOptions.Click();
  EXPECT_EQ("Corvane Service running, Syslog Bridge Service stopped", Panel(1) + ", " + Panel(2));
  EXPECT_FALSE(main.mnuOptionsStartService.Enabled || main.mnuOptionsStopService2.Enabled);
  EXPECT_TRUE(main.mnuOptionsStopService.Enabled && main.mnuOptionsStartService2.Enabled);
}

TEST_F(CommandsTest, TheServiceDialogOffersWhatCanBeDone) {
  for (const auto& c : Cases("console/ServiceDialog.txt")) {
    const bool starts = c[0] == "start";
    const int chosen = std::stoi(c[5]);
    SetService("Corvane Service", c[1]);
    SetService("CVSyslogBridge", c[2], c[3]);
    Host.OnModal<frmControlService>("frmControlService", [&](frmControlService& form) {
      const auto shown = [](const ui::OptionButton& option) {
        return option.Caption.substr(option.Caption.rfind(' ') + 1) + (option.Enabled ? "+" : "-");
      };
      EXPECT_EQ(c[4], shown(form.optControlService[0]) + " " + shown(form.optControlService[1]));
      EXPECT_EQ(chosen, ui::ChosenOption(form.optControlService));
      EXPECT_EQ(chosen >= 0, form.cmdAction.Enabled);
      if (chosen < 0) return form.CloseBox();
      if (c[3] == "everything")
        Host.Choose(form.optControlService[1]);
      else
        OnMessage(starts ? "Started" : "Stopped", chosen == 0 ? "The Corvane Service" : "The Syslog Bridge Service");
      Host.Click(form.cmdAction);
    });
    Host.Press(Window().tbrMain, c[0] + "service");
  }
}

TEST_F(CommandsTest, TheUserIsRemindedOfUpgradesAfterSixtyDays) {
  const auto remind = [&](const std::string& last) {
    Main.SaveSetting("LastUpgradeCheck", last);
    Window().tmrUpgradeCheck.Enabled = true;
    Host.Pass(14999);
    EXPECT_TRUE(Window().tmrUpgradeCheck.Enabled);
    Host.Pass(60000);
    EXPECT_FALSE(Window().tmrUpgradeCheck.Enabled);
    return Console.Setting("LastUpgradeCheck");
  };
  // Exactly 60 days are not over 60 days; what cannot be read asks nothing.
  for (const char* last : {"", "soon", "11_16_2026", "9_17_2026_14_5_9"}) EXPECT_EQ(last, remind(last));
  OnMessage("Upgrade", "", ui::MsgResult::No);
  EXPECT_EQ("11_16_2026_14_5_9", remind("9_17_2026_14_5_8"));
  EXPECT_TRUE(Programs.Ran.empty());
  OnMessage("Upgrade", "", ui::MsgResult::Yes);
  remind("1_1_2020_0_0_0");
  EXPECT_EQ(1U, Programs.Ran.size());
}

TEST_F(CommandsTest, ALinkStandsInItsPlaceOrBehindTheCommandOfTheBrowser) {
  const auto open = [&](const char* registered) {
    Main.Registry.SetKeyValueHKCR("http\\shell\\open\\command", "", registered, registry::String);
    OpenInBrowser(Main, "https://x.example/?a=%1");
    return Programs.Ran.back();
  };
  EXPECT_EQ("b.exe -u \"https://x.example/?a=%1\" \"%1\"", open("b.exe -u \"%1\" \"%1\""));
  EXPECT_EQ("b.exe https://x.example/?a=%1", open("b.exe"));
  // A link is one argument, whatever it holds.
  open("b.exe \"%1\"");
  OpenInBrowser(Main, "https://x.example/?a=\"b c\"&d=$(e)\\");
  EXPECT_EQ("b.exe \"https://x.example/?a=%22b%20c%22&d=$(e)%5C\"", Programs.Ran.back());
  frmBegin(Main).imgSupport.Click(0);
  EXPECT_EQ("b.exe \"https://www.tarnwick.example/corvane/support\"", Programs.Ran.back());
  OnMessage("NoBrowser", "https://x.example/?a=%1");
  open("");
}

}  // namespace corvane::test
