#include <gtest/gtest.h>

#include <map>

#include "adapters/sqlite/AdaptSql.h"
#include "support/Cases.h"
#include "support/ErrorOf.h"
#include "support/TestStore.h"

namespace corvane::test {

TEST(AdaptSql, ChangesTheDialectAndRefusesWhatItDoesNotHave) {
  for (const auto& one : Cases("sqlite/Dialect.txt")) {
    std::string adapted;
    EXPECT_EQ(ErrorOf([&] { adapted = AdaptSql(one[0]); }), one.size() == 1 ? errors::DataSyntax : 0) << one[0];
    EXPECT_EQ(adapted, one.size() == 1 ? "" : one[1]) << one[0];
  }
}

TEST(Statements, AllRunAndFindTheirRowsByAnIndex) {
  TestStore store;
  const auto connection = store.Connect();
  for (const auto& one : Cases("sqlite/Statements.txt")) {
    const std::string &expected = one[0], &sql = one[1];
    if (sql.find(" WHERE ") != sql.npos) {
      const std::string plan = store.Ask("EXPLAIN QUERY PLAN " + AdaptSql(sql));
      EXPECT_EQ(plan.find("|SCAN"), plan.npos) << sql << " walks a whole table:\n" << plan;
    }
    const auto count = [&] {
      const auto rows = connection->Execute(sql);
      int counted = 0;
      while (rows->State() == ObjectState::Open && !rows->Eof()) ++counted, rows->MoveNext();
      EXPECT_EQ(rows->State() == ObjectState::Open ? std::to_string(counted) : "-", expected) << sql;
    };
    EXPECT_EQ(ErrorOf(count), 0) << sql;
  }
}

TEST(Statements, FailWithTheNumbersOfTheDataLayer) {
  TestStore store;
  const auto connection = store.Connect();
  connection->Execute("INSERT INTO RegisteredServers VALUES ('A1', 'D', 'A', 1, 0, 0, 0, 0)");
  connection->Execute("INSERT INTO CustomNotifications VALUES ('', '', '" + std::string(100000, 'x') + "')");
  const std::map<std::string, int> numbers{{"0", 0},
                                           {"DataConstraint", errors::DataConstraint},
                                           {"DataTypeMismatch", errors::DataTypeMismatch},
                                           {"DataFieldTooSmall", errors::DataFieldTooSmall},
                                           {"DataSyntax", errors::DataSyntax},
                                           {"DataNoTable", errors::DataNoTable},
                                           {"DataNoColumn", errors::DataNoColumn}};
  for (const auto& one : Cases("sqlite/Failures.txt"))
    EXPECT_EQ(ErrorOf([&] { connection->Execute(one[0]); }), numbers.at(one[1])) << one[0].substr(0, 90);
  EXPECT_EQ(store.Ask("SELECT count(*) FROM RegisteredServers"), "2\n");
}

}  // namespace corvane::test
