#include "domains/CustomDomains.h"

#include <gtest/gtest.h>

#include "app/installation/TextFile.h"
#include "core/modMain.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

using Names = std::vector<std::string>;

const char* const Mappings = R"(; by hand
[General]
NumComputers=8
[Computers]
Computer1=server1|branch
Computer2=SERVER2|BRANCH
Computer3=without a bar
Computer5=Server5|Other|more
Computer6=10.0.0.1|Branch
Computer7=
Computer8=Büro|Süd
Computer9=STALE|STALE
)";

class CustomDomains : public testing::Test {
 protected:
  void Write(const std::string& bytes) { std::ofstream(File, std::ios::binary) << bytes; }
  std::string Read() { return ReadTextFile(File); }
  Names ComputersOf(const std::string& domain) {
    ui::ComboBox box{Form, "lstComputers"};
    LoadCustomDomainComputers(Console.App.State(), domain, box);
    return box.All();
  }

  TestConsole Console;
  std::filesystem::path File = Console.Folder() / "cdomain.ini";
  ui::Form Form{Console.Host, "frmTest"};
  ui::ComboBox Box{Form, "lstDomain"};
};

TEST_F(CustomDomains, ReplaceThoseOfTheBoxByThoseOfTheFile) {
  Write(Mappings);
  for (const char* entry : {"CUSTOM: OLD", "MERIDIAN", "x CUSTOM:", "CUSTOM: BRANCH", "custom: kept"})
    Box.AddItem(entry);
  Box.SetListIndex(1);
  LoadCustomDomains(Console.App.State(), Box);
  const Names expected{"MERIDIAN", "custom: kept", "CUSTOM: BRANCH", "CUSTOM: OTHER", "CUSTOM: SÜD"};
  EXPECT_EQ(expected, Box.All());
  EXPECT_EQ("MERIDIAN", Box.Text());
  EXPECT_EQ(Mappings, Read());
  Box.Enabled = false;
  LoadCustomDomains(Console.App.State(), Box);
  EXPECT_FALSE(Box.Enabled);
  EXPECT_EQ(expected, Box.All());
}

TEST_F(CustomDomains, ListTheComputersMappedToThem) {
  Write(Mappings);
  const std::pair<const char*, Names> cases[] = {{"CUSTOM: BRANCH", {"SERVER1", "SERVER2", "10.0.0.1"}},
                                                 {"branch", {"SERVER1", "SERVER2", "10.0.0.1"}},
                                                 {"CUSTOM: OTHER", {"SERVER5"}},
                                                 {"CUSTOM: SÜD", {"BÜRO"}},
                                                 {"CUSTOM: STALE", {}}};
  for (const auto& [domain, computers] : cases) EXPECT_EQ(computers, ComputersOf(domain)) << domain;
  // A garbled count ends with the file, not after hours.
  const std::pair<const char*, Names> counts[] = {{"-1", {}}, {"none", {}}, {"0", {}}, {"2000000000", {"A"}}};
  for (const auto& [count, computers] : counts) {
    Write(std::string("[General]\r\nNumComputers=") + count + "\r\n[Computers]\r\nComputer1=A|BRANCH\r\n");
    EXPECT_EQ(computers, ComputersOf("BRANCH")) << count;
  }
  EXPECT_TRUE(IsCustomDomain("CUSTOM: BRANCH"));
  EXPECT_FALSE(IsCustomDomain("custom: branch"));
}

}  // namespace
}  // namespace corvane::test
