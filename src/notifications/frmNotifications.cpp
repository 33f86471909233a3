#include "notifications/frmNotifications.h"

#include "core/ConfigDatabase.h"
#include "core/TellFailure.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 380;
constexpr int LongestText = 100;
constexpr int SyslogPort = 514, ListenerPort = 6260;
constexpr const char* DefaultPriority = "0";
constexpr const char* RefusedInNames = "-\"'";

// What stands below the tabs, by the tab in front.
constexpr std::array<const char*, 6> Hints = {
    "Enter a friendly name for this notification, and select a custom notification template if you desire.",
    "Separate multiple email addresses with commas (no spaces in between).",
    "The pager string can be numeric only (e.g. 411, 911).  Use commas to indicate dialing pauses.",
    "When sending popups, it is best to use a NetBIOS computer name as opposed to a user name.  Popups sent to user "
    "names will be sent to the computer where the user logged on first.",
    "Choose a database type, and build a connection to it.  If you would like to create a new table for these events, "
    "type in a new table name and Corvane will create it automatically.",
    "The syslog server(s) or workstation(s) running the Corvane Listener Console can be host name(s), fully-qualified "
    "domain name(s), or IP address(es).  Separate multiple system(s) by commas, with no spaces in between (e.g. "
    "MYWKSTN,10.32.0.4,syslog.meridian.example) ."};

void Enable(std::initializer_list<ui::Control*> fields, bool enabled) {
  for (ui::Control* field : fields) field->Enabled = enabled;
}

}  // namespace

frmNotifications::frmNotifications(modMain& main, TargetConnector& connector)
    : Form(main.Ui, "frmNotifications"),
      main_(main),
      target_(main, connector, optDatabaseType, txtDBConnection, lstTableName) {
  HelpContext = HelpTopic;
  SetCaptions();
  SetTabCaptions();
  WireHandlers();
  WireWays();
  lvwNotifications.Columns = {{"Name", 2600, false},  {"E-mail", 1900, false},   {"Pager", 1100, false},
                              {"Popup", 1200, false}, {"Database", 1300, false}, {"Syslog", 1500, false}};
  lvwNotifications.SetMultiSelect(false);
  for (ui::TextBox* box :
       {&txtName, &txtRecipient, &txtPhone, &txtPagerString, &txtNetwork, &txtSyslogServer, &txtPriority})
    box->MaxLength = LongestText;
  for (std::size_t i = 0; i < optDatabaseType.size(); ++i) optDatabaseType[i].Index = static_cast<int>(i);
  lstTableName.Editable = txtUDPPort.Editable = true;
  txtUDPPort.AddItem("514 (Standard Syslog Port)");
  txtUDPPort.AddItem("6260 (Default Corvane Listener Console Port)");
}

void frmNotifications::SetCaptions() {
  Caption = "Define Notifications";
  lblInstructions.Caption =
      "A notification says who is told of an event, and how: by e-mail, pager or popup, by a row in a database table, "
      "or by a message to a syslog host or the Corvane Listener Console.  One notification may use several ways at "
      "once.";
  fraModifyNotifications.Caption = "&Notifications";
  cmdAdd.Caption = "&Add";
  cmdEdit.Caption = "&Edit";
  cmdDelete.Caption = "&Delete";
  cmdTest.Caption = "&Test...";
  cmdCancel.Caption = "Close";
  cmdSave.Caption = "Sa&ve";
  cmdAbandon.Caption = "Cancel";
}

