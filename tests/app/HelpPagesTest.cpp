#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "app/installation/TextFile.h"
#include "support/TestConsole.h"

namespace corvane::test {

namespace fs = std::filesystem;

// Pages as an installation has them. That each screen has one, and F1 opens it, is tested with the real windows.
class HelpPagesTest : public ::testing::Test {
 protected:
  using Names = std::set<std::string>;

  /// The pages, and what each of them names behind an attribute.
  std::map<std::string, Names> Named(const std::string& attribute) const {
    std::map<std::string, Names> named;
    const std::regex target(attribute + "=\"([^\"#]*)");
    for (const auto& file : fs::directory_iterator(Help)) {
      if (file.path().extension() != ".html") continue;
      Names& names = named[file.path().filename()];
      const std::string text = ReadTextFile(file);
      for (std::sregex_iterator at(text.begin(), text.end(), target), end; at != end; ++at) names.insert((*at)[1]);
    }
    return named;
  }

  const TestConsole Console;
  const fs::path Help = Console.Folder() / "help";
};

// The help window opens nothing outside its folder, so a link elsewhere would lead nowhere.
TEST_F(HelpPagesTest, EveryLinkLeadsToAFileOfTheFolder) {
  EXPECT_TRUE(fs::exists(Help / "index.html"));
  for (const auto& [page, targets] : Named("href"))
    for (const std::string& target : targets) EXPECT_TRUE(fs::exists(Help / target)) << page << " names " << target;
}

// Each page has a picture that the window shows without a scroll bar, and no picture is left from a page that is gone.
TEST_F(HelpPagesTest, EveryPageHasItsPicture) {
  Names shown;
  for (const auto& [page, pictures] : Named("<img src")) {
    EXPECT_FALSE(pictures.empty()) << page;
    for (const std::string& picture : pictures) {
      shown.insert(fs::path(picture).filename());
      const std::string png = ReadTextFile(Help / picture);
      ASSERT_TRUE(png.size() > 24 && png.starts_with("\x89PNG")) << picture;
      EXPECT_LE(png.size(), 90U * 1024) << picture;
      EXPECT_LE(static_cast<unsigned char>(png[18]) * 256 + static_cast<unsigned char>(png[19]), 660) << picture;
    }
  }
  for (const auto& file : fs::directory_iterator(Help / "pictures"))
    EXPECT_EQ(1U, shown.count(file.path().filename())) << file.path() << " is on no page";
}

}  // namespace corvane::test
