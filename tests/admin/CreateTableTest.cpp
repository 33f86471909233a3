#include "admin/frmCreateTable.h"

#include <regex>

#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/TestTargets.h"

namespace corvane::test {

// What is done on each kind of screen: what is browsed for, the names and places typed, what fails and the message that
// it brings; then the tables listed, how often a connection was used, and what the box of the name shows.
TEST_F(ConsoleTest, TablesAreCreatedInTheWayOfEachKind) {
  TestTargets targets;
  frmCreateTable form(Main, targets);
  for (const auto& c : Cases("admin/NewTables.txt")) {
    const bool isFile = c[0] == "in Access", isOracle = c[0] == "on Oracle";
    targets.DbmsName = c[0];
    targets.Fails = c[5];
    targets.Calls.clear();
    form.InitForm(isFile     ? frmCreateTable::Kind::Access
                  : isOracle ? frmCreateTable::Kind::Oracle
                             : frmCreateTable::Kind::SqlServer);
    EXPECT_EQ("Create Corvane Table " + c[0], form.Caption);
    EXPECT_TRUE(form.txtSchema.Visible == isOracle && form.lblTablespace.Visible == isOracle);
    const auto target = c[1].empty() ? std::nullopt : std::optional(c[1]);
    if (!c[6].empty()) OnMessage(c[6], c[7]);
    isFile ? Host.OnOpenFile(target) : Host.OnPromptConnection([=](const auto&) { return target; });
    Host.Click(form.cmdDataODBCBrowse);
    form.txtNewTable.Text.clear();
    form.txtNewTable.Change();
    EXPECT_FALSE(form.cmdAdd.Enabled);
    form.txtSchema.Text = c[3];
    form.txtTableSpace.Text = c[4];
    if (!c[2].empty()) {
      Host.Type(form.txtNewTable, c[2]);
      Host.Click(form.cmdAdd);
    }
    std::string state = form.txtNewTable.Text + "|";
    for (const std::string& table : form.lstTableName.All()) state += table + "|";
    for (const std::string& call : targets.Calls) state += std::regex_replace(call, std::regex(R"( \(.*\))"), "") + ";";
    EXPECT_EQ(c[8], state) << c[0] << " " << c[1] << " " << c[2];
  }
}

}  // namespace corvane::test
