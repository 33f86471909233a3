#include "domains/Computers.h"

#include <gtest/gtest.h>

#include <deque>

#include "core/Settings.h"
#include "core/modMain.h"
#include "platform/DirectoryProvider.h"
#include "platform/NetX.h"
#include "platform/RuntimeError.h"
#include "support/ReplacedPorts.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

using Names = std::vector<std::string>;

class ToldServers : public NetX {
 public:
  struct Answer {
    bool More;
    std::string Name;
  };

  bool EnumServers(const std::string& domain, std::string& name, std::uint32_t types, int mode) override {
    Asked += domain + " " + std::to_string(types) + " " + std::to_string(mode) + "; ";
    if (Answers.empty()) return false;
    const Answer answer = Answers.front();
    Answers.pop_front();
    name = answer.Name;
    return answer.More;
  }
  bool EnumTrustedDomains(const std::string&, std::string&, int) override { return false; }
  bool QueryOSVersion(const std::string&, int&, int&) override { return false; }

  std::deque<Answer> Answers;
  std::string Asked;
};

/// Accounts with their flags; -1 cannot be bound.
class ToldAccounts : public DirectoryProvider {
 public:
  Names Children(const std::string& path, const std::string& objectClass) override {
    Asked += path + " " + objectClass + "; ";
    if (Fails) throw RuntimeError(errors::AutomationError, "Automation error");
    Names names;
    for (const auto& [name, flags] : Accounts) names.push_back(name);
    return names;
  }
  long UserFlags(const std::string& path) override {
    Asked += path + "; ";
    for (const auto& [name, flags] : Accounts)
      if (flags >= 0 && path.find("/" + name + "$") != path.npos) return flags;
    throw RuntimeError(errors::AutomationError, "Automation error");
  }

  std::vector<std::pair<std::string, long>> Accounts;
  bool Fails = false;
  std::string Asked;
};

class ToldUnit : public UnitQuery {
 public:
  Names Search(const std::string& commandText) override {
    Asked = commandText;
    if (Found.empty()) throw RuntimeError(errors::AutomationError, "Automation error");
    return Found;
  }
  Names Found;
  std::string Asked;
};

class Computers : public testing::Test {
 protected:
  Names List(bool includeControllers = true) {
    Names names;
    ForEachComputer(Main, "HARBOR", includeControllers, [&](const std::string& name) { names.push_back(name); });
    return names;
  }

  TestConsole Console;
  ToldServers Net;
  ToldAccounts Accounts;
  ToldUnit Unit;
  Platform Ports = Replace(Console.Ports, {.NetX = &Net, .Directory = &Accounts, .Units = &Unit});
  modMain Main{Ports};
  const Names Local{"CVCONSOLE1"};
};

TEST_F(Computers, OfTheBrowseListAreThoseThatComeWithTrue) {
  using Answers = std::deque<ToldServers::Answer>;
  struct {
    const char* What;
    Answers Told;
    Names Listed;
  } const cases[] = {
      {"several", {{true, "b"}, {true, "A"}, {false, "tail"}}, {"b", "A"}},
      {"one with false", {{false, "ONLY"}}, {"ONLY"}},
      {"none", {{false, ""}}, Local},
  };
  for (const auto& c : cases) {
    Net.Answers = c.Told;
    EXPECT_EQ(c.Listed, List()) << c.What;
  }
  EXPECT_EQ("HARBOR 4096 1; HARBOR 4096 0; HARBOR 4096 0; HARBOR 4096 1; HARBOR 4096 1; ", Net.Asked);
}

TEST_F(Computers, ComeFromTheBrowseListForEveryOtherSource) {
  for (const char* source : {"0", "3", "-1", "1.5", "none", ""}) {
    Main.SaveSetting("ComputerEnum", source);
    Net.Answers = {{true, "A"}, {false, ""}};
    EXPECT_EQ(Names{"A"}, List()) << source;
  }
  Main.Registry.DeleteKeyValue(SettingsKey, "ComputerEnum");
  Net.Answers = {{true, "A"}, {false, ""}};
  EXPECT_EQ(Names{"A"}, List());
  EXPECT_EQ("", Accounts.Asked + Unit.Asked);
}

TEST_F(Computers, OfAccountsLeaveOutControllersOnRequest) {
  Main.SaveSetting("ComputerEnum", "1");
  Accounts.Accounts = {{"DC", 8192}, {"GONE", -1}, {"MEMBER", 4096}, {"NEARLY", 8191}, {"RODC", 83890176}};
  EXPECT_EQ((Names{"DC", "MEMBER", "NEARLY", "RODC"}), List());
  EXPECT_EQ((Names{"MEMBER", "NEARLY"}), List(false));
  Accounts.Accounts = {{"DC", 8192}};
  EXPECT_EQ(Local, List(false));
  Accounts.Accounts.clear();
  Accounts.Asked.clear();
  EXPECT_EQ(Local, List());
  EXPECT_EQ("WinNT://HARBOR computer; ", Accounts.Asked);
  Accounts.Fails = true;
  EXPECT_EQ(Local, List());
}

TEST_F(Computers, AreBoundByTheirAccountInCapitals) {
  Main.SaveSetting("ComputerEnum", "1");
  Accounts.Accounts = {{"Web1", 4096}};
  List();
  EXPECT_EQ("WinNT://HARBOR computer; WinNT://HARBOR/WEB1$; ", Accounts.Asked);
}

TEST_F(Computers, OfAUnitComeInCapitals) {
  Main.SaveSetting("ComputerEnum", "2");
  Main.SaveSetting("OUPath", "LDAP://OU=Web,DC=harbor,DC=example");
  Unit.Found = {"web2", "Web1"};
  EXPECT_EQ((Names{"WEB2", "WEB1"}), List());
  EXPECT_EQ("<LDAP://OU=Web,DC=harbor,DC=example>;(objectClass=computer);name;subtree", Unit.Asked);
  Unit.Found.clear();
  EXPECT_EQ(Local, List());
}

TEST_F(Computers, OfTheLabFillABoxAndTheFirstIsChosen) {
  modMain& main = Console.App.State();
  ui::Form form{Console.Host, "frmTest"};
  ui::ComboBox box{form, "lstComputers"};
  struct {
    const char *Source, *Domain, *First;
    int Count;
  } const cases[] = {
      // A computer that is off has an account, but stands in no browse list; a workgroup has no accounts.
      {"0", "FIELDLAB", "BENCH1", 7}, {"1", "FIELDLAB", "CVCONSOLE1", 1}, {"0", "DEPOT", "DEPOTPDC", 7},
      {"1", "DEPOT", "DEPOTPDC", 8},  {"2", "DEPOT", "MERWEB01", 3},
  };
  main.SaveSetting("OUPath", "LDAP://OU=Web,OU=Servers,DC=meridian,DC=example");
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.Source) + " " + c.Domain);
    main.SaveSetting("ComputerEnum", c.Source);
    FillComputerList(main, c.Domain, box);
    EXPECT_EQ(c.First, box.Text());
    EXPECT_EQ(0, box.ListIndex());
    EXPECT_EQ(c.Count, box.Count());
  }
}

}  // namespace
}  // namespace corvane::test
