#include "notifications/frmCustomNotifications.h"

#include "core/ConfigDatabase.h"
#include "core/SqlText.h"
#include "core/TellFailure.h"
#include "core/modMain.h"
#include "notifications/Placeholders.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 370;
constexpr const char* RefusedInNames = "-\"'";
// One more than a placeholder is long. It is settled so.
constexpr int CaretBehindToken = 3;

std::unique_ptr<Recordset> Query(modMain& main, const std::string& sql) {
  auto rows = main.Platform.Data.NewRecordset();
  rows->Open(sql, *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
  return rows;
}

}  // namespace

frmCustomNotifications::frmCustomNotifications(modMain& main) : Form(main.Ui, "frmCustomNotifications"), main_(main) {
  HelpContext = HelpTopic;
  SetCaptions();
  SetUpControls();
  WireHandlers();
  ShowListFace(true);
}

void frmCustomNotifications::SetCaptions() {
  Caption = "Define Custom Notifications";
  lblInfo.Caption =
      "Custom notifications replace the wording of e-mail and popup messages.  Placeholders in the subject and in the "
      "message body are filled in with the details of each event.";
  fraModifyCustomNotifications.Caption = "Add, Edit, and Delete Custom Notifications";
  cmdAdd.Caption = "&Add";
  cmdEdit.Caption = "&Edit";
  cmdDelete.Caption = "&Delete";
  lblSubjectExpanded.Caption = "&Subject:";
  lblBodyExpanded.Caption = "Message &Body:";
  cmdCancel.Caption = "Close";
  fraCustomNotificationProps.Caption = "Custom Notification Details";
  lblName.Caption = "&Name:";
  lblSubject.Caption = "&Subject:";
  lblBody.Caption = "Message &Body:";
  lblPlaceholders.Caption = "&Placeholder:";
  cmdInsert.Caption = "&Insert";
  cmdSave.Caption = "Sa&ve";
  cmdAbandon.Caption = "&Abandon";
}

void frmCustomNotifications::SetUpControls() {
  lvwCustomNotifications.Columns = {{"Name", 2300, false}, {"Subject", 2900, false}, {"Fields Used", 3600, false}};
  lvwCustomNotifications.SetMultiSelect(false);
  txtSubjectExpanded.Locked = txtBodyExpanded.Locked = true;
  txtBodyExpanded.MultiLine = txtBody.MultiLine = true;
  for (const Placeholder& placeholder : Placeholders) cmbPlaceholders.AddItem(placeholder.Entry);
  cmbPlaceholders.SetListIndex(0);
}

