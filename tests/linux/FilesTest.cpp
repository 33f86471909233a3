#include <gtest/gtest.h>

#include "adapters/linux/HostPaths.h"
#include "adapters/linux/LinuxFiles.h"
#include "support/Cases.h"
#include "support/ChildProcess.h"
#include "support/ErrorOf.h"
#include "support/TempFolder.h"

namespace corvane::test {

namespace fs = std::filesystem;

class FilesTest : public testing::Test {
 protected:
  TempFolder Folder;
  HostPaths Paths{Folder.Path()};
  LinuxFiles Files{Paths};
};

TEST_F(FilesTest, PathsOfTheConsoleFindTheirPlaceWithoutRegardToCase) {
  fs::create_directories(Folder.Path() / "AgentConfigs");
  for (const char* name : {"AgentConfigs/Server1.INI", "both.txt", "BOTH.txt", "M\u00DCller.ini"})
    Folder.Write(name, "");
  for (const auto& one : Cases("linux/Paths.txt", {{"here", Folder.Path().string()}}))
    EXPECT_EQ(Paths(one[0]), one[1]) << one[0];
}

TEST_F(FilesTest, LinesEndInEachOfThreeWays) {
  // The longest comes first, so that each write has to replace a longer file.
  const std::pair<std::string, std::string> cases[] = {
      {std::string(65535, 'x') + "\r\ny", "[" + std::string(65535, 'x') + "][y]"},
      {"a\r\nb\nc\rd\r\n", "[a][b][c][d]"},
      {"\r\n\r\n\n", "[][][]"},
      {"", ""},
  };
  for (const auto& [bytes, lines] : cases) {
    std::string all, line;
    Files.Write(R"(C:\Corvane\lines.TXT)", bytes);
    for (auto reader = Files.OpenForInput(R"(C:\Corvane\LINES.txt)"); reader->ReadLine(line);) all += "[" + line + "]";
    EXPECT_EQ(all, lines);
    EXPECT_EQ(Files.Length(R"(C:\Corvane\lines.txt)"), bytes.size());
  }
  Files.Delete(R"(C:\Corvane\LINES.TXT)");
  EXPECT_TRUE(fs::is_empty(Folder.Path()));
}

TEST_F(FilesTest, FailuresBearTheNumbersOfTheProduct) {
  fs::create_directory(Folder.Path() / "folder");
  const struct {
    std::string Path;
    int Reading, Measuring, Deleting, Writing;
  } cases[] = {{R"(C:\Corvane\missing.txt)", 53, 53, 53, 0},
               {R"(C:\Corvane\none\x.txt)", 76, 76, 76, 76},
               {R"(C:\Corvane\folder)", 75, 53, 75, 75}};
  for (const auto& c : cases) {
    EXPECT_EQ(ErrorOf([&] { Files.OpenForInput(c.Path); }), c.Reading) << c.Path;
    EXPECT_EQ(ErrorOf([&] { Files.Length(c.Path); }), c.Measuring) << c.Path;
    EXPECT_EQ(ErrorOf([&] { Files.Delete(c.Path); }), c.Deleting) << c.Path;
    EXPECT_EQ(ErrorOf([&] { Files.Write(c.Path, "x"); }), c.Writing) << c.Path;
  }
  EXPECT_EQ(ErrorOf([&] { Files.Write("/dev/full", "x"); }), errors::DiskFull);
  fs::permissions(Folder.Write("secret.txt", "x"), fs::perms::none);
  fs::permissions(Folder.Path(), fs::perms::owner_all | fs::perms::others_exec);
  const ChildProcess other([&](ChildProcess& self) {
    ChildProcess::BecomeNobody();
    self.Tell(ErrorOf([&] { Files.OpenForInput(R"(C:\Corvane\secret.txt)"); }));
    Files.Write(R"(C:\Corvane\secret.txt)", "y");
  });
  EXPECT_EQ(other.Hear(), errors::PermissionDenied);
  EXPECT_EQ(other.Hear(), errors::PermissionDenied);
}

}  // namespace corvane::test
