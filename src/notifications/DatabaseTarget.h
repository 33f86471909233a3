#pragma once

#include <array>
#include <string>
#include <vector>

#include "notifications/TargetTables.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// The database that a notification writes into, as its screen shows it: the choice between a file and ODBC, the
/// connection, and the box with the tables, in which the name of a new one may be typed.
class DatabaseTarget {
 public:
  enum Type { Access = 0, Odbc = 1 };

  DatabaseTarget(modMain& main, TargetConnector& connector, std::array<ui::OptionButton, 2>& type,
                 ui::TextBox& connection, ui::ComboBox& table)
      : main_(main), targets_(main, connector), type_(type), connection_(connection), table_(table) {}

  /// Empties the connection and the box of tables.
  void Clear();
  /// Shows what is stored. Tables that cannot be listed are told.
  void Load(const std::string& connection, const std::string& table);
  /// Lets the user choose a file or put a connection together, and lists its tables.
  void Browse();
  /// Lists the tables of the connection anew.
  void RefreshTableList();
  /// Whether the text of the box is one of the tables listed. The hint is none.
  bool IsListed() const;
  /// Makes a table behind the connection and lists it. False, with a message, when that fails.
  bool CreateTable(const std::string& name);

 private:
  void BrowseFile();
  void BrowseServer();
  void Show(const std::vector<std::string>& tables, bool isOracle);
  bool Create(const std::string& name);
  bool CreateOnOracle(TargetConnection& connection, const std::string& name);
  std::string AskForSchema(const std::string& name);
  void ShowNew(const std::string& name);

  modMain& main_;
  TargetTables targets_;
  std::array<ui::OptionButton, 2>& type_;
  ui::TextBox& connection_;
  ui::ComboBox& table_;
};

}  // namespace corvane
