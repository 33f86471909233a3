#include "sqlite/StoreHelpers.h"

namespace corvane {
namespace {

using test::ErrorOf;

class RecordsetTest : public testing::Test {
 protected:
  RecordsetTest() {
    Run("INSERT INTO AlarmCategories VALUES ('It''s_2', 'It''s', 2, 3)");
    Run("INSERT INTO AlarmCategories VALUES ('Disks_2', 'Disks', 2, 1)");
    Run("INSERT INTO AlarmCategories VALUES ('Disks_3', 'Disks', 3, 1)");
    Run("INSERT INTO Alarms (Name, AlarmCategory, EventID, MatchEntireDescription) VALUES ('Full', 'Disks_2', -1, "
        "True)");
  }

  void Run(const std::string& sql) { connection_->Execute(sql); }
  std::unique_ptr<Recordset> Open(const std::string& source, LockType lock = LockType::ReadOnly) {
    return test::Rows(store_, *connection_, source, lock);
  }

  test::TestStore store_;
  std::unique_ptr<Connection> connection_ = store_.Connect();
};

TEST_F(RecordsetTest, FieldsAreReachedByNameAndInJoinsByTableAndName) {
  const auto rows = Open("SELECT * FROM Alarms, AlarmCategories WHERE AlarmCategories.Index = Alarms.AlarmCategory",
                         LockType::Optimistic);
  EXPECT_EQ(ToText(rows->Field("alarms.NAME")), "Full");
  EXPECT_EQ(ToText(rows->Field("AlarmCategories.Name")), "Disks");
  EXPECT_EQ(ErrorOf([&] { rows->Field("Name"); }), errors::DataNoItem);
  EXPECT_EQ(ErrorOf([&] { rows->Field("NoSuch"); }), errors::DataNoItem);
  EXPECT_EQ(ErrorOf([&] { rows->SetField("EventID", 1); }), errors::DataReadOnly);
  EXPECT_EQ(rows->Field("EventID"), Value(std::int64_t{-1}));
  EXPECT_EQ(rows->Field("Alarms.MatchEntireDescription"), Value(true));
  EXPECT_TRUE(IsNull(rows->Field("source")));
  EXPECT_EQ(test::Cell(store_, *connection_, "SELECT COUNT(*) as N FROM AlarmCategories WHERE Name = 'disks'", "n"),
            "2");
}

TEST_F(RecordsetTest, WalksFromTheFirstRowToTheEnd) {
  auto rows = Open("SELECT * FROM AlarmCategories ORDER BY Index ASC");
  std::string walked;
  for (; !rows->Eof(); rows->MoveNext()) walked += ToText(rows->Field("Index")) + " ";
  EXPECT_EQ(walked, "Disks_2 Disks_3 It's_2 ");
  EXPECT_FALSE(rows->Bof());
  EXPECT_EQ(ErrorOf([&] { rows->MoveNext(); }), errors::DataNoRow);
  EXPECT_EQ(ErrorOf([&] { rows->Field("Index"); }), errors::DataNoRow);
  rows->MoveFirst();
  EXPECT_EQ(ToText(rows->Field("Index")), "Disks_2");

  const auto empty = Open("SELECT * FROM AlarmGroups");
  EXPECT_TRUE(empty->Eof() && empty->Bof());
  EXPECT_EQ(ErrorOf([&] { empty->MoveFirst(); }), errors::DataNoRow);
}

TEST_F(RecordsetTest, RefusesWorkOutOfTurn) {
  const auto rows = Open("[AlarmCategories]");
  EXPECT_EQ(ErrorOf([&] { rows->Open("AlarmGroups", *connection_, CursorType::Keyset, LockType::ReadOnly); }),
            errors::DataOpen);
  EXPECT_EQ(ErrorOf([&] { rows->AddNew(); }), errors::DataReadOnly);
  rows->Close();
  EXPECT_EQ(rows->State(), ObjectState::Closed);
  EXPECT_EQ(ErrorOf([&] { rows->Eof(); }), errors::DataClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Close(); }), errors::DataClosed);
  for (const char* source : {"", "Alarms] --", "DELETE FROM Alarms", "SELECT", "No Such Table"})
    EXPECT_NE(ErrorOf([&] { Open(source); }), 0) << source;

