#include "domains/DomainList.h"

#include <gtest/gtest.h>

#include <set>

#include "core/ConfigDatabase.h"
#include "core/modMain.h"
#include "domains/ToldNetX.h"
#include "platform/RuntimeError.h"
#include "support/ReplacedPorts.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

using Names = std::vector<std::string>;

class DomainList : public testing::Test {
 protected:
  DomainList() { Console.SetLab("Lab", "TimeoutMs", "1"); }

  void UseDirectory() { Main.DirectoryApi = Console.Ports.CreateDirectoryApi(); }
  const Names& Fill(modMain& main, const std::string& domain) {
    main.SaveSetting("DefaultDomain", domain);
    Box.AddItem("left over");
    FillDomainList(main, Box);
    return Box.All();
  }

  TestConsole Console;
  modMain& Main = Console.App.State();
  ui::Form Form{Console.Host, "frmTest"};
  ui::ComboBox Box{Form, "lstDomain"};
};

TEST_F(DomainList, HoldsThePrimaryDomainAndThoseItTrusts) {
  const struct {
    const char* Default;
    Names WithDirectory, OnVersion4;
  } cases[] = {
      {"MERIDIAN", {"MERIDIAN", "HARBOR", "DEPOT"}, {"MERIDIAN", "HARBOR", "DEPOT"}},
      // The primary domain comes as its controller writes it; the other system only knows what was entered.
      {"harbor", {"HARBOR", "MERIDIAN"}, {"harbor", "MERIDIAN"}},
      // Without a controller the server's name is `\\` alone, which no computer answers to, this one included.
      {"FIELDLAB", {"FIELDLAB"}, {"FIELDLAB"}},
  };
  for (const auto& c : cases) {
    Main.DirectoryApi.reset();
    EXPECT_EQ(c.OnVersion4, Fill(Main, c.Default));
    UseDirectory();
    EXPECT_EQ(c.WithDirectory, Fill(Main, c.Default));
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
  const struct {
    const char *Default, *Controller, *Server;
    Names Trusts;
    const char* Chosen;
    Names List;
  } cases[] = {{"BETA", "DC9", "\\\\DC9", {"beta", "BETA"}, "BETA", {"ALPHA", "beta", "BETA"}},
               {"Beta", "\\\\DC9", "\\\\DC9", {"beta"}, "ALPHA", {"ALPHA", "beta"}},
               {"GONE", "fail", "\\\\", {}, "ALPHA", {"ALPHA"}},
               {"GAMMA", "DC9", "\\\\DC9", {"fail", "GAMMA"}, "GAMMA", {"ALPHA", "", "GAMMA"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Default);
    auto* told = new ToldDirectory;
    Main.DirectoryApi.reset(told);
    told->Controller = c.Controller;
    told->Trusts = c.Trusts;
    EXPECT_EQ(c.List, Fill(Main, c.Default));
    EXPECT_EQ(c.Chosen, Box.Text());
    EXPECT_EQ(std::set<std::string>{c.Server}, told->Servers);
  }
}

TEST_F(DomainList, NamesControllersWithAndWithoutBackslashes) {
  EXPECT_EQ("\\\\MERDC01 \\\\MERDC01", DomainControllerName(Main, "MERIDIAN") + " " + FlatDomainName(Main, "MERIDIAN"));
  EXPECT_EQ("", DomainControllerName(Main, "FIELDLAB"));
  UseDirectory();
  EXPECT_EQ("\\\\MERDC01 MERDC01", DomainControllerName(Main, "MERIDIAN") + " " + FlatDomainName(Main, "MERIDIAN"));
  EXPECT_EQ("", FlatDomainName(Main, "FIELDLAB"));
}

TEST_F(DomainList, CutsEveryTrustOfAnOldController) {
  ToldNetX net;
  Platform ports = Replace(Console.Ports, {.NetX = &net});
  modMain main(ports);
  net.Servers = {{false, "PDC"}, {false, "PDC"}, {false, ""}};
  net.Trusts = {{true, "EAST#"}, {true, "WEST#"}, {false, "LAST#"}};
  EXPECT_EQ((Names{"HOME", "EAST", "WEST", "LAST"}), Fill(main, "HOME"));
  EXPECT_EQ("HOME 8 1; \\\\PDC 1; \\\\PDC 0; \\\\PDC 0; ", net.Asked);
  EXPECT_EQ(2, Console.Host.EventsServed);
  net.Trusts = {{true, "EAST#"}, {false, ""}, {true, "NOT ASKED#"}};
  EXPECT_EQ((Names{"HOME", "EAST"}), Fill(main, "HOME"));
  EXPECT_EQ(Names{"HOME"}, Fill(main, "HOME"));
}

TEST_F(DomainList, EndsWithTheDomainsOfTheDatabaseInCapitals) {
  Main.InitGlobals();
  OpenConfigDatabase(Main);
  Console.Rows(
      "INSERT INTO RegisteredServers VALUES ('A1', 'Meridian', 'A', 1, 0, 0, 0, 0), ('A2', 'north', 'A', 1, 0, 1, 0, "
      "0),"
      "('A3', 'NORTH', 'A', 1, 0, 0, 0, 0), ('A4', 'CUSTOM: Lab', 'A', 1, 0, 0, 0, 0)");
  for (const char* entry : {"MERIDIAN", "custom: shed"}) Box.AddItem(entry);
  AddDatabaseDomains(Main, Box);
  Names added(Box.All().begin() + 2, Box.All().end());
  std::sort(added.begin(), added.end());
  EXPECT_EQ((Names{"CUSTOM: LAB", "NORTH"}), added);
  AddDatabaseDomains(Main, Box);
  EXPECT_EQ(4, Box.Count());
  EXPECT_EQ(ObjectState::Closed, Main.SharedRecordset->State());
  Console.Data.FailAfter(0, "RegisteredServers");
  AddDatabaseDomains(Main, Box);
  EXPECT_EQ(4, Box.Count());
}

}  // namespace
}  // namespace corvane::test
