#include "domains/DomainList.h"

#include <gtest/gtest.h>

#include <deque>

#include "core/ConfigDatabase.h"
#include "core/modMain.h"
#include "platform/NetX.h"
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
  struct {
    const char* Default;
    Names WithDirectory, OnVersion4;
  } const cases[] = {
      {"MERIDIAN", {"MERIDIAN", "HARBOR", "DEPOT"}, {"MERIDIAN", "HARBOR", "DEPOT"}},
      {"DEPOT", {"DEPOT", "MERIDIAN"}, {"DEPOT", "MERIDIAN"}},
      // The primary domain comes as its controller writes it; the other system only knows what was entered.
      {"harbor", {"HARBOR", "MERIDIAN"}, {"harbor", "MERIDIAN"}},
      // Without a controller the server's name is `\\` alone, which no computer answers to, this one included.
      {"FIELDLAB", {"FIELDLAB"}, {"FIELDLAB"}},
      {"NOWHERE", {"NOWHERE"}, {"NOWHERE"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Default);
    Main.DirectoryApi.reset();
    EXPECT_EQ(c.OnVersion4, Fill(Main, c.Default));
    UseDirectory();
    EXPECT_EQ(c.WithDirectory, Fill(Main, c.Default));
    EXPECT_EQ(0, Box.ListIndex());
  }
}

// A directory that answers as told and notes which servers it was asked about.
class ToldDirectory : public DirectoryApi {
 public:
  std::string DsGetFlatDCName(const std::string&) override { return Raised(Controller); }
  std::string DsGetDomainTrustInfo(const std::string& server, int flags, int index) override {
    Servers.push_back(server);
    return Raised(flags == PrimaryDomain ? "ALPHA" : Trusts.at(static_cast<std::size_t>(index - 1)));
  }
  int DsGetNumberOfTrusts(const std::string&, int) override {
    Raised(Trusts.empty() ? "fail" : "");
    return static_cast<int>(Trusts.size());
  }

  std::string Controller = "DC9";
  Names Trusts;
  Names Servers;

 private:
  static std::string Raised(const std::string& answer) {
    if (answer == "fail") throw RuntimeError(errors::AutomationError, "Automation error");
    return answer;
  }
};

TEST_F(DomainList, ChoosesTheDefaultDomainByItsExactTextElseTheFirst) {
  struct {
    const char *Default, *Controller;
    Names Trusts, List;
    int Chosen;
    const char* Server;
  } const cases[] = {
      {"BETA", "DC9", {"beta", "BETA"}, {"ALPHA", "beta", "BETA"}, 2, "\\\\DC9"},
      {"Beta", "\\\\DC9", {"beta", "BETA"}, {"ALPHA", "beta", "BETA"}, 0, "\\\\DC9"},
      {"GONE", "fail", {}, {"ALPHA"}, 0, "\\\\"},
      {"GAMMA", "DC9", {"fail", "GAMMA"}, {"ALPHA", "", "GAMMA"}, 2, "\\\\DC9"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Default);
    auto directory = std::make_unique<ToldDirectory>();
    ToldDirectory& told = *directory;
    Main.DirectoryApi = std::move(directory);
    told.Controller = c.Controller;
    told.Trusts = c.Trusts;
    EXPECT_EQ(c.List, Fill(Main, c.Default));
    EXPECT_EQ(c.Chosen, Box.ListIndex());
    for (const std::string& server : told.Servers) EXPECT_EQ(c.Server, server);
  }
}

TEST_F(DomainList, NamesControllersWithAndWithoutBackslashes) {
  EXPECT_EQ("\\\\MERDC01", DomainControllerName(Main, "MERIDIAN"));
  EXPECT_EQ("\\\\MERDC01", FlatDomainName(Main, "MERIDIAN"));
  EXPECT_EQ("", DomainControllerName(Main, "FIELDLAB"));
  UseDirectory();
  EXPECT_EQ("\\\\MERDC01", DomainControllerName(Main, "meridian.example"));
  EXPECT_EQ("MERDC01", FlatDomainName(Main, "MERIDIAN"));
  EXPECT_EQ("", FlatDomainName(Main, "FIELDLAB"));
}

struct Answer {
  bool More;
  std::string Name;
};

class ToldTrusts : public NetX {
 public:
  bool EnumServers(const std::string&, std::string& name, std::uint32_t, int) override {
    name = Controller.Name;
    return Controller.More;
  }
  bool EnumTrustedDomains(const std::string& controller, std::string& name, int mode) override {
    Asked += controller + " " + std::to_string(mode) + "; ";
    if (Answers.empty()) return false;
    const Answer answer = Answers.front();
    Answers.pop_front();
    // The helper writes no name where it has none.
    if (!answer.Name.empty()) name = answer.Name;
    return answer.More;
  }
  bool QueryOSVersion(const std::string&, int&, int&) override { return false; }

  Answer Controller{false, "PDC"};
  std::deque<Answer> Answers;
  std::string Asked;
};

TEST_F(DomainList, CutsEveryTrustOfAnOldController) {
  ToldTrusts net;
  Platform ports = Replace(Console.Ports, {.NetX = &net});
  modMain main(ports);
  net.Answers = {{true, "EAST#"}, {true, "WEST#"}, {false, "LAST#"}};
  EXPECT_EQ((Names{"HOME", "EAST", "WEST", "LAST"}), Fill(main, "HOME"));
  EXPECT_EQ("\\\\PDC 1; \\\\PDC 0; \\\\PDC 0; ", net.Asked);
  EXPECT_EQ(2, Console.Host.EventsServed);
  net.Answers = {{true, "EAST#"}, {false, ""}};
  EXPECT_EQ((Names{"HOME", "EAST"}), Fill(main, "HOME"));
  net.Controller.Name.clear();
  net.Answers = {{true, "EAST#"}};
  EXPECT_EQ(Names{"HOME"}, Fill(main, "HOME"));
}

TEST_F(DomainList, EndsWithTheDomainsOfTheDatabaseInCapitals) {
  Main.InitGlobals();
  OpenConfigDatabase(Main);
  const auto add = [&](const std::string& key, const std::string& domain, bool marked) {
    Console.Rows("INSERT INTO RegisteredServers VALUES ('" + key + "', '" + domain + "', 'A', 1, 0, " +
                 (marked ? "1" : "0") + ", 0, 0)");
  };
  add("A1", "Meridian", false);
  add("A2", "north", true);
  add("A3", "NORTH", false);
  add("A4", "CUSTOM: Lab", false);
  const Names before{"MERIDIAN", "custom: shed"};
  for (const std::string& entry : before) Box.AddItem(entry);
  AddDatabaseDomains(Main, Box);
  Names added(Box.All().begin() + 2, Box.All().end());
  std::sort(added.begin(), added.end());
  EXPECT_EQ((Names{"CUSTOM: LAB", "NORTH"}), added);
  EXPECT_EQ(ObjectState::Closed, Main.SharedRecordset->State());
  AddDatabaseDomains(Main, Box);
  EXPECT_EQ(4, Box.Count());

  Console.Data.FailAfter(0, "RegisteredServers");
  AddDatabaseDomains(Main, Box);
  EXPECT_EQ(4, Box.Count());
}

}  // namespace
}  // namespace corvane::test
