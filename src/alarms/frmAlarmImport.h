#pragma once

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "alarms/ImportFile.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {

/// "Import Alarms and Alarm Bundles": lists the alarms of an exchange file, lets the user look at each and drop some,
/// and merges the rest into the catalogue. One face is the list, the other shows the fields of one alarm.
class frmAlarmImport : public ui::Form {
 public:
  explicit frmAlarmImport(modMain& main);

  ui::Label lblInfo{*this, "lblInfo"};
  /// Stands before the box, which is not typed into, so that the focus begins here.
  ui::CommandButton cmdBrowse{*this, "cmdBrowse"};
  ui::Label lblFile{*this, "lblFile"};
  ui::TextBox txtFile{*this, "txtFile"};
  ui::Label lblItemsToImport{*this, "lblItemsToImport"};
  ui::ListView lvwItemsToImport{*this, "lvwItemsToImport"};
  ui::CommandButton cmdView{*this, "cmdView"};
  ui::CommandButton cmdDelete{*this, "cmdDelete"};
  ui::CommandButton cmdImport{*this, "cmdImport"};
  ui::CommandButton cmdCancel{*this, "cmdCancel"};

  ui::Frame fraAlarmProps{*this, "fraAlarmProps"};
  /// What is shown of an alarm: a title and beside it the field.
  std::array<ui::Label, 12> lblTitle{Labels("lblTitle", std::make_index_sequence<12>())};
  std::array<ui::Label, 12> lblField{Labels("lblField", std::make_index_sequence<12>())};
  ui::CommandButton cmdAbandon{*this, "cmdAbandon"};

 protected:
  bool Form_Load() override;

 private:
  template <std::size_t>
  ui::Label NewLabel(const char* name) {
    return ui::Label{*this, name};
  }
  template <std::size_t... Places>
  std::array<ui::Label, sizeof...(Places)> Labels(const char* name, std::index_sequence<Places...>) {
    return {NewLabel<Places>(name)...};
  }
  void SetCaptions();
  void WireHandlers();
  void ShowListFace(bool shown);

  void cmdBrowse_Click();
  void cmdView_Click();
  void cmdDelete_Click();
  void cmdImport_Click();

  void SwitchToList();
  void LoadImportList(const std::string& path);
  void DescribeAlarm(const ExchangeLine& line, int number, std::vector<std::string>& columns);
  std::string NameFrom(const std::string& table, const std::string& index, const char* column);
  void ShowAlarmProperties();

  modMain& main_;
  ImportFile file_;
  /// Names of log types and OS classes by the statements that read them.
  std::map<std::string, std::string> names_;
};

}  // namespace corvane
