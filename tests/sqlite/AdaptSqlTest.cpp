#include "adapters/sqlite/AdaptSql.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/ErrorOf.h"

namespace corvane {
namespace {

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
  using namespace std::string_literals;
  std::istringstream cases(
      R"(SELECT 1 -- end|SELECT /* x */ 1|SELECT 1; DELETE FROM T|SELECT 1;;|x = ?|x = :a|x = @a|x = $a|x = `a`|x = x'00'|
x = 'a'"b"|x = "a"'b'|x = 'O'Brien'|x = 5y|x = 0x10|x = 'a'5|x = [a]'b'|x = 'a|x = "a''|[a|x = #1/1/2026|x = #13/1/2026#|
x = #2/29/2023#|x = #1/1/26#|x = #1/1/2026 24:00:00#|x = #1/1/2026 23:59:60#|x = #1/1/2026 1:00#|x = #1/1/20260#|
x = #-1/1/2026#|x = #1/1/2026 1:1:1 x#|x = #4294967297/1/1#|x = #1/1/2026#'a'|)"
      "x = \0|x = 'a\0b'|[a\0b]"s);
  for (std::string sql; std::getline(cases, sql, '|');)
    EXPECT_EQ(test::ErrorOf([&] { AdaptSql(sql); }), errors::DataSyntax) << sql;
}

}  // namespace
}  // namespace corvane
