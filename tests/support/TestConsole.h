#pragma once

#include <filesystem>
#include <string>

#include "adapters/lab/LabNetwork.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/installation/Installation.h"
#include "core/console/Console.h"
#include "platform/System.h"
#include "support/RecordingData.h"
#include "support/ScriptedHost.h"
#include "support/TempFolder.h"

namespace corvane::test {

/// The machine of an installation with a clock and a version that a test sets.
class TestSystem : public System {
 public:
  explicit TestSystem(System& real) : real_(real) {}

  int MajorVersion() override { return Version; }
  std::optional<std::string> ComputerName() override { return real_.ComputerName(); }
  std::optional<std::string> UserName() override { return real_.UserName(); }
  std::string ProgramFolder() override { return real_.ProgramFolder(); }
  std::string WindowsFolder() override { return real_.WindowsFolder(); }
  DateTime Now() override { return Clock(); }
  corvane::TimeZone TimeZone() override { return Zone; }

  int Version = 6;
  corvane::TimeZone Zone;
  std::function<DateTime()> Clock = [] { return MakeDateTime(2026, 11, 16, 14, 5, 9); };

 private:
  System& real_;
};

/// A console on a fresh installation with the lab network, without a screen. Everything behind it is real but the host,
/// the clock and the witness of its statements.
class TestConsole {
 public:
  /// A text in `platform` stands in the place of the installation's own choice of ports.
  explicit TestConsole(Installation::Kind kind = Installation::Kind::Lab, const std::string& platform = "");

  /// Runs the whole start.
  void Start() { App.Main(); }
  frmCVMain& Window() { return App.MainWindow(); }

  /// The rows of a statement run by a reader of its own: fields parted by "|", each row closed by a line break.
  std::string Rows(const std::string& sql);
  std::string Setting(const std::string& name) { return App.State().Setting(name); }
  /// Changes a line of the lab network.
  void SetLab(const std::string& section, const std::string& key, const std::string& value);
  /// Chooses a domain by its name and refills the list.
  void ChooseDomain(const std::string& domain);
  std::filesystem::path Folder() const { return Place.Path() / "installation"; }

  // In the order in which each needs those before it.
  TempFolder Place;
  ScriptedHost Host;
  std::unique_ptr<InstalledPlatform> Installed;
  TestSystem System;
  RecordingData Data;
  Platform Ports;
  Console App;
};

}  // namespace corvane::test
