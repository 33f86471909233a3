#include "app/installation/InstallerCommand.h"

#include <utility>

#include "app/installation/ConfigUpdateFile.h"
#include "app/installation/InstallationError.h"
#include "app/installation/TextFile.h"

namespace corvane {
namespace {

constexpr const char* Usage =
    "Usage: corvane-install DIR [--lab | --first-run] [--data DIR]\n"
    "       corvane-install --config-update FILE [--data DIR]\n"
    "\n"
    "Lays out an installation of the console in DIR, which must be missing or empty.\n"
    "\n"
    "  --lab        the lab network's first domain is chosen already\n"
    "  --first-run  what a first start asks for is left open (default)\n"
    "  --data DIR   where the files that an installation ships lie\n"
    "\n"
    "With --config-update nothing is laid out: FILE is written anew with the statements that bring the database of an\n"
    "older installation up to date, as they follow from the catalogue.\n";

}  // namespace

InstallerCommand::InstallerCommand(std::filesystem::path data, std::filesystem::path program, std::ostream& out,
                                   std::ostream& errors)
    : data_(std::move(data)), program_(std::move(program)), out_(out), errors_(errors) {}

int InstallerCommand::Run(const std::vector<std::string>& arguments) {
  if (!Read(arguments)) return 2;
  if (help_) {
    out_ << Usage;
    return 0;
  }
  try {
    Perform();
  } catch (const InstallationError& error) {
    errors_ << "corvane-install: " << error.what() << "\n";
    return 1;
  }
  return 0;
}

void InstallerCommand::Perform() {
  const Installation installation(data_, program_);
  if (!update_.empty()) {
    WriteTextFile(update_, ConfigUpdateText(installation.ReadCatalogue()));
    out_ << update_.string() << " is written.\n";
    return;
  }
  installation.LayOut(folder_, lab_ ? Installation::Kind::Lab : Installation::Kind::FirstRun);
  out_ << "The installation stands in " << folder_.string() << ".\n";
}

bool InstallerCommand::Read(const std::vector<std::string>& arguments) {
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (*argument == "--data") {
      if (++argument == arguments.end()) return Refuse("--data needs a folder");
      data_ = *argument;
    } else if (*argument == "--config-update") {
      if (++argument == arguments.end()) return Refuse("--config-update needs a file");
      update_ = *argument;
    } else if (argument->starts_with("-")) {
      if (!ReadOption(*argument)) return Refuse("unknown option " + *argument);
    } else if (!folder_.empty()) {
      return Refuse("more than one folder");
    } else {
      folder_ = *argument;
    }
  }
  if (help_) return true;
  if (!update_.empty()) return folder_.empty() || Refuse("--config-update lays no folder out");
  if (folder_.empty()) return Refuse("no folder");
  return !(lab_ && firstRun_) || Refuse("--lab and --first-run exclude each other");
}

bool InstallerCommand::ReadOption(const std::string& argument) {
  if (argument == "--lab") return lab_ = true;
  if (argument == "--first-run") return firstRun_ = true;
  if (argument == "--help" || argument == "-h") return help_ = true;
  return false;
}

bool InstallerCommand::Refuse(const std::string& why) {
  errors_ << "corvane-install: " << why << "\n\n" << Usage;
  return false;
}

}  // namespace corvane
