#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "adapters/linux/CommandLine.h"
#include "adapters/linux/LinuxLauncher.h"
#include "adapters/linux/LinuxSingleInstance.h"
#include "platform/RuntimeError.h"
#include "support/TempFolder.h"

namespace corvane {
namespace {

using Words = std::vector<std::string>;

TEST(CommandLineTest, QuotesAndBackslashesFollowTheRulesOfWindows) {
  const std::pair<std::string, Words> cases[] = {
      {"", {}},
      {"  \t ", {}},
      {R"(browser "http://a b/" c)", {"browser", "http://a b/", "c"}},
      {R"("/opt/My Browser/run" %1)", {"/opt/My Browser/run", "%1"}},
      {R"("C:\Program Files\"x y)", {R"(C:\Program Files\x)", "y"}},
      {R"(p a\\b "c\\d" "e\\" f\\\"g)", {"p", R"(a\\b)", R"(c\\d)", R"(e\)", R"(f\"g)"}},
      {R"(p "say ""yes"" now" "" x""y)", {"p", R"(say "yes" now)", "", "xy"}},
      {R"(p "open end)", {"p", "open end"}},
      {"p 'a b' $(id) `id` ; x", {"p", "'a", "b'", "$(id)", "`id`", ";", "x"}},
  };
  for (const auto& [line, words] : cases) EXPECT_EQ(SplitCommandLine(line), words) << line;
}

// A program that writes the arguments it got, one in a line, and gives them their final name when all are there.
class LauncherTest : public testing::Test {
 protected:
  void SetUp() override {
    Folder.Write("tell",
                 "#!/bin/sh\ncd \"$(dirname \"$0\")\"\nfor a in \"$@\"; do echo \"$a\"; done > new\nmv new told\n");
    std::filesystem::permissions(Folder.Path() / "tell", std::filesystem::perms::owner_all);
  }

  std::string Told() const {
    for (int i = 0; i < 500 && !std::filesystem::exists(Folder.Path() / "told"); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return Folder.Read("told");
  }

  static int ErrorOf(const std::string& commandLine) {
    try {
      LinuxLauncher().Run(commandLine);
    } catch (const RuntimeError& error) {
      return error.Number;
    }
    return 0;
  }

  test::TempFolder Folder;
};

TEST_F(LauncherTest, ArgumentsArriveWholeAndUnread) {
  const std::string program = (Folder.Path() / "tell").string();
  LinuxLauncher().Run('"' + program + R"*(" "http://x/?a=1&b=$(touch oops)" `id` a;b "c ""d""")*");
  EXPECT_EQ(Told(), "http://x/?a=1&b=$(touch oops)\n`id`\na;b\nc \"d\"\n");
  // No child is left to wait for, running or dead.
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST_F(LauncherTest, WhatCannotBeRunIsAnError) {
  const std::string plain = Folder.Write("plain", "text").string();
  EXPECT_EQ(ErrorOf("corvane-no-such-program x"), errors::FileNotFound);
  EXPECT_EQ(ErrorOf((Folder.Path() / "none/at all").string()), errors::FileNotFound);
  EXPECT_EQ(ErrorOf(" "), errors::FileNotFound);
  EXPECT_EQ(ErrorOf("\"\" x"), errors::FileNotFound);
  EXPECT_EQ(ErrorOf(plain), errors::PermissionDenied);
}

TEST_F(LauncherTest, TheLockOfTheInstanceEndsWithItsProcess) {
  int toChild[2], toParent[2];
  ASSERT_EQ(::pipe(toChild), 0);
  ASSERT_EQ(::pipe(toParent), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  char word = 0;
  if (child == 0) {
    ::close(toChild[1]);
    LinuxSingleInstance other(Folder.Path());
    word = other.Acquire() ? 'y' : 'n';
    if (::write(toParent[1], &word, 1) == 1) (void)!::read(toChild[0], &word, 1);
    ::_exit(0);
  }
  ASSERT_EQ(::read(toParent[0], &word, 1), 1);
  EXPECT_EQ(word, 'y');
  LinuxSingleInstance mine(Folder.Path());
  EXPECT_FALSE(mine.Acquire());
  ::close(toChild[1]);
  ::waitpid(child, nullptr, 0);
  EXPECT_TRUE(mine.Acquire());
  EXPECT_TRUE(mine.Acquire());
  EXPECT_FALSE(LinuxSingleInstance(Folder.Path()).Acquire());
  EXPECT_THROW(LinuxSingleInstance(Folder.Path() / "none").Acquire(), RuntimeError);
}

TEST_F(LauncherTest, AStartedProgramDoesNotInheritTheInstanceLock) {
  {
    LinuxSingleInstance mine(Folder.Path());
    ASSERT_TRUE(mine.Acquire());
    LinuxLauncher().Run("sleep 2");
  }
  EXPECT_TRUE(LinuxSingleInstance(Folder.Path()).Acquire());
}

}  // namespace
}  // namespace corvane
