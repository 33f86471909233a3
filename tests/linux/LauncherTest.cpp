#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "adapters/linux/CommandLine.h"
#include "adapters/linux/LinuxLauncher.h"
#include "adapters/linux/LinuxSingleInstance.h"
#include "support/Cases.h"
#include "support/ChildProcess.h"
#include "support/ErrorOf.h"
#include "support/TempFolder.h"

namespace corvane::test {

namespace fs = std::filesystem;

TEST(CommandLineTest, QuotesAndBackslashesFollowTheRulesOfWindows) {
  for (const auto& one : Cases("linux/CommandLines.txt"))
    EXPECT_EQ(SplitCommandLine(one[0]), std::vector<std::string>(one.begin() + 1, one.end())) << one[0];
}

class LauncherTest : public testing::Test {
 protected:
  TempFolder Folder;
  LinuxLauncher Launcher;
};

TEST_F(LauncherTest, ArgumentsArriveWholeAndUnread) {
  // The program writes what it got, one argument in a line, and names the file when all are there.
  const fs::path program = Folder.Write(
      "tell", "#!/bin/sh\ncd \"$(dirname \"$0\")\"\nfor a in \"$@\"; do echo \"$a\"; done > new\nmv new told\n");
  EXPECT_EQ(ErrorOf([&] { Launcher.Run(program.string()); }), errors::PermissionDenied);
  fs::permissions(program, fs::perms::owner_all);
  Launcher.Run('"' + program.string() + R"*(" "http://x/?a=1&b=$(touch oops)" `id` a;b "c ""d""")*");
  for (int i = 0; i < 500 && !fs::exists(Folder.Path() / "told"); ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_EQ(Folder.Read("told"), "http://x/?a=1&b=$(touch oops)\n`id`\na;b\nc \"d\"\n");
  // No child is left to wait for, running or dead.
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
  for (const char* line : {"corvane-no-such-program x", "/corvane-no-such-folder/x", " \t ", "\"\" x"})
    EXPECT_EQ(ErrorOf([&] { Launcher.Run(line); }), errors::FileNotFound) << line;
}

TEST_F(LauncherTest, TheLockOfTheInstanceEndsWithItsProcessAndIsNotInherited) {
  ChildProcess other([&](ChildProcess& self) {
    LinuxSingleInstance own(Folder.Path());
    self.Tell(own.Acquire());
    Launcher.Run("sleep 2");
    self.Tell(0);
    self.Wait();
  });
  EXPECT_EQ(other.Hear() + other.Hear(), 1);
  LinuxSingleInstance mine(Folder.Path());
  EXPECT_FALSE(mine.Acquire());
  other.Kill();
  EXPECT_TRUE(mine.Acquire());
  EXPECT_EQ(ErrorOf([&] { LinuxSingleInstance(Folder.Path() / "none").Acquire(); }), errors::PathNotFound);
}

}  // namespace corvane::test
