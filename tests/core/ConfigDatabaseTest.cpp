#include "core/ConfigDatabase.h"

#include <gtest/gtest.h>

#include <optional>

#include "core/modMain.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "support/ReplacedPorts.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

const std::string Jet351 = "Provider=Microsoft.Jet.OLEDB.3.51;Data Source=";
const std::string Jet40 = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=";

class ConfigDatabase : public testing::Test {
 protected:
  void SetUp() override { Main.InitGlobals(); }

  TestConsole Console;
  modMain& Main = Console.App.State();
};

TEST_F(ConfigDatabase, OpensWithTheOldProviderAndFallsBackOnTheNewOne) {
  const std::string file = "C:\\Corvane\\corvane.db";
  struct {
    const char* What;
    std::string Path;
    int Format;
    bool Opens;
    std::vector<std::string> Tried;
  } const cases[] = {
      {"old format", file, 3, true, {Jet351 + file + ";"}},
      {"new format", file, 4, true, {Jet351 + file + ";", Jet40 + file + ";"}},
      {"no file",
       "C:\\Corvane\\none.db",
       4,
       false,
       {Jet351 + "C:\\Corvane\\none.db;", Jet40 + "C:\\Corvane\\none.db;"}},
      {"no setting", "", 4, false, {Jet351 + ";", Jet40 + ";"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.What);
    Console.Rows("PRAGMA user_version = " + std::to_string(c.Format));
    Console.Data.Tried.clear();
    Main.ConfigDbPath = c.Path;
    OpenConfigDatabase(Main);
    EXPECT_EQ(c.Tried, Console.Data.Tried);
    EXPECT_EQ(c.Opens ? ObjectState::Open : ObjectState::Closed, Main.ConfigConnection->State());
    EXPECT_EQ(CursorLocation::Client, Main.ConfigConnection->CursorLocation);
    EXPECT_EQ(ObjectState::Closed, Main.SharedRecordset->State());
  }
  EXPECT_FALSE(std::filesystem::exists(Console.Folder() / "none.db"));
}

TEST_F(ConfigDatabase, MakesDataFilesButNeverReplacesOne) {
  EXPECT_TRUE(CreateAccessDatabase(Main, "C:\\Corvane\\events.db"));
  const auto connection = Console.Data.NewConnection();
  EXPECT_TRUE(OpenWithJet40(*connection, "C:\\Corvane\\events.db"));
  EXPECT_FALSE(CreateAccessDatabase(Main, "C:\\Corvane\\events.db"));
  EXPECT_FALSE(CreateAccessDatabase(Main, "C:\\Corvane\\nowhere\\events.db"));
}

// The file of statements that brings an older database up to date.
class ConfigUpdate : public ConfigDatabase {
 protected:
  const std::string Class3 = "INSERT INTO OSTypes VALUES (3, 'Newest')";

  // What is in the classes afterwards, whether the file stayed, and whether work done later outlives the connection.
  std::string Outcome(const std::optional<std::string>& file, bool isOld = true) {
    TestConsole console;
    if (isOld) console.Rows("DELETE FROM OSTypes WHERE [Index] = 3");
    const auto place = console.Folder() / "configupdate01.dat";
    if (file) std::ofstream(place, std::ios::binary) << *file;
    modMain& main = console.App.State();
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
  struct {
    const char* What;
    std::optional<std::string> File;
    const char* Outcome;
  } const cases[] = {
      {"applied", Class3 + "\r\nINSERT INTO LogTypes VALUES (7, 'Extra')\r\n", "Newest\ngone kept"},
      {"no final line break", Class3, "Newest\ngone kept"},
      {"foreign line", Class3 + "\r\nDELETE FROM OSTypes\r\n", "stays kept"},
      {"case of the first word", Class3 + "\r\ninsert into LogTypes VALUES (7, 'Extra')\r\n", "stays kept"},
      {"line that fails", "INSERT INTO Nowhere VALUES (1)\r\n" + Class3 + "\r\n", "Newest\ngone kept"},
      {"ten characters that fail", "INSERT 789\r\n" + Class3 + "\r\n", "Newest\ngone kept"},
      {"nine characters", Class3 + "\r\nINSERT 78\r\n", "stays lost"},
      {"empty last line", Class3 + "\r\n\r\n", "stays lost"},
      {"short line before a foreign one", "\r\nDELETE FROM OSTypes\r\n", "stays lost"},
      {"empty file", "", "gone kept"},
      {"no file", std::nullopt, "gone kept"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.Outcome, Outcome(c.File)) << c.What;
}

TEST_F(ConfigUpdate, LeavesTheFileUnreadWhenTheClassIsThereOrCannotBeLookedFor) {
  EXPECT_EQ("Windows Vista/Windows Server 2008\nstays kept", Outcome("no statement at all", false));
  Console.Rows("DELETE FROM OSTypes WHERE [Index] = 3");
  std::ofstream(Console.Folder() / "configupdate01.dat") << Class3;
  OpenConfigDatabase(Main);
  Console.Data.FailAfter(0, "OSTypes");
  ApplyConfigUpdate(Main);
  EXPECT_EQ(std::vector<std::string>{"SELECT * FROM OSTypes WHERE Index=3"}, Console.Data.Statements);
}

class UndeletableFiles : public Files {
 public:
  explicit UndeletableFiles(Files& real) : real_(real) {}
  std::unique_ptr<LineReader> OpenForInput(const std::string& path) override { return real_.OpenForInput(path); }
  void Write(const std::string& path, std::string_view bytes) override { real_.Write(path, bytes); }
  void Delete(const std::string& path) override {
    Refused = path;
    throw RuntimeError(errors::PermissionDenied, "Permission denied");
  }
  std::uintmax_t Length(const std::string& path) override { return real_.Length(path); }

  std::string Refused;

 private:
  Files& real_;
};

TEST_F(ConfigUpdate, IsCommittedThoughItsFileCannotBeDeleted) {
  UndeletableFiles files(Console.Ports.Files);
  Platform ports = Replace(Console.Ports, {.Files = &files});
  modMain main(ports);
  main.InitGlobals();
  Console.Rows("DELETE FROM OSTypes WHERE [Index] = 3");
  std::ofstream(Console.Folder() / "configupdate01.dat") << Class3;
  OpenConfigDatabase(main);
  ApplyConfigUpdate(main);
  EXPECT_EQ("C:\\Corvane\\configupdate01.dat", files.Refused);
  EXPECT_EQ("Newest\n", Console.Rows("SELECT OSName FROM OSTypes WHERE [Index] = 3"));
  Console.Data.Forget();
  ApplyConfigUpdate(main);
  EXPECT_EQ(1U, Console.Data.Statements.size());
}

TEST_F(ConfigDatabase, StampsEachFieldFromAReadingOfItsOwn) {
  int reading = 0;
  Console.System.Clock = [&] {
    ++reading;
    return MakeDateTime(2000 + reading, reading, reading, reading, reading, reading);
  };
  StampLastDBUpdate(Main);
  EXPECT_EQ("2001-2-3-4-5-6", Console.Setting("LastDBUpdate"));
  EXPECT_EQ(6, reading);
}

TEST_F(ConfigDatabase, DeletesAttachmentsTableByTableUpToTheFirstFailure) {
  const std::string where = " WHERE IDName = 'SERVER13' AND [Domain] = 'CUSTOM: BRANCH'";
  OpenConfigDatabase(Main);
  DeleteAlarmsAndNots(Main, "SERVER13", "CUSTOM: BRANCH");
  DeleteDenyAlarms(Main, "SERVER13", "CUSTOM: BRANCH");
  EXPECT_EQ((std::vector<std::string>{"DELETE FROM AlarmsForLogs" + where, "DELETE FROM NotificationsForLogs" + where,
                                      "DELETE FROM AlarmGroupsForLogs" + where, "DELETE FROM DenyAlarmsForLogs" + where,
                                      "DELETE FROM DenyAlarmGroupsForLogs" + where}),
            Console.Data.Statements);
  Console.Data.Forget();
  Console.Data.FailAfter(1, "DELETE");
  EXPECT_THROW(DeleteAlarmsAndNots(Main, "SERVER13", "MERIDIAN"), RuntimeError);
  EXPECT_EQ(2U, Console.Data.Statements.size());
}

}  // namespace
}  // namespace corvane::test
