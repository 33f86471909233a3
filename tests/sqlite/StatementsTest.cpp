#include <fstream>

#include "adapters/sqlite/AdaptSql.h"
#include "sqlite/StoreHelpers.h"

namespace corvane {
namespace {

using test::TestStore;

// The steps of a statement's plan that walk a whole table.
std::string FullScans(sqlite3* engine, const std::string& sql) {
  sqlite3_stmt* plan = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(engine, ("EXPLAIN QUERY PLAN " + sql).c_str(), -1, &plan, nullptr), SQLITE_OK) << sql;
  std::string scans;
  while (sqlite3_step(plan) == SQLITE_ROW) {
    const void* text = sqlite3_column_text(plan, 3);
    const std::string step = static_cast<const char*>(text);
    if (step.starts_with("SCAN")) scans += step + "; ";
  }
  sqlite3_finalize(plan);
  return scans;
}

TEST(Statements, AllRunAndFindTheirRowsByAnIndex) {
  std::ifstream file(CORVANE_SOURCE_DIR "/tests/sqlite/Statements.txt");
  TestStore store;
  const auto connection = store.Connect();
  sqlite3* engine = nullptr;
  ASSERT_EQ(sqlite3_open(store.File.c_str(), &engine), SQLITE_OK);
  int run = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::string expected = line.substr(0, line.find('|')), sql = line.substr(line.find('|') + 1);
    if (sql.find(" WHERE ") != sql.npos) {
      EXPECT_EQ(FullScans(engine, AdaptSql(sql)), "") << sql;
    }
    try {
      const auto rows = connection->Execute(sql);
      int count = 0;
      while (rows->State() == ObjectState::Open && !rows->Eof()) ++count, rows->MoveNext();
      EXPECT_EQ(rows->State() == ObjectState::Open ? std::to_string(count) : "-", expected) << sql;
    } catch (const RuntimeError& error) {
      ADD_FAILURE() << sql << ": " << error.Description;
    }
    ++run;
  }
  sqlite3_close(engine);
  EXPECT_GT(run, 100);
}

TEST(Statements, FailWithTheNumbersOfTheDataLayer) {
  TestStore store;
  const auto connection = store.Connect();
  connection->Execute("INSERT INTO RegisteredServers VALUES ('A1', 'D', 'A', 1, 0, 0, 0, 0)");
  const std::string fits(255, 'x'), wide = "\xC3\xA4" + std::string(254, 'x'), tooLong(256, 'x'), huge(100000, 'x');
  const struct {
    std::string Sql;
    int Error;
  } cases[] = {
      {"INSERT INTO RegisteredServers VALUES ('a1', 'E', 'B', 2, 0, 0, 0, 0)", errors::DataConstraint},
      {"INSERT INTO RegisteredServers VALUES (NULL, 'E', 'B', 2, 0, 0, 0, 0)", errors::DataConstraint},
      {"INSERT INTO RegisteredServers VALUES ('B2', 'E', 'B', 'two', 0, 0, 0, 0)", errors::DataTypeMismatch},
      {"INSERT INTO RegisteredServers VALUES ('B2', 'E', 'B', 2, 0, 0, 2147483648, 0)", errors::DataTypeMismatch},
      {"INSERT INTO RegisteredServers VALUES ('B2', 'E', 'B', 2, 0, 5, 0, 0)", errors::DataTypeMismatch},
      {"INSERT INTO RegisteredServers VALUES ('B2', 'E', 'B', 2, 0, 0, 0)", errors::DataSyntax},
      {"INSERT INTO RegisteredServers VALUES ('" + tooLong + "', 'E', 'B', 2, 0, 0, 0, 0)", errors::DataFieldTooSmall},
      {"INSERT INTO RegisteredServers VALUES ('" + fits + "', '" + wide + "', 'B', '2', 0, 0, -2147483648, 0)", 0},
      {"INSERT INTO CustomNotifications VALUES ('', '" + fits + "', '" + huge + "')", 0},
      {"INSERT INTO CustomNotifications VALUES ('', NULL, NULL)", errors::DataConstraint},
      {"INSERT INTO CustomNotifications VALUES ('x', '" + tooLong + "', NULL)", errors::DataFieldTooSmall},
      {"INSERT INTO AlarmGroups ([Index], Name) VALUES ('one', 'x')", errors::DataTypeMismatch},
      {"SELECT * FROM NoSuchTable", errors::DataNoTable},
      {"SELECT * FROM Alarms WHERE NoSuch = 1", errors::DataNoColumn},
      {"SELECT * FROM Alarms WHERE Name = unquoted", errors::DataNoColumn},
      {"INSERT INTO AlarmGroups (NoSuch) VALUES (1)", errors::DataNoColumn},
      {"SELECT FROM WHERE", errors::DataSyntax},
      {" ", errors::DataSyntax},
      {"ATTACH DATABASE '/tmp/other' AS other", errors::DataSyntax},
  };
  for (const auto& failing : cases)
    EXPECT_EQ(test::ErrorOf([&] { connection->Execute(failing.Sql); }), failing.Error) << failing.Sql.substr(0, 90);
  EXPECT_EQ(test::Ask(store.File, "SELECT count(*) FROM RegisteredServers"), "2");
}

}  // namespace
}  // namespace corvane
