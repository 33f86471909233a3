#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "notifications/TargetTables.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

class modMain;

/// Creates the empty tables that database notifications are written into, in a file, on SQL Server or on Oracle.
class frmCreateTable : public ui::Form {
 public:
  enum class Kind { Access = 1, SqlServer = 2, Oracle = 3 };

  frmCreateTable(modMain& main, TargetConnector& connector);

  /// Settles where tables are created. It is Access otherwise.
  void InitForm(Kind kind);

  ui::Label lblInfo{*this, "lblInfo"};
  /// Stands before the box, which is not typed into, so that the focus begins here.
  ui::CommandButton cmdDataODBCBrowse{*this, "cmdDataODBCBrowse"};
  ui::Label lblDataODBC{*this, "lblDataODBC"};
  ui::TextBox txtDataODBC{*this, "txtDataODBC"};
  ui::Label lblTables{*this, "lblTables"};
  ui::ListBox lstTableName{*this, "lstTableName"};
  ui::Label lblNewTable{*this, "lblNewTable"};
  ui::TextBox txtNewTable{*this, "txtNewTable"};
  ui::Label lblSchema{*this, "lblSchema"};
  ui::TextBox txtSchema{*this, "txtSchema"};
  ui::Label lblTablespace{*this, "lblTablespace"};
  ui::TextBox txtTableSpace{*this, "txtTableSpace"};
  ui::CommandButton cmdAdd{*this, "cmdAdd"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void cmdDataODBCBrowse_Click();
  void txtNewTable_Change();
  void cmdAdd_Click();

  /// Lists what is found; where nothing can be, the user is told and the list is empty.
  void ListTables(const std::function<std::optional<std::vector<std::string>>()>& find);
  std::optional<std::vector<std::string>> BrowseFile();
  std::optional<std::vector<std::string>> BrowseServer();
  void Refresh();
  void Create() const;
  void Refuse(const std::string& text);

  modMain& main_;
  TargetTables targets_;
  Kind kind_ = Kind::Access;
};

}  // namespace corvane
