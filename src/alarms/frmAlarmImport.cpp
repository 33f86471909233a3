#include "alarms/frmAlarmImport.h"

#include <optional>
#include <unordered_set>

#include "alarms/AlarmImport.h"
#include "alarms/AlarmTree.h"
#include "alarms/TypeMask.h"
#include "core/ConfigDatabase.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 340;
// Widths of the columns; the notice that stands in the list at first takes the first one for itself.
constexpr std::array<int, 5> Widths{3900, 2200, 2400, 3900, 2700};
constexpr int WholeWidth = 15300;

struct ShownField {
  const char* Title;
  std::size_t Place;
};
constexpr std::array<ShownField, 12> ShownFields{{{"Name:", alarmfield::Name},
                                                  {"Comment:", 1},
                                                  {"Alarm Category:", alarmfield::Category},
                                                  {"Event Types:", alarmfield::TypeMask},
                                                  {"Source:", 4},
                                                  {"Category:", 5},
                                                  {"User:", 6},
                                                  {"Computer:", 7},
                                                  {"Event ID:", 8},
                                                  {"Description:", alarmfield::EventDescription},
                                                  {"Threshold Limit:", 11},
                                                  {"Threshold Timeout:", 12}}};

// A file may hold anything in the place of the mask and of the flag.
std::string EventTypesText(const ExchangeLine& line) {
  int mask = 0;
  PassOver([&] { mask = TextToInt32(line.Find(alarmfield::TypeMask)); });
  return TypeMaskToText(mask);
}

std::string DescriptionText(const ExchangeLine& line) {
  bool isExact = line.Count() <= alarmfield::MatchEntire;
  if (!isExact) PassOver([&] { isExact = ToBoolean(line[alarmfield::MatchEntire]); });
  return std::string(isExact ? "EXACTLY" : "CONTAINS") + " " + line.Find(alarmfield::EventDescription);
}

std::string TextOfField(const ExchangeLine& line, std::size_t place) {
  if (place == alarmfield::TypeMask) return EventTypesText(line);
  if (place == alarmfield::EventDescription) return DescriptionText(line);
  return line.Find(place);
}

}  // namespace

frmAlarmImport::frmAlarmImport(modMain& main) : Form(main.Ui, "frmAlarmImport"), main_(main) {
  HelpContext = HelpTopic;
  SetCaptions();
  WireHandlers();
  txtFile.Locked = true;
  lvwItemsToImport.Columns = {{"Name", WholeWidth}, {"Category", 0}, {"Log Type", 0}, {"OS", 0}, {"Group", 0}};
  lvwItemsToImport.SetMultiSelect(false);
  cmdImport.Default = true;
  cmdCancel.Cancel = true;
  cmdAbandon.Default = cmdAbandon.Cancel = true;
  ShowListFace(true);
}

void frmAlarmImport::SetCaptions() {
  Caption = "Import Alarms and Alarm Bundles";
  lblInfo.Caption =
      "Choose a file that was exported by Corvane, and remove the alarms from the list that you do not want to import.";
  lblFile.Caption = "&File:";
  cmdBrowse.Caption = "&Browse...";
  lblItemsToImport.Caption = "&Alarms to Import";
  cmdView.Caption = "&View";
  cmdDelete.Caption = "&Remove";
  cmdImport.Caption = "&Import";
  cmdCancel.Caption = "Cancel";
  fraAlarmProps.Caption = "Alarm Properties";
  for (std::size_t i = 0; i < ShownFields.size(); ++i) {
    lblTitle[i].Index = lblField[i].Index = static_cast<int>(i);
    lblTitle[i].Caption = ShownFields[i].Title;
  }
  cmdAbandon.Caption = "Close";
}

