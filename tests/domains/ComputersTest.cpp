#include "domains/Computers.h"

#include "domains/ToldNetX.h"
#include "platform/DirectoryProvider.h"
#include "platform/RuntimeError.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {
namespace {

using Names = std::vector<std::string>;

/// Accounts with their flags, of which one with -1 cannot be bound, and the computers of a unit. With none it fails.
class ToldDirectory : public DirectoryProvider, public UnitQuery {
 public:
  Names Children(const std::string& path, const std::string& objectClass) override {
    Asked += path + " " + objectClass + "; ";
    Names names;
    for (const auto& [name, flags] : Accounts) names.push_back(name);
    return Found(names);
  }
  long UserFlags(const std::string& path) override {
    Asked += path + "; ";
    for (const auto& [name, flags] : Accounts)
      if (flags >= 0 && path == "WinNT://HARBOR/" + name + "$") return flags;
    throw RuntimeError(errors::AutomationError, "Automation error");
  }
  Names Search(const std::string& commandText) override {
    Asked += commandText;
    return Found(Unit);
  }
  std::vector<DirectoryContainer> Containers(const std::string&) override { return {}; }

  static Names Found(const Names& names) {
    if (names.empty()) throw RuntimeError(errors::AutomationError, "Automation error");
    return names;
  }

  std::vector<std::pair<std::string, long>> Accounts;
  Names Unit;
  std::string Asked;
};

class Computers : public ConsoleTest {
 protected:
  Names List(bool includeControllers = true) {
    Names names;
    ForEachComputer(Main, "HARBOR", includeControllers, [&](const std::string& name) { names.push_back(name); });
    return names;
  }

  ToldNetX Net;
  ToldDirectory Directory;
  Platform Ports = Replace(Console.Ports, {.NetX = &Net, .Directory = &Directory, .Units = &Directory});
  modMain Main{Ports};
  const Names Local{"CVCONSOLE1"};
};

TEST_F(Computers, OfTheBrowseListAreThoseThatComeWithTrue) {
  const std::pair<std::deque<ToldNetX::Answer>, Names> cases[] = {
      {{{true, "b"}, {true, "A"}, {false, "tail"}}, {"b", "A"}}, {{{false, "ONLY"}}, {"ONLY"}}, {{}, Local}};
  for (const auto& [told, listed] : cases) {
    Net.Servers = told;
    EXPECT_EQ(listed, List());
  }
  EXPECT_EQ("HARBOR 4096 1; HARBOR 4096 0; HARBOR 4096 0; HARBOR 4096 1; HARBOR 4096 1; ", Net.Asked);
  for (const char* source : {"0", "3", "-1", "1.5", "none", ""}) {
    Main.SaveSetting("ComputerEnum", source);
    Net.Servers = {{true, "A"}};
    EXPECT_EQ(Names{"A"}, List()) << source;
  }
  EXPECT_EQ("", Directory.Asked);
}

TEST_F(Computers, OfAccountsLeaveOutControllersOnRequest) {
  Main.SaveSetting("ComputerEnum", "1");
  EXPECT_EQ(Local, List());
  Directory.Accounts = {{"DC", 8192}};
  EXPECT_EQ(Local, List(false));
  Directory.Accounts = {{"DC", 8192}, {"GONE", -1}, {"MEMBER", 4096}, {"NEARLY", 8191}, {"RODC", 83890176}};
  EXPECT_EQ((Names{"DC", "MEMBER", "NEARLY", "RODC"}), List());
  EXPECT_EQ((Names{"MEMBER", "NEARLY"}), List(false));
  Directory.Accounts = {{"Web1", 4096}};
  Directory.Asked.clear();
  List();
  EXPECT_EQ("WinNT://HARBOR computer; WinNT://HARBOR/WEB1$; ", Directory.Asked) << "an account is bound in capitals";
}

TEST_F(Computers, OfAUnitComeInCapitals) {
  Main.SaveSetting("ComputerEnum", "2");
  Main.SaveSetting("OUPath", "LDAP://OU=Web,DC=harbor,DC=example");
  EXPECT_EQ(Local, List());
  EXPECT_EQ("<LDAP://OU=Web,DC=harbor,DC=example>;(objectClass=computer);name;subtree", Directory.Asked);
  Directory.Unit = {"web2", "Web1"};
  EXPECT_EQ((Names{"WEB2", "WEB1"}), List());
}

TEST_F(Computers, OfTheLabFillABoxAndTheFirstIsChosen) {
  modMain& main = Console.App.State();
  ui::Form form{Host, "frmTest"};
  ui::ComboBox box{form, "lstComputers"};
  main.SaveSetting("OUPath", "LDAP://OU=Web,OU=Servers,DC=meridian,DC=example");
  for (const auto& c : Cases("domains/Listings.txt")) {
    main.SaveSetting("ComputerEnum", c[0]);
    FillComputerList(main, c[1], box);
    EXPECT_EQ(c[2] + " " + c[3], box.Text() + " " + std::to_string(box.Count())) << c[0] << c[1];
  }
}

}  // namespace
}  // namespace corvane::test
