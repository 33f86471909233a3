#include "alarms/frmAlarmInformation.h"

#include <algorithm>

#include "alarms/AlarmStore.h"
#include "core/SqlText.h"
#include "core/TellFailure.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 310;
constexpr int LongestComment = 249;
constexpr std::size_t LongestCategory = 250;
constexpr const char* RefusedInTexts = "-\"'";
constexpr const char* RefusedInCategories = "-\"'\\";

bool Holds(const std::string& text, const char* characters) { return text.find_first_of(characters) != text.npos; }

// Chooses the entry of a text, whatever its case. True when there is one.
bool ChooseText(ui::ComboBox& box, const std::string& text) {
  const auto& entries = box.All();
  const auto found =
      std::find_if(entries.begin(), entries.end(), [&](const std::string& entry) { return SameText(entry, text); });
  if (found == entries.end()) return false;
  box.SetListIndex(static_cast<int>(found - entries.begin()));
  return true;
}

void ChooseFirst(ui::ComboBox& box) { box.SetListIndex(box.Count() > 0 ? 0 : -1); }

template <class Visit>
void ForEachRow(modMain& main, const std::string& sql, Visit visit) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open(sql, *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
  for (; !rows->Eof(); rows->MoveNext()) visit(*rows);
}

}  // namespace

frmAlarmInformation::frmAlarmInformation(modMain& main, AlarmPlace& place)
    : Form(main.Ui, "frmAlarmInformation"), main_(main), place_(place) {
  HelpContext = HelpTopic;
  SetCaptions();
  txtDescription.MaxLength = LongestComment;
  // Of several lines to be read whole, but one line of text: a line break would end it in an export file.
  txtDescription.MultiLine = true;
  txtDescription.KeyPress = [](char32_t character) { return character != '\r' && character != '\n'; };
  lstCategory.Editable = true;
  lstOS.Click = [this] { TellFailure(main_, [this] { lstOS_Click(); }); };
  lstLogType.Click = [this] { TellFailure(main_, [this] { lstLogType_Click(); }); };
  cmdOK.Default = true;
  cmdOK.Click = [this] { TellFailure(main_, [this] { cmdOK_Click(); }); };
  cmdCancel.Cancel = true;
  cmdCancel.Click = [this] { Unload(); };
}

void frmAlarmInformation::SetCaptions() {
  lblName.Caption = "Alarm &Name:";
  lblDescription.Caption = "Co&mment:";
  fraPlace.Caption = "Place in the Alarm Catalogue";
  lblPlace.Caption =
      "The OS, Log, and Category areas are used for organizational and grouping purposes only - they do not restrict "
      "the use of the alarm to a specific type of operating system or event log.";
  lblOS.Caption = "&OS:";
  lblLogType.Caption = "&Log:";
  lblCategory.Caption = "&Category:";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
}

void frmAlarmInformation::InitForm(const ui::TreeView& catalogue) {
  Caption = "Alarm Information";
  txtName.Text = place_.Name;
  txtDescription.Text = place_.Comment;
  FillOSList();
  lstOS_Click();
  if (catalogue.Selected() != 0) Preselect(catalogue, catalogue.Selected());
}

// What stands above the node, and the node itself unless it is an alarm, goes into the lists from the top down.
void frmAlarmInformation::Preselect(const ui::TreeView& catalogue, ui::NodeId node) {
  std::vector<std::string> path;
  for (ui::NodeId above = node; above != 0; above = catalogue.Node(above).Parent)
    path.insert(path.begin(), catalogue.Node(above).Text);
  if (ChooseText(lstOS, path.at(0))) lstOS_Click();
  if (path.size() > 1 && ChooseText(lstLogType, path[1])) lstLogType_Click();
  if (path.size() > 2) ChooseText(lstCategory, path[2]);
}