void frmNotifications::SetTabCaptions() {
  tabMain.Captions = {"General", "E-Mail", "Pager", "Popup", "Database", "Syslog/Listener Console"};
  lblName.Caption = "&Name:";
  chkCustom.Caption = "&Use Custom Notification Formatting for E-mail and Popup Messages";
  chkEmail.Caption = "&Send E-Mail Messages to Selected Recipients";
  lblRecipient.Caption = "&Recipient(s):";
  chkPager.Caption = "Send a &Pager Notification";
  lblPhone.Caption = "P&hone Number:";
  lblPagerString.Caption = "Pager S&tring:";
  chkPopup.Caption = "Send a Net&work Popup Message";
  lblNetwork.Caption = "&Computer or User Name:";
  chkDB.Caption = "Store Event Information in a &Database Table";
  optDatabaseType[DatabaseTarget::Access].Caption = "Use Microsoft &Access";
  optDatabaseType[DatabaseTarget::Odbc].Caption = "Use ODBC (Microsoft S&QL Server or Oracle)";
  lblDBConnection.Caption = "&Connection:";
  cmdDataODBCBrowse.Caption = "&Browse...";
  lblTableName.Caption = "&Table:";
  chkSysLog.Caption =
      "&Forward Event Information to Syslog Host Server(s) or Computer(s) Running the Corvane Listener Console";
  lblSyslogServer.Caption = "&Server(s):";
  lblUDPPort.Caption = "UDP P&ort:";
  lblPriority.Caption = "&Priority Code:";
  cmdPriority.Caption = "&Build...";
  lblPriorityInfo.Caption =
      "* Note - the Priority Code is ignored when messages are received by workstations running the Corvane Listener "
      "Console.  Only syslog host servers record this information.";
}

