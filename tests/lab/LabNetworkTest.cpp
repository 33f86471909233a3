#include "adapters/lab/LabNetX.h"
#include "adapters/lab/LabPing.h"
#include "adapters/lab/LabReader.h"
#include "adapters/lab/LabSystem.h"
#include "adapters/linux/LinuxSystem.h"
#include "lab/LabFixture.h"
#include "support/Cases.h"
#include "support/ChildProcess.h"

namespace corvane::test {

using LabNetworkTest = LabFixture;

TEST_F(LabNetworkTest, ComputersAnswerRefuseOrStaySilentEachInItsTime) {
  LabPing ping(Network);
  LabNetX net(Network);
  for (const auto& one : Cases("lab/Computers.txt")) {
    const std::string& name = one[0];
    const long status = std::stol(one[1]);
    std::filesystem::path file;
    std::string address;
    int major = 7, minor = 7;
    const std::int64_t before = Clock;
    EXPECT_EQ(Network.RemoteRegistry(name, file), status) << name;
    EXPECT_EQ(std::to_string(Clock - before), one[2]) << name;
    EXPECT_EQ(file, status == 0 ? Folder.Path() / one[3] : "") << name;
    if (ErrorOf([&] { address = ping.Send(name).Address; }) == errors::AutomationError) address = "unknown";
    EXPECT_EQ(address, one[4]) << name;
    EXPECT_EQ(net.QueryOSVersion(name, major, minor), status == 0) << name;
    EXPECT_EQ(std::to_string(major * 10 + minor), one[5]) << name;
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
  for (const auto& one : Cases("lab/Mistakes.txt")) {
    std::string text = Text, why;
    text.replace(text.find(one[0]), one[0].size(), one[1]);
    EXPECT_EQ(ErrorOf([&] { ReadLabModel(LabFile(text)); }, &why), errors::InvalidPropertyValue) << one[1];
    EXPECT_NE(why.find(one[2]), why.npos) << one[1] << ": " << why;
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
  ChildProcess other([&](ChildProcess&) { work(); });
  work();
  EXPECT_EQ(other.Hear(), 0);
  EXPECT_EQ(Network.Model()->FindService("Watcher")->StartMs, 100 + 2 * Rounds);
}

}  // namespace corvane::test
