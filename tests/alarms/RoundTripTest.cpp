#include "alarms/ExchangeFixture.h"

namespace corvane::test {

TEST_F(ExchangeTest, AnEmptyCatalogueBecomesTheOneThatWasWritten) {
  std::vector<std::string> files;
  const auto write = [&](const std::function<void(frmAlarmExport&)>& choose) {
    frmAlarmExport form(Main);
    Choose(form);
    choose(form);
    Finish(form, form.cmdOK, "Exported");
    files.push_back(ReadTextFile(File));
  };
  const auto catalogue = [&] {
    return Console.Rows(ReadTextFile(CORVANE_SOURCE_DIR "/tests/alarms/WholeCatalogue.txt"));
  };
  Run("HardCases.txt");
  for (int log = 0; log < 3 * 6; ++log) {
    if (log >= 3 && log < 6) continue;  // logs that the first OS class does not have
    const std::string os = std::to_string(log / 6 + 1), key = "LOGTYPE\\" + os + "\\" + std::to_string(log % 6 + 1);
    write([&](frmAlarmExport& form) {
      for (const std::string& branch : {"OS\\" + os, key}) Host.Open(form.tvAlarms, form.tvAlarms.Find(branch));
      for (const ui::NodeId category : form.tvAlarms.ChildrenOf(form.tvAlarms.Find(key)))
        Add(form, {form.tvAlarms.Node(category).Key});
    });
  }
  for (int bundle = 0, count = 1; bundle < count;)
    write([&](frmAlarmExport& form) {
      count = form.lvwAlarmGroups.Count();
      for (const int end = std::min(bundle + 7, count); bundle < end; ++bundle) AddBundle(form, bundle);
    });
  Run("RoundTrip.txt");
  const std::string expected = catalogue();
  Console.Rows("DELETE FROM Alarms; DELETE FROM AlarmCategories; DELETE FROM AlarmGroups; DELETE FROM AlarmsInGroups");
  Host.ToAnyBox = ui::MsgResult::Yes;
  for (const std::string& file : files) {
    Write(file);
    frmAlarmImport form(Main);
    Choose(form);
    Host.Click(form.cmdImport);
    EXPECT_TRUE(form.IsUnloaded());
  }
  EXPECT_EQ(expected, catalogue());
}

}  // namespace corvane::test
