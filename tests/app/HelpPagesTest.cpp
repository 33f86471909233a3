#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "app/installation/TextFile.h"
#include "support/TestConsole.h"

namespace corvane::test {

namespace fs = std::filesystem;

// The help window opens nothing outside its folder and shows a picture without a scroll bar. That each screen has a
// page, and F1 opens it, is tested with the real windows.
TEST(HelpPages, NameFilesOfTheirFolderAndShowEveryPicture) {
  const TestConsole console;
  const fs::path help = console.Folder() / "help";
  const std::regex target("(href|<img src)=\"([^\"#]*)");
  std::set<std::string> shown;
  EXPECT_TRUE(fs::exists(help / "index.html"));
  for (const auto& file : fs::directory_iterator(help)) {
    if (file.path().extension() != ".html") continue;
    const std::string text = ReadTextFile(file);
    EXPECT_NE(text.npos, text.find("<img src")) << file;
    for (std::sregex_iterator at(text.begin(), text.end(), target), end; at != end; ++at) {
      const fs::path named = help / (*at)[2].str();
      ASSERT_TRUE(fs::exists(named)) << file << " names " << named;
      if ((*at)[1] == "href") continue;
      shown.insert(named.filename());
      const std::string png = ReadTextFile(named);
      ASSERT_TRUE(png.size() > 24 && png.starts_with("\x89PNG")) << named;
      EXPECT_LE(png.size(), 90U * 1024) << named;
      EXPECT_LE(static_cast<unsigned char>(png[18]) * 256 + static_cast<unsigned char>(png[19]), 660) << named;
    }
  }
  for (const auto& file : fs::directory_iterator(help / "pictures"))
    EXPECT_EQ(1U, shown.count(file.path().filename())) << file << " is on no page";
}

}  // namespace corvane::test
