#include <gtest/gtest.h>

#include "admin/frmServiceAccount.h"
#include "app/installation/TextFile.h"
#include "core/console/frmBegin.h"
#include "core/console/frmCVMain.h"
#include "core/console/frmLogView.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmCustomDomainManager.h"
#include "domains/frmDomainChooser.h"
#include "logs/frmLogEdit.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

namespace fs = std::filesystem;

TEST(HelpPagesTest, EveryScreenHasItsPage) {
  TestConsole console;
  console.Start();
  const frmBegin begin(console.App.State());
  const frmLogEdit editor(console.App.State());
  const frmLogView events(console.App.State());
  const frmDomainChooser domain(console.App.State());
  const frmComputerEnum computers(console.App.State());
  const frmCustomDomainManager mappings(console.App.State());
  const frmServiceAccount account(console.App.State());
  for (const ui::Form* form : std::initializer_list<const ui::Form*>{&begin, &console.Window(), &editor, &events,
                                                                     &domain, &computers, &mappings, &account})
    EXPECT_TRUE(fs::exists(console.Folder() / "help" / (std::to_string(form->HelpContext) + ".html"))) << form->Name();
}

// The help window opens nothing outside its folder, so a link elsewhere would lead nowhere.
TEST(HelpPagesTest, EveryLinkLeadsToAFileOfTheFolder) {
  const TestConsole console;
  const fs::path help = console.Folder() / "help";
  EXPECT_TRUE(fs::exists(help / "index.html"));
  for (const auto& page : fs::directory_iterator(help)) {
    const std::string text = ReadTextFile(page);
    for (const std::string attribute : {"href=\"", "src=\""})
      for (std::size_t at = text.find(attribute); at != text.npos; at = text.find(attribute, at)) {
        at += attribute.size();
        const std::string target = text.substr(at, text.find_first_of("\"#", at) - at);
        EXPECT_TRUE(fs::exists(help / target)) << page.path() << " names " << target;
      }
  }
}

}  // namespace
}  // namespace corvane::test
