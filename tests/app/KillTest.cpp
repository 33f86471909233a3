#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <random>
#include <set>
#include <thread>

#include "adapters/linux/HostPaths.h"
#include "adapters/settings/IniFiles.h"
#include "app/installation/TextFile.h"
#include "domains/CustomDomains.h"
#include "logs/frmLogEdit.h"
#include "support/ChildProcess.h"
#include "support/TestConsole.h"
#include "support/TestStore.h"

namespace corvane::test {
namespace {

namespace fs = std::filesystem;

constexpr int Kills = 100;
constexpr const char* MappingFile = "cdomain.ini";

// The mappings that a console saves in turn.
const std::vector<std::vector<CustomMapping>> Mappings{{{"KIOSK1", "LOBBY"}, {"192.0.2.77", "BRANCH"}},
                                                       {{"SCANNER", "DEPOT"}, {"KIOSK2", "LOBBY"}, {"TILL", "SHOP"}}};

void AddAndDelete(TestConsole& console) {
  console.Host.OnModal<frmLogEdit>("frmLogEdit", [&](frmLogEdit& form) {
    console.Host.Pass(75);
    console.Host.Type(form.lstComputerName, "MERFILE01");
    form.lvwAlarmGroups.Select(0);
    console.Host.Focus(form.lvwAlarmGroups);
    console.Host.Click(form.cmdAdd);
    console.Host.Click(form.cmdOK);
  });
  console.Host.Click(console.Window().mnuFileAdd);
  console.Window().lvwComputers.Select(0);
  console.Host.OnBox("Are you sure you want to stop watching the Application log on MERFILE01?", ui::MsgResult::Yes);
  console.Host.Click(console.Window().mnuFileDelete);
}

// Every content that the file of mappings passes through, one write after the other.
std::set<std::string> PossibleContents() {
  const TempFolder place;
  IniFiles profiles{HostPaths(place.Path())};
  std::set<std::string> contents;
  const auto write = [&](const char* section, const std::string& key, const std::string& value) {
    profiles.WriteString(section, key, value, std::string("C:\\Corvane\\") + MappingFile);
    contents.insert(ReadTextFile(place.Path() / MappingFile));
  };
  write("General", "NumComputers", "0");
  for (int round = 0; round < 4; ++round) {
    const auto& mappings = Mappings[static_cast<std::size_t>(round) % 2];
    for (std::size_t i = 0; i < mappings.size(); ++i)
      write("Computers", "Computer" + std::to_string(i + 1), mappings[i].Computer + "|" + mappings[i].Domain);
    write("General", "NumComputers", std::to_string(mappings.size()));
  }
  return contents;
}

std::string WithoutStamp(const fs::path& registry) {
  std::string text = ReadTextFile(registry);
  const std::size_t begin = text.find("\"LastDBUpdate\"");
  return begin == text.npos ? text : text.erase(begin, text.find('\n', begin) + 1 - begin);
}

// Whatever the moment, nothing on the disk is half of anything.
TEST(Kill, AtAnyMomentLeavesEveryFileWhole) {
  const std::set<std::string> possible = PossibleContents();
  std::mt19937 chance(20261123);
  int busy = 0;
  for (int kill = 0; kill < Kills; ++kill) {
    TestConsole console;
    const fs::path folder = console.Folder();
    const std::string settings = WithoutStamp(folder / Installation::RegistryFile);
    const std::string network = ReadTextFile(folder / Installation::LabFile);
    ChildProcess child([&](ChildProcess& self) {
      console.Start();
      SaveCustomMappings(console.App.State(), Mappings[0]);
      self.Tell(0);
      // One of two jobs without a pause.
      for (std::size_t i = 1; i < 100000; ++i) {
        if (kill % 2 == 0)
          AddAndDelete(console);
        else
          SaveCustomMappings(console.App.State(), Mappings[i % Mappings.size()]);
      }
    });
    ASSERT_EQ(0, child.Hear());
    std::this_thread::sleep_for(std::chrono::microseconds(chance() % 20000));
    child.Kill();
    SCOPED_TRACE(kill);
    EXPECT_EQ("ok\n", Ask(folder / Installation::DatabaseFile, "PRAGMA integrity_check"));
    EXPECT_EQ(settings, WithoutStamp(folder / Installation::RegistryFile));
    EXPECT_EQ(network, ReadTextFile(folder / Installation::LabFile));
    EXPECT_EQ(1U, possible.count(ReadTextFile(folder / MappingFile))) << ReadTextFile(folder / MappingFile);
    busy += WithoutStamp(folder / Installation::RegistryFile) != ReadTextFile(folder / Installation::RegistryFile) ||
            ReadTextFile(folder / MappingFile).find("SCANNER") != std::string::npos;
    console.Start();
    EXPECT_TRUE(console.App.Started());
  }
  EXPECT_GT(busy, Kills / 5) << "the consoles were killed before they worked";
}

}  // namespace
}  // namespace corvane::test
