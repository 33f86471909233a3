#include "core/console/WatchedLogList.h"

#include "core/DateText.h"
#include "core/LogTypes.h"
#include "core/PassOver.h"
#include "core/Settings.h"
#include "core/SqlText.h"
#include "core/TimeStamp.h"
#include "core/console/AttachmentCounts.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/ListView.h"
#include "platform/ui/SimpleControls.h"

namespace corvane {
namespace {

// What the monitoring service tells about logs. The key stays open: two values are read for every row.
class Statistics {
 public:
  explicit Statistics(const Reghack& registry)
      : registry_(registry), key_(registry.OpenKeyToRead(StatisticsKey, registry::LocalMachine)) {}
  Statistics(const Statistics&) = delete;
  Statistics& operator=(const Statistics&) = delete;
  ~Statistics() { registry_.CloseKeyHandle(key_); }

  /// A value of a log without the zero that ends it; valid until the next call.
  std::string_view Read(const std::string& idName, std::string_view suffix) {
    registry_.QueryValueEx(key_, name_.assign(idName).append(suffix), value_);
    return std::string_view(value_).substr(0, value_.empty() ? 0 : value_.size() - 1);
  }

 private:
  const Reghack& registry_;
  RegistryHandle key_;
  std::string name_, value_;
};

// Sorts by the time of day; the date takes no part, neither here nor in what is shown.
std::string SortKeyOf(DateTime time) {
  const DateTimeParts parts = PartsOf(time);
  return PadZero(parts.Hour * 60, 4).append(".").append(PadZero(parts.Minute * 60 + parts.Second, 4));
}

// Fills the columns behind the computer's name. Each cell stands for itself: one that fails stays empty.
class RowFiller {
 public:
  explicit RowFiller(modMain& main) : main_(main), counts_(main), statistics_(main.Registry) {}

  ui::ListItem Fill(const Recordset& row) {
    ui::ListItem item;
    item.Text = NullToEmpty(row.Field("ComputerName"));
    item.Icon = "computer";
    item.SubItems.resize(logcolumn::SecsNum);
    const std::string idName = NullToEmpty(row.Field("IDName"));
    PassOver([&] { Cell(item, logcolumn::Log) = LogName(ToNumber(row.Field("LogType"))); });
    FillStatistics(item, idName);
    FillCounts(item, idName);
    item.Selected =
        SameText(main_.SelectedName, item.Text) && SameText(main_.SelectedDetail, item.Cell(logcolumn::Log));
    return item;
  }

 private:
  static std::string& Cell(ui::ListItem& item, int column) {
    return item.SubItems[static_cast<std::size_t>(column - 1)];
  }

  // Texts that are missing are told apart first: most logs of a fresh installation have none, and raising is slow.
  void FillStatistics(ui::ListItem& item, const std::string& idName) {
    if (const auto stamp = statistics_.Read(idName, "_LastCheck"); !stamp.empty())
      PassOver([&] {
        const DateTime checked = ParseTimeStamp(stamp);
        Cell(item, logcolumn::LastCheck) = ClockText(checked);
        Cell(item, logcolumn::DateNum) = SortKeyOf(checked);
      });
    const auto seconds = statistics_.Read(idName, "_ScanTime");
    Cell(item, logcolumn::ScanDuration).append(seconds.empty() ? "0" : seconds).append(" sec(s)");
    if (!seconds.empty()) PassOver([&] { Cell(item, logcolumn::SecsNum) = PadZero(TextToInt32(seconds), 6); });
  }

  void FillCounts(ui::ListItem& item, const std::string& idName) const {
    if (const auto bundled = counts_.BundleAlarms(idName))
      Cell(item, logcolumn::Alarms) = std::to_string(counts_.Alarms(idName) + *bundled);
    Cell(item, logcolumn::Notifications) = std::to_string(counts_.Notifications(idName));
  }

  modMain& main_;
  AttachmentCounts counts_;
  Statistics statistics_;
};

int AddRows(modMain& main, const std::string& domain, ui::ListView& list, bool descending) {
  int count = 0;
  Recordset& rows = *main.SharedRecordset;
  PassOver([&] {
    rows.Open("SELECT IDName, ComputerName, LogType, DeleteMe FROM RegisteredServers WHERE [Domain] = '" + domain +
                  "' ORDER BY ComputerName " + (descending ? "DESC" : "ASC") + ", LogType ASC",
              *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
    RowFiller filler(main);
    for (; !rows.Eof(); rows.MoveNext()) {
      if (ToBoolean(rows.Field("DeleteMe"))) continue;
      list.Add(filler.Fill(rows));
      ++count;
    }
  });
  if (rows.State() == ObjectState::Open) rows.Close();
  return count;
}

}  // namespace

void LoadWatchedLogs(modMain& main, const std::string& domain, ui::ListView& list, ui::StatusBar& status,
                     bool descending) {
  list.SetMultiSelect(false);
  list.Clear();
  const int count = AddRows(main, domain, list, descending);
  list.SetMultiSelect(true);
  status.Panels[0].Text = std::to_string(count) + " log(s) watched by Corvane";
}

}  // namespace corvane
