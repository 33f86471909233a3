#include "app/installation/Installation.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "adapters/lab/LabNetwork.h"
#include "adapters/linux/HostPaths.h"
#include "adapters/sqlite/SqliteProvider.h"
#include "app/installation/BasicChoicesFile.h"
#include "app/installation/CatalogueFile.h"
#include "app/installation/CatalogueWriter.h"
#include "app/installation/ComputerRegistry.h"
#include "app/installation/InstallationError.h"
#include "app/installation/RegistryImage.h"
#include "app/installation/ScratchFolder.h"
#include "app/installation/TextFile.h"
#include "core/Settings.h"
#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

namespace fs = std::filesystem;

const std::string ProductKey = std::string(R"(HKEY_LOCAL_MACHINE\)") + SettingsKey;

// The format that both providers open, so that a start needs one attempt only.
constexpr int DatabaseFormat = 3;
constexpr const char* ConnectionText = R"(Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\Corvane\corvane.db;)";

void RefuseOccupied(const fs::path& folder) {
  if (!fs::exists(fs::symlink_status(folder))) return;
  if (fs::exists(folder / Installation::DatabaseFile) || fs::exists(folder / Installation::RegistryFile))
    throw InstallationError(folder.string() + " holds an installation already");
  if (!fs::is_directory(folder)) throw InstallationError(folder.string() + " is no folder");
  if (!fs::is_empty(folder)) throw InstallationError(folder.string() + " is not empty");
}

// What the first start would ask for.
void AnswerFirstRun(const LabModel& lab, RegistryImage& settings) {
  const auto domain =
      std::find_if(lab.Domains.begin(), lab.Domains.end(), [](const LabDomain& d) { return !d.IsWorkgroup; });
  if (domain == lab.Domains.end()) throw InstallationError("the lab network has no domain");
  settings.SetText(ProductKey, "Created", "1");
  settings.SetText(ProductKey, "DefaultDomain", UpperCase(domain->Name));
  settings.SetNumber(ProductKey, "ManagingADomain", 1);
}

}  // namespace

Installation::Installation(fs::path data, fs::path program) : data_(std::move(data)), program_(std::move(program)) {}

void Installation::LayOut(const fs::path& folder, Kind kind) const {
  try {
    if (!fs::is_directory(data_)) throw InstallationError("the data folder " + data_.string() + " does not exist");
    // A link is followed, so that the folder behind it is filled and the link stays.
    const fs::path destination = fs::weakly_canonical(fs::absolute(folder));
    RefuseOccupied(destination);
    ScratchFolder scratch(destination.has_filename() ? destination : destination.parent_path());
    Fill(scratch.Path(), kind);
    scratch.MoveToDestination();
  } catch (const RuntimeError& error) {
    throw InstallationError(folder.string() + " cannot be laid out: " + error.Description);
  } catch (const fs::filesystem_error& error) {
    throw InstallationError(folder.string() + " cannot be laid out: " + error.code().message());
  }
}

void Installation::Fill(const fs::path& folder, Kind kind) const {
  const Catalogue catalogue = ReadCatalogue();
  MakeDatabase(folder, catalogue);
  CopyChoices(folder, catalogue);
  CopyFile(PlatformFile, folder);
  CopyFile(LabFile, folder);
  CopyFile(UpdateFile, folder);
  CopyFolder(EventLogFolder, folder);
  CopyFolder(HelpFolder, folder);
  CopyProgram(folder);
  for (const char* name : {RegistryFolder, RapidConfigFolder, AgentConfigFolder}) fs::create_directory(folder / name);
  MakeRegistries(folder, *LabNetwork(folder / LabFile).Model(), kind);
}

Catalogue Installation::ReadCatalogue() const {
  std::istringstream text(ReadTextFile(data_ / "catalogue.txt"));
  return CatalogueFile("catalogue.txt").Read(text);
}

void Installation::CopyChoices(const fs::path& folder, const Catalogue& catalogue) const {
  std::istringstream text(ReadTextFile(data_ / ChoicesFile));
  BasicChoicesFile(ChoicesFile, catalogue).Check(text);
  CopyFile(ChoicesFile, folder);
}

void Installation::MakeDatabase(const fs::path& folder, const Catalogue& catalogue) const {
  SqliteProvider::CreateStore(folder / DatabaseFile, ReadTextFile(data_ / "schema.sql"), DatabaseFormat);
  SqliteProvider provider{HostPaths(folder)};
  const auto connection = provider.NewConnection();
  connection->Open(ConnectionText);
  CatalogueWriter(*connection).Write(catalogue);
  connection->Close();
}

// The registry of the computer that the console runs on is the console's own.
void Installation::MakeRegistries(const fs::path& folder, const LabModel& lab, Kind kind) const {
  RegistryImage settings;
  settings.Read(data_ / "settings.reg");
  DescribeModems(lab, settings);
  for (const LabComputer& computer : lab.Computers) {
    if (SameText(computer.Name, lab.LocalComputer)) {
      DescribeComputer(computer, settings);
      continue;
    }
    RegistryImage registry;
    DescribeComputer(computer, registry);
    registry.Write(folder / RegistryFolder / (computer.Name + ".reg"));
  }
  if (kind == Kind::Lab) AnswerFirstRun(lab, settings);
  settings.Write(folder / RegistryFile);
}

void Installation::CopyFile(const char* name, const fs::path& folder) const {
  WriteTextFile(folder / name, ReadTextFile(data_ / name));
}

void Installation::CopyProgram(const fs::path& folder) const {
  if (!program_.empty() && fs::exists(program_)) fs::copy_file(program_, folder / ProgramFile);
}

void Installation::CopyFolder(const char* name, const fs::path& folder) const {
  std::error_code error;
  fs::copy(data_ / name, folder / name, fs::copy_options::recursive, error);
  if (error) throw InstallationError((data_ / name).string() + " cannot be copied: " + error.message());
}

}  // namespace corvane
