#include <sstream>

#include "admin/frmCreateTable.h"
#include "core/ConfigDatabase.h"
#include "notifications/NotificationTest.h"
#include "notifications/cvbTAPI.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"
#include "support/RecordingDriver.h"

namespace corvane::test {

class OdbcScreensTest : public ConsoleTest {
 protected:
  OdbcScreensTest() {
    Main.InitGlobals();
    OpenConfigDatabase(Main);
  }
  /// What the driver was asked for, without the connecting around it.
  std::string Statements() {
    std::istringstream lines(Driver.Taken());
    std::string statements;
    for (std::string line; std::getline(lines, line);)
      if (line.find(' ') != line.npos) statements += line + "\n";
    return statements;
  }

  RecordingDriver Driver;
};

// From the screens through the driver manager: each system gets the statements of its kind to the letter.
TEST_F(OdbcScreensTest, EachSystemIsAskedInItsWay) {
  for (const auto& c : Cases("odbc/Screens.txt")) {
    const bool isOracle = c[0] == "Oracle";
    const std::string connection = Driver.String(c[0], "TABLES={SCOTT.EVENTS:TABLE|SCOTT.V:VIEW|};");
    frmCreateTable tables(Main, Main.Platform.Targets);
    tables.Load();
    tables.InitForm(isOracle ? frmCreateTable::Kind::Oracle : frmCreateTable::Kind::SqlServer);
    EXPECT_EQ("Create Corvane Table on " + c[0], tables.Caption);
    Host.OnPromptConnection([&](const ui::ConnectionPrompt& prompt) {
      EXPECT_EQ("", prompt.Test(connection));
      return connection;
    });
    Host.Click(tables.cmdDataODBCBrowse);
    EXPECT_EQ(c[1], tables.lstTableName[0]);
    Host.Type(tables.txtNewTable, "Night Events");
    if (isOracle) {
      Host.Type(tables.txtSchema, "SCOTT");
      Host.Type(tables.txtTableSpace, "USERS");
    }
    Host.Click(tables.cmdAdd);
    EXPECT_EQ(c[2] + "\n", Statements());
    cvbTAPI pager(Main, Main.Platform.Phones);
    Notification of;
    of.DataConnectionString = connection;
    of.TableName = isOracle ? "SCOTT.Night Events" : "Night Events";
    EXPECT_TRUE(NotificationTest(Main, pager, of).StoreInODBC());
    EXPECT_EQ(c[3] + "\n", Statements());
    of.DataConnectionString = Driver.String(c[0], "FAIL=INSERT;STATE=42000;SAY=no;");
    EXPECT_FALSE(NotificationTest(Main, pager, of).StoreInODBC());
    Driver.Taken();
  }
}

}  // namespace corvane::test
