#include "core/console/UpgradeReminder.h"

#include <string>

#include "core/Browser.h"
#include "core/PassOver.h"
#include "core/TimeStamp.h"
#include "core/Version.h"
#include "core/modMain.h"
#include "platform/System.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr const char* LastCheck = "LastUpgradeCheck";
constexpr std::chrono::days Patience{60};

void NoteCheck(modMain& main) { main.SaveSetting(LastCheck, TimeStampText(main.Platform.System.Now())); }

bool IsDue(modMain& main) {
  const std::string last = main.Setting(LastCheck);
  bool due = false;
  if (!last.empty()) PassOver([&] { due = ParseTimeStamp(last) + Patience < main.Platform.System.Now(); });
  return due;
}

}  // namespace

void CheckForUpgrades(modMain& main) {
  NoteCheck(main);
  OpenInBrowser(main, main.UpgradeLink + "?Product=CV&Version=" + VersionText());
}

void RemindOfUpgrades(modMain& main) {
  if (!IsDue(main)) return;
  PassOver([&] { NoteCheck(main); });
  if (main.Ui.MsgBox(
          "It has been over 60 days since you last checked available upgrades for Corvane.  Would you like to "
          "check for upgrades now?",
          ui::MsgIcon::Question, ui::MsgButtons::YesNo) == ui::MsgResult::Yes)
    PassOver([&] { CheckForUpgrades(main); });
}

}  // namespace corvane