void frmAlarmInformation::FillOSList() {
  lstOS.Clear();
  ForEachRow(main_, "SELECT * FROM OSTypes ORDER BY OSName ASC",
             [&](Recordset& row) { lstOS.AddItem(NullToEmpty(row.Field("OSName"))); });
  ChooseFirst(lstOS);
}

// The tree of the catalogue makes the same cut by the number of the class; here the name decides.
void frmAlarmInformation::FillLogTypeList() {
  lstLogType.Clear();
  const bool isFirstClass = UpperCase(lstOS.Text()) == "WINDOWS NT 4.0";
  ForEachRow(main_, "SELECT * FROM LogTypes ORDER BY Name ASC", [&](Recordset& row) {
    if (!isFirstClass || ToNumber(row.Field("Index")) <= 3) lstLogType.AddItem(NullToEmpty(row.Field("Name")));
  });
  ChooseFirst(lstLogType);
}

void frmAlarmInformation::FillCategoryList() {
  lstCategory.Clear();
  std::string os, logType;
  ForEachRow(main_, "SELECT Index From OSTypes WHERE OSName = '" + lstOS.Text() + "'",
             [&](Recordset& row) { os = ToText(row.Field("Index")); });
  ForEachRow(main_, "SELECT Index From LogTypes WHERE Name = '" + lstLogType.Text() + "'",
             [&](Recordset& row) { logType = ToText(row.Field("Index")); });
  if (!os.empty() && !logType.empty())
    ForEachRow(main_,
               "SELECT * FROM AlarmCategories WHERE OS = " + os + " AND LogType = " + logType + " ORDER BY Name ASC",
               [&](Recordset& row) { lstCategory.AddItem(NullToEmpty(row.Field("Name"))); });
  ChooseFirst(lstCategory);
}

void frmAlarmInformation::lstOS_Click() {
  FillLogTypeList();
  lstLogType_Click();
}

void frmAlarmInformation::lstLogType_Click() { FillCategoryList(); }

void frmAlarmInformation::cmdOK_Click() {
  if (HasRefusedText() || HasNameInUse()) return;
  place_ = {txtName.Text, txtDescription.Text, lstOS.Text(), lstLogType.Text(), lstCategory.Text(), IsNewCategory()};
  confirmed_ = true;
  Unload();
}

bool frmAlarmInformation::HasRefusedText() {
  if (txtName.Text.empty() || lstOS.Text().empty() || lstLogType.Text().empty() || lstCategory.Text().empty())
    return Refuse("You must complete all fields to continue.");
  if (CharacterCount(lstCategory.Text()) > LongestCategory)
    return Refuse("The category field is too long.  Please adjust it so that it is 250 characters or less.");
  if (Holds(txtName.Text, RefusedInTexts))
    return Refuse("You cannot use the following characters in the alarm name: ' \" -");
  if (Holds(txtDescription.Text, RefusedInTexts))
    return Refuse("You cannot use the following characters in the description name: ' \" -");
  // A new category refuses the hyphen; a rename takes it.
  if (Holds(lstCategory.Text(), RefusedInCategories))
    return Refuse("You cannot use the following characters in the category name: ' \" \\ -");
  return false;
}

// An alarm keeps its own name, also where another one has it by now. Case makes another name.
bool frmAlarmInformation::HasNameInUse() {
  if (txtName.Text == place_.Name || AlarmNameIsFree(main_, txtName.Text, OSIndexOf(main_, lstOS.Text()))) return false;
  return Refuse("Another alarm already has the name '" + txtName.Text + "' under the " + lstOS.Text() +
                " operating system .. Please choose another name to continue.");
}

bool frmAlarmInformation::IsNewCategory() const {
  const auto& entries = lstCategory.All();
  return std::none_of(entries.begin(), entries.end(),
                      [&](const std::string& entry) { return SameText(entry, lstCategory.Text()); });
}

bool frmAlarmInformation::Refuse(const std::string& why) {
  main_.Ui.MsgBox(why, ui::MsgIcon::Exclamation);
  return true;
}

}  // namespace corvane
