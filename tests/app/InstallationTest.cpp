#include "app/installation/Installation.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "adapters/lab/LabNetwork.h"
#include "adapters/linux/LinuxSystem.h"
#include "adapters/settings/RegistryFileStore.h"
#include "app/installation/CatalogueFile.h"
#include "app/installation/InstallationError.h"
#include "app/installation/InstallerCommand.h"
#include "app/installation/TextFile.h"
#include "core/LogTypes.h"
#include "core/Reghack.h"
#include "core/Settings.h"
#include "platform/Conversions.h"
#include "support/Cases.h"
#include "support/TestStore.h"

namespace corvane::test {

namespace fs = std::filesystem;

const fs::path shipped = CORVANE_SOURCE_DIR "/data";

static std::string LayOut(const fs::path& folder, Installation::Kind kind, const fs::path& data = shipped) {
  try {
    Installation(data).LayOut(folder, kind);
  } catch (const InstallationError& error) {
    return error.what();
  }
  return "";
}

// A value of a registry file: a number in decimal, a text in quotes, nothing where there is none.
static std::string ValueIn(const fs::path& file, RegistryHandle root, const std::string& key, const std::string& name) {
  RegistryFileStore store(file);
  LinuxSystem system;
  std::string value = Reghack(store, system).GetRemoteKeyValue(key, name, root);
  if (value.ends_with('\0')) value = "'" + Reghack::DeNullString(value) + "'";
  return value;
}

class InstallationTest : public testing::Test {
 protected:
  std::string Local(const std::string& key, const std::string& name) const {
    return ValueIn(folder_ / Installation::RegistryFile, registry::LocalMachine, key, name);
  }

