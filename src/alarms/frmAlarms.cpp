#include "alarms/frmAlarms.h"

#include <algorithm>

#include "alarms/AlarmStore.h"
#include "alarms/frmAlarmInformation.h"
#include "core/PassOver.h"
#include "core/TellFailure.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 300;
constexpr const char* RefusedInCategories = "'\\\"";

constexpr const char* TreeInstructions =
    "Leave all alarm fields blank that should not be used as criteria for comparison.  Substring matching (e.g. AB "
    "matches ABC and ABD) is supported for Source, Category, User, Computer, and Description fields.";
constexpr const char* FieldInstructions =
    "Leave all alarm fields blank that should not be used when watching new event log entries.  Substrings are "
    "supported for Source, Category, User, Computer, and Description fields.";

bool Holds(const std::string& key, const char* prefix) { return key.find(prefix) != key.npos; }

}  // namespace

frmAlarms::frmAlarms(modMain& main)
    : Form(main.Ui, "frmAlarms"),
      main_(main),
      tree_(main, tvAlarms),
      fields_(main, {chkType, txtSource, txtCategory, txtUser, txtComputer, txtEventID, optMatchEntireDescription,
                     txtEventDesc, cmdCRLF, cmdTab, txtThreshold, txtTimeout, lstSpecificNotification}) {
  HelpContext = HelpTopic;
  Caption = "Define Alarms";
  SetTreeCaptions();
  SetFieldCaptions();
  WireTree();
  cmdSave.Click = [this] { TellFailure(main_, [this] { cmdSave_Click(); }); };
  cmdAbandon.Click = [this] { cmdAbandon_Click(); };
  ShowTreeFace(true);
}

void frmAlarms::SetTreeCaptions() {
  lblDescription.Caption = "&Comment:";
  txtDescription.MultiLine = true;
  txtDescription.Locked = true;
  cmdAdd.Caption = "&Add";
  cmdEdit.Caption = "&Edit";
  cmdDelete.Caption = "&Delete";
  cmdCancel.Caption = "Close";
}

void frmAlarms::SetFieldCaptions() {
  fraTypes.Caption = "Event Types";
  const char* types[] = {"Inform&ation", "&Warning", "&Error", "&Failure Audit", "S&uccess Audit"};
  for (std::size_t i = 0; i < chkType.size(); ++i) chkType[i].Caption = types[i];
  fraCriteria.Caption = "Criteria";
  lblSource.Caption = "&Source:";
  lblCategory.Caption = "Cate&gory:";
  lblUser.Caption = "Use&r:";
  lblComputer.Caption = "&Computer:";
  lblEventID.Caption = "Event &ID:";
  fraEventDesc.Caption = "Description";
  optMatchEntireDescription[0].Caption = "C&ontains:";
  optMatchEntireDescription[1].Caption = "&Match Description Exactly:";
  cmdCRLF.Caption = "Insert CR&LF";
  cmdTab.Caption = "I&nsert TAB";
  fraThreshold.Caption = "Threshold and Notification";
  lblThreshold.Caption = "T&hreshold Limit:";
  lblThresholdUnit.Caption = "(number of times it must happen before notification)";
  lblTimeout.Caption = "Threshol&d Timeout:";
  lblTimeoutUnit.Caption = "(seconds before threshold limit counter is reset)";
  lblSpecificNotification.Caption = "S&pecific Notification:";
  cmdSave.Caption = "Sa&ve";
  cmdAbandon.Caption = "Cancel";
}

void frmAlarms::WireTree() {
  tvAlarms.Expand = [this](ui::NodeId node) { TellFailure(main_, [&] { tree_.Expand(node); }); };
  tvAlarms.Collapse = [this](ui::NodeId node) { tree_.Collapse(node); };
  tvAlarms.NodeClick = [this](ui::NodeId node) { TellFailure(main_, [&] { tvAlarms_NodeClick(node); }); };
  tvAlarms.AfterLabelEdit = [this](ui::NodeId node, const std::string& text) {
    return tvAlarms_AfterLabelEdit(node, text);
  };
  // A branch opens by a double click; an alarm has nothing to open but its fields.
  tvAlarms.DblClick = [this] {
    if (Holds(SelectedKey(), "ALARM\\")) cmdEdit_Click();
  };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdEdit.Click = [this] { cmdEdit_Click(); };
  cmdDelete.Click = [this] { TellFailure(main_, [this] { cmdDelete_Click(); }); };
  cmdCancel.Click = [this] { Unload(); };
}

