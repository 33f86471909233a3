#include <sys/stat.h>

#include <algorithm>

#include "sqlite/StoreHelpers.h"

namespace corvane {
namespace {

namespace fs = std::filesystem;
using test::ErrorOf;
using test::TestStore;

std::string With(const char* provider, const std::string& file) {
  return std::string("provider=Microsoft.Jet.OLEDB.") + provider + "; data source = C:\\Corvane\\" + file + ";";
}

int ErrorOfOpen(TestStore& store, const std::string& connectionString) {
  const auto connection = store.Provider.NewConnection();
  const int error = ErrorOf([&] { connection->Open(connectionString); });
  EXPECT_EQ(connection->State() == ObjectState::Open, error == 0);
  return error;
}

std::size_t FilesIn(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(StoreFiles, TheProviderMustKnowTheFormat) {
  TestStore old(3), recent(4);
  EXPECT_EQ(ErrorOfOpen(old, With("3.51", "corvane.mdb")), 0);
  EXPECT_EQ(ErrorOfOpen(old, With("4.0", "corvane.mdb")), 0);
  EXPECT_EQ(ErrorOfOpen(recent, With("3.51", "corvane.mdb")), errors::DataFailure);
  EXPECT_EQ(ErrorOfOpen(recent, With("4.0", "corvane.mdb")), 0);
  EXPECT_EQ(ErrorOfOpen(recent, With("4.0", std::string("corvane.mdb\0x", 13))), errors::DataFailure);
  for (const char* other :
       {"", "Provider=MSDASQL;Data Source=C:\\Corvane\\corvane.mdb", "Data Source=C:\\Corvane\\corvane.mdb",
        "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=;", "Provider=Microsoft.Jet.OLEDB.4.0"})
    EXPECT_EQ(ErrorOfOpen(recent, other), errors::DataFailure) << other;
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
      {"foreign.mdb", std::string("\x00\x01\x00\x00Standard Jet DB\x00", 20) + std::string(4076, '\1')},
      {"header.mdb", patched(0, "SQLite format 2")},
      {"other.mdb", patched(68, std::string(4, '\0'))},
      {"older.mdb", patched(60, std::string("\0\0\0\2", 4))},
      {"newer.mdb", patched(60, std::string("\0\0\0\5", 4))},
      {"schema.mdb", patched(100, std::string(400, '\xFF'))},
      {"truncated.mdb", good.substr(0, good.size() / 2)},
      {"stump.mdb", good.substr(0, 90)},
  };
  for (const auto& [name, bytes] : files) store.Place.Write(name, bytes);
  fs::create_directory(store.Folder / "folder.mdb");
  const std::size_t before = FilesIn(store.Folder);
  for (const auto& [name, bytes] : files) {
    EXPECT_EQ(ErrorOfOpen(store, With("4.0", name)), errors::DataFailure) << name;
    EXPECT_EQ(store.Place.Read(name), bytes) << name;
  }
  EXPECT_EQ(ErrorOfOpen(store, With("4.0", "missing.mdb")), errors::DataFailure);
  EXPECT_EQ(ErrorOfOpen(store, With("4.0", "folder.mdb")), errors::DataFailure);
  EXPECT_EQ(FilesIn(store.Folder), before);

  std::string why;
  const auto connection = store.Provider.NewConnection();
  EXPECT_EQ(ErrorOf([&] { connection->Open(With("4.0", "newer.mdb")); }, &why), errors::DataFailure);
  EXPECT_NE(why.find("newer version"), why.npos) << why;
}

TEST(StoreFiles, ADamagedTableFailsAloneAndIsNotMadeWorse) {
  TestStore store;
  const auto page = std::stoul(test::Ask(store.File, "SELECT rootpage FROM sqlite_schema WHERE name = 'Alarms'"));
  std::string bytes = store.Place.Read("corvane.mdb");
  bytes.replace((page - 1) * 4096, 4096, std::string(4096, '\xEE'));
  store.Place.Write("corvane.mdb", bytes);
  {
    const auto connection = store.Connect();
    EXPECT_EQ(ErrorOf([&] { connection->Execute("SELECT * FROM Alarms"); }), errors::DataFailure);
    EXPECT_EQ(ErrorOf([&] { connection->Execute("SELECT * FROM AlarmGroups"); }), 0);
  }
  EXPECT_EQ(store.Place.Read("corvane.mdb"), bytes);
}

TEST(StoreFiles, ACatalogMakesAnEmptyDatabaseButReplacesNothing) {
  TestStore store;
  const auto catalog = store.Provider.NewCatalog();
  for (const char* provider : {"3.51", "4.0"}) {
    const std::string file = std::string("new") + provider + ".mdb";
    catalog->Create(With(provider, file));
    EXPECT_EQ(ErrorOfOpen(store, With(provider, file)), 0);
    EXPECT_EQ(test::Ask(store.Folder / file, "SELECT count(*) FROM sqlite_schema"), "0");
    EXPECT_EQ(ErrorOf([&] { catalog->Create(With(provider, file)); }), errors::DataFailure);
  }
  EXPECT_EQ(ErrorOfOpen(store, With("3.51", "new4.0.mdb")), errors::DataFailure);
  store.Place.Write("notes.txt", "notes");
  EXPECT_EQ(ErrorOf([&] { catalog->Create(With("4.0", "notes.txt")); }), errors::DataFailure);
  EXPECT_EQ(store.Place.Read("notes.txt"), "notes");
  EXPECT_EQ(ErrorOf([&] { catalog->Create(With("4.0", "nowhere\\x.mdb")); }), errors::DataFailure);

  const fs::path failed = store.Folder / "failed.mdb";
  EXPECT_NE(ErrorOf([&] { SqliteProvider::CreateStore(failed, "CREATE TABLE A (B INTEGER); nonsense", 3); }), 0);
  EXPECT_FALSE(fs::exists(failed));
}

// The engine's file layer with lock files has no shared memory, as a network share has none.
struct LockFiles {
  LockFiles() { sqlite3_vfs_register(sqlite3_vfs_find("unix-dotfile"), 1); }
  ~LockFiles() { sqlite3_vfs_register(Usual, 1); }
  sqlite3_vfs* Usual = sqlite3_vfs_find(nullptr);
};

TEST(StoreFiles, WithoutSharedMemoryAJournalIsUsed) {
  TestStore store;
  EXPECT_EQ(test::Ask(store.File, "PRAGMA journal_mode"), "wal");
  {
    const LockFiles insteadOfSharedMemory;
    store.Provider.NewCatalog()->Create(With("4.0", "made.mdb"));
    const auto first = store.Connect(), second = store.Connect();
    for (Connection* connection : {first.get(), second.get()})
      connection->Execute("INSERT INTO AlarmGroups (Name) VALUES ('x')");
    EXPECT_EQ(test::Ask(store.Folder / "made.mdb", "PRAGMA journal_mode"), "delete");
    EXPECT_EQ(test::Ask(store.File, "PRAGMA journal_mode"), "delete");
  }
  EXPECT_EQ(test::Ask(store.File, "SELECT count(*) FROM AlarmGroups"), "2");
  EXPECT_EQ(test::Ask(store.File, "PRAGMA integrity_check"), "ok");
}

TEST(StoreFiles, WithoutWriteAccessRowsCanBeReadAndNewOnesAreSeen) {
  TestStore store;
  store.Connect()->Execute("INSERT INTO AlarmGroups (Name) VALUES ('first')");
  ::chmod(store.File.c_str(), 0444);
  ::chmod(store.Folder.c_str(), 0555);
  const auto count = [&](Connection& connection) {
    return ToNumber(connection.Execute("SELECT COUNT(*) AS N FROM AlarmGroups")->Field("N"));
  };
  {
    test::OtherProcess reader([&](test::OtherProcess& self) {
      if (::geteuid() == 0 && ::setuid(65534) != 0) return;
      const auto connection = store.Connect();
      self.Tell(count(*connection));
      self.Tell(ErrorOf([&] { connection->Execute("DELETE FROM AlarmGroups"); }));
      for (int i = 0; i < 2; ++i) {
        self.Wait();
        self.Tell(count(*connection));
      }
    });
    EXPECT_EQ(reader.Hear(), 1);
    EXPECT_EQ(reader.Hear(), errors::DataReadOnly);
    ::chmod(store.Folder.c_str(), 0755);
    ::chmod(store.File.c_str(), 0644);
    {
      const auto writer = store.Connect();
      writer->Execute("INSERT INTO AlarmGroups (Name) VALUES ('second')");
      reader.Release();
      EXPECT_EQ(reader.Hear(), 2);
      writer->Execute("INSERT INTO AlarmGroups (Name) VALUES ('third')");
    }
    reader.Release();
    EXPECT_EQ(reader.Hear(), 3);
    EXPECT_EQ(reader.Hear(), 0);
  }
  EXPECT_EQ(test::Ask(store.File, "PRAGMA integrity_check"), "ok");
}

// Changes in a log that cannot be taken over are part of the truth: the file alone must not be shown.
TEST(StoreFiles, AReadOnlyFolderWithUnfinishedChangesIsRefused) {
  TestStore store;
  store.Place.Write("corvane.mdb-wal", std::string(5000, 'x'));
  ::chmod((store.Folder / "corvane.mdb-wal").c_str(), 0444);
  ::chmod(store.File.c_str(), 0444);
  ::chmod(store.Folder.c_str(), 0555);
  test::OtherProcess reader([&](test::OtherProcess&) {
    if (::geteuid() == 0 && ::setuid(65534) != 0) return;
    store.Connect();
  });
  EXPECT_EQ(reader.Hear(), errors::DataFailure);
  ::chmod(store.Folder.c_str(), 0755);
}

}  // namespace
}  // namespace corvane
