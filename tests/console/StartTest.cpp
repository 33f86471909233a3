#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

TEST(Start, ShowsTheSplashInThreeStagesAndThenTheWindow) {
  TestConsole console;
  console.Start();
  EXPECT_EQ((std::vector<std::string>{"frmStartup", "frmCVMain"}), console.Host.Shown);
  EXPECT_EQ((std::vector<int>{400, 500, 500, 500}), console.Host.Slept);
  EXPECT_EQ("MERIDIAN", console.Window().lstDomain.Text());
  EXPECT_EQ("0 log(s) watched by Corvane", console.Window().stbMain.Panels[0].Text);
  EXPECT_EQ("Corvane Service", console.Window().stbMain.Panels[1].Text);
  EXPECT_EQ("stopped", console.Window().stbMain.Panels[1].Picture);
  EXPECT_EQ("Syslog Bridge Service", console.Window().stbMain.Panels[2].Text);
}

}  // namespace
}  // namespace corvane::test
