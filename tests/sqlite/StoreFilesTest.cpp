#include <gtest/gtest.h>
#include <sqlite3.h>

#include "platform/Conversions.h"
#include "support/Cases.h"
#include "support/ChildProcess.h"
#include "support/ErrorOf.h"
#include "support/TestStore.h"

namespace corvane::test {

using namespace std::string_literals;
namespace fs = std::filesystem;

constexpr const char* Add = "INSERT INTO AlarmGroups (Name) VALUES ('x')";

static std::string With(const char* provider, const std::string& file) {
  return std::string("provider=Microsoft.Jet.OLEDB.") + provider + "; data source = C:\\Corvane\\" + file + ";";
}

static int ErrorOfOpen(TestStore& store, const std::string& connectionString, std::string* why = nullptr) {
  const auto connection = store.Provider.NewConnection();
  const int error = ErrorOf([&] { connection->Open(connectionString); }, why);
  EXPECT_EQ(connection->State() == ObjectState::Open, error == 0);
  return error;
}

TEST(StoreFiles, WhatIsNotOursIsRefusedAndStaysAsItWas) {
  TestStore store;
  const std::string good = store.Place.Read("corvane.mdb");
  const auto patched = [&](std::size_t at, const std::string& bytes) {
    return std::string(good).replace(at, bytes.size(), bytes);
  };
  const std::pair<const char*, std::string> files[] = {
      {"empty.mdb", ""},
      {"text.mdb", "[Alarms]\r\nAlarmInfo1=x\r\n"},
      {"foreign.mdb", "\x00\x01\x00\x00Standard Jet DB\x00"s + std::string(4076, '\1')},
      {"header.mdb", patched(0, "SQLite format 2")},
      {"other.mdb", patched(68, std::string(4, '\0'))},
      {"older.mdb", patched(60, "\0\0\0\2"s)},
      {"newer.mdb", patched(60, "\0\0\0\5"s)},
      {"schema.mdb", patched(100, std::string(400, '\xFF'))},
      {"truncated.mdb", good.substr(0, good.size() / 2)},
  };
  for (const auto& [name, bytes] : files) {
    store.Place.Write(name, bytes);
    std::string why;
    EXPECT_EQ(ErrorOfOpen(store, With("4.0", name), &why), errors::DataFailure) << name;
    EXPECT_EQ(why.find("made by Microsoft Access") != why.npos, name == "foreign.mdb"s) << why;
    EXPECT_EQ(store.Place.Read(name), bytes) << name;
    fs::remove(store.Folder / name);
  }
  for (const std::string& other :
       {With("4.0", "missing.mdb"), With("4.0", "corvane.mdb"s + '\0'), With("4.0", ""), ""s,
        "Provider=MSDASQL;Data Source=C:\\Corvane\\corvane.mdb"s, "Data Source=C:\\Corvane\\corvane.mdb"s})
    EXPECT_EQ(ErrorOfOpen(store, other), errors::DataFailure) << other;
  EXPECT_EQ(std::distance(fs::directory_iterator(store.Folder), {}), 1) << "nothing is left beside the files";
  fs::create_directory(store.Folder / "folder.mdb");
  EXPECT_EQ(ErrorOfOpen(store, With("4.0", "folder.mdb")), errors::DataFailure);
}

TEST(StoreFiles, ADamagedTableFailsAloneAndIsNotMadeWorse) {
  TestStore store;
  const auto page = std::stoul(store.Ask("SELECT rootpage FROM sqlite_schema WHERE name = 'Alarms'"));
  std::string bytes = store.Place.Read("corvane.mdb");
  bytes.replace((page - 1) * 4096, 4096, std::string(4096, '\xEE'));
  store.Place.Write("corvane.mdb", bytes);
  EXPECT_EQ(ErrorOf([&] { store.Connect()->Execute("SELECT * FROM Alarms"); }), errors::DataFailure);
  EXPECT_EQ(ErrorOf([&] { store.Connect()->Execute("SELECT * FROM AlarmGroups"); }), 0);
  EXPECT_EQ(store.Place.Read("corvane.mdb"), bytes);
}

TEST(StoreFiles, ACatalogMakesAnEmptyDatabaseButReplacesNothing) {
  TestStore store;
  const auto catalog = store.Provider.NewCatalog();
  store.Place.Write("notes.txt", "notes");
  catalog->Create(With("3.51", "old.mdb"));
  catalog->Create(With("4.0", "new.mdb"));
  EXPECT_EQ(ErrorOfOpen(store, With("3.51", "old.mdb")), 0);
  EXPECT_EQ(ErrorOfOpen(store, With("3.51", "new.mdb")), errors::DataFailure);
  for (const char* file : {"new.mdb", "notes.txt", "nowhere\\x.mdb"})
    EXPECT_EQ(ErrorOf([&] { catalog->Create(With("4.0", file)); }), errors::DataFailure) << file;
  EXPECT_EQ(Ask(store.Folder / "new.mdb", "SELECT count(*) FROM sqlite_schema"), "0\n");
  EXPECT_EQ(store.Place.Read("notes.txt"), "notes");
  const fs::path failed = store.Folder / "failed.mdb";
  EXPECT_NE(ErrorOf([&] { SqliteProvider::CreateStore(failed, "CREATE TABLE A (B INTEGER); nonsense", 3); }), 0);
  EXPECT_FALSE(fs::exists(failed));
}

TEST(StoreFiles, ACatalogAppendsTablesThatKeepTheirTypes) {
  TestStore store(4);
  const auto catalog = store.Provider.NewCatalog();
  EXPECT_EQ(ErrorOf([&] { catalog->Tables(); }), errors::DataClosed);
  EXPECT_EQ(ErrorOf([&] { catalog->SetActiveConnection(With("3.51", "corvane.mdb")); }), errors::DataFailure);
  catalog->SetActiveConnection(With("4.0", "corvane.mdb"));
  for (const auto& c : Cases("sqlite/Appended.txt")) {
    const int error = ErrorOf([&] {
      if (c[0] == "row") return void(store.Connect()->Execute("INSERT INTO [Two words] VALUES (" + c[1] + ")"));
      catalog->AppendTable(c[1], {{"D", ColumnType::Date},
                                  {"T", ColumnType::Text, 3},
                                  {"L", ColumnType::LongText},
                                  {"N", ColumnType::Integer}});
    });
    EXPECT_EQ(std::stoi(c[2]), error) << c[1];
  }
  store.Ask("CREATE VIEW beta AS SELECT * FROM alpha");
  const auto tables = catalog->Tables();
  EXPECT_EQ("AlarmCategorieszz", tables.front() + tables.back());
  EXPECT_EQ(
      std::to_string(tables.size() + 1) + "\n",
      store.Ask("SELECT count(*) FROM sqlite_schema WHERE name NOT LIKE 'sqlite_%' AND type IN ('table', 'view')"));
  EXPECT_EQ(store.Ask("SELECT * FROM [Two words]"), "2026-11-16 14:05:09|abc|007|7\nNULL|NULL|NULL|NULL\n");
}

TEST(StoreFiles, WithoutSharedMemoryAJournalIsUsed) {
  TestStore store;
  EXPECT_EQ(store.Ask("PRAGMA journal_mode"), "wal\n");
  sqlite3_vfs* const usual = sqlite3_vfs_find(nullptr);
  // The engine's file layer with lock files has no shared memory, as a network share has none.
  sqlite3_vfs_register(sqlite3_vfs_find("unix-dotfile"), 1);
  {
    store.Provider.NewCatalog()->Create(With("4.0", "made.mdb"));
    const auto first = store.Connect(), second = store.Connect();
    first->Execute(Add);
    second->Execute(Add);
    for (const char* file : {"made.mdb", "corvane.mdb"})
      EXPECT_EQ(Ask(store.Folder / file, "PRAGMA journal_mode"), "delete\n") << file;
  }
  sqlite3_vfs_register(usual, 1);
  EXPECT_EQ(store.Ask("SELECT count(*) FROM AlarmGroups; PRAGMA integrity_check"), "2\nok\n");
}

TEST(StoreFiles, WithoutWriteAccessRowsCanBeReadAndNewOnesAreSeen) {
  TestStore store;
  store.Connect()->Execute(Add);
  fs::permissions(store.File, fs::perms{0444});
  fs::permissions(store.Folder, fs::perms{0555});
  const ChildProcess reader([&](ChildProcess& self) {
    ChildProcess::BecomeNobody();
    const auto connection = store.Connect();
    self.Tell(ErrorOf([&] { connection->Execute("DELETE FROM AlarmGroups"); }));
    for (int i = 0; i < 3; ++i) {
      self.Tell(ToNumber(connection->Execute("SELECT COUNT(*) AS N FROM AlarmGroups")->Field("N")));
      self.Wait();
    }
  });
  EXPECT_EQ(reader.Hear(), errors::DataReadOnly);
  EXPECT_EQ(reader.Hear(), 1);
  fs::permissions(store.Folder, fs::perms{0755});
  fs::permissions(store.File, fs::perms{0644});
  const auto writer = store.Connect();
  for (int rows = 2; rows <= 3; ++rows) {
    writer->Execute(Add);
    if (rows == 3) writer->Close();
    reader.Release();
    EXPECT_EQ(reader.Hear(), rows);
  }
  EXPECT_EQ(store.Ask("PRAGMA integrity_check"), "ok\n");
}

// Changes in a log that cannot be taken over are part of the truth: the file alone must not be shown.
TEST(StoreFiles, AReadOnlyFolderWithUnfinishedChangesIsRefused) {
  TestStore store;
  fs::permissions(store.Place.Write("corvane.mdb-wal", std::string(5000, 'x')), fs::perms{0444});
  const auto open = [&] { return store.Connect() ? 0 : -1; };
  EXPECT_EQ(AsNobody(store.File, 0444, 0555, open), errors::DataFailure);
}

}  // namespace corvane::test
