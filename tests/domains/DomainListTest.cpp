#include "domains/DomainList.h"

#include <iterator>
#include <set>

#include "core/ConfigDatabase.h"
#include "domains/CustomDomains.h"
#include "domains/ToldNetX.h"
#include "platform/RuntimeError.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {
namespace {

using Names = std::vector<std::string>;

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
    if (answer == "fail") throw RuntimeError(errors::AutomationError, "Automation error");
    return answer;
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
  const auto names = [&](const char* domain) {
    return DomainControllerName(Main, domain) + " " + FlatDomainName(Main, domain);
  };
  EXPECT_EQ("\\\\MERDC01 \\\\MERDC01", names("MERIDIAN"));
  EXPECT_EQ("", DomainControllerName(Main, "FIELDLAB"));
  UseDirectory();
  EXPECT_EQ("\\\\MERDC01 MERDC01", names("MERIDIAN"));
  EXPECT_EQ("", FlatDomainName(Main, "FIELDLAB"));
}

TEST_F(DomainList, CutsEveryTrustOfAnOldController) {
  ToldNetX net;
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
  const std::pair<const char*, const char*> counts[] = {{"-1", ""}, {"none", ""}, {"0", ""}, {"2000000000", "A "}};
  for (const auto& [count, computers] : counts) {
    WriteTextFile(file,
                  std::string("[General]\r\nNumComputers=") + count + "\r\n[Computers]\r\nComputer1=A|BRANCH\r\n");
    EXPECT_EQ(computers, computersOf("BRANCH")) << count;
  }
  EXPECT_TRUE(IsCustomDomain("CUSTOM: BRANCH") && !IsCustomDomain("custom: branch"));
}

}  // namespace
}  // namespace corvane::test
