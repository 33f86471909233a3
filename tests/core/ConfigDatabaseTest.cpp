#include "core/ConfigDatabase.h"

#include <optional>

#include "adapters/linux/HostPaths.h"
#include "adapters/linux/LinuxFiles.h"
#include "platform/RuntimeError.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/ReplacedPorts.h"

namespace corvane::test {

using Lines = std::vector<std::string>;

class ConfigDatabase : public ConsoleTest {
 protected:
  ConfigDatabase() { Main.InitGlobals(); }
};

TEST_F(ConfigDatabase, OpensWithTheOldProviderAndFallsBackOnTheNewOne) {
  for (const auto& c : Cases("core/Openings.txt")) {
    Console.Rows("PRAGMA user_version = " + c[1]);
    Console.Data.Tried.clear();
    Main.ConfigDbPath = c[0];
    OpenConfigDatabase(Main);
    EXPECT_EQ(Lines(c.begin() + 3, c.end()), Console.Data.Tried) << c[0] << c[1];
    EXPECT_EQ(c[2], Main.ConfigConnection->State() == ObjectState::Open ? "opens" : "stays closed");
    EXPECT_EQ(CursorLocation::Client, Main.ConfigConnection->CursorLocation);
  }
  EXPECT_FALSE(std::filesystem::exists(Console.Folder() / "none.db"));
}

TEST_F(ConfigDatabase, MakesDataFilesButNeverReplacesOne) {
  EXPECT_TRUE(CreateAccessDatabase(Main, "C:\\Corvane\\events.db"));
  const auto connection = Console.Data.NewConnection();
  EXPECT_TRUE(OpenWithJet40(*connection, "C:\\Corvane\\events.db"));
  EXPECT_FALSE(CreateAccessDatabase(Main, "C:\\Corvane\\events.db"));
}

struct UndeletableFiles : LinuxFiles {
  using LinuxFiles::LinuxFiles;
  void Delete(const std::string&) override { throw RuntimeError(errors::PermissionDenied, "Permission denied"); }
};

// The file of statements that brings an older database up to date.
class ConfigUpdate : public ConfigDatabase {
 protected:
  const std::string Class3 = "INSERT INTO OSTypes VALUES (3, 'Newest')";

  // What is in the classes afterwards, whether the file stayed, and whether work done later outlives the connection.
  static std::string Outcome(const std::optional<std::string>& file, bool isOld = true, bool isDeletable = true) {
    TestConsole console;
    UndeletableFiles undeletable{HostPaths(console.Folder())};
    Platform ports = Replace(console.Ports, {.Files = isDeletable ? nullptr : &undeletable});
    modMain main(ports);
    if (isOld) console.Rows("DELETE FROM OSTypes WHERE [Index] = 3");
    const auto place = console.Folder() / "configupdate01.dat";
    std::filesystem::remove(place);
    if (file) std::ofstream(place, std::ios::binary) << *file;
    main.InitGlobals();
    OpenConfigDatabase(main);
    ApplyConfigUpdate(main);
    main.ConfigConnection->Execute("INSERT INTO SyslogDevices VALUES ('later', '10.0.0.1')");
    main.ConfigConnection->Close();
    std::string outcome = console.Rows("SELECT OSName FROM OSTypes WHERE [Index] = 3");
    outcome += std::filesystem::exists(place) ? "stays " : "gone ";
    return outcome + (console.Rows("SELECT * FROM SyslogDevices").empty() ? "lost" : "kept");
  }
};

TEST_F(ConfigUpdate, IsAppliedWholeOrNotAtAll) {
  for (const auto& c : Cases("core/Updates.txt")) EXPECT_EQ(c[1], Outcome(c[0])) << c[0];
  EXPECT_EQ("gone kept", Outcome(std::nullopt));
  EXPECT_EQ("Newest\nstays kept", Outcome(Class3, true, false)) << "a file that cannot be deleted";
}

TEST_F(ConfigUpdate, LeavesTheFileUnreadWhenTheClassIsThereOrCannotBeLookedFor) {
  EXPECT_EQ("Windows Vista/Windows Server 2008\nstays kept", Outcome("no statement at all", false));
  Console.Rows("DELETE FROM OSTypes WHERE [Index] = 3");
  std::ofstream(Console.Folder() / "configupdate01.dat") << Class3;
  OpenConfigDatabase(Main);
  Console.Data.FailAfter(0, "OSTypes");
  ApplyConfigUpdate(Main);
  EXPECT_EQ(Lines{"SELECT * FROM OSTypes WHERE Index=3"}, Console.Data.Statements);
}

TEST_F(ConfigDatabase, StampsEachFieldFromAReadingOfItsOwn) {
  int reading = 0;
  Console.System.Clock = [&] {
    ++reading;
    return MakeDateTime(2000 + reading, reading, reading, reading, reading, reading);
  };
  StampLastDBUpdate(Main);
  EXPECT_EQ("2001-2-3-4-5-6", Console.Setting("LastDBUpdate"));
}

}  // namespace corvane::test
