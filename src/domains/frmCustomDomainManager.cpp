#include "domains/frmCustomDomainManager.h"

#include <algorithm>

#include "core/PassOver.h"
#include "core/modMain.h"
#include "domains/CustomDomains.h"
#include "domains/DomainList.h"
#include "platform/Conversions.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 150;

enum Column { Computer = 0, Domain = 1 };

// A blank, most punctuation and the slash can stand neither in the file nor in a statement.
bool IsRefused(char32_t character) {
  return character == 32 || (character >= 34 && character <= 44) || character == 47;
}

}  // namespace

frmCustomDomainManager::frmCustomDomainManager(modMain& main) : Form(main.Ui, "frmCustomDomainManager"), main_(main) {
  HelpContext = HelpTopic;
  SetCaptions();
  lvwComputers.Columns = {{"Computer", 3300, false}, {"Custom Domain", 3300, false}};
  lvwComputers.ColumnClick = [this](int column) { lvwComputers_ColumnClick(column); };
  for (ui::TextBox* box : {&txtComputer, &txtDomain})
    box->KeyPress = [this](char32_t character) { return txtComputer_KeyPress(character); };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdRemove.Click = [this] { cmdRemove_Click(); };
  cmdOK.Default = true;
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Cancel = true;
  cmdCancel.Click = [this] { Unload(); };
}

void frmCustomDomainManager::SetCaptions() {
  Caption = "Manage Custom Domains";
  fraMappings.Caption = "C&omputer and domain mappings (click columns to sort)";
  cmdRemove.Caption = "&Remove Computer(s)";
  fraAdd.Caption = "Enter a computer name or IP address, and map it to a custom domain";
  lblComputer.Caption = "&Computer:";
  lblDomain.Caption = "Custom &Domain:";
  cmdAdd.Caption = "&Add";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
}

bool frmCustomDomainManager::Form_Load() {
  for (const CustomMapping& mapping : LoadCustomMappings(main_))
    AddRow({UpperCase(mapping.Computer), UpperCase(mapping.Domain)});
  return true;
}

// Names may hold underscores, so that two mappings can come to one key: the later one goes without.
void frmCustomDomainManager::AddRow(const CustomMapping& mapping) {
  const ui::ListItem row{mapping.Computer + "_" + mapping.Domain, mapping.Computer, {mapping.Domain}, "computer"};
  if (PassOver([&] { lvwComputers.Add(row); })) return;
  const auto& rows = lvwComputers.Items();
  const bool stands = std::any_of(rows.begin(), rows.end(), [&](const ui::ListItem& other) {
    return other.Text == mapping.Computer && other.Cell(Domain) == mapping.Domain;
  });
  if (!stands) lvwComputers.Add({"", row.Text, row.SubItems, row.Icon});
}

void frmCustomDomainManager::lvwComputers_ColumnClick(int column) {
  const bool again =
      lvwComputers.Sorted() && lvwComputers.SortColumn() == column && lvwComputers.Order() == ui::SortOrder::Ascending;
  lvwComputers.SortBy(column, again ? ui::SortOrder::Descending : ui::SortOrder::Ascending);
}

bool frmCustomDomainManager::txtComputer_KeyPress(char32_t character) {
  if (!IsRefused(character)) return true;
  main_.Ui.Beep();
  return false;
}

// A computer can be mapped only once.
void frmCustomDomainManager::cmdAdd_Click() {
  const CustomMapping mapping{UpperCase(txtComputer.Text), UpperCase(txtDomain.Text)};
  for (const ui::ListItem& row : lvwComputers.Items())
    if (row.Text == mapping.Computer) {
      main_.Ui.MsgBox("Computer " + mapping.Computer +
                          " has already been mapped to a custom domain.  To remap it, remove it before adding it "
                          "again.",
                      ui::MsgIcon::Exclamation);
      return;
    }
  if (!mapping.Computer.empty() && !mapping.Domain.empty()) AddRow(mapping);
}

void frmCustomDomainManager::cmdRemove_Click() {
  if (main_.Ui.MsgBox("Are you sure you want to delete one or more computer/domain mappings from the custom view?",
                      ui::MsgIcon::Question, ui::MsgButtons::YesNo) != ui::MsgResult::Yes)
    return;
  for (int row = lvwComputers.Count() - 1; row >= 0; --row)
    if (lvwComputers.Item(row).Selected) lvwComputers.Remove(row);
}

void frmCustomDomainManager::cmdOK_Click() {
  std::vector<CustomMapping> mappings;
  for (const ui::ListItem& row : lvwComputers.Items()) mappings.push_back({row.Text, row.Cell(Domain)});
  SaveCustomMappings(main_, mappings);
  RenewDomainBox();
  Unload();
}

// A custom domain without computers stays in the box as long as logs are registered in it.
void frmCustomDomainManager::RenewDomainBox() {
  ui::ComboBox& box = main_.CVMain->DomainBox();
  const std::string previous = box.Text();
  LoadCustomDomains(main_, box);
  AddDatabaseDomains(main_, box);
  const int kept = box.IndexOf(previous);
  box.SetListIndex(kept >= 0 ? kept : (box.Count() > 0 ? 0 : -1));
  main_.CVMain->RefillLogs();
}

}  // namespace corvane
