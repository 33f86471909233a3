#include <gtest/gtest.h>

#include <fstream>

#include "adapters/sqlite/AdaptSql.h"
#include "support/ErrorOf.h"
#include "support/TestStore.h"

namespace corvane {
namespace {

using test::TestStore;

TEST(Statements, AllRunAndFindTheirRowsByAnIndex) {
  std::ifstream file(CORVANE_SOURCE_DIR "/tests/sqlite/Statements.txt");
  TestStore store;
  const auto connection = store.Connect();
  int run = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::string expected = line.substr(0, line.find('|')), sql = line.substr(line.find('|') + 1);
    if (sql.find(" WHERE ") != sql.npos) {
      const std::string plan = store.Ask("EXPLAIN QUERY PLAN " + AdaptSql(sql));
      EXPECT_EQ(plan.find("|SCAN"), plan.npos) << sql << " walks a whole table:\n" << plan;
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
  EXPECT_GT(run, 100);
}

TEST(Statements, FailWithTheNumbersOfTheDataLayer) {
  TestStore store;
  const auto connection = store.Connect();
  const std::string log = "INSERT INTO RegisteredServers VALUES (", text = "INSERT INTO CustomNotifications VALUES (";
  connection->Execute(log + "'A1', 'D', 'A', 1, 0, 0, 0, 0)");
  const std::string fits(255, 'x'), wide = "\xC3\xA4" + std::string(254, 'x'), tooLong(256, 'x'), huge(100000, 'x');
  const std::pair<std::string, int> cases[] = {
      {log + "'a1', 'E', 'B', 2, 0, 0, 0, 0)", errors::DataConstraint},
      {log + "NULL, 'E', 'B', 2, 0, 0, 0, 0)", errors::DataConstraint},
      {log + "'B2', 'E', 'B', 'two', 0, 0, 0, 0)", errors::DataTypeMismatch},
      {log + "'B2', 'E', 'B', 2, 0, 0, 2147483648, 0)", errors::DataTypeMismatch},
      {log + "'B2', 'E', 'B', 2, 0, 5, 0, 0)", errors::DataTypeMismatch},
      {log + "'B2', 'E', 'B', 2, 0, 0, 0)", errors::DataSyntax},
      {log + "'" + tooLong + "', 'E', 'B', 2, 0, 0, 0, 0)", errors::DataFieldTooSmall},
      {log + "'" + fits + "', '" + wide + "', 'B', '2', 0, 0, -2147483648, 0)", 0},
      {text + "'', '" + fits + "', '" + huge + "')", 0},
      {text + "'x', '" + tooLong + "', NULL)", errors::DataFieldTooSmall},
      {"INSERT INTO AlarmGroups ([Index], Name) VALUES ('one', 'x')", errors::DataTypeMismatch},
      {"SELECT * FROM NoSuchTable", errors::DataNoTable},
      {"SELECT * FROM Alarms WHERE Name = unquoted", errors::DataNoColumn},
      {"INSERT INTO AlarmGroups (NoSuch) VALUES (1)", errors::DataNoColumn},
      {"SELECT FROM WHERE", errors::DataSyntax},
      {" ", errors::DataSyntax},
      {"ATTACH DATABASE '/tmp/other' AS other", errors::DataSyntax},
  };
  for (const auto& c : cases)
    EXPECT_EQ(test::ErrorOf([&] { connection->Execute(c.first); }), c.second) << c.first.substr(0, 90);
  EXPECT_EQ(store.Ask("SELECT count(*) FROM RegisteredServers"), "2\n");
}

}  // namespace
}  // namespace corvane