void frmNotifications::WireHandlers() {
  cmdAdd.Click = [this] {
    TellFailure(main_, [this] {
      ClearNotificationFields();
      oldName_.reset();
      OpenFields();
    });
  };
  cmdEdit.Click = [this] { cmdEdit_Click(); };
  lvwNotifications.DblClick = [this] { cmdEdit_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  cmdTest.Click = [this] {
    if (lvwNotifications.SelectedRow() >= 0) Test(SelectedName());
  };
  cmdCancel.Click = [this] { Unload(); };
  tabMain.Click = [this] { tabMain_Click(); };
  cmdPriority.Click = [this] { BuildPriority(txtPriority); };
  cmdDataODBCBrowse.Click = [this] { target_.Browse(); };
  for (ui::OptionButton& option : optDatabaseType) option.Click = [this] { target_.Clear(); };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdAbandon.Click = [this] { OpenList(oldName_.value_or("")); };
}

// A way that is not ticked has no targets: what stands in its boxes decides whether it is used.
void frmNotifications::WireWays() {
  const auto wire = [this](ui::CheckBox& box, std::function<void()> empty) {
    box.Click = [this, &box, empty = std::move(empty)] {
      if (!box.Value) empty();
      EnableFields();
    };
  };
  wire(chkCustom, [this] { cmbCustom.SetListIndex(-1); });
  wire(chkEmail, [this] { txtRecipient.Text.clear(); });
  wire(chkPager, [this] {
    txtPhone.Text.clear();
    txtPagerString.Text.clear();
  });
  wire(chkPopup, [this] { txtNetwork.Text.clear(); });
  wire(chkDB, [this] { target_.Clear(); });
  wire(chkSysLog, [this] {
    txtSyslogServer.Text.clear();
    txtUDPPort.SetText("");
    txtPriority.Text = DefaultPriority;
  });
}

bool frmNotifications::Form_Load() {
  OpenList("");
  return true;
}

void frmNotifications::ShowListFace(bool shown) {
  ui::ShowFace(
      {&lblInstructions, &fraModifyNotifications, &lvwNotifications, &cmdAdd, &cmdEdit, &cmdDelete, &cmdCancel}, shown);
  ui::ShowFace({&cmdTest}, shown && Test);
  ui::ShowFace({&tabMain,
                &lblName,
                &txtName,
                &chkCustom,
                &cmbCustom,
                &chkEmail,
                &lblRecipient,
                &txtRecipient,
                &chkPager,
                &lblPhone,
                &txtPhone,
                &lblPagerString,
                &txtPagerString,
                &chkPopup,
                &lblNetwork,
                &txtNetwork,
                &chkDB,
                &optDatabaseType[0],
                &optDatabaseType[1],
                &lblDBConnection,
                &txtDBConnection,
                &cmdDataODBCBrowse,
                &lblTableName,
                &lstTableName,
                &chkSysLog,
                &lblSyslogServer,
                &txtSyslogServer,
                &lblUDPPort,
                &txtUDPPort,
                &lblPriority,
                &txtPriority,
                &lblPriorityInfo,
                &lblInfo,
                &cmdSave,
                &cmdAbandon},
               !shown);
  ui::ShowFace({&cmdPriority}, !shown && BuildPriority);
  if (!shown) EnableFields();
  cmdCancel.Default = cmdCancel.Cancel = shown;
  cmdSave.Default = cmdAbandon.Cancel = !shown;
}

void frmNotifications::EnableFields() {
  chkPager.Enabled = hasModem_;
  Enable({&cmbCustom}, chkCustom.Value);
  Enable({&txtRecipient}, chkEmail.Value);
  Enable({&txtPhone, &txtPagerString}, chkPager.Value);
  Enable({&txtNetwork}, chkPopup.Value);
  Enable({&optDatabaseType[0], &optDatabaseType[1], &txtDBConnection, &cmdDataODBCBrowse, &lstTableName}, chkDB.Value);
  Enable({&txtSyslogServer, &txtUDPPort, &txtPriority, &cmdPriority}, chkSysLog.Value);
}

void frmNotifications::tabMain_Click() { lblInfo.Caption = Hints.at(static_cast<std::size_t>(tabMain.Tab)); }

void frmNotifications::FillList() {
  lvwNotifications.Clear();
  for (const Notification& of : ReadNotifications(main_)) {
    ui::ListItem item;
    item.Text = of.Name;
    item.Icon = "notification";
    item.SubItems = {of.EmailRecipient, of.PhoneNumber, of.NetworkName, of.TableName, of.SyslogServer};
    lvwNotifications.Add(std::move(item));
  }
}

void frmNotifications::OpenList(const std::string& name) {
  ShowListFace(true);
  TellFailure(main_, [this] { FillList(); });
  for (int row = lvwNotifications.Count() - 1; row >= 0; --row)
    if (row == 0 || SameText(lvwNotifications.Item(row).Text, name)) {
      lvwNotifications.Select(row);
      return;
    }
}

void frmNotifications::OpenFields() {
  tabMain.Tab = 0;
  tabMain_Click();
  ShowListFace(false);
  main_.Ui.SetFocus(txtName);
}

std::string frmNotifications::SelectedName() const {
  return lvwNotifications.Item(lvwNotifications.SelectedRow()).Text;
}

void frmNotifications::cmdEdit_Click() {
  if (lvwNotifications.SelectedRow() < 0) return;
  TellFailure(main_, [this] {
    LoadNotification(SelectedName());
    oldName_ = SelectedName();
    OpenFields();
  });
}

void frmNotifications::FillTemplates() {
  cmbCustom.Clear();
  for (const std::string& name : ReadTemplateNames(main_)) cmbCustom.AddItem(name);
}

void frmNotifications::ClearNotificationFields() {
  FillTemplates();
  hasModem_ = main_.SettingNumber("DataModemIndex") != 0;
  txtName.Text.clear();
  ui::ChooseOption(optDatabaseType, DatabaseTarget::Access);
  for (ui::CheckBox* box : {&chkCustom, &chkEmail, &chkPager, &chkPopup, &chkDB, &chkSysLog}) {
    box->Value = false;
    box->Click();
  }
}

// A number for the pager outlives a time without a modem: it is shown and kept, though the way is not ticked.
void frmNotifications::LoadNotification(const std::string& name) {
  const Notification of = ReadNotification(main_, name);
  const auto templateName = FindTemplateOf(main_, name);
  ClearNotificationFields();
  txtName.Text = of.Name;
  chkCustom.Value = templateName.has_value();
  if (templateName) cmbCustom.SetListIndex(cmbCustom.IndexOf(*templateName));
  chkEmail.Value = !of.EmailRecipient.empty();
  txtRecipient.Text = of.EmailRecipient;
  chkPager.Value = !of.PhoneNumber.empty() && hasModem_;
  txtPhone.Text = of.PhoneNumber;
  if (!of.PhoneNumber.empty()) txtPagerString.Text = of.PagerString;
  chkPopup.Value = !of.NetworkName.empty();
  txtNetwork.Text = of.NetworkName;
  chkDB.Value = !of.DataConnectionString.empty();
  if (chkDB.Value) target_.Load(of.DataConnectionString, of.TableName);
  chkSysLog.Value = !of.SyslogServer.empty();
  if (chkSysLog.Value) LoadSyslog(of);
}

void frmNotifications::LoadSyslog(const Notification& of) {
  txtSyslogServer.Text = of.SyslogServer;
  if (of.SyslogUDPPort == SyslogPort || of.SyslogUDPPort == ListenerPort)
    txtUDPPort.SetListIndex(of.SyslogUDPPort == SyslogPort ? 0 : 1);
  else
    txtUDPPort.SetText(std::to_string(of.SyslogUDPPort));
  txtPriority.Text = std::to_string(of.SyslogPriority);
}

void frmNotifications::cmdSave_Click() {
  if (SaveNotification()) OpenList(txtName.Text);
}

bool frmNotifications::SaveNotification() {
  bool isSaved = false;
  return TellFailure(main_, [&] { isSaved = Save(); }) && isSaved;
}

Notification frmNotifications::Fields() const {
  Notification of{.Name = txtName.Text,
                  .EmailRecipient = txtRecipient.Text,
                  .PhoneNumber = txtPhone.Text,
                  .PagerString = txtPagerString.Text,
                  .NetworkName = txtNetwork.Text,
                  .DataConnectionString = txtDBConnection.Text,
                  .TableName = lstTableName.Text(),
                  .SyslogServer = txtSyslogServer.Text};
  if (!of.SyslogServer.empty()) {
    of.SyslogUDPPort = TextToInt32(txtUDPPort.Text().substr(0, txtUDPPort.Text().find(' ')));
    of.SyslogPriority = TextToInt32(txtPriority.Text);
  }
  return of;
}

// The table comes before the name is looked at, and stays when the name is refused. What has its row is edited from
// then on: pressing Save again after a failure must not make a second one.
bool frmNotifications::Save() {
  Notification of = Fields();
  if (chkDB.Value && !target_.IsListed() && !CreateTable(lstTableName.Text()))
    return Refuse("Your new table could not be created.  Are you using a valid database connection string?");
  of.TableName = lstTableName.Text();
  if (of.Name.empty()) return Refuse("You must type a name for this notification before continuing.");
  if (of.Name.find_first_of(RefusedInNames) != of.Name.npos)
    return Refuse("You cannot use the following characters in the notification name: ' \" -");
  if (oldName_)
    UpdateNotification(main_, of, *oldName_);
  else
    InsertNotification(main_, of);
  oldName_ = of.Name;
  LinkTemplate(main_, of.Name, chkCustom.Value ? std::optional(cmbCustom.Text()) : std::nullopt);
  StampLastDBUpdate(main_);
  return true;
}

void frmNotifications::cmdDelete_Click() {
  if (lvwNotifications.SelectedRow() >= 0) TellFailure(main_, [this] { Delete(SelectedName()); });
}

void frmNotifications::Delete(const std::string& name) {
  const NotificationBond bond = BondOf(main_, name);
  if (bond != NotificationBond::None) {
    Refuse(bond == NotificationBond::Log
               ? "You cannot delete a notification that is currently bound to a watched computer event log.  Please "
                 "remove all associations before deleting this notification from the database."
               : "You cannot delete a notification that is currently used to inform administrators when servers go "
                 "offline/online.  To delete this notification, please adjust the System Offline Notification under "
                 "the Performance Tuning tab in the Corvane Preferences dialog.");
    return;
  }
  if (main_.Ui.MsgBox("Are you sure you wish to delete notification " + name + "?", ui::MsgIcon::Question,
                      ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
    return;
  DeleteNotification(main_, name);
  OpenList("");
}

bool frmNotifications::Refuse(const std::string& text) {
  main_.Ui.MsgBox(text, ui::MsgIcon::Exclamation);
  return false;
}

}  // namespace corvane
