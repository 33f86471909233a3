#include <sys/wait.h>
#include <unistd.h>

#include <set>
#include <thread>

#include "adapters/lab/LabPing.h"
#include "adapters/lab/LabReader.h"
#include "adapters/lab/LabSystem.h"
#include "lab/LabFixture.h"

namespace corvane {
namespace {

using LabNetworkTest = test::LabFixture;

TEST_F(LabNetworkTest, ComputersAnswerRefuseOrStaySilentEachInItsTime) {
  struct Case {
    const char* Name;
    long Status;
    int Wait;
    std::string Registry;
  };
  const std::string folder = Folder.Path().string();
  const Case cases[] = {
      {"DC1", 0, 70, folder + "/registry/DC1.reg"},
      {R"(\\dc1)", 0, 70, folder + "/registry/DC1.reg"},
      {"dc1.NORTH.example", 0, 70, folder + "/registry/DC1.reg"},
      {"192.0.2.2", 0, 70, folder + "/registry/DC1.reg"},
      {"", 0, 0, folder + "/own.reg"},
      {R"(\\DESK)", 0, 0, folder + "/own.reg"},
      {"WEB", 5, 0, ""},
      {"DC0", 53, 500, ""},
      {"NOBODY", 53, 500, ""},
      {R"(\\)", 53, 500, ""},
      {"sdc.north.example", 53, 500, ""},
  };
  for (const Case& c : cases) {
    std::filesystem::path file;
    EXPECT_EQ(WaitOf([&] { EXPECT_EQ(Network.RemoteRegistry(c.Name, file), c.Status) << c.Name; }), c.Wait) << c.Name;
    EXPECT_EQ(file, c.Registry) << c.Name;
  }
}

TEST_F(LabNetworkTest, PingTellsSilenceFromAnUnknownName) {
  LabPing ping(Network);
  EXPECT_EQ(WaitOf([&] { EXPECT_EQ(ping.Send("DC1").Address, "192.0.2.2"); }), 70);
  EXPECT_EQ(ping.Send(R"(\\dc1)").Milliseconds, 70);
  EXPECT_EQ(ping.Send("WEB").Address, "192.0.2.4") << "a refusing computer is on the network";
  for (const char* silent : {"DC0", "TOOL", "192.0.2.7"})
    EXPECT_EQ(WaitOf([&] { EXPECT_EQ(ping.Send(silent).Address, "") << silent; }), 500);
  for (const char* unknown : {"NOBODY", ""}) EXPECT_EQ(ErrorOf([&] { ping.Send(unknown); }).substr(0, 3), "440");
}

TEST_F(LabNetworkTest, ThePlayedSystemIsThatOfTheLocalComputer) {
  struct Machine : System {
    int MajorVersion() override { return 9; }
    std::optional<std::string> ComputerName() override { return "HOST"; }
    std::optional<std::string> UserName() override { return "root"; }
    std::string ProgramFolder() override { return "P"; }
    std::string WindowsFolder() override { return "W"; }
    DateTime Now() override { return MakeDateTime(2026, 3, 4); }
  } machine;
  LabSystem system(Network, machine);
  EXPECT_EQ(system.MajorVersion(), 6);
  EXPECT_EQ(system.ComputerName(), "DESK");
  EXPECT_EQ(system.UserName(), "ann");
  EXPECT_EQ(system.ProgramFolder() + system.WindowsFolder(), "PW");
  EXPECT_EQ(system.Now(), MakeDateTime(2026, 3, 4));
  Network.Change([](const LabModel&, LabFile& file) {
    file.Set("lab", "localcomputer", "SDC");
    file.Set("Lab", "User", "");
    return true;
  });
  EXPECT_EQ(system.MajorVersion(), 4);
  EXPECT_EQ(system.UserName(), std::nullopt);
}

TEST_F(LabNetworkTest, AChangeTouchesItsLineAlone) {
  Network.Change([](const LabModel&, LabFile& file) {
    file.Set("Computer WEB", "State", "on");
    file.Set("Service Watcher", "Refuses", "control");
    return true;
  });
  std::string expected = Text;
  expected.replace(expected.find("State = refusing"), 16, "State = on");
  expected.insert(expected.find("[Service Bridge]"), "Refuses = control\n");
  EXPECT_EQ(Folder.Read("lab.ini"), expected);
  EXPECT_FALSE(Network.Change([](const LabModel&, LabFile& file) {
    file.Set("Computer WEB", "State", "off");
    return false;
  }));
  EXPECT_EQ(Folder.Read("lab.ini"), expected);
}

TEST_F(LabNetworkTest, AHandEditIsSeenAndADamagedFileIsAnErrorUntilItIsMended) {
  Folder.Write("lab.ini", std::string(Text) + "[Computer LATE]\nDomain = SHED\nSystem = old\nAddress = 192.0.2.9\n");
  EXPECT_NE(Network.Model()->FindComputer("LATE"), nullptr);
  Folder.Write("lab.ini", "[Computer]\n");
  EXPECT_NE(ErrorOf([&] { Network.Model(); }), "");
  EXPECT_NE(ErrorOf([&] { Network.Model(); }), "");
  std::filesystem::remove(File);
  EXPECT_EQ(ErrorOf([&] { Network.Model(); }).substr(0, 2), "53");
  Folder.Write("lab.ini", Text);
  EXPECT_EQ(Network.Model()->Computers.size(), 8u);
}

TEST_F(LabNetworkTest, MistakesInTheFileAreToldWithTheirLine) {
  // Each replaces a text of the good file; the message names the line and what is wrong there.
  struct Case {
    std::string Old, New, Message;
  };
  const Case cases[] = {
      {"; kept", "kept", "Line 1 of the lab file: neither a section nor a value"},
      {"[Lab]", "[Lobby]", "Line 2 of the lab file: Lobby is no kind of section"},
      {"TimeoutMs = 500", "TimeoutMs = -1", "Line 5 of the lab file: \"-1\" cannot be TimeoutMs"},
      {"TimeoutMs = 500", "TimeoutMs = 5x", "\"5x\" cannot be TimeoutMs"},
      {"User = ann", "user = a\nUser = b", "Line 5 of the lab file: User stands twice"},
      {"Version = 4.0", "Version = 4", "\"4\" cannot be Version"},
      {"State = off", "Sate = off", "Sate is not known here"},
      {"State = off", "State = asleep", "\"asleep\" cannot be State"},
      {"count 50", "many 50", "cannot be Log Application"},
      {"size 20480", "size 4194304", "cannot be Log Application"},
      {"[Computer DESK]", "[Computer dc1]", "dc1 stands twice"},
      {"Domain = SHED", "Domain = HUT", "its domain stands nowhere"},
      {"Unit = Servers/Web", "Unit = Web", "its unit stands nowhere"},
      {"System = new", "System = newer", "its system stands nowhere"},
      {"Trusts = NORTH", "Trusts = WEST", "Line 16 of the lab file: WEST stands nowhere"},
      {"LocalComputer = desk", "LocalComputer = chair", "the local computer stands nowhere"},
      {"Address = 192.0.2.7", "Role = controller\nAddress = 192.0.2.7", "a workgroup has no controller"},
      {"[Workgroup SHED]", "[Workgroup SHED]\nDns = x", "Dns is not known here"},
  };
  for (const Case& c : cases) {
    std::string text = Text;
    text.replace(text.find(c.Old), c.Old.size(), c.New);
    const std::string error = ErrorOf([&] { ReadLabModel(LabFile(text)); });
    EXPECT_EQ(error.substr(0, 4), "380 ") << c.New;
    EXPECT_NE(error.find(c.Message), std::string::npos) << c.New << ": " << error;
  }
}

TEST_F(LabNetworkTest, TwoProcessesLoseNoChangeOfEachOther) {
  constexpr int Rounds = 60;
  const auto add = [this](const std::string& section) {
    LabNetwork own(File);
    for (int i = 0; i < Rounds; ++i)
      own.Change([&](const LabModel& model, LabFile& file) {
        file.Set("Service " + section, "StartMs", std::to_string(model.FindService(section)->StartMs + 1));
        return true;
      });
  };
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    add("Bridge");
    ::_exit(0);
  }
  // Meanwhile a reader never meets a half-written file.
  std::jthread writer([&] { add("Watcher"); });
  while (::waitpid(child, nullptr, WNOHANG) == 0) Network.Model();
  writer.join();
  EXPECT_EQ(Network.Model()->FindService("Bridge")->StartMs, Rounds);
  EXPECT_EQ(Network.Model()->FindService("Watcher")->StartMs, 100 + Rounds);
}

TEST(ShippedLabTest, TheNetworkHoldsEveryKindOfComputer) {
  const std::shared_ptr<const LabModel> model = LabNetwork(CORVANE_SOURCE_DIR "/data/lab.ini").Model();
  EXPECT_EQ(model->Computers.size(), 60u);
  std::set<int> versions;
  std::set<LabState> states;
  std::set<std::string> addresses;
  bool slow = false, wrapped = false, empty = false, withoutFile = false;
  for (const LabComputer& computer : model->Computers) {
    EXPECT_LE(computer.Name.size(), 15u) << computer.Name;
    EXPECT_TRUE(addresses.insert(computer.Address).second) << computer.Name;
    EXPECT_FALSE(computer.Product.empty());
    versions.insert(computer.Major * 10 + computer.Minor);
    states.insert(computer.State);
    slow = slow || computer.DelayMs >= 500;
    for (const LabLog& log : computer.Logs) {
      wrapped = wrapped || log.Oldest > 1;
      empty = empty || (log.Oldest == 0 && log.Count == 0);
      withoutFile = withoutFile || log.File.empty();
    }
  }
  EXPECT_EQ(versions, (std::set<int>{40, 50, 52, 60}));
  EXPECT_EQ(states.size(), 3u);
  EXPECT_TRUE(slow && wrapped && empty && withoutFile);
  int trusting = 0, workgroups = 0;
  for (const LabDomain& domain : model->Domains) {
    trusting += !domain.Trusts.empty();
    workgroups += domain.IsWorkgroup;
    EXPECT_EQ(model->FindController(domain.Name) == nullptr, domain.IsWorkgroup) << domain.Name;
  }
  EXPECT_GE(trusting, 2);
  EXPECT_EQ(workgroups, 1);
  EXPECT_EQ(model->FindComputer("")->State, LabState::On);
  for (const char* name : {"Corvane Service", "CVSyslogBridge"}) EXPECT_NE(model->FindService(name), nullptr);
}

}  // namespace
}  // namespace corvane
