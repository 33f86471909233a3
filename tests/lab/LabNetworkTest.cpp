#include "adapters/lab/LabNetX.h"
#include "adapters/lab/LabPing.h"
#include "adapters/lab/LabReader.h"
#include "adapters/lab/LabSystem.h"
#include "adapters/linux/LinuxSystem.h"
#include "lab/LabFixture.h"
#include "support/ChildProcess.h"

namespace corvane {
namespace {

using test::ErrorOf;
using LabNetworkTest = test::LabFixture;

TEST_F(LabNetworkTest, ComputersAnswerRefuseOrStaySilentEachInItsTime) {
  const struct {
    std::string Name;
    long Status;
    int Wait;
    std::string Registry, Ping;
    int Version;
  } cases[] = {
      {R"(\\dc1)", 0, 70, "registry/DC1.reg", "192.0.2.2", 61},
      {"dc1.NORTH.example", 0, 70, "registry/DC1.reg", "192.0.2.2", 61},
      {"192.0.2.2", 0, 70, "registry/DC1.reg", "192.0.2.2", 61},
      {"", 0, 0, "own.reg", "unknown", 61},
      {R"(\\DESK)", 0, 0, "own.reg", "192.0.2.3", 61},
      {"TOOL", 0, 0, "registry/TOOL.reg", "", 40},
      {"WEB", 5, 0, "", "192.0.2.4", 0},
      {"DC0", 53, 500, "", "", 0},
      {"sdc.north.example", 53, 500, "", "unknown", 0},
      {R"(\\)", 53, 500, "", "unknown", 0},
  };
  LabPing ping(Network);
  LabNetX net(Network);
  for (const auto& c : cases) {
    std::filesystem::path file;
    std::string address;
    int major = 7, minor = 7;
    const std::int64_t before = Clock;
    EXPECT_EQ(Network.RemoteRegistry(c.Name, file), c.Status) << c.Name;
    EXPECT_EQ(Clock - before, c.Wait) << c.Name;
    EXPECT_EQ(file, c.Status == 0 ? Folder.Path() / c.Registry : "") << c.Name;
    if (ErrorOf([&] { address = ping.Send(c.Name).Address; }) == errors::AutomationError) address = "unknown";
    EXPECT_EQ(address, c.Ping) << c.Name;
    EXPECT_EQ(net.QueryOSVersion(c.Name, major, minor), c.Status == 0) << c.Name;
    EXPECT_EQ(major * 10 + minor, c.Version) << c.Name;
  }
  EXPECT_EQ(ping.Send("DC1").Milliseconds, 70);
}

TEST_F(LabNetworkTest, AHandEditIsSeenAndADamagedFileIsAnErrorUntilItIsMended) {
  LinuxSystem machine;
  LabSystem system(Network, machine);
  Text.replace(Text.find("desk\nUser = ann"), 15, "SDC\nUser =");
  Folder.Write("lab.ini", Text);
  EXPECT_EQ(system.MajorVersion(), 4);
  EXPECT_EQ(system.UserName(), std::nullopt);
  Folder.Write("lab.ini", "[Computer]\n");
  for (int i = 0; i < 2; ++i) EXPECT_EQ(ErrorOf([&] { Network.Model(); }), errors::InvalidPropertyValue);
  std::filesystem::remove(File);
  EXPECT_EQ(ErrorOf([&] { Network.Model(); }), errors::FileNotFound);
  Folder.Write("lab.ini", Text);
  EXPECT_EQ(system.ComputerName(), "SDC");
}

TEST_F(LabNetworkTest, MistakesInTheFileAreToldWithTheirLine) {
  // Each replaces a text of the good file; the message names the line and what is wrong there.
  const struct {
    std::string Old, New, Message;
  } cases[] = {
      {"; kept", "kept", "Line 1 of the lab file: neither a section nor a value"},
      {"[Lab]", "[Lobby]", "Line 2 of the lab file: Lobby is no kind of section"},
      {"TimeoutMs = 500", "TimeoutMs = 5x", "Line 5 of the lab file: \"5x\" cannot be TimeoutMs"},
      {"User = ann", "user = a\nUser = b", "Line 5 of the lab file: User stands twice"},
      {"State = off", "Sate = off", "Sate is not known here"},
      {"State = off", "State = asleep", "\"asleep\" cannot be State"},
      {"size 20480", "size 4194304", "cannot be Log Application"},
      {"[Computer DESK]", "[Computer dc1]", "dc1 stands twice"},
      {"Domain = SHED", "Domain = HUT", "its domain stands nowhere"},
      {"Unit = Servers/Web", "Unit = Web", "its unit stands nowhere"},
      {"System = new", "System = newer", "its system stands nowhere"},
      {"Trusts = NORTH", "Trusts = WEST", "Line 17 of the lab file: WEST stands nowhere"},
      {"LocalComputer = desk", "LocalComputer = chair", "the local computer stands nowhere"},
      {"Role = controller\nState = off", "Role = controller\nAccounts = x", "a controller has no accounts of its own"},
      {"StopMs = 40", "Logon = maybe", "\"maybe\" cannot be Logon"},
      {"Address = 192.0.2.7", "Role = controller\nAddress = 192.0.2.7", "a workgroup has no controller"},
  };
  for (const auto& [old, changed, message] : cases) {
    std::string text = Text, why;
    text.replace(text.find(old), old.size(), changed);
    EXPECT_EQ(ErrorOf([&] { ReadLabModel(LabFile(text)); }, &why), errors::InvalidPropertyValue) << changed;
    EXPECT_NE(why.find(message), why.npos) << changed << ": " << why;
  }
}

TEST_F(LabNetworkTest, TwoProcessesLoseNoChangeOfEachOtherAndReadNothingHalfWritten) {
  constexpr int Rounds = 60;
  const auto work = [this] {
    LabNetwork own(File);
    for (int i = 0; i < Rounds; ++i) {
      own.Model();
      own.Change([](const LabModel& model, LabFile& file) {
        file.Set("Service Watcher", "StartMs", std::to_string(model.FindService("Watcher")->StartMs + 1));
        return true;
      });
    }
  };
  test::ChildProcess other([&](test::ChildProcess&) { work(); });
  work();
  EXPECT_EQ(other.Hear(), 0);
  EXPECT_EQ(Network.Model()->FindService("Watcher")->StartMs, 100 + 2 * Rounds);
}

}  // namespace
}  // namespace corvane
