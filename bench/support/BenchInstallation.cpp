#include "support/BenchInstallation.h"

#include <regex>

#include "app/installation/Installation.h"
#include "app/installation/RegistryImage.h"
#include "app/installation/TextFile.h"
#include "core/Settings.h"
#include "support/BareLogs.h"

namespace corvane::bench {

BenchInstallation::BenchInstallation(int logs, int computers) {
  Installation(CORVANE_SOURCE_DIR "/data").LayOut(Folder(), Installation::Kind::Lab);
  AnswerAtOnce();
  AddComputers(computers);
  AddLogs(logs);
}

std::filesystem::path BenchInstallation::Database() const { return Folder() / Installation::DatabaseFile; }

std::filesystem::path BenchInstallation::CopyOfDatabase() const {
  const auto copy = place_.Path() / "copy.db";
  std::filesystem::copy_file(Database(), copy);
  return copy;
}

void BenchInstallation::AnswerAtOnce() const {
  const auto lab = Folder() / Installation::LabFile;
  const std::regex delays("\n(DelayMs|TimeoutMs) *=[^\n]*");
  WriteTextFile(lab, std::regex_replace(ReadTextFile(lab), delays, ""));
}

void BenchInstallation::AddComputers(int count) const {
  const auto lab = Folder() / Installation::LabFile;
  std::string text = ReadTextFile(lab);
  for (int i = 1; i <= count; ++i)
    text += "\n[Computer " + ComputerName(i) + "]\nDomain = " + Domain + "\nSystem = 2008\nAddress = 10.7." +
            std::to_string(i / 250) + "." + std::to_string(i % 250 + 1) + "\nLog System = oldest 1, count 500\n";
  WriteTextFile(lab, text);
}

void BenchInstallation::AddLogs(int count) const {
  BareStore store(Database());
  const Attachments attached(store);
  store.Run("BEGIN");
  for (int i = 0; i < count; ++i) InsertLog(store, WatchedLog(i), attached);
  store.Run("COMMIT");
  AddStatistics(count);
}

void BenchInstallation::AddStatistics(int count) const {
  const auto file = Folder() / Installation::RegistryFile;
  const std::string key = std::string("HKEY_LOCAL_MACHINE\\") + StatisticsKey;
  RegistryImage registry;
  registry.Read(file);
  for (int i = 0; i < count; ++i) {
    const std::string id = WatchedLog(i).IDName();
    const std::string time = "_" + std::to_string(i / 3600 % 24) + "_" + std::to_string(i / 60 % 60) + "_";
    registry.SetText(key, id + "_LastCheck", "11_16_2026" + time + std::to_string(i % 60));
    registry.SetText(key, id + "_LastScan", "11_15_2026" + time + std::to_string(i % 60));
    registry.SetText(key, id + "_NumEvents", std::to_string(i % 5000));
    registry.SetText(key, id + "_ScanTime", std::to_string(i % 100));
  }
  registry.Write(file);
}

}  // namespace corvane::bench
