#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "adapters/sqlite/AdaptSql.h"
#include "support/ErrorOf.h"
#include "support/TestStore.h"

namespace corvane {
namespace {

using namespace std::string_literals;
using test::ErrorOf;
using test::TestStore;

TEST(AdaptSql, ChangesTheDialectAndNothingElse) {
  const std::pair<const char*, const char*> cases[] = {
      {"SELECT Index FROM T WHERE T.index=3", "SELECT [Index] FROM T WHERE T.[index]=3"},
      {"SELECT [Index], Indexes FROM [Index #1]", "SELECT [Index], Indexes FROM [Index #1]"},
      {"x = 'Index \"a\" -- ? #1# '''", "x = 'Index \"a\" -- ? #1# '''"},
      {"x = \"it's \"\"Index\"\"\" AND y=\"\"", "x = 'it''s \"Index\"' AND y=''"},
      {"VALUES (#11/16/2026 14:05:09#, -1, 1.5e-3, .5)", "VALUES ('2026-11-16 14:05:09', -1, 1.5e-3, .5)"},
      {"VALUES (#2/29/2024#)", "VALUES ('2024-02-29 00:00:00')"},
      {"DELETE FROM T ;\r\n", "DELETE FROM T ;\r\n"},
      {"N\xC3\xA4me='\xC3\x84'", "N\xC3\xA4me='\xC3\x84'"},
  };
  for (const auto& [sql, adapted] : cases) EXPECT_EQ(AdaptSql(sql), adapted) << sql;
}

TEST(AdaptSql, RefusesWhatTheDialectDoesNotHave) {
  std::istringstream cases(
      R"(SELECT 1 -- end|SELECT /* x */ 1|SELECT 1; DELETE FROM T|SELECT 1;;|x = ?|x = :a|x = @a|x = $a|x = `a`|x = x'00'|
x = 'a'"b"|x = "a"'b'|x = 'O'Brien'|x = 5y|x = 0x10|x = 'a'5|x = [a]'b'|x = 'a|x = "a''|[a|x = #1/1/2026|x = #13/1/2026#|
x = #2/29/2023#|x = #1/1/26#|x = #1/1/2026 24:00:00#|x = #1/1/2026 23:59:60#|x = #1/1/2026 1:00#|x = #1/1/20260#|
x = #-1/1/2026#|x = #1/1/2026 1:1:1 x#|x = #4294967297/1/1#|x = #1/1/2026#'a'|)"
      "x = \0|x = 'a\0b'|[a\0b]"s);
  for (std::string sql; std::getline(cases, sql, '|');)
    EXPECT_EQ(ErrorOf([&] { AdaptSql(sql); }), errors::DataSyntax) << sql;
}

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
    EXPECT_EQ(ErrorOf([&] { connection->Execute(c.first); }), c.second) << c.first.substr(0, 90);
  EXPECT_EQ(store.Ask("SELECT count(*) FROM RegisteredServers"), "2\n");
}

}  // namespace
}  // namespace corvane
