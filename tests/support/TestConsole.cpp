#include "support/TestConsole.h"

#include <gtest/gtest.h>

#include <map>

#include "support/TestStore.h"

namespace corvane::test {
namespace {

// The lab's computers take their time; tests do not wait for them.
void AnswerAtOnce(const std::filesystem::path& lab) {
  LabNetwork(lab).Change([](const LabModel&, LabFile& file) {
    std::vector<std::string> slow;
    for (const LabFile::Section& section : file.Sections())
      for (const LabFile::Entry& entry : section.Entries)
        if (entry.Key == "DelayMs") slow.push_back(section.Name);
    for (const std::string& computer : slow) file.Set(computer, "DelayMs", "0");
    file.Set("Lab", "TimeoutMs", "0");
    return true;
  });
}

// Laying out an installation takes its time; each kind is made once and copied for every test.
const std::filesystem::path& Template(Installation::Kind kind) {
  static const TempFolder place;
  static std::map<Installation::Kind, std::filesystem::path> made;
  std::filesystem::path& folder = made[kind];
  if (folder.empty()) {
    folder = place.Path() / std::to_string(static_cast<int>(kind));
    Installation(CORVANE_SOURCE_DIR "/data").LayOut(folder, kind);
    AnswerAtOnce(folder / Installation::LabFile);
  }
  return folder;
}

std::unique_ptr<InstalledPlatform> Install(Installation::Kind kind, const std::filesystem::path& folder,
                                           ui::UiHost& host) {
  std::filesystem::copy(Template(kind), folder, std::filesystem::copy_options::recursive);
  return std::make_unique<InstalledPlatform>(folder, host);
}

}  // namespace

TestConsole::TestConsole(Installation::Kind kind)
    : installed_(Install(kind, Folder(), Host)),
      System(installed_->Ports().System),
      Data(installed_->Ports().Data),
      Ports{System,
            installed_->Ports().Files,
            installed_->Ports().Registry,
            installed_->Ports().Profiles,
            Data,
            installed_->Ports().Services,
            installed_->Ports().EventLogs,
            installed_->Ports().EventReader,
            installed_->Ports().NetX,
            installed_->Ports().Directory,
            installed_->Ports().Units,
            installed_->Ports().Ping,
            installed_->Ports().Launcher,
            installed_->Ports().Instance,
            Host,
            installed_->Ports().CreateDirectoryApi,
            installed_->Ports().CreateChannelReader},
      App(Ports) {}

std::string TestConsole::Rows(const std::string& sql) { return Ask(Folder() / Installation::DatabaseFile, sql); }

void TestConsole::SetLab(const std::string& section, const std::string& key, const std::string& value) {
  LabNetwork network(Folder() / Installation::LabFile);
  network.Change([&](const LabModel&, LabFile& file) {
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
