#include "alarms/frmAlarmExport.h"

#include <cstdint>
#include <optional>

#include "alarms/ExportFile.h"
#include "core/modMain.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 330;
// What the import sees of a section; held against the whole file, which is on the safe side.
constexpr std::uintmax_t LongestFile = 30000;

}  // namespace

frmAlarmExport::frmAlarmExport(modMain& main)
    : Form(main.Ui, "frmAlarmExport"),
      main_(main),
      picker_(main, tvAlarms, lvwAlarmGroups),
      chosen_(main, tvSelectedAlarms),
      file_(main.Platform.Profiles, main.Platform.Files) {
  HelpContext = HelpTopic;
  SetCaptions();
  WireHandlers();
  txtFile.Locked = true;
  lvwAlarmGroups.Columns = {{"Name", 4000}};
  tvAlarms.DragTargets = lvwAlarmGroups.DragTargets = {&tvSelectedAlarms};
  cmdOK.Default = true;
  cmdCancel.Cancel = true;
}

void frmAlarmExport::SetCaptions() {
  Caption = "Export Alarms and Alarm Bundles";
  lblInfo.Caption =
      "Choose a file, and then the alarms and alarm bundles to write into it.  The file can be imported on any other "
      "installation of Corvane, as long as it does not exceed 30000 bytes.";
  lblFile.Caption = "&File:";
  cmdBrowse.Caption = "&Browse...";
  lblAlarms.Caption = "A&vailable Alarms";
  lblAlarmGroups.Caption = "Available B&undles";
  cmdAdd.Caption = "&Add >>";
  cmdDown.Caption = "<< &Remove";
  lblSelectedAlarms.Caption = "Alarms and Bundles to E&xport";
  cmdOK.Caption = "&Export";
  cmdCancel.Caption = "Cancel";
}

void frmAlarmExport::WireHandlers() {
  cmdBrowse.Click = [this] { cmdBrowse_Click(); };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdDown.Click = [this] { cmdDown_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
  tvSelectedAlarms.DragDrop = [this] { cmdAdd_Click(); };
  tvSelectedAlarms.NodeClick = [this](ui::NodeId node) { cmdDown.Enabled = HasFile() && chosen_.MayRemove(node); };
}

bool frmAlarmExport::Form_Load() {
  tvSelectedAlarms.Add(0, "", "Please select a file first.", "");
  cmdAdd.Enabled = cmdDown.Enabled = false;
  return true;
}

// The file is made, or emptied, as soon as it is chosen: one that cannot be written is refused before anything is
// picked. What is picked already stays when another file is chosen.
void frmAlarmExport::cmdBrowse_Click() {
  const std::optional<std::string> path =
      main_.Ui.SaveFile({"Export Alarms To...", "Alarm export files (*.ini)", "*.ini", "alarms.ini"});
  if (!path) return;
  PrivateProfile chosen(main_.Platform.Profiles, main_.Platform.Files);
  chosen.FileName = *path;
  if (!chosen.CreateINIFile())
    return TellError({errors::PathFileAccess, "The file " + *path + " could not be created."});
  if (!HasFile()) tvSelectedAlarms.Clear();
  txtFile.Text = file_.FileName = *path;
  picker_.Fill();
  cmdAdd.Enabled = cmdDown.Enabled = true;
}

void frmAlarmExport::cmdAdd_Click() {
  if (HasFile()) picker_.AddSelectedTo(chosen_);
}

void frmAlarmExport::cmdDown_Click() {
  const ui::NodeId node = tvSelectedAlarms.Selected();
  if (node != 0 && chosen_.MayRemove(node)) chosen_.RemoveSelected();
}

void frmAlarmExport::cmdOK_Click() {
  if (!HasFile() || tvSelectedAlarms.Count() == 0) {
    main_.Ui.MsgBox("You must select at least one alarm to export.", ui::MsgIcon::Exclamation);
    return;
  }
  MousePointer = ui::Pointer::Hourglass;
  if (WriteExportFile()) {
    main_.Ui.MsgBox("The alarms and alarm bundles you selected were exported successfully.", ui::MsgIcon::Information);
    Unload();
  }
  MousePointer = ui::Pointer::Default;
}

// A file that is too long stays, and counts as written.
bool frmAlarmExport::WriteExportFile() {
  try {
    ExportFile(main_, file_).Write(tvSelectedAlarms);
    if (main_.Platform.Files.Length(file_.FileName) > LongestFile)
      main_.Ui.MsgBox(
          "Your exported alarm file exceeds 30000 bytes, and therefore cannot be imported by Corvane.  Consider "
          "creating several smaller export files instead.",
          ui::MsgIcon::Exclamation);
    return true;
  } catch (const RuntimeError& error) {
    TellError(error);
    return false;
  }
}

void frmAlarmExport::TellError(const RuntimeError& error) {
  main_.Ui.MsgBox("The following error has occurred.\nNumber:  " + std::to_string(error.Number) +
                      "\nDescription:  " + error.Description,
                  ui::MsgIcon::Exclamation);
}

}  // namespace corvane