void frmCustomNotifications::WireHandlers() {
  lvwCustomNotifications.ItemClick = [this](int) { ShowExpanded(); };
  lvwCustomNotifications.DblClick = [this] { cmdEdit_Click(); };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdEdit.Click = [this] { cmdEdit_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  cmdCancel.Click = [this] { Unload(); };
  for (ui::TextBox* box : {&txtSubject, &txtBody}) {
    box->Change = box->Click = [this, box] { NoteCaret(*box); };
    box->GotFocus = [this, box] { Mark(box); };
  }
  cmdInsert.Click = [this] { cmdInsert_Click(); };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdAbandon.Click = [this] { CloseFields(); };
}

bool frmCustomNotifications::Form_Load() {
  TellFailure(main_, [this] { FillList(); });
  return true;
}

void frmCustomNotifications::ShowListFace(bool shown) {
  ui::ShowFace({&lblInfo, &fraModifyCustomNotifications, &lvwCustomNotifications, &cmdAdd, &cmdEdit, &cmdDelete,
                &lblSubjectExpanded, &txtSubjectExpanded, &lblBodyExpanded, &txtBodyExpanded, &cmdCancel},
               shown);
  ui::ShowFace({&fraCustomNotificationProps, &lblName, &txtName, &lblSubject, &txtSubject, &lblBody, &txtBody,
                &lblPlaceholders, &cmbPlaceholders, &cmdInsert, &cmdSave, &cmdAbandon},
               !shown);
  cmdCancel.Default = cmdCancel.Cancel = shown;
  cmdSave.Default = cmdAbandon.Cancel = !shown;
}

void frmCustomNotifications::FillList() {
  lvwCustomNotifications.Clear();
  const auto rows = Query(main_, "SELECT * FROM CustomNotifications ORDER BY Name ASC");
  for (; !rows->Eof(); rows->MoveNext()) {
    ui::ListItem item;
    item.Text = NullToEmpty(rows->Field("Name"));
    item.Key = "CUSTOMNOTIFICATION\\" + item.Text;
    item.Icon = "notification";
    for (const char* field : {"Subject", "MessageBody"})
      item.SubItems.push_back(ExpandPlaceholders(NullToEmpty(rows->Field(field))));
    lvwCustomNotifications.Add(std::move(item));
  }
  if (lvwCustomNotifications.Count() > 0) lvwCustomNotifications.Select(0);
  ShowExpanded();
}

void frmCustomNotifications::ShowExpanded() {
  const int row = lvwCustomNotifications.SelectedRow();
  const ui::ListItem shown = row < 0 ? ui::ListItem() : lvwCustomNotifications.Item(row);
  txtSubjectExpanded.Text = shown.Cell(1);
  txtBodyExpanded.Text = shown.Cell(2);
}

void frmCustomNotifications::cmdAdd_Click() {
  for (ui::TextBox* box : {&txtName, &txtSubject, &txtBody}) box->Text.clear();
  oldName_.reset();
  OpenFields();
}

void frmCustomNotifications::cmdEdit_Click() {
  const int row = lvwCustomNotifications.SelectedRow();
  if (row < 0) return Refuse("You must select an custom notification before performing this operation");
  TellFailure(main_, [&] {
    LoadFields(lvwCustomNotifications.Item(row).Text);
    OpenFields();
  });
}

void frmCustomNotifications::LoadFields(const std::string& name) {
  const auto rows = Query(main_, "SELECT * FROM CustomNotifications WHERE Name = " + QuoteSqlText(name));
  txtName.Text = NullToEmpty(rows->Field("Name"));
  txtSubject.Text = NullToEmpty(rows->Field("Subject"));
  txtBody.Text = NullToEmpty(rows->Field("MessageBody"));
  oldName_ = name;
}

// As long as neither box has been touched, a placeholder goes to the start of the body.
void frmCustomNotifications::OpenFields() {
  txtBody.SelStart = 0;
  NoteCaret(txtBody);
  Mark(nullptr);
  ShowListFace(false);
  main_.Ui.SetFocus(txtName);
}

void frmCustomNotifications::CloseFields() {
  ShowListFace(true);
  main_.Ui.SetFocus(lvwCustomNotifications);
}

void frmCustomNotifications::NoteCaret(ui::TextBox& box) {
  caretBox_ = &box;
  caret_ = box.SelStart;
}

void frmCustomNotifications::Mark(const ui::TextBox* box) {
  for (ui::TextBox* one : {&txtSubject, &txtBody}) one->Highlighted = one == box;
}

// The box shows its new text when it gets the focus; only then can its caret be put within that text. Beyond the end
// stands for the end.
void frmCustomNotifications::cmdInsert_Click() {
  ui::TextBox& box = *caretBox_;
  box.Text.insert(BytesOfCharacters(box.Text, static_cast<std::size_t>(caret_)),
                  "%" + std::to_string(cmbPlaceholders.ListIndex()));
  main_.Ui.SetFocus(box);
  box.SelStart = caret_ + CaretBehindToken;
  NoteCaret(box);
}

std::string frmCustomNotifications::Fault() const {
  if (txtName.Text.empty()) return "You must enter a valid name for this notification!";
  if (txtName.Text.find_first_of(RefusedInNames) != std::string::npos)
    return "You cannot use the following characters in the custom notification name: ' \" -";
  if (txtSubject.Text.empty()) return "You must enter a valid subject line for this notification!";
  if (txtBody.Text.empty()) return "You must enter a valid message body for this notification!";
  return "";
}

void frmCustomNotifications::cmdSave_Click() {
  if (const std::string fault = Fault(); !fault.empty()) return Refuse(fault);
  if (!(oldName_ ? Update() : Insert())) return;
  TellFailure(main_, [this] {
    StampLastDBUpdate(main_);
    CloseFields();
    FillList();
  });
}

bool frmCustomNotifications::Insert() {
  return TellFailure(main_, [this] {
    main_.ConfigConnection->Execute("INSERT INTO CustomNotifications VALUES (" + QuoteSqlText(txtName.Text) + ", " +
                                    QuoteSqlText(txtSubject.Text) + ", " + QuoteSqlText(txtBody.Text) + ")");
  });
}

// What is linked to the old name stays linked to it: neither the service nor the guard of a deletion finds the new one
// there. A failure is told in words of its own.
bool frmCustomNotifications::Update() {
  try {
    main_.ConfigConnection->Execute("UPDATE CustomNotifications SET Name = " + QuoteSqlText(txtName.Text) +
                                    ", Subject = " + QuoteSqlText(txtSubject.Text) + ", MessageBody = " +
                                    QuoteSqlText(txtBody.Text) + " WHERE Name = " + QuoteSqlText(*oldName_));
    return true;
  } catch (const RuntimeError& error) {
    Refuse("The following error has occured:" + std::to_string(error.Number) + "\n" + error.Description + "\n");
    return false;
  }
}

void frmCustomNotifications::cmdDelete_Click() {
  const int row = lvwCustomNotifications.SelectedRow();
  if (row < 0) return;
  const std::string name = lvwCustomNotifications.Item(row).Text;
  TellFailure(main_, [&] { Delete(name); });
}

void frmCustomNotifications::Delete(const std::string& name) {
  if (!Query(main_, "SELECT * FROM CustomNotsForNots WHERE CustomNotificationName = " + QuoteSqlText(name))->Eof())
    return Refuse(
        "You cannot delete a custom notification that is currently associated with one or more notifications.  Please "
        "remove all associations before deleting this custom notification from the database.");
  if (main_.Ui.MsgBox("Are you sure you wish to delete custom notification: " + name + "?", ui::MsgIcon::Question,
                      ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
    return;
  main_.ConfigConnection->Execute("DELETE FROM CustomNotifications WHERE Name = " + QuoteSqlText(name));
  FillList();
}

void frmCustomNotifications::Refuse(const std::string& text) { main_.Ui.MsgBox(text, ui::MsgIcon::Exclamation); }

}  // namespace corvane
