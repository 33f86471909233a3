#include <gtest/gtest.h>

#include "platform/Conversions.h"
#include "support/Cases.h"
#include "support/ErrorOf.h"
#include "support/TestStore.h"

namespace corvane::test {

class RecordsetTest : public testing::Test {
 protected:
  RecordsetTest() {
    Run("INSERT INTO AlarmCategories VALUES ('It''s_2', 'It''s', 2, 3), ('Disks_2', 'Disks', 2, 1), ('Disks_3', "
        "'Disks', 3, 1)");
    Run("INSERT INTO Alarms (Name, AlarmCategory, EventID, MatchEntireDescription) VALUES ('Full', 'Disks_2', -1, "
        "True)");
  }

  void Run(const std::string& sql) { connection_->Execute(sql); }
  std::unique_ptr<Recordset> Open(const std::string& source, LockType lock = LockType::ReadOnly) {
    return store_.Open(*connection_, source, lock);
  }
  static std::string Text(const std::unique_ptr<Recordset>& rows, std::string_view field) {
    return ToText(rows->Field(field));
  }

  TestStore store_;
  std::unique_ptr<Connection> connection_ = store_.Connect();
};

TEST_F(RecordsetTest, FieldsAreReachedByNameAndInJoinsByTableAndName) {
  const auto rows = Open("SELECT * FROM Alarms, AlarmCategories WHERE AlarmCategories.Index = Alarms.AlarmCategory",
                         LockType::Optimistic);
  EXPECT_EQ(Text(rows, "alarms.NAME") + Text(rows, "AlarmCategories.Name"), "FullDisks");
  for (const char* none : {"Name", "NoSuch"}) EXPECT_EQ(ErrorOf([&] { rows->Field(none); }), errors::DataNoItem);
  EXPECT_EQ(ErrorOf([&] { rows->SetField("EventID", 1); }), errors::DataReadOnly);
  EXPECT_EQ(rows->Field("EventID"), Value(std::int64_t{-1}));
  EXPECT_EQ(rows->Field("Alarms.MatchEntireDescription"), Value(true));
  EXPECT_TRUE(IsNull(rows->Field("source")));
}

TEST_F(RecordsetTest, WalksFromTheFirstRowToTheEndAndFindsForward) {
  const auto rows = Open("SELECT * FROM AlarmCategories"), empty = Open("AlarmGroups");
  std::string walked;
  for (; !rows->Eof(); rows->MoveNext()) walked += Text(rows, "Index") + " ";
  EXPECT_EQ(walked, "It's_2 Disks_2 Disks_3 ");
  EXPECT_EQ(ErrorOf([&] { rows->MoveNext(); }), errors::DataNoRow);
  EXPECT_EQ(ErrorOf([&] { rows->Field("Index"); }), errors::DataNoRow);
  EXPECT_TRUE(empty->Eof() && empty->Bof() && !rows->Bof());
  EXPECT_EQ(ErrorOf([&] { empty->MoveFirst(); }), errors::DataNoRow);
  for (const auto& one : Cases("sqlite/Criteria.txt")) {
    rows->MoveFirst();
    EXPECT_EQ(ErrorOf([&] { rows->Find(one[0]); }), one.size() == 1 ? errors::DataSyntax : 0) << one[0];
    EXPECT_EQ(rows->Eof() ? "end" : Text(rows, "Index"), one.size() == 1 ? "It's_2" : one[1]) << one[0];
  }
  rows->MoveFirst();
  rows->MoveNext();
  rows->Find("Name = 'Disks'");
  EXPECT_EQ(Text(rows, "Index"), "Disks_2") << "the current row counts";
  EXPECT_EQ(ErrorOf([&] { rows->Find("NoSuch = 1"); }), errors::DataNoItem);
  rows->Find("OS = 5");
  EXPECT_EQ(ErrorOf([&] { rows->Find("OS = 3"); }), errors::DataNoRow);
}

TEST_F(RecordsetTest, RefusesWorkOutOfTurn) {
  const auto rows = Open("[AlarmCategories]"), kept = Open("AlarmGroups", LockType::Optimistic);
  EXPECT_EQ(ErrorOf([&] { rows->Open("Alarms", *connection_, CursorType::Keyset, LockType::ReadOnly); }),
            errors::DataOpen);
  EXPECT_EQ(ErrorOf([&] { connection_->Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=x"); }), errors::DataOpen);
  EXPECT_EQ(ErrorOf([&] { rows->AddNew(); }), errors::DataReadOnly);
  rows->Close();
  EXPECT_EQ(rows->State(), ObjectState::Closed);
  EXPECT_EQ(ErrorOf([&] { rows->Eof(); }), errors::DataClosed);
  for (const char* source : {"", "Alarms] --", "DELETE FROM Alarms", "SELECT", "No Such Table"})
    EXPECT_NE(ErrorOf([&] { Open(source); }), 0) << source;
  kept->AddNew();
  connection_->Close();
  EXPECT_EQ(ErrorOf([&] { kept->Update(); }), errors::DataClosed);
  EXPECT_EQ(ErrorOf([&] { Run("DELETE FROM Alarms"); }), errors::DataClosed);
}

TEST_F(RecordsetTest, NewRowsGetNumbersThatAreNeverUsedAgain) {
  Run("DELETE FROM Alarms");
  const auto rows = Open("Alarms", LockType::Optimistic);
  rows->AddNew();
  rows->SetField("Name", "Bad \"block\"");
  rows->SetField("eventid", " 7.5 ");
  EXPECT_EQ(rows->Field("EventID"), Value(std::int64_t{8}));
  rows->Update();
  EXPECT_EQ(rows->Field("AlarmID"), Value(std::int64_t{2}));
  EXPECT_EQ(rows->Field("MatchEntireDescription"), Value(false));
  rows->AddNew();
  rows->Update();
  EXPECT_EQ(store_.Ask("SELECT AlarmID, Name, EventID FROM Alarms"), "2|Bad \"block\"|8\n3|NULL|NULL\n");
}

TEST_F(RecordsetTest, ChangesOneRowThroughItsHiddenNumber) {
  const auto rows = Open("SELECT * FROM AlarmCategories WHERE LogType = 1", LockType::Optimistic);
  rows->Find("Index = 'Disks_3'");
  rows->SetField("Index", "Disks_4");
  rows->SetField("Name", Value());
  rows->Update();
  EXPECT_EQ(Text(rows, "Index"), "Disks_4");
  rows->SetField("Index", "Disks_2");
  EXPECT_EQ(ErrorOf([&] { rows->Update(); }), errors::DataConstraint);
  rows->MoveFirst();
  rows->SetField("Name", "given up");
  rows->MoveNext();
  rows->Update();
  EXPECT_EQ(store_.Ask("SELECT [Index], Name FROM AlarmCategories"), "It's_2|It's\nDisks_2|Disks\nDisks_4|NULL\n");
  Run("DELETE FROM AlarmCategories");
  rows->SetField("Name", "gone");
  EXPECT_EQ(ErrorOf([&] { rows->Update(); }), errors::DataNoRow);
}

TEST_F(RecordsetTest, FieldsTakeOnlyWhatTheirTypeHolds) {
  const auto rows = Open("SELECT * FROM Alarms", LockType::Optimistic);
  const auto set = [&](const char* field, const Value& value) {
    return ErrorOf([&] { rows->SetField(field, value); });
  };
  for (const char* text : {"ten", ""}) EXPECT_EQ(set("EventID", text), errors::TypeMismatch);
  EXPECT_EQ(set("EventID", "2147483648"), errors::Overflow);
  EXPECT_EQ(set("EventID", std::int64_t{-2147483648}), 0);
  EXPECT_EQ(set("MatchEntireDescription", "Yes"), errors::TypeMismatch);
  EXPECT_EQ(set("Name", std::string(256, 'x')), errors::DataFieldTooSmall);
  EXPECT_EQ(set("Name", "\xC3\xA4" + std::string(254, 'x')), 0);
  EXPECT_EQ(set("Name", std::string("a\0b", 3)), errors::TypeMismatch);
  EXPECT_EQ(set("Description", std::string(70000, 'x')) + set("Source", std::int64_t{5}), 0);
  EXPECT_EQ(set("NoSuch", std::int64_t{5}), errors::DataNoItem);
  rows->Update();
  EXPECT_EQ(store_.Ask("SELECT EventID, MatchEntireDescription, length(Name), Source FROM Alarms"),
            "-2147483648|1|255|5\n");
}

}  // namespace corvane::test