  TempFolder place_;
  const fs::path folder_ = place_.Path() / "deep" / "installation";
};

TEST_F(InstallationTest, EverySettingIsThereWithItsTypeAndWithinItsRange) {
  ASSERT_EQ(LayOut(folder_, Installation::Kind::FirstRun), "");
  for (const auto& setting : Cases("app/Settings.txt")) {
    const std::string text = Local(SettingsKey, setting[0]);
    if (setting.size() == 2) {
      EXPECT_TRUE(text.starts_with(setting[1])) << setting[0] << " is " << text;
      continue;
    }
    ASSERT_TRUE(IsNumeric(text)) << setting[0] << " is " << text;
    const auto number = static_cast<std::uint32_t>(TextToInt32(text));
    EXPECT_TRUE(number >= std::stoul(setting[1]) && number <= std::stoul(setting[2])) << setting[0] << " is " << text;
  }
  const fs::path file = folder_ / Installation::RegistryFile;
  EXPECT_NE(ValueIn(file, registry::ClassesRoot, R"(http\shell\open\command)", "").find("%1"), std::string::npos);
  for (const char* name : {"Created", "DefaultDomain", "ManagingADomain"})
    EXPECT_EQ(Local(SettingsKey, name), "") << name << " is asked for at the first start";
  for (const char* name : {Installation::RapidConfigFolder, Installation::AgentConfigFolder})
    EXPECT_TRUE(fs::is_directory(folder_ / name));
}

TEST_F(InstallationTest, EveryComputerOfTheLabTellsItsSystemAndLogs) {
  ASSERT_EQ(LayOut(folder_, Installation::Kind::Lab), "");
  LabTiming timing;
  timing.Sleep = [](int) {};
  LabNetwork lab(folder_ / Installation::LabFile, folder_ / Installation::RegistryFile, timing);
  const auto model = lab.Model();
  EXPECT_EQ(Local(SettingsKey, "Created") + Local(SettingsKey, "ManagingADomain"), "'1'1");
  EXPECT_EQ(Local(SettingsKey, "DefaultDomain"), "'" + model->Domains.front().Name + "'");
  std::set<std::string> ids;
  for (const LabComputer& computer : model->Computers) {
    SCOPED_TRACE(computer.Name);
    fs::path file = folder_ / Installation::RegistryFolder / (computer.Name + ".reg");
    if (computer.State == LabState::On) lab.RemoteRegistry(computer.Name, file);
    EXPECT_EQ(file == folder_ / Installation::RegistryFile, computer.Name == model->LocalComputer);
    const auto value = [&](const std::string& key, const std::string& name) {
      return ValueIn(file, registry::LocalMachine, key, name);
    };
    const std::string product = R"(Software\Microsoft\Windows NT\CurrentVersion)";
    EXPECT_EQ(value(product, "ProductName"), "'" + computer.Product + "'");
    for (const LabLog& log : computer.Logs) {
      ids.insert(MakeIDName(computer.Name, LogNumber(log.Name)));
      const std::string key = R"(System\CurrentControlSet\Services\Eventlog\)" + log.Name;
      EXPECT_EQ(value(key, "File"), "'" + log.File + "'");
      EXPECT_EQ(value(key, "MaxSize") + " " + value(key, "Retention"),
                std::to_string(log.MaxSize) + " " + std::to_string(static_cast<std::int32_t>(log.Retention)));
    }
  }
  // Statistics are seen only under the names of logs that can be put under watch.
  RegistryFileStore store(folder_ / Installation::RegistryFile);
  RegistryHandle key = 0;
  RegistryValue value;
  std::uint32_t index = 0;
  store.OpenKey(registry::LocalMachine, StatisticsKey, registry::Read, key);
  for (std::string name; store.EnumValue(key, index, name, value) == registry::Ok; ++index)
    EXPECT_EQ(ids.count(name.substr(0, name.rfind('_'))), 1u) << name;
  EXPECT_GT(index, 0u);
}

TEST_F(InstallationTest, TheDatabaseHoldsTheCatalogue) {
  ASSERT_EQ(LayOut(folder_, Installation::Kind::FirstRun), "");
  std::ifstream text(shipped / "catalogue.txt");
  const Catalogue catalogue = CatalogueFile("catalogue.txt").Read(text);
  const auto count = [&](const std::string& source) {
    return std::stoul(Ask(folder_ / Installation::DatabaseFile, "SELECT COUNT(*) FROM " + source));
  };
  const std::pair<const char*, std::size_t> rows[] = {
      {"AlarmCategories", catalogue.Categories.size()},
      {"Alarms, AlarmCategories WHERE AlarmCategories.[Index] = Alarms.AlarmCategory", catalogue.Alarms.size()},
      {"Alarms WHERE Name = 'All Errors' AND Source IS NULL AND EventID = -1 AND TypeMask = 4", 3},
      {"Notifications WHERE SyslogServer IS NOT NULL AND TypesSupported = 16 AND EmailRecipient IS NULL", 1}};
  for (const auto& [source, expected] : rows) EXPECT_EQ(count(source), expected) << source;
  for (const auto& bundle : catalogue.Bundles)
    EXPECT_EQ(count("AlarmsInGroups NATURAL JOIN Alarms JOIN AlarmGroups ON AlarmGroupID = AlarmGroups.[Index] "
                    "WHERE AlarmGroups.Name = '" +
                    bundle.Name + "'"),
              bundle.Members.size());
}

TEST_F(InstallationTest, AFailureLeavesNothingBehind) {
  const fs::path data = place_.Path() / "data";
  const auto failure = [&] { return LayOut(folder_, Installation::Kind::Lab, data); };
  EXPECT_EQ(failure(), "the data folder " + data.string() + " does not exist");
  fs::copy(shipped, data, fs::copy_options::recursive);
  const std::pair<std::string, std::string> spoilt[] = {{"catalogue.txt", "catalogue.txt:1: 'no' is no keyword"},
                                                        {"settings.reg", "settings.reg is no registry file"},
                                                        {"schema.sql", "near \"no\""},
                                                        {"lab.ini", "Line 1 of the lab file"}};
  for (const auto& [name, why] : spoilt) {
    std::ofstream(data / name) << "no such thing";
    EXPECT_NE(failure().find(why), std::string::npos) << failure();
    fs::copy_file(shipped / name, data / name, fs::copy_options::overwrite_existing);
  }
  // A failure that ends the transaction itself, as a full disk does, is the one that is told.
  std::ofstream(data / "schema.sql", std::ios::app)
      << "CREATE TRIGGER Full BEFORE INSERT ON Alarms BEGIN SELECT RAISE(ROLLBACK, 'no room left'); END;";
  EXPECT_NE(failure().find("no room left"), std::string::npos) << failure();
  fs::copy_file(shipped / "schema.sql", data / "schema.sql", fs::copy_options::overwrite_existing);
  fs::remove_all(data / "help");
  EXPECT_EQ(failure(), (data / "help").string() + " cannot be copied: No such file or directory");
  fs::remove(data / "platform.ini");
  EXPECT_EQ(failure(), (data / "platform.ini").string() + " cannot be read: No such file or directory");
  EXPECT_EQ(LayOut("/proc/corvane/inner", Installation::Kind::Lab),
            "/proc/corvane/inner cannot be laid out: No such file or directory");
  fs::remove_all(data);
  EXPECT_TRUE(fs::is_empty(place_.Path()));
}

TEST_F(InstallationTest, NothingIsOverwritten) {
  ASSERT_EQ(LayOut(folder_, Installation::Kind::Lab), "");
  const auto written = fs::last_write_time(folder_ / Installation::DatabaseFile);
  const fs::path file = folder_ / Installation::LabFile;
  const std::pair<fs::path, std::string> occupied[] = {
      {folder_ / "", folder_.string() + " holds an installation already"},
      {file, file.string() + " is no folder"},
      {place_.Path(), place_.Path().string() + " is not empty"}};
  for (const auto& [folder, why] : occupied) EXPECT_EQ(LayOut(folder, Installation::Kind::Lab), why);
  EXPECT_EQ(fs::last_write_time(folder_ / Installation::DatabaseFile), written);
  const fs::path empty = place_.Path() / "empty", link = place_.Path() / "link";
  fs::create_directory(empty);
  fs::create_directory_symlink(empty, link);
  EXPECT_EQ(LayOut(link / "", Installation::Kind::Lab), "");
  EXPECT_TRUE(fs::is_symlink(link) && fs::exists(empty / Installation::DatabaseFile));
  EXPECT_EQ(std::distance(fs::directory_iterator(place_.Path()), {}), 3);
}

TEST_F(InstallationTest, TheCommandLineSaysWhatWentWrong) {
  const fs::path program = place_.Write("console", "the program");
  for (const auto& one : Cases("app/CommandLines.txt", {{"folder", folder_.string()}})) {
    std::ostringstream out, err;
    const bool done = one[0] == "0";
    EXPECT_EQ(InstallerCommand(shipped, program, out, err).Run({one.begin() + 2, one.end()}), std::stoi(one[0]));
    EXPECT_TRUE((done ? out : err).str().starts_with(one[1])) << one[1];
    EXPECT_EQ((done ? err : out).str(), "");
  }
  EXPECT_EQ(ReadTextFile(folder_ / Installation::ProgramFile), "the program");
}

}  // namespace corvane::test
