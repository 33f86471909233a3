#include "app/installation/TextFile.h"
#include "core/Settings.h"
#include "domains/Computers.h"
#include "domains/CustomDomains.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmCustomDomainManager.h"
#include "domains/frmDomainChooser.h"
#include "support/Cases.h"
#include "support/ChildProcess.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

using ui::MsgResult;

class DomainScreens : public ConsoleTest {
 protected:
  void Prepare(int version, const std::string& domain) {
    Main.HasDirectoryApi = version >= 5;
    Main.DirectoryApi = Main.HasDirectoryApi ? Console.Ports.CreateDirectoryApi() : nullptr;
    Main.SaveSetting("DefaultDomain", domain);
  }
  void Edit(const std::function<void(frmCustomDomainManager&)>& act) {
    frmCustomDomainManager form(Main);
    form.Load();
    act(form);
    Host.Click(form.cmdOK);
  }
  void Add(frmCustomDomainManager& form, const std::string& computer, const std::string& domain) {
    form.txtComputer.Text = computer;
    form.txtDomain.Text = domain;
    Host.Click(form.cmdAdd);
  }
  void Remove(frmCustomDomainManager& form, int row, MsgResult answer = MsgResult::Yes) {
    Host.SelectOnly(form.lvwComputers, row);
    OnMessage("RemoveMappings", "", answer);
    Host.Click(form.cmdRemove);
  }
  std::string Mappings() { return ReadTextFile(File); }

  std::filesystem::path File = Console.Folder() / "cdomain.ini";
};

TEST_F(DomainScreens, ADefaultDomainIsSavedByItsFlatNameInCapitals) {
  for (const auto& c : Cases("domains/DefaultDomains.txt")) {
    const std::string &stored = c[2], &saved = c[8];
    Prepare(std::stoi(c[0]), stored);
    Main.Registry.SetKeyValue(SettingsKey, "ManagingADomain", std::stoi(c[1]), registry::Number);
    frmDomainChooser form(Main);
    form.Load();
    EXPECT_EQ(c[3] + "Enter the " + c[4] + ", and press 'OK.'  Press 'F1' for additional help.",
              form.txtStartupDomain.Text + form.lblInstructions.Caption);
    // The name is looked up by a directory of its own.
    Main.DirectoryApi.reset();
    form.txtStartupDomain.Text = c[5];
    const MsgResult answer = c[7] == "yes" ? MsgResult::Yes : c[7] == "no" ? MsgResult::No : MsgResult::Ok;
    if (!c[6].empty()) OnMessage(c[6], "", answer);
    Host.Click(form.cmdOK);
    EXPECT_EQ(saved, Main.Setting("DefaultDomain"));
    EXPECT_EQ(saved != stored, form.IsUnloaded());
    EXPECT_EQ(c[1] == "1", Main.SettingNumber("ManagingADomain") == 1);
  }
}

TEST_F(DomainScreens, AUnitThatWasChosenGivesItsComputers) {
  Prepare(6, "MERIDIAN");
  OnMessage("NoUnit");
  Host.OnChooseContainer([](const DirectoryContainer& root, const ui::ContainersOf& containersOf) {
    return containersOf(containersOf(root.Path).at(2).Path).at(2);
  });
  frmComputerEnum form(Main);
  form.Load();
  Host.Choose(form.optRetrieve[2]);
  for (ui::CommandButton* button : {&form.cmdOK, &form.cmdBrowse, &form.cmdOK}) Host.Click(*button);
  std::string computers;
  ForEachComputer(Main, "MERIDIAN", true, [&](const std::string& name) { computers += " " + name; });
  EXPECT_EQ("2 MERWEB01 MERWEB02 MERWEB03", Main.Setting("ComputerEnum") + computers);
  Host.OnChooseContainer([](const auto&, const auto&) { return std::nullopt; });
  for (const auto& c : Cases("domains/Retrievals.txt")) {
    Prepare(std::stoi(c[0]), c[1]);
    Main.SaveSetting("ComputerEnum", c[2]);
    frmComputerEnum again(Main);
    again.Load();
    EXPECT_EQ(c[4], std::to_string(ui::ChosenOption(again.optRetrieve)));
    EXPECT_EQ(c[0] != "4", again.optRetrieve[2].Enabled);
    EXPECT_EQ(c[4] == "2", again.txtOU.Enabled && again.cmdBrowse.Enabled);
    if (!c[3].empty()) OnMessage(c[3], c[1]), Host.Click(again.cmdBrowse);
    EXPECT_EQ(c[5], again.txtOU.Text);
  }
}

