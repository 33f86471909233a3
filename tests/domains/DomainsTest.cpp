#include <deque>
#include <iterator>
#include <set>

#include "adapters/lab/LabNetX.h"
#include "core/ConfigDatabase.h"
#include "domains/Computers.h"
#include "domains/CustomDomains.h"
#include "domains/DomainList.h"
#include "platform/DirectoryProvider.h"
#include "platform/RuntimeError.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {

using Names = std::vector<std::string>;

/// A network helper that gives the names it was told, in order, and notes what it was asked.
class ToldNetX : public LabNetX {
 public:
  using LabNetX::LabNetX;
  using Answers = std::deque<std::pair<bool, std::string>>;

  bool EnumServers(const std::string& domain, std::string& name, std::uint32_t types, int mode) override {
    return Tell(Servers, name, domain + " " + std::to_string(types), mode);
  }
  bool EnumTrustedDomains(const std::string& controller, std::string& name, int mode) override {
    return Tell(Trusts, name, controller, mode);
  }

  Answers Servers, Trusts;
  std::string Asked;

 private:
  // Where it has no name it leaves the caller's as it is.
  bool Tell(Answers& answers, std::string& name, const std::string& asked, int mode) {
    Asked += asked + " " + std::to_string(mode) + "; ";
    if (answers.empty()) return false;
    const auto [more, told] = answers.front();
    answers.pop_front();
    if (!told.empty()) name = told;
    return more;
  }
};

class DomainList : public ConsoleTest {
 protected:
  DomainList() { Console.SetLab("Lab", "TimeoutMs", "1"); }

  void UseDirectory() { Main.DirectoryApi = Console.Ports.CreateDirectoryApi(); }
  /// The entries of a box, a blank behind each.
  static std::string All(const ui::ComboBox& box) {
    std::string all;
    for (const std::string& entry : box.All()) all += entry + " ";
    return all;
  }
  std::string Fill(modMain& main, const std::string& domain) {
    main.SaveSetting("DefaultDomain", domain);
    Box.AddItem("left over");
    FillDomainList(main, Box);
    return All(Box);
  }

  LabNetwork Network{Console.Folder() / Installation::LabFile};
  ui::Form Form{Host, "frmTest"};
  ui::ComboBox Box{Form, "lstDomain"};
};

TEST_F(DomainList, HoldsThePrimaryDomainAndThoseItTrusts) {
  for (const auto& c : Cases("domains/Trusts.txt")) {
    Main.DirectoryApi.reset();
    EXPECT_EQ(c[1], Fill(Main, c[0]));
    UseDirectory();
    EXPECT_EQ(c[2], Fill(Main, c[0]));
    EXPECT_EQ(0, Box.ListIndex());
  }
}

// A directory that answers as told, "fail" by raising, and notes which servers it was asked about.
class ToldDirectory : public DirectoryApi {
 public:
  std::string DsGetFlatDCName(const std::string&) override { return Raised(Controller); }
  std::string DsGetDomainTrustInfo(const std::string& server, int flags, int index) override {
    Servers.insert(server);
    return Raised(flags == PrimaryDomain ? "ALPHA" : Trusts.at(static_cast<std::size_t>(index - 1)));
  }
  int DsGetNumberOfTrusts(const std::string&, int) override {
    Raised(Controller);
    return static_cast<int>(Trusts.size());
  }

  std::string Controller;
  Names Trusts;
  std::set<std::string> Servers;

 private:
  static std::string Raised(const std::string& answer) {
    return answer == "fail" ? throw RuntimeError(errors::AutomationError, "Automation error") : answer;
  }
};

TEST_F(DomainList, ChoosesTheDefaultDomainByItsExactTextElseTheFirst) {
  for (const auto& c : Cases("domains/Defaults.txt")) {
    auto* told = new ToldDirectory;
    Main.DirectoryApi.reset(told);
    told->Controller = c[1];
    std::istringstream trusts(c[2]);
    told->Trusts.assign(std::istream_iterator<std::string>(trusts), {});
    EXPECT_EQ(c[5], Fill(Main, c[0]));
    EXPECT_EQ(c[4], Box.Text());
    EXPECT_EQ(std::set<std::string>{c[3]}, told->Servers) << c[0];
  }
}

TEST_F(DomainList, NamesControllersWithAndWithoutBackslashes) {
  for (const char* flat : {"\\\\MERDC01", "MERDC01"}) {
    EXPECT_EQ("\\\\MERDC01", DomainControllerName(Main, "MERIDIAN"));
    EXPECT_EQ(flat, FlatDomainName(Main, "MERIDIAN"));
    UseDirectory();
  }
  EXPECT_EQ("", DomainControllerName(Main, "FIELDLAB") + FlatDomainName(Main, "FIELDLAB"));
}

