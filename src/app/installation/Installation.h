#pragma once

#include <filesystem>

namespace corvane {

class RegistryImage;
struct Catalogue;
struct LabModel;

/// What an installation's folder holds, and how a fresh one is laid out.
class Installation {
 public:
  /// `FirstRun` leaves open what the first start asks for; `Lab` answers it, with the first domain of the lab network.
  enum class Kind { FirstRun, Lab };

  static constexpr const char* ProgramFile = "corvane";
  static constexpr const char* DatabaseFile = "corvane.db";
  static constexpr const char* RegistryFile = "corvane.reg";
  static constexpr const char* PlatformFile = "platform.ini";
  /// What brings an older database up to date.
  static constexpr const char* UpdateFile = "configupdate01.dat";
  /// The ready-made event choices of the rapid configuration.
  static constexpr const char* ChoicesFile = "rapidconfigbasic.dat";
  static constexpr const char* LabFile = "lab.ini";
  /// Where the registries of the lab's other computers lie.
  static constexpr const char* RegistryFolder = "registry";
  /// Where the event logs of the local computer of the lab lie.
  static constexpr const char* EventLogFolder = "eventlog";
  /// Where local services keep the sockets that stand for their named pipes.
  static constexpr const char* PipeFolder = "pipe";
  static constexpr const char* RapidConfigFolder = "RapidConfigs";
  static constexpr const char* AgentConfigFolder = "AgentConfigs";
  static constexpr const char* HelpFolder = "help";

  /// `data` is the folder with the shipped schema, catalogue, settings, lab network, event logs and help pages.
  /// `program` is the console to put there, since it works on the installation that it lies in; without one the
  /// installation has none.
  explicit Installation(std::filesystem::path data, std::filesystem::path program = {});

  /// Lays out an installation in a folder that is missing or empty. Raises `InstallationError`, with nothing left
  /// behind, also when the folder holds an installation already.
  void LayOut(const std::filesystem::path& folder, Kind kind) const;

  /// The shipped catalogue. Raises `InstallationError`.
  Catalogue ReadCatalogue() const;

 private:
  void Fill(const std::filesystem::path& folder, Kind kind) const;
  void MakeDatabase(const std::filesystem::path& folder, const Catalogue& catalogue) const;
  void CopyChoices(const std::filesystem::path& folder, const Catalogue& catalogue) const;
  void MakeRegistries(const std::filesystem::path& folder, const LabModel& lab, Kind kind) const;
  void CopyProgram(const std::filesystem::path& folder) const;
  void CopyFile(const char* name, const std::filesystem::path& folder) const;
  void CopyFolder(const char* name, const std::filesystem::path& folder) const;

  std::filesystem::path data_;
  std::filesystem::path program_;
};

}  // namespace corvane
