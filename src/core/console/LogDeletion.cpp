#include "core/console/LogDeletion.h"

#include "core/ConfigDatabase.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/ServiceControl.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int MostRetries = 50;
constexpr int PauseBeforeRetry = 100;

// One run of the command: its retries are a budget for all rows together, so that many locked rows do not add up.
class Deletion {
 public:
  Deletion(modMain& main, const std::string& domain) : main_(main), domain_(domain) { SetLockWait(0); }
  ~Deletion() { SetLockWait(Connection::DefaultLockWait); }
  Deletion(const Deletion&) = delete;
  Deletion& operator=(const Deletion&) = delete;

  /// Marks or deletes the row of a log. False when the loop gave up.
  bool RemoveRow(const std::string& idName) {
    if (CorvaneServiceState(main_.Platform.Services) == 1)
      return Retry("UPDATE RegisteredServers SET DeleteMe = True" + RowOf(idName));
    Execute("DELETE FROM RegisteredServers" + RowOf(idName));
    return true;
  }

  void RemoveAttachments(const std::string& idName) {
    DeleteAlarmsAndNots(main_, idName, domain_, OnFailure::GoOn);
    DeleteDenyAlarms(main_, idName, domain_, OnFailure::GoOn);
  }

 private:
  std::string RowOf(const std::string& idName) const {
    return " WHERE IDName = " + QuoteSqlText(idName) + " AND [Domain] = " + QuoteSqlText(domain_);
  }

  bool Execute(const std::string& sql) {
    return PassOver([&] { main_.ConfigConnection->Execute(sql); });
  }

  bool Retry(const std::string& sql) {
    while (!Execute(sql)) {
      if (++retries_ > MostRetries) return false;
      main_.Ui.Sleep(PauseBeforeRetry);
    }
    return true;
  }

  // The loop itself waits for a lock. Were the store to wait as well, a locked row would hold the console for minutes.
  void SetLockWait(int milliseconds) const {
    if (main_.ConfigConnection) main_.ConfigConnection->SetLockWait(milliseconds);
  }

  modMain& main_;
  std::string domain_;
  int retries_ = 0;
};

bool Ask(modMain& main, const std::vector<DoomedLog>& logs) {
  const std::string what = logs.size() < 2 ? "the " + logs.front().Log + " log on " + logs.front().Computer
                                           : std::to_string(logs.size()) + " logs";
  return main.Ui.MsgBox("Are you sure you want to stop watching " + what + "?", ui::MsgIcon::Question,
                        ui::MsgButtons::YesNo) == ui::MsgResult::Yes;
}

void TellOfLocks(modMain& main) {
  main.Ui.MsgBox(
      "One or more records could not be deleted due to record locking issues.  If this error persists, you may want to "
      "stop the Corvane Service, try this operation again, and then restart the Corvane Service.",
      ui::MsgIcon::Exclamation);
}

std::vector<std::string> KeysOf(const std::vector<DoomedLog>& logs) {
  std::vector<std::string> keys;
  for (const DoomedLog& log : logs)
    if (const int number = LogNumber(log.Log)) keys.push_back(MakeIDName(log.Computer, number));
  return keys;
}

}  // namespace

void DeleteWatchedLogs(modMain& main, const std::vector<DoomedLog>& logs, const std::string& domain) {
  if (logs.empty() || !Ask(main, logs)) return;
  main.CVMain->SetPointer(ui::Pointer::Hourglass);
  const std::vector<std::string> keys = KeysOf(logs);
  bool anyLocked = false;
  {
    Deletion deletion(main, domain);
    for (const std::string& key : keys) anyLocked |= !deletion.RemoveRow(key);
    // A single log that stays locked keeps what is attached to it; among several, all attachments go.
    if (!anyLocked || logs.size() > 1)
      for (const std::string& key : keys) deletion.RemoveAttachments(key);
  }
  if (!anyLocked || logs.size() > 1) main.CVMain->RefillLogs();
  main.CVMain->SetPointer(ui::Pointer::Default);
  if (anyLocked) TellOfLocks(main);
}

}  // namespace corvane
