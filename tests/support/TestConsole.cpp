#include "support/TestConsole.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "app/installation/TextFile.h"
#include "support/ReplacedPorts.h"
#include "support/TestStore.h"

namespace corvane::test {
namespace {

// Laying out an installation takes its time; each kind is made once and copied for every test. The lab's computers take
// their time as well; tests do not wait for them.
std::unique_ptr<InstalledPlatform> Install(Installation::Kind kind, const std::filesystem::path& folder,
                                           const std::string& platform, ui::UiHost& host) {
  static const TempFolder place;
  static std::map<Installation::Kind, std::filesystem::path> made;
  if (!made.contains(kind)) {
    const std::string name = std::to_string(static_cast<int>(kind));
    Installation(CORVANE_SOURCE_DIR "/data").LayOut(made[kind] = place.Path() / name, kind);
    const std::filesystem::path lab = made[kind] / Installation::LabFile;
    const std::regex delays("(DelayMs|TimeoutMs) = [0-9]+");
    const std::string text = std::regex_replace(ReadTextFile(lab), delays, "$1 = 0");
    std::ofstream(lab) << text;
  }
  std::filesystem::copy(made[kind], folder, std::filesystem::copy_options::recursive);
  if (!platform.empty()) std::ofstream(folder / Installation::PlatformFile) << platform;
  return std::make_unique<InstalledPlatform>(folder, host);
}

}  // namespace

TestConsole::TestConsole(Installation::Kind kind, const std::string& platform)
    : Installed(Install(kind, Folder(), platform, Host)),
      System(Installed->Ports().System),
      Data(Installed->Ports().Data),
      Ports(Replace(Installed->Ports(), {.System = &System, .Data = &Data})),
      App(Ports) {}

std::string TestConsole::Rows(const std::string& sql) { return Ask(Folder() / Installation::DatabaseFile, sql); }

void TestConsole::SetLab(const std::string& section, const std::string& key, const std::string& value) {
  LabNetwork(Folder() / Installation::LabFile).Change([&](const LabModel&, LabFile& file) {
    file.Set(section, key, value);
    return true;
  });
}

void TestConsole::ChooseDomain(const std::string& domain) {
  const int index = Window().lstDomain.IndexOf(domain);
  ASSERT_GE(index, 0) << domain << " is not listed";
  Host.Choose(Window().lstDomain, index);
}

}  // namespace corvane::test
