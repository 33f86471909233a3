#include <gtest/gtest.h>
#include <unistd.h>

#include <functional>

#include "adapters/linux/HostPaths.h"
#include "adapters/linux/LinuxFiles.h"
#include "platform/RuntimeError.h"
#include "support/TempFolder.h"

namespace corvane {
namespace {

namespace fs = std::filesystem;

class FilesTest : public testing::Test {
 protected:
  // The number of the error that the work raises, 0 for none.
  static int ErrorOf(const std::function<void()>& work) {
    try {
      work();
    } catch (const RuntimeError& error) {
      return error.Number;
    }
    return 0;
  }

  std::string Lines(const std::string& path) {
    std::string all, line;
    for (auto reader = Files.OpenForInput(path); reader->ReadLine(line);) all += "[" + line + "]";
    return all;
  }

  test::TempFolder Folder;
  HostPaths Paths{Folder.Path()};
  LinuxFiles Files{Paths};
};

TEST_F(FilesTest, PathsOfTheConsoleFindTheirPlaceWithoutRegardToCase) {
  fs::create_directories(Folder.Path() / "AgentConfigs");
  Folder.Write("AgentConfigs/Server1.INI", "");
  Folder.Write("both.txt", "");
  Folder.Write("BOTH.txt", "");
  Folder.Write("M\u00DCller.ini", "");
  const std::string here = Folder.Path().string();
  const std::pair<std::string, fs::path> cases[] = {
      {R"(C:\Corvane)", here},
      {R"(c:\CORVANE\agentconfigs\SERVER1.ini)", here + "/AgentConfigs/Server1.INI"},
      {R"(C:\Corvane\agentconfigs\New.ini)", here + "/AgentConfigs/New.ini"},
      {R"(C:\Corvane\nowhere\Server1.INI)", here + "/nowhere/Server1.INI"},
      {R"(C:\Corvane\both.txt)", here + "/both.txt"},
      {R"(C:\Corvane\Both.txt)", here + "/BOTH.txt"},
      {"C:\\Corvane\\m\u00FCller.INI", here + "/M\u00DCller.ini"},
      {here + R"(\AGENTCONFIGS/server1.ini)", here + "/AgentConfigs/Server1.INI"},
      {R"(C:\CorvaneData\x.txt)", "C:/CorvaneData/x.txt"},
  };
  for (const auto& [path, place] : cases) EXPECT_EQ(Paths(path), place) << path;
}

TEST_F(FilesTest, LinesEndInEachOfThreeWays) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"a", "[a]"},
      {"a\r\nb\nc\rd\r\n", "[a][b][c][d]"},
      {"\r\n\r\n\n", "[][][]"},
      {std::string(65535, 'x') + "\r\ny", "[" + std::string(65535, 'x') + "][y]"},
  };
  for (const auto& [bytes, lines] : cases) {
    Files.Write(R"(C:\Corvane\lines.txt)", bytes);
    EXPECT_EQ(Lines(R"(C:\Corvane\LINES.txt)"), lines);
    EXPECT_EQ(Files.Length(R"(C:\Corvane\Lines.txt)"), bytes.size());
  }
}

TEST_F(FilesTest, AWriteReplacesTheFileOfAnyCaseAndDeleteTakesIt) {
  Folder.Write("Out.dat", "a longer text");
  Files.Write(R"(C:\Corvane\OUT.DAT)", "x");
  EXPECT_EQ(Folder.Read("Out.dat"), "x");
  Files.Delete(R"(C:\Corvane\out.dat)");
  EXPECT_TRUE(fs::is_empty(Folder.Path()));
}

TEST_F(FilesTest, FailuresBearTheNumbersOfTheProduct) {
  fs::create_directory(Folder.Path() / "folder");
  const std::string missing = R"(C:\Corvane\missing.txt)", nowhere = R"(C:\Corvane\none\x.txt)",
                    folder = R"(C:\Corvane\folder)";
  EXPECT_EQ(ErrorOf([&] { Files.OpenForInput(missing); }), errors::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { Files.Length(missing); }), errors::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { Files.Delete(missing); }), errors::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { Files.OpenForInput(nowhere); }), errors::PathNotFound);
  EXPECT_EQ(ErrorOf([&] { Files.Write(nowhere, "x"); }), errors::PathNotFound);
  EXPECT_EQ(ErrorOf([&] { Files.OpenForInput(folder); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { Files.Write(folder, "x"); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { Files.Delete(folder); }), errors::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { Files.Length(folder); }), errors::FileNotFound);
  EXPECT_EQ(ErrorOf([&] { Files.Write("/dev/full", "x"); }), errors::DiskFull);
}

TEST_F(FilesTest, AFileOfAnotherUserIsPermissionDenied) {
  fs::permissions(Folder.Write("secret.txt", "x"), fs::perms::none);
  fs::permissions(Folder.Path(), fs::perms::owner_all | fs::perms::others_exec | fs::perms::others_read);
  // Nothing is denied to root, so the test becomes another user for a moment.
  const bool root = ::geteuid() == 0;
  ASSERT_EQ(root ? ::seteuid(65534) : 0, 0);
  const int reading = ErrorOf([&] { Files.OpenForInput(R"(C:\Corvane\secret.txt)"); });
  const int writing = ErrorOf([&] { Files.Write(R"(C:\Corvane\secret.txt)", "y"); });
  const int making = root ? ErrorOf([&] { Files.Write(R"(C:\Corvane\new.txt)", "y"); }) : errors::PermissionDenied;
  ASSERT_EQ(root ? ::seteuid(0) : 0, 0);
  EXPECT_EQ(reading, errors::PermissionDenied);
  EXPECT_EQ(writing, errors::PermissionDenied);
  EXPECT_EQ(making, errors::PermissionDenied);
}

}  // namespace
}  // namespace corvane
