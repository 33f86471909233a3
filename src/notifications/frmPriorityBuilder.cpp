#include "notifications/frmPriorityBuilder.h"

#include <initializer_list>
#include <string>

#include "core/modMain.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 360;
constexpr int Levels = 8;
constexpr int HighestPriority = 191;

void Fill(ui::ComboBox& list, std::initializer_list<const char*> entries) {
  for (const char* entry : entries) list.AddItem(entry);
}

// 0, which chooses the first entries, for a text that is no priority.
int PriorityOf(const std::string& text) {
  const auto number = ParseNumber(text);
  return number && *number >= 0 && *number <= HighestPriority ? RoundToInt32(*number) : 0;
}

}  // namespace

frmPriorityBuilder::frmPriorityBuilder(modMain& main) : Form(main.Ui, "frmPriorityBuilder") {
  HelpContext = HelpTopic;
  Caption = "Build Priority Code from Facility and Level";
  lblFacility.Caption = "&Facility:";
  lblLevel.Caption = "&Level:";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
  Fill(lstFacility, {"Kernel", "User",   "Mail",     "Daemon", "Auth",   "Syslog",   "LPR",      "News",
                     "UUCP",   "Cron",   "Security", "FTP",    "NTP",    "LogAudit", "LogAlert", "Clock",
                     "Local0", "Local1", "Local2",   "Local3", "Local4", "Local5",   "Local6",   "Local7"});
  Fill(lstLevel, {"Emergency", "Alert", "Critical", "Error", "Warning", "Notice", "Information", "Debug"});
  cmdOK.Default = cmdCancel.Cancel = true;
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmPriorityBuilder::InitForm(ui::TextBox& priority) {
  priority_ = &priority;
  const int number = PriorityOf(priority.Text);
  lstFacility.SetListIndex(number / Levels);
  lstLevel.SetListIndex(number % Levels);
}

void frmPriorityBuilder::cmdOK_Click() {
  priority_->Text = std::to_string(lstFacility.ListIndex() * Levels + lstLevel.ListIndex());
  Unload();
}

}  // namespace corvane
