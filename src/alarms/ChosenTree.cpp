#include "alarms/ChosenTree.h"

#include <algorithm>

#include "alarms/AlarmTree.h"
#include "alarms/Bundles.h"
#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/ui/ImageList.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

/// Number of the single alarm's picture in the shared list.
constexpr int SingleAlarmImage = 21;
constexpr std::string_view MemberPrefix = "GROUP\\";
constexpr std::string_view BundlePrefix = "GROUP";

std::string OsSuffix(const std::string& osName) {
  if (osName == "Windows NT 4.0") return "_1";
  if (osName == "Windows 2000/XP/2003") return "_2";
  return "_3";
}

bool LevelHoldsText(const ui::TreeView& tree, const std::vector<ui::NodeId>& level, std::size_t from,
                    std::string_view text) {
  for (std::size_t i = from; i < level.size(); ++i) {
    const ui::TreeNode& node = tree.Node(level[i]);
    if (LevelHoldsText(tree, node.Children, 0, text) || SameText(node.Text, text)) return true;
  }
  return false;
}

}  // namespace

namespace chosenkey {

bool IsMember(std::string_view key) { return key.starts_with(MemberPrefix); }
bool IsBundle(std::string_view key) { return key.starts_with(BundlePrefix) && !IsMember(key); }
std::string BundleId(std::string_view key) {
  return std::string(key.substr(std::min(key.size(), MemberPrefix.size())));
}
std::string CategoryIndex(std::string_view key) { return std::string(key.substr(key.find('_') + 1)); }
// Of a name with an underscore only the part behind it goes into the file; the members then find no bundle there.
std::string WrittenName(std::string_view bundleKey) { return std::string(bundleKey.substr(bundleKey.rfind('_') + 1)); }
std::string BundleOfMember(std::string_view memberKey) {
  const std::string_view name = memberKey.substr(0, memberKey.rfind('\\'));
  return std::string(name.substr(std::min(name.size(), MemberPrefix.size())));
}
std::string AlarmOfMember(std::string_view memberKey) { return GetLastKeyPart(memberKey); }

}  // namespace chosenkey

std::string OsNameOf(std::string_view osNumber) {
  if (osNumber == "1") return "Windows NT 4.0";
  if (osNumber == "2") return "Windows 2000/XP/2003";
  return "Windows Vista/Windows Server 2008";
}

bool FindNodeText(const ui::TreeView& tree, ui::NodeId start, std::string_view text) {
  const std::vector<ui::NodeId>& level = tree.ChildrenOf(tree.Node(start).Parent);
  const auto place = std::find(level.begin(), level.end(), start);
  return LevelHoldsText(tree, level, static_cast<std::size_t>(place - level.begin()), text);
}

// Names are compared across the whole tree, members included: an alarm of one name is one alarm, whatever its OS class.
bool ChosenTree::HoldsName(const std::string& name) const {
  return tree_.Count() > 0 && FindNodeText(tree_, tree_.Roots().front(), name);
}

bool ChosenTree::HoldsSingle(const std::string& name, const std::string& categoryIndex) const {
  return std::ranges::any_of(tree_.Roots(), [&](ui::NodeId id) {
    const ui::TreeNode& node = tree_.Node(id);
    return !chosenkey::IsBundle(node.Key) && SameText(node.Text, name) &&
           SameText(chosenkey::CategoryIndex(node.Key), categoryIndex);
  });
}

void ChosenTree::Refuse(const char* message) {
  if (!IsForLog() || !*duplicateReported_) main_.Ui.MsgBox(message, ui::MsgIcon::Exclamation);
  if (IsForLog()) *duplicateReported_ = true;
}

void ChosenTree::AddAlarmNode(const std::string& name, const std::string& osName) {
  if (IsForLog() && HoldsName(name)) return Refuse("You cannot add an alarm or ignore event twice!");
  PassOver([&] {
    const std::string category = FindCategoryIndex(name, osName);
    if (category.empty() || (!IsForLog() && HoldsSingle(name, category))) return;
    tree_.Add(0, NewAlarmKey(category), name, main_.CVMain->Images().Key(SingleAlarmImage));
  });
}

// The first alarm of the name decides the category, whichever was picked.
std::string ChosenTree::FindCategoryIndex(const std::string& name, const std::string& osName) {
  const auto alarms = main_.Platform.Data.NewRecordset();
  alarms->Open("SELECT * FROM Alarms WHERE Name = '" + name + "'", *main_.ConfigConnection, CursorType::ForwardOnly,
               LockType::ReadOnly);
  const auto categories = main_.Platform.Data.NewRecordset();
  categories->Open("SELECT * FROM AlarmCategories", *main_.ConfigConnection, CursorType::Dynamic, LockType::Optimistic);
  if (alarms->Eof() && alarms->Bof()) return {};
  categories->Find("Index = " + QuoteSqlText(NullToEmpty(alarms->Field("AlarmCategory"))));
  return NullToEmpty(categories->Field("Name")) + OsSuffix(osName);
}

// The count can come again after a removal: for a log the add then fails on its key without a word; for an export the
// next free number is taken.
std::string ChosenTree::NewAlarmKey(const std::string& categoryIndex) const {
  int number = tree_.Count();
  const auto key = [&] { return PadZero(number, 4) + "_" + categoryIndex; };
  while (!IsForLog() && tree_.Find(key()) != 0) ++number;
  return key();
}

void ChosenTree::AddBundleNode(const std::string& name, const std::string& id) {
  const std::string key = "GROUP_" + id + (IsForLog() ? "" : "_" + name);
  if (IsForLog() ? HoldsName(name) : tree_.Find(key) != 0) return Refuse("You cannot add an alarm bundle twice!");
  const std::string members = std::string(MemberPrefix) + (IsForLog() ? id + "_" : name + "\\");
  PassOver([&] {
    const ui::NodeId bundle = tree_.Add(0, key, name, alarmimage::Bundle);
    ForEachMember(main_, id, [&](const std::string& alarmId, const std::string& member) {
      PassOver([&] { tree_.Add(bundle, members + alarmId, member, alarmimage::Alarm); });
    });
  });
}

void ChosenTree::RemoveSelected() {
  if (tree_.Selected() != 0) tree_.Remove(tree_.Selected());
}

bool ChosenTree::MayRemove(ui::NodeId node) const { return !chosenkey::IsMember(tree_.Node(node).Key); }

}  // namespace corvane