  EXPECT_EQ(ErrorOf([&] { connection_->Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\x.mdb"); }),
            errors::DataOpen);
  const auto kept = Open("AlarmGroups", LockType::Optimistic);
  kept->AddNew();
  connection_->Close();
  EXPECT_EQ(ErrorOf([&] { kept->Update(); }), errors::DataClosed);
  EXPECT_EQ(ErrorOf([&] { connection_->Close(); }), errors::DataClosed);
  EXPECT_EQ(ErrorOf([&] { Run("DELETE FROM Alarms"); }), errors::DataClosed);
  EXPECT_EQ(test::Ask(store_.File, "SELECT count(*) FROM Alarms"), "1");
}

TEST_F(RecordsetTest, FindGoesForwardFromTheCurrentRow) {
  const struct {
    const char *Criterion, *Index;
  } cases[] = {{"Index = 'DISKS_3'", "Disks_3"},
               {"[Index]='It''s_2'", "It's_2"},
               {"OS = 3", "Disks_3"},
               {"OS = '2'", "It's_2"},
               {"OS = -3", ""},
               {"AlarmCategories.Name = \"Disk\"", ""}};
  for (const auto& [criterion, index] : cases) {
    const auto rows = Open("SELECT * FROM AlarmCategories");
    rows->Find(criterion);
    EXPECT_EQ(rows->Eof() ? "" : ToText(rows->Field("Index")), index) << criterion;
  }
  const auto rows = Open("SELECT * FROM AlarmCategories");
  rows->Find("Name = 'Disks'");
  rows->MoveNext();
  rows->Find("Name = 'Disks'");
  EXPECT_EQ(ToText(rows->Field("Index")), "Disks_3");
  for (const char* criterion : {"Index", "Index = ", "Index > 'a'", "'a' = Index", "OS = 1 OR OS = 2", "OS = x"})
    EXPECT_EQ(ErrorOf([&] { rows->Find(criterion); }), errors::DataSyntax) << criterion;
  EXPECT_EQ(ErrorOf([&] { rows->Find("NoSuch = 1"); }), errors::DataNoItem);
  rows->MoveNext();
  EXPECT_EQ(ErrorOf([&] { rows->Find("OS = 3"); }), errors::DataNoRow);
}

TEST_F(RecordsetTest, NewRowsGetNumbersThatAreNeverUsedAgain) {
  Run("DELETE FROM Alarms");
  const auto rows = Open("Alarms", LockType::Optimistic);
  rows->AddNew();
  rows->SetField("Name", std::string("Bad \"block\""));
  rows->SetField("eventid", std::string(" 7.5 "));
  EXPECT_EQ(rows->Field("EventID"), Value(std::int64_t{8}));
  EXPECT_TRUE(IsNull(rows->Field("AlarmID")));
  rows->Update();
  EXPECT_EQ(rows->Field("AlarmID"), Value(std::int64_t{2}));
  EXPECT_EQ(rows->Field("MatchEntireDescription"), Value(false));
  EXPECT_EQ(test::Ask(store_.File, "SELECT AlarmID || Name || EventID FROM Alarms"), "2Bad \"block\"8");

  const auto links = Open("SELECT * FROM AlarmsInGroups WHERE AlarmID = 9 AND AlarmGroupID = 9", LockType::Optimistic);
  links->AddNew();
  links->Update();
  EXPECT_EQ(test::Ask(store_.File, "SELECT count(*) FROM AlarmsInGroups WHERE AlarmID IS NULL"), "1");
}

TEST_F(RecordsetTest, ChangesOneRowThroughItsHiddenNumber) {
  Run("INSERT INTO AlarmCategories VALUES ('Other_1', 'Other', 1, 1)");
  const auto rows = Open("SELECT * FROM AlarmCategories WHERE LogType = 1", LockType::Optimistic);
  rows->Find("Index = 'Disks_3'");
  rows->SetField("Index", std::string("Disks_4"));
  rows->SetField("Name", Value());
  rows->Update();
  EXPECT_EQ(ToText(rows->Field("Index")), "Disks_4");
  EXPECT_EQ(test::Ask(store_.File, "SELECT group_concat([Index] || ifnull(Name, '-')) FROM AlarmCategories"),
            "It's_2It's,Disks_2Disks,Disks_4-,Other_1Other");
  rows->SetField("Index", std::string("Disks_2"));
  EXPECT_EQ(ErrorOf([&] { rows->Update(); }), errors::DataConstraint);
  rows->MoveFirst();
  rows->SetField("Name", std::string("given up"));
  rows->MoveNext();
  rows->Update();
  EXPECT_EQ(test::Ask(store_.File, "SELECT count(*) FROM AlarmCategories WHERE Name = 'given up'"), "0");
  Run("DELETE FROM AlarmCategories");
  rows->SetField("Name", std::string("gone"));
  EXPECT_EQ(ErrorOf([&] { rows->Update(); }), errors::DataNoRow);
}

TEST_F(RecordsetTest, FieldsTakeOnlyWhatTheirTypeHolds) {
  const auto rows = Open("SELECT * FROM Alarms", LockType::Optimistic);
  const struct {
    const char* Field;
    Value Given;
    int Error;
  } cases[] = {{"EventID", std::string("ten"), errors::TypeMismatch},
               {"EventID", std::string(), errors::TypeMismatch},
               {"EventID", std::string("2147483648"), errors::Overflow},
               {"EventID", std::int64_t{-2147483648}, 0},
               {"MatchEntireDescription", std::string("Yes"), errors::TypeMismatch},
               {"MatchEntireDescription", std::string("true"), 0},
               {"Name", std::string(256, 'x'), errors::DataFieldTooSmall},
               {"Name", "\xC3\xA4" + std::string(254, 'x'), 0},
               {"Name", std::string("a\0b", 3), errors::TypeMismatch},
               {"Description", std::string(70000, 'x'), 0},
               {"Source", std::int64_t{5}, 0},
               {"NoSuch", std::int64_t{5}, errors::DataNoItem}};
  for (const auto& test : cases)
    EXPECT_EQ(ErrorOf([&] { rows->SetField(test.Field, test.Given); }), test.Error) << test.Field;
  rows->Update();
  EXPECT_EQ(test::Ask(store_.File, "SELECT EventID || MatchEntireDescription || length(Name) || Source FROM Alarms"),
            "-214748364812555");
}

}  // namespace
}  // namespace corvane