void frmAlarmImport::WireHandlers() {
  cmdBrowse.Click = [this] { cmdBrowse_Click(); };
  cmdView.Click = [this] { cmdView_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  cmdImport.Click = [this] { cmdImport_Click(); };
  cmdCancel.Click = [this] { Unload(); };
  cmdAbandon.Click = [this] { ShowListFace(true); };
  lvwItemsToImport.DblClick = [this] {
    if (cmdView.Enabled) cmdView_Click();
  };
}

void frmAlarmImport::ShowListFace(bool shown) {
  ui::ShowFace({&lblInfo, &lblFile, &txtFile, &cmdBrowse, &lblItemsToImport, &lvwItemsToImport, &cmdView, &cmdDelete,
                &cmdImport, &cmdCancel},
               shown);
  ui::ShowFace({&fraAlarmProps, &cmdAbandon}, !shown);
  for (auto* labels : {&lblTitle, &lblField})
    for (ui::Label& label : *labels) ui::ShowFace({&label}, !shown);
}

bool frmAlarmImport::Form_Load() {
  lvwItemsToImport.Add({"", "Please select a file, by clicking the browse button.", {}, ""});
  cmdView.Enabled = cmdDelete.Enabled = cmdImport.Enabled = false;
  return true;
}

void frmAlarmImport::SwitchToList() {
  for (std::size_t i = 0; i < Widths.size(); ++i) lvwItemsToImport.Columns[i].Width = Widths[i];
  cmdView.Enabled = cmdDelete.Enabled = cmdImport.Enabled = true;
}

void frmAlarmImport::cmdBrowse_Click() {
  const std::optional<std::string> path = main_.Ui.OpenFile({"Import Alarms From...", "Alarm export files (*.ini)"});
  if (!path) return;
  txtFile.Text = *path;
  SwitchToList();
  LoadImportList(*path);
}

// A failure ends the list where it has got to, without a word.
void frmAlarmImport::LoadImportList(const std::string& path) {
  MousePointer = ui::Pointer::Hourglass;
  lvwItemsToImport.Clear();
  names_.clear();
  file_.Load(main_, path);
  std::unordered_set<std::string> listed{""};
  int number = 0;
  for (const std::string& text : file_.Alarms()) {
    ++number;
    if (!listed.insert(text).second) continue;
    const ExchangeLine line(text);
    std::vector<std::string> columns(4);
    const bool isWhole = PassOver([&] { DescribeAlarm(line, number, columns); });
    lvwItemsToImport.Add({text, line[alarmfield::Name], columns, alarmimage::Alarm});
    if (!isWhole) break;
  }
  MousePointer = ui::Pointer::Default;
}

void frmAlarmImport::DescribeAlarm(const ExchangeLine& line, int number, std::vector<std::string>& columns) {
  if (const auto category = file_.FindCategory(line.Find(alarmfield::Category))) {
    columns[0] = (*category)[categoryfield::Name];
    columns[1] = NameFrom("Logtypes", (*category)[categoryfield::LogType], "Name");
    columns[2] = NameFrom("OSTypes", (*category)[categoryfield::Os], "OSName");
  }
  columns[3] = file_.FindBundle(number);
}

// Only a number goes into the statement, whatever stands in the file.
std::string frmAlarmImport::NameFrom(const std::string& table, const std::string& index, const char* column) {
  const std::string sql = "SELECT * FROM " + table + " WHERE Index = " + std::to_string(TextToInt32(index));
  const auto [place, isNew] = names_.try_emplace(sql);
  if (isNew) {
    const auto row = main_.ConfigConnection->Execute(sql);
    if (!row->Eof()) place->second = NullToEmpty(row->Field(column));
  }
  return place->second;
}

void frmAlarmImport::cmdView_Click() {
  if (lvwItemsToImport.SelectedRow() < 0)
    main_.Ui.MsgBox("You must select an item before performing this operation", ui::MsgIcon::Exclamation);
  else
    ShowAlarmProperties();
}

void frmAlarmImport::ShowAlarmProperties() {
  const ExchangeLine line(lvwItemsToImport.Item(lvwItemsToImport.SelectedRow()).Key);
  for (std::size_t i = 0; i < ShownFields.size(); ++i) {
    const std::string text = TextOfField(line, ShownFields[i].Place);
    lblField[i].Caption = text.empty() ? " " : ui::Literal(text);
    // A word that is longer than the line is cut there.
    lblField[i].ToolTip = text;
  }
  ShowListFace(false);
}

void frmAlarmImport::cmdDelete_Click() {
  if (const int row = lvwItemsToImport.SelectedRow(); row >= 0) lvwItemsToImport.Remove(row);
}

void frmAlarmImport::cmdImport_Click() {
  MousePointer = ui::Pointer::Hourglass;
  try {
    AlarmImport import(main_, file_);
    for (const ui::ListItem& item : lvwItemsToImport.Items()) import.Import(item.Key);
    StampLastDBUpdate(main_);
    main_.Ui.MsgBox("Your alarms have been imported successfully.", ui::MsgIcon::Information);
    Unload();
  } catch (const RuntimeError& error) {
    main_.Ui.MsgBox("The following error has occured:\n" + std::to_string(error.Number) + "\n" + error.Description,
                    ui::MsgIcon::Exclamation);
  }
  MousePointer = ui::Pointer::Default;
}

}  // namespace corvane
