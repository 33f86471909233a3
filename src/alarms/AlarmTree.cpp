#include "alarms/AlarmTree.h"

#include <vector>

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"

namespace corvane {
namespace {

constexpr std::string_view OsPrefix = "OS\\";
constexpr std::string_view LogTypePrefix = "LOGTYPE\\";
constexpr std::string_view CategoryPrefix = "ALARMCAT\\";
constexpr std::string_view DummySuffix = "\\DUMMYNODE";

std::string OsIndexOfLogType(std::string_view key) { return std::string(key.substr(LogTypePrefix.size(), 1)); }

template <class Visit>
void ForEachRow(modMain& main, const std::string& sql, Visit visit) {
  const auto rows = main.Platform.Data.NewRecordset();
  rows->Open(sql, *main.ConfigConnection, CursorType::ForwardOnly, LockType::ReadOnly);
  for (; !rows->Eof(); rows->MoveNext()) visit(*rows);
  rows->Close();
}

}  // namespace

// Keys are told apart by what they contain, in this order; "ALARM\" does not stand in "ALARMCAT\".
AlarmLevel LevelOf(std::string_view key) {
  if (key.find(OsPrefix) != key.npos) return AlarmLevel::Os;
  if (key.find(LogTypePrefix) != key.npos) return AlarmLevel::LogType;
  if (key.find(CategoryPrefix) != key.npos) return AlarmLevel::Category;
  return AlarmLevel::Alarm;
}

// OS classes are single digits: keys are read by position.
std::string OsIndexOfCategory(std::string_view key) { return std::string(key.substr(CategoryPrefix.size(), 1)); }
std::string IndexOfCategory(std::string_view key) { return std::string(key.substr(CategoryPrefix.size() + 2)); }

std::string CategoryKey(std::string_view osIndex, std::string_view categoryIndex) {
  return std::string(CategoryPrefix).append(osIndex).append("\\").append(categoryIndex);
}

std::string DummyKey(std::string_view key) { return std::string(key).append(DummySuffix); }

std::string GetLastKeyPart(std::string_view key) { return std::string(key.substr(key.rfind('\\') + 1)); }

void AlarmTree::FillOSNodes() {
  tree_.Clear();
  ForEachRow(main_, "SELECT * FROM OsTypes ORDER BY OSName ASC", [&](Recordset& row) {
    AddBranch(0, std::string(OsPrefix) + ToText(row.Field("Index")), ToText(row.Field("OSName")), alarmimage::Os);
  });
}

void AlarmTree::Expand(ui::NodeId node) {
  const std::string key = tree_.Node(node).Key;
  if (const ui::NodeId dummy = tree_.Find(DummyKey(key)); dummy != 0) tree_.Remove(dummy);
  FillBelow(node);
}

void AlarmTree::FillBelow(ui::NodeId node) {
  const std::string key = tree_.Node(node).Key;
  const AlarmLevel level = LevelOf(key);
  if (level == AlarmLevel::Os) FillLogTypeNodes(node);
  if (level == AlarmLevel::LogType) FillCategoryNodes(node, OsIndexOfLogType(key));
  if (level == AlarmLevel::Category) FillAlarmNodes(node, OsIndexOfCategory(key));
}

void AlarmTree::Collapse(ui::NodeId node) {
  const std::string key = tree_.Node(node).Key;
  if (LevelOf(key) == AlarmLevel::Alarm) return;
  // The dummy comes first: a branch left without children for a moment would lose its expander.
  const std::vector<ui::NodeId> children = tree_.ChildrenOf(node);
  AddDummy(node);
  const ui::NodeId dummy = tree_.Find(DummyKey(key));
  for (auto child = children.rbegin(); child != children.rend(); ++child)
    if (*child != dummy) tree_.Remove(*child);
}

// The two handlers of a branch do it, so a branch that is closed is opened first.
void AlarmTree::Refresh(ui::NodeId node) {
  if (LevelOf(tree_.Node(node).Key) == AlarmLevel::Alarm) return;
  if (!tree_.Node(node).Expanded) Expand(node);
  Collapse(node);
  Expand(node);
  tree_.SetExpanded(node, true);
}

void AlarmTree::FillWhole() {
  lazy_ = false;
  FillOSNodes();
  for (const ui::NodeId os : tree_.Roots()) {
    FillBelow(os);
    for (const ui::NodeId logType : tree_.ChildrenOf(os)) {
      FillBelow(logType);
      for (const ui::NodeId category : tree_.ChildrenOf(logType)) FillBelow(category);
    }
  }
}

void AlarmTree::ForEachPicked(ui::NodeId node,
                              const std::function<void(const std::string& name, const std::string& osName)>& use) {
  std::vector<ui::NodeId> alarms{node};
  if (tree_.Node(node).Image == alarmimage::Category) {
    PassOver([&] { Expand(node); });
    alarms = tree_.ChildrenOf(node);
  }
  for (const ui::NodeId alarm : alarms)
    if (const std::string osName = OsNameAbove(alarm); !osName.empty()) use(tree_.Node(alarm).Text, osName);
}

// The OS class stands three levels above an alarm.
std::string AlarmTree::OsNameAbove(ui::NodeId alarm) const {
  ui::NodeId above = alarm;
  for (int level = 0; level < 3 && above != 0; ++level) above = tree_.Node(above).Parent;
  return above == 0 ? std::string() : tree_.Node(above).Text;
}

void AlarmTree::FillLogTypeNodes(ui::NodeId osNode) {
  const std::string osIndex = tree_.Node(osNode).Key.substr(OsPrefix.size());
  ForEachRow(main_, "SELECT * FROM LogTypes ORDER BY Name ASC", [&](Recordset& row) {
    const int logType = ToNumber(row.Field("Index"));
    // Windows NT 4.0 knows the first three logs alone.
    if (osIndex == "1" && logType > 3) return;
    AddBranch(osNode, std::string(LogTypePrefix) + osIndex + "\\" + std::to_string(logType), ToText(row.Field("Name")),
              alarmimage::LogType);
  });
}

void AlarmTree::FillCategoryNodes(ui::NodeId logTypeNode, const std::string& osIndex) {
  const std::string logType = GetLastKeyPart(tree_.Node(logTypeNode).Key);
  const std::string sql =
      "SELECT * FROM AlarmCategories WHERE LogType = " + logType + " AND OS = " + osIndex + " ORDER BY Name ASC";
  ForEachRow(main_, sql, [&](Recordset& row) {
    AddBranch(logTypeNode, CategoryKey(osIndex, ToText(row.Field("Index"))), NullToEmpty(row.Field("Name")),
              alarmimage::Category);
  });
}

void AlarmTree::FillAlarmNodes(ui::NodeId categoryNode, const std::string& osIndex) {
  const std::string category = IndexOfCategory(tree_.Node(categoryNode).Key);
  const std::string sql = "SELECT * FROM Alarms WHERE AlarmCategory = " + QuoteSqlText(category) + " ORDER BY Name ASC";
  ForEachRow(main_, sql, [&](Recordset& row) {
    const std::string name = NullToEmpty(row.Field("Name"));
    const std::string key = "ALARM\\" + osIndex + "\\" + category + "\\" + name;
    if (tree_.Find(key) == 0) tree_.Add(categoryNode, key, name, alarmimage::Alarm);
  });
}

// A branch that was filled by code and is opened by the user is filled again: what stands already stays.
void AlarmTree::AddBranch(ui::NodeId parent, const std::string& key, const std::string& text, const char* image) {
  if (tree_.Find(key) != 0) return;
  const ui::NodeId branch = tree_.Add(parent, key, text, image);
  if (lazy_) AddDummy(branch);
}

void AlarmTree::AddDummy(ui::NodeId node) {
  const std::string key = DummyKey(tree_.Node(node).Key);
  if (tree_.Find(key) == 0) tree_.Add(node, key, "DummyNode", "");
}

}  // namespace corvane