TEST_F(DomainScreens, MappingsAreWrittenOverTheFormerOnesAndShownInTheMainWindow) {
  Console.Start();
  Watch("A", 1, "CUSTOM: KEPT");
  for (const bool missing : {true, false}) {
    std::filesystem::remove(File);
    if (!missing) std::ofstream{File};
    EXPECT_EQ(0u, LoadCustomMappings(Main).size());
    EXPECT_EQ("[General]\r\nNumComputers=0\r\n", Mappings());
  }
  Edit([&](auto& form) {
    for (const char* computer : {"b", "192.0.2.7", "", "a_x"}) Add(form, computer, "gone");
    Add(form, "c", "");
  });
  const std::string start = "[General]\r\nNumComputers=", head = "\r\n[Computers]\r\nComputer1=";
  const std::string stale = "\r\nComputer2=192.0.2.7|GONE\r\nComputer3=A_X|GONE\r\n";
  EXPECT_EQ(start + "3" + head + "B|GONE" + stale, Mappings());
  Console.ChooseDomain("CUSTOM: GONE");
  Edit([&](auto& form) {
    OnMessage("MappedAlready", "B");
    Add(form, "b", "other");
    Add(form, "a", "x_gone");
    for (int click = 0; click < 2; ++click) form.lvwComputers.ColumnClick(0);
    EXPECT_EQ("B", form.lvwComputers.Item(0).Text);
    Remove(form, 0, MsgResult::No);
    EXPECT_EQ(4, form.lvwComputers.Count()) << "two of them come to one key";
    for (int i = 0; i < 4; ++i) Remove(form, 0);
    Add(form, "a", "kept");
  });
  EXPECT_EQ(start + "1" + head + "A|KEPT" + stale, Mappings());
  EXPECT_EQ("MERIDIAN", Console.Window().lstDomain.Text());
  Console.ChooseDomain("CUSTOM: KEPT");
  Edit([&](auto& form) { Remove(form, 0); });
  EXPECT_EQ("CUSTOM: KEPT", Console.Window().lstDomain.Text()) << "a log of it is still watched";
  EXPECT_EQ(1, Console.Window().lvwComputers.Count());
}

TEST_F(DomainScreens, NamesRefuseWithABeepWhatStatementsAndFilesCannotHold) {
  frmCustomDomainManager form(Main);
  int beeps = 0;
  for (char32_t character = 1; character < 300; ++character) {
    const bool refused = std::u32string_view(U" \"#$%&'()*+,/").find(character) != std::u32string_view::npos;
    EXPECT_TRUE(form.txtComputer.KeyPress(character) != refused && form.txtDomain.KeyPress(character) != refused);
    EXPECT_EQ(beeps += refused ? 2 : 0, Host.Beeps);
  }
}

TEST_F(DomainScreens, NothingIsLostWhereNothingCanBeWritten) {
  const auto save = [&] { return SaveCustomMappings(Main, {{"X", "N"}, {std::string(200, 'Y'), "N"}, {"Z", "N"}}), 0; };
  SaveCustomMappings(Main, {{"A", "OLD"}, {"B", "OLD"}});
  const std::string before = Mappings();
  std::filesystem::permissions(Console.Folder().parent_path(), std::filesystem::perms(0755));
  EXPECT_EQ(0, AsNobody(File, 0444, 0555, save));
  EXPECT_EQ(before, Mappings());
  EXPECT_EQ(0, OnFullDisk(150, save));
  EXPECT_EQ("[General]\r\nNumComputers=2\r\n[Computers]\r\nComputer1=X|N\r\nComputer2=B|OLD\r\n", Mappings());
}

}  // namespace corvane::test
