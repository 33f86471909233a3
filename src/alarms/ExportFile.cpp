#include "alarms/ExportFile.h"

#include <initializer_list>
#include <vector>

#include "alarms/AlarmNumber.h"
#include "alarms/ChosenTree.h"
#include "alarms/ExchangeLine.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

constexpr std::size_t FieldsOfIdentity = 3;

std::string AlarmQuery(const std::string& alarmId) { return "SELECT * FROM Alarms WHERE AlarmID = " + alarmId; }

}  // namespace

ExportFile::ExportFile(modMain& main, const PrivateProfile& file)
    : main_(main),
      alarms_(exchange::Alarms(file)),
      categories_(exchange::Categories(file)),
      bundles_(exchange::Bundles(file)),
      members_(exchange::Members(file)) {}

void ExportFile::Write(const ui::TreeView& chosen) {
  std::vector<std::string> singles;
  for (const ui::NodeId id : chosen.InTreeOrder()) {
    const ui::TreeNode& node = chosen.Node(id);
    if (chosenkey::IsBundle(node.Key))
      bundles_.Append(chosenkey::WrittenName(node.Key));
    else if (chosenkey::IsMember(node.Key))
      WriteMember(node.Key);
    else
      singles.push_back(IdOfSingle(node.Text, chosenkey::CategoryIndex(node.Key)));
  }
  for (const std::string& alarm : singles)
    if (AlarmLineMissing(alarm)) WriteAlarmLine(alarm);
}

std::string ExportFile::IdOfSingle(const std::string& name, const std::string& categoryIndex) {
  std::string id = FindAlarmID(main_, name, categoryIndex);
  if (id.empty()) throw RuntimeError(errors::DataNoRow, "The alarm " + name + " is not in the catalogue any more.");
  return id;
}

// An alarm of two bundles gets a line for each.
void ExportFile::WriteMember(const std::string& key) {
  const int alarm = WriteAlarmLine(chosenkey::AlarmOfMember(key));
  const int bundle = FindLine(bundles_.Lines(), chosenkey::BundleOfMember(key));
  if (bundle != 0) members_.Append(std::to_string(alarm) + "|" + std::to_string(bundle));
}

int ExportFile::WriteAlarmLine(const std::string& alarmId) {
  const auto alarm = main_.ConfigConnection->Execute(AlarmQuery(alarmId));
  const int number = alarms_.Append(JoinFields(*alarm, AlarmColumns));
  WriteCategoryLine(NullToEmpty(alarm->Field("AlarmCategory")));
  return number;
}

// An alarm whose category is gone goes without one.
void ExportFile::WriteCategoryLine(const std::string& index) {
  if (FindPrefix(categories_.Lines(), index) != 0) return;
  const auto category =
      main_.ConfigConnection->Execute("SELECT * FROM AlarmCategories WHERE Index = " + QuoteSqlText(index));
  if (!category->Eof()) categories_.Append(JoinFields(*category, CategoryColumns));
}

bool ExportFile::AlarmLineMissing(const std::string& alarmId) {
  const auto alarm = main_.ConfigConnection->Execute(AlarmQuery(alarmId));
  return FindPrefix(alarms_.Lines(), JoinFields(*alarm, std::span(AlarmColumns).first(FieldsOfIdentity))) == 0;
}

}  // namespace corvane