// The instructions stand on both faces; behind them come the controls of the tree, then those of the fields.
void frmAlarms::ShowTreeFace(bool shown) {
  const auto fields = std::find(Controls().begin(), Controls().end(), &fraTypes);
  ui::ShowFace({Controls().begin() + 1, fields}, shown);
  ui::ShowFace({fields, Controls().end()}, !shown);
  cmdCancel.Default = cmdCancel.Cancel = shown;
  cmdSave.Default = cmdAbandon.Cancel = !shown;
  lblInstructions.Caption = shown ? TreeInstructions : FieldInstructions;
}

bool frmAlarms::Form_Load() {
  TellFailure(main_, [this] {
    tree_.FillOSNodes();
    if (tvAlarms.Roots().empty()) return;
    tvAlarms.Select(tvAlarms.Roots().front());
    tvAlarms_NodeClick(tvAlarms.Selected());
  });
  return true;
}

void frmAlarms::tvAlarms_NodeClick(ui::NodeId node) {
  switch (LevelOf(tvAlarms.Node(node).Key)) {
    case AlarmLevel::Os:
      txtDescription.Text = "Double click an OS to view log types.";
      break;
    case AlarmLevel::LogType:
      txtDescription.Text = "Double click a log type to view alarm categories.";
      break;
    case AlarmLevel::Category:
      txtDescription.Text = "Expand to view alarms, or click 'Edit' to change category name";
      break;
    case AlarmLevel::Alarm:
      place_.Name = tvAlarms.Node(node).Text;
      place_.Comment = txtDescription.Text = ReadComment(main_, place_.Name, ParentIndex(node));
      break;
  }
}

void frmAlarms::cmdAdd_Click() {
  place_ = {};
  rememberedKey_ = SelectedKey();
  TellFailure(main_, [this] { OpenFields(EditMode::Adding); });
}

void frmAlarms::cmdEdit_Click() {
  const std::string key = SelectedKey();
  if (Holds(key, "ALARMCAT\\")) {
    rememberedKey_ = key;
    tvAlarms.StartLabelEdit(tvAlarms.Selected());
  } else if (Holds(key, "ALARM\\")) {
    place_ = {tvAlarms.Node(tvAlarms.Selected()).Text, txtDescription.Text, "", "", "", false};
    TellFailure(main_, [this] { OpenFields(EditMode::Editing); });
  } else {
    main_.Ui.MsgBox("You must select an alarm before performing this operation.", ui::MsgIcon::Exclamation);
  }
}

// Unlike a new category, a renamed one may hold a hyphen.
bool frmAlarms::tvAlarms_AfterLabelEdit(ui::NodeId node, const std::string& text) {
  if (text.empty()) return false;
  if (text.find_first_of(RefusedInCategories) != text.npos) {
    main_.Ui.MsgBox("You cannot use the following characters in the category name: ' \" \\", ui::MsgIcon::Exclamation);
    return false;
  }
  try {
    Rename(node, text);
  } catch (const RuntimeError& error) {
    main_.Ui.MsgBox("The following error occurred when attempting to edit your alarm category name:  Error #" +
                        std::to_string(error.Number) + ", " + error.Description,
                    ui::MsgIcon::Exclamation);
  }
  return true;
}

// The alarms of an open category keep their old keys until it is read afresh: nothing reads a category out of them.
void frmAlarms::Rename(ui::NodeId node, const std::string& name) {
  const std::string os = OsIndexOfCategory(rememberedKey_);
  const std::string newIndex = name + "_" + os;
  RenameCategory(main_, IndexOfCategory(rememberedKey_), newIndex, name);
  const std::string newKey = CategoryKey(os, newIndex);
  tvAlarms.SetKey(node, newKey);
  // An open category has no dummy to rename.
  PassOver([&] { RenameNodeKey(DummyKey(rememberedKey_), DummyKey(newKey)); });
}