TEST_F(DomainList, CutsEveryTrustOfAnOldController) {
  ToldNetX net(Network);
  Platform ports = Replace(Console.Ports, {.NetX = &net});
  modMain main(ports);
  net.Servers = {{false, "PDC"}, {false, "PDC"}, {false, ""}};
  net.Trusts = {{true, "EAST#"}, {true, "WEST#"}, {false, "LAST#"}};
  EXPECT_EQ("HOME EAST WEST LAST ", Fill(main, "HOME"));
  EXPECT_EQ("HOME 8 1; \\\\PDC 1; \\\\PDC 0; \\\\PDC 0; ", net.Asked);
  EXPECT_EQ(2, Host.EventsServed);
  net.Trusts = {{true, "EAST#"}, {false, ""}, {true, "NOT ASKED#"}};
  EXPECT_EQ("HOME EAST ", Fill(main, "HOME"));
  EXPECT_EQ("HOME ", Fill(main, "HOME"));
}

TEST_F(DomainList, EndsWithTheDomainsOfTheDatabaseInCapitals) {
  Main.InitGlobals();
  OpenConfigDatabase(Main);
  Watch("A", 1, "Meridian");
  Watch("A", 2, "north", true);
  Watch("A", 3, "NORTH");
  Watch("A", 4, "CUSTOM: Lab");
  for (const char* entry : {"MERIDIAN", "custom: shed"}) Box.AddItem(entry);
  // Nothing comes twice, and nothing where the table cannot be read.
  for (int time = 0; time < 3; ++time) {
    if (time == 2) Console.Data.FailAfter(0, "RegisteredServers");
    AddDatabaseDomains(Main, Box);
    EXPECT_EQ((std::multiset<std::string>{"MERIDIAN", "custom: shed", "CUSTOM: LAB", "NORTH"}),
              std::multiset<std::string>(Box.All().begin(), Box.All().end()));
  }
  EXPECT_EQ(ObjectState::Closed, Main.SharedRecordset->State());
}

TEST_F(DomainList, ItsCustomDomainsAreThoseOfTheFile) {
  const std::string mappings = ReadTextFile(CORVANE_SOURCE_DIR "/tests/domains/Mappings.txt");
  const auto file = Console.Folder() / "cdomain.ini";
  const auto computersOf = [&](const std::string& domain) {
    ui::ComboBox box{Form, "lstComputers"};
    LoadCustomDomainComputers(Main, domain, box);
    return All(box);
  };
  WriteTextFile(file, mappings);
  for (const char* entry : {"CUSTOM: OLD", "MERIDIAN", "x CUSTOM:", "CUSTOM: BRANCH", "custom: kept"})
    Box.AddItem(entry);
  Box.SetListIndex(1);
  for (const bool enabled : {true, false}) {
    Box.Enabled = enabled;
    LoadCustomDomains(Main, Box);
    EXPECT_EQ(enabled, Box.Enabled);
    EXPECT_EQ((Names{"MERIDIAN", "custom: kept", "CUSTOM: BRANCH", "CUSTOM: OTHER", "CUSTOM: SÜD"}), Box.All());
  }
  EXPECT_EQ("MERIDIAN", Box.Text());
  for (const auto& c : Cases("domains/CustomDomains.txt")) EXPECT_EQ(c[1], computersOf(c[0])) << c[0];
  EXPECT_EQ(mappings, ReadTextFile(file));
  // A garbled count ends with the file, not after hours.
  for (const std::string count : {"-1", "none", "0", "2000000000"}) {
    WriteTextFile(file, "[General]\r\nNumComputers=" + count + "\r\n[Computers]\r\nComputer1=A|BRANCH\r\n");
    EXPECT_EQ(count.size() > 4 ? "A " : "", computersOf("BRANCH")) << count;
  }
  EXPECT_TRUE(IsCustomDomain("CUSTOM: BRANCH") && !IsCustomDomain("custom: branch"));
}

/// Accounts with their flags, of which one with -1 cannot be bound, and the computers of a unit. With none it fails.
class ToldAccounts : public DirectoryProvider, public UnitQuery {
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
    return names.empty() ? throw RuntimeError(errors::AutomationError, "Automation error") : names;
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

  LabNetwork Network{Console.Folder() / Installation::LabFile};
  ToldNetX Net{Network};
  ToldAccounts Directory;
  Platform Ports = Replace(Console.Ports, {.NetX = &Net, .Directory = &Directory, .Units = &Directory});
  modMain Main{Ports};
  const Names Local{"CVCONSOLE1"};
};

TEST_F(Computers, OfTheBrowseListAreThoseThatComeWithTrue) {
  const std::pair<ToldNetX::Answers, Names> cases[] = {
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

}  // namespace corvane::test
