#include "alarms/frmAlarmGroups.h"

#include <algorithm>

#include "alarms/BundleStore.h"
#include "alarms/Bundles.h"
#include "core/ConfigDatabase.h"
#include "core/TellFailure.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 320;
constexpr const char* RefusedInNames = "\"'-";

}  // namespace

frmAlarmGroups::frmAlarmGroups(modMain& main)
    : Form(main.Ui, "frmAlarmGroups"), main_(main), members_(main, tvAlarms, lvwAlarms) {
  HelpContext = HelpTopic;
  SetCaptions();
  WireHandlers();
  ShowListFace(true);
}

void frmAlarmGroups::SetCaptions() {
  Caption = "Define Alarm Bundles";
  lblInfo.Caption =
      "Alarm Bundles allow you to organize related alarms or ignore events.  If you associate an alarm bundle with "
      "several computer event logs, you can change what is monitored globally by simply adjusting the alarms in the "
      "alarm bundle.";
  fraModifyAlarmGroups.Caption = "Alarm &Bundles";
  cmdAdd.Caption = "&Add";
  cmdEdit.Caption = "&Edit";
  cmdDelete.Caption = "&Delete";
  cmdCancel.Caption = "Close";
  fraAlarmGroupProps.Caption = "Alarm Bundle Properties";
  lblGroupName.Caption = "B&undle Name:";
  lblAlarms.Caption = "&Available Alarms";
  cmdAlarmAdd.Caption = "A&dd Alarm(s)";
  lblMembers.Caption = "Alar&ms Associated With This Bundle";
  cmdDown.Caption = "&Remove Alarm(s)";
  cmdSave.Caption = "Sa&ve";
  cmdAbandon.Caption = "Cancel";
}

void frmAlarmGroups::WireHandlers() {
  tvAlarmGroups.DblClick = [this] { cmdEdit_Click(); };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdEdit.Click = [this] { cmdEdit_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  cmdCancel.Click = [this] { Unload(); };
  cmdAlarmAdd.Click = [this] { TellFailure(main_, [this] { members_.AddPicked(); }); };
  lvwAlarms.DragDrop = cmdAlarmAdd.Click;
  cmdDown.Click = [this] { members_.RemoveSelected(); };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdAbandon.Click = [this] { cmdAbandon_Click(); };
}

bool frmAlarmGroups::Form_Load() {
  TellFailure(main_, [this] { FillBundles(); });
  if (tvAlarmGroups.Count() > 0) tvAlarmGroups.Select(tvAlarmGroups.Roots().front());
  return true;
}

void frmAlarmGroups::ShowListFace(bool shown) {
  ui::ShowFace({&lblInfo, &fraModifyAlarmGroups, &tvAlarmGroups, &cmdAdd, &cmdEdit, &cmdDelete, &cmdCancel}, shown);
  ui::ShowFace({&fraAlarmGroupProps, &lblGroupName, &txtGroupName, &lblAlarms, &tvAlarms, &cmdAlarmAdd, &lblMembers,
                &lvwAlarms, &cmdDown, &cmdSave, &cmdAbandon},
               !shown);
  cmdCancel.Default = cmdCancel.Cancel = shown;
  cmdSave.Default = cmdAbandon.Cancel = !shown;
}

// The selected bundle stays selected.
void frmAlarmGroups::FillBundles() {
  const ui::NodeId selected = tvAlarmGroups.Selected();
  const std::string selectedKey = selected == 0 ? std::string() : tvAlarmGroups.Node(selected).Key;
  tvAlarmGroups.Clear();
  ForEachBundle(main_, [&](const std::string& key, const std::string& name) {
    tvAlarmGroups.Add(0, key, name, alarmimage::Bundle);
  });
  tvAlarmGroups.Select(tvAlarmGroups.Find(selectedKey));
}

std::optional<std::string> frmAlarmGroups::SelectedBundle() {
  if (tvAlarmGroups.Selected() != 0) return tvAlarmGroups.Node(tvAlarmGroups.Selected()).Text;
  Refuse("You must select an alarm bundle before performing this operation");
  return std::nullopt;
}

void frmAlarmGroups::cmdAdd_Click() {
  TellFailure(main_, [this] { OpenProperties("", std::nullopt); });
}

// The bundle is found by its name: of two that bear it, the older one is edited, whichever was selected.
void frmAlarmGroups::cmdEdit_Click() {
  if (const auto name = SelectedBundle()) TellFailure(main_, [&] { OpenProperties(*name, BundleIdOf(main_, *name)); });
}

// Shown only when everything has been read: a list that lacks members would be saved without them.
void frmAlarmGroups::OpenProperties(const std::string& name, const std::optional<std::string>& bundleId) {
  members_.Begin();
  if (bundleId) members_.Load(*bundleId);
  bundleId_ = bundleId;
  txtGroupName.Text = name;
  ShowListFace(false);
  main_.Ui.SetFocus(txtGroupName);
}

void frmAlarmGroups::CloseProperties() {
  ShowListFace(true);
  FillBundles();
  if (bundleId_) tvAlarmGroups.Select(tvAlarmGroups.Find("GROUP\\" + *bundleId_));
  main_.Ui.SetFocus(tvAlarmGroups);
}

void frmAlarmGroups::cmdSave_Click() {
  if (txtGroupName.Text.empty()) return Refuse("You must enter an alarm bundle name!");
  if (txtGroupName.Text.find_first_of(RefusedInNames) != std::string::npos)
    return Refuse("You cannot use the following characters in object names: ' \" -");
  TellFailure(main_, [this] {
    SaveBundle();
    CloseProperties();
  });
}

// Once the bundle has its row it is edited: pressing Save again after a failure must not make a second one.
void frmAlarmGroups::SaveBundle() {
  if (bundleId_)
    ResetBundle(main_, *bundleId_, txtGroupName.Text);
  else
    bundleId_ = InsertBundle(main_, txtGroupName.Text);
  members_.Save(*bundleId_);
  StampLastDBUpdate(main_);
}

// A save that failed half-way may have left rows, so the list is read anew.
void frmAlarmGroups::cmdAbandon_Click() {
  TellFailure(main_, [this] { CloseProperties(); });
}

void frmAlarmGroups::cmdDelete_Click() {
  if (const auto name = SelectedBundle()) TellFailure(main_, [&] { Delete(*name); });
}

// Only what watches a log holds a bundle: one that is merely ignored somewhere may go. The service is not told.
void frmAlarmGroups::Delete(const std::string& name) {
  const auto bundleId = FindBundle(main_, name);
  if (bundleId && IsBundleBound(main_, *bundleId))
    return Refuse(
        "You cannot delete an alarm bundle that is currently bound to a watched computer event log.  Please remove all "
        "associations before deleting this alarm from the database.");
  if (main_.Ui.MsgBox("Are you sure you wish to delete the alarm bundle " + name + "?", ui::MsgIcon::Question,
                      ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
    return;
  const auto& shown = tvAlarmGroups.Roots();
  const auto place = std::find(shown.begin(), shown.end(), tvAlarmGroups.Selected()) - shown.begin();
  TellFailure(main_, [&] { DeleteBundle(main_, name, bundleId); });
  FillBundles();
  if (!shown.empty()) tvAlarmGroups.Select(shown[std::min(static_cast<std::size_t>(place), shown.size() - 1)]);
}

void frmAlarmGroups::Refuse(const std::string& text) { main_.Ui.MsgBox(text, ui::MsgIcon::Exclamation); }

}  // namespace corvane