void frmAlarms::RenameNodeKey(const std::string& oldKey, const std::string& newKey) {
  tvAlarms.SetKey(tvAlarms.Find(oldKey), newKey);
}

// The first test looks for an alarm of the node's name in what stands above it: for a category that is a log, in which
// there is none, so that a category passes it.
void frmAlarms::cmdDelete_Click() {
  const std::string key = SelectedKey();
  if (!Holds(key, "ALARMCAT\\") && !Holds(key, "ALARM\\")) {
    main_.Ui.MsgBox("You must select an alarm before performing this operation", ui::MsgIcon::Exclamation);
    return;
  }
  const ui::NodeId node = tvAlarms.Selected();
  const std::string name = tvAlarms.Node(node).Text;
  if (IsBound(main_, name, ParentIndex(node))) {
    main_.Ui.MsgBox(
        "You cannot delete an alarm that is currently bound to a watched computer event log.  Please remove all "
        "associations before deleting this alarm from the database.",
        ui::MsgIcon::Exclamation);
    return;
  }
  if (main_.Ui.MsgBox("Are you sure you wish to delete alarm or alarm category " + name + "?", ui::MsgIcon::Question,
                      ui::MsgButtons::YesNo) == ui::MsgResult::Yes)
    Delete(node);
}

// What is deleted is still attached to ignore events and bundles, whose screens pass it over.
void frmAlarms::Delete(ui::NodeId node) {
  const std::string key = tvAlarms.Node(node).Key;
  if (Holds(key, "ALARM\\")) {
    DeleteAlarm(main_, tvAlarms.Node(node).Text, ParentIndex(node));
  } else if (CategoryHasAlarms(main_, GetLastKeyPart(key))) {
    main_.Ui.MsgBox("All child alarms must be deleted before removing an alarm category.", ui::MsgIcon::Exclamation);
    return;
  } else {
    DeleteCategory(main_, GetLastKeyPart(key));
  }
  const ui::NodeId parent = tvAlarms.Node(node).Parent;
  tree_.Refresh(parent);
  tvAlarms.Select(parent);
  tvAlarms_NodeClick(parent);
}

std::string frmAlarms::SelectedKey() const {
  return tvAlarms.Selected() == 0 ? std::string() : tvAlarms.Node(tvAlarms.Selected()).Key;
}

// The index of an alarm's category stands at the end of its parent's key.
std::string frmAlarms::ParentIndex(ui::NodeId node) const {
  return GetLastKeyPart(tvAlarms.Node(tvAlarms.Node(node).Parent).Key);
}

void frmAlarms::OpenFields(EditMode mode) {
  fields_.ClearAlarmFields();
  fields_.FillNotificationList();
  if (mode == EditMode::Editing) LoadAlarmFields();
  mode_ = mode;
  ShowTreeFace(false);
  main_.Ui.SetFocus(chkType.front());
}

void frmAlarms::LoadAlarmFields() {
  const ui::NodeId node = tvAlarms.Selected();
  const auto alarm = ReadAlarm(main_, tvAlarms.Node(node).Text, ParentIndex(node));
  if (alarm) fields_.LoadAlarmFields(*alarm);
}

void frmAlarms::cmdSave_Click() {
  if (!fields_.ValidateThresholds()) return;
  frmAlarmInformation information(main_, place_);
  information.InitForm(tvAlarms);
  information.ShowModal();
  if (information.Confirmed()) Save();
}

// The fields close after a failure too; an alarm that was edited is a leaf, which a refresh leaves as it is.
void frmAlarms::Save() {
  const ui::NodeId node = tvAlarms.Selected();
  TellFailure(main_, [&] {
    if (mode_ == EditMode::Adding)
      InsertAlarm(main_, fields_.Criteria(), place_);
    else
      UpdateAlarm(main_, fields_.Criteria(), place_, tvAlarms.Node(node).Text, ParentIndex(node));
  });
  cmdAbandon_Click();
  if (node == 0) return;
  tree_.Refresh(node);
  tvAlarms_NodeClick(node);
}

void frmAlarms::cmdAbandon_Click() {
  ShowTreeFace(true);
  main_.Ui.SetFocus(tvAlarms);
}

}  // namespace corvane
