#pragma once

#include <array>
#include <memory>
#include <string>

#include "core/MainWindow.h"
#include "core/Reghack.h"
#include "platform/ChannelReader.h"
#include "platform/DirectoryApi.h"
#include "platform/Platform.h"
#include "platform/data/Connection.h"

namespace corvane {

/// The state that all screens of one console share. No screen keeps a copy of what stands here.
class modMain {
 public:
  explicit modMain(corvane::Platform& platform);
  ~modMain();

  /// Reads the settings that hold for the whole run and clears the flags. Missing values read as empty texts.
  void InitGlobals();

  /// A setting's text, without the zero that ends it; empty when it is missing.
  std::string Setting(const std::string& name) const;
  /// A setting read as a number, whether it is stored as one or as text; 0 when it is missing or begins with no number.
  double SettingNumber(const std::string& name) const;
  /// Writes a setting as text.
  void SaveSetting(const std::string& name, const std::string& value);

  corvane::Platform& Platform;
  ui::UiHost& Ui;
  Reghack Registry;

  /// The one connection to the configuration database, open until the main window unloads.
  std::unique_ptr<Connection> ConfigConnection;
  /// Used by the list routines, opened and closed around each query. A routine that nests queries makes its own.
  std::unique_ptr<Recordset> SharedRecordset;

  std::string ConfigDbPath;
  std::string CatalogLink;
  std::string UpgradeLink;

  /// Per column of the list of logs: the next click sorts descending when false, ascending when true.
  std::array<bool, 6> ColumnSortState{};
  /// True while the log editor is opened to add, false when it edits.
  bool IsNewLog = false;
  /// The two keys of the row to select again after a refill.
  std::string SelectedName;
  std::string SelectedDetail;

  bool HasDirectoryApi = false;
  bool HasChannelApi = false;
  std::unique_ptr<corvane::DirectoryApi> DirectoryApi;
  std::unique_ptr<corvane::ChannelReader> ChannelReader;

  /// The main window; null until it is made.
  MainWindow* CVMain = nullptr;
};

}  // namespace corvane
