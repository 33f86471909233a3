#include <gtest/gtest.h>

#include "adapters/odbc/OdbcString.h"
#include "odbc/Server.h"
#include "support/Cases.h"

namespace corvane::test {

static std::string Listed(TargetConnection& connection) {
  std::string list;
  for (const TargetTable& one : connection.Tables()) list += one.Schema + "." + one.Name + ":" + one.Type + "|";
  return list;
}

// The error as a text; empty when there was none.
static std::string Refusal(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    return std::to_string(error.Number) + " " + error.Source + ": " + error.Description;
  }
  return "";
}

static std::string Opening(const std::string& string) {
  return Refusal([&] { OdbcConnector().Open(string); });
}

TEST(OdbcTest, NoMessageShowsAPassword) {
  for (const auto& one : Cases("odbc/Passwords.txt")) EXPECT_EQ(OdbcString(one[0]).WithoutPassword(one[1]), one[2]);
}

TEST(OdbcTest, EachStepFailsWithTheWordsOfTheDriver) {
  const RecordingDriver driver;
  // A step, the state and number of its failure, and what the driver has been asked by then.
  const std::array<std::string, 4> cases[] = {
      {"connect", "28000", "-2147217843", "connect\n"},
      {"name", "HY000", "-2147467259", "connect\nname\ndisconnect\n"},
      {"tables", "42501", "-2147217900", "connect\nname\ntables\ndisconnect\n"},
      {"CREATE", "42S02", "-2147217865", "connect\nname\ntables\nCREATE Ä😀\ndisconnect\n"},
      {"none", "HY000", "", "connect\nname\ntables\nCREATE Ä😀\ndisconnect\n"},
  };
  for (const auto& [step, state, number, taken] : cases) {
    const std::string string =
        driver.String("Oracle", "TABLES={A.Ä 😀:TABLE|.b:VIEW|};SAY={PWD=x};PWD={a;b};FAIL=" + step + ";STATE=" + state);
    const std::string refusal = Refusal([&] {
      const auto connection = OdbcConnector().Open(string);
      EXPECT_EQ(connection->ConnectionString() + connection->DbmsName(), string + "Oracle");
      EXPECT_EQ(Listed(*connection), "A.Ä 😀:TABLE|.b:VIEW|");
      connection->Execute("CREATE Ä😀");
    });
    EXPECT_EQ(refusal, number.empty() ? "" : number + " Corvane Recorder: [Corvane][Recorder]PWD=*** (" + state + ")");
    EXPECT_EQ(driver.Taken(), taken);
  }
}

TEST(OdbcTest, WhatIsSetUpIsListedAndWhatIsNotIsRefused) {
  UseTestDrivers();
  using Names = std::vector<std::string>;
  EXPECT_EQ(OdbcConnector().Drivers(), (Names{"Corvane Recorder", "PostgreSQL Unicode", "MariaDB Unicode", "Missing"}));
  EXPECT_EQ(OdbcConnector().DataSources(), (Names{"Events", "Broken"}));
  EXPECT_EQ(Opening("DSN=Events"), "");
  for (const auto& one : Cases("odbc/Openings.txt")) EXPECT_EQ(Opening(one[0]), one[1]);
}

static void Prove(Server& server, const std::string& table, std::size_t words, const std::string& tables) {
  const auto connection = server.Wait();
  const auto expect = [](const std::string& text, const std::string& part) {
    EXPECT_TRUE(part.empty() ? text.empty() : text.find(part) != text.npos) << part << ": " << text;
  };
  for (const auto& one : Cases("odbc/Statements.txt", {{"table", table}}))
    expect(Refusal([&] { connection->Execute(one[0]); }), one[words]);
  EXPECT_EQ(Listed(*connection), tables);
  EXPECT_EQ(Opening(connection->ConnectionString()), "");
  expect(Opening(server.String("corvane")), "user ");
  EXPECT_EQ(Opening(server.String("corvane")).find("corvane"), std::string::npos);
  server.Stop();
  expect(Refusal([&] { connection->Execute("SELECT 1"); }), "-2147467259");
  expect(Opening(server.String()), "socket");
}

TEST(OdbcTest, PostgresServes) {
  Server server("postgres", "PostgreSQL Unicode", "SERVER=FOLDER;DATABASE=postgres;UID=corvane;");
  Prove(server, "\"Ä €\"", 1, "public.v:VIEW|public.Ä €:TABLE|");
}

TEST(OdbcTest, MariaServes) {
  Server server("mariadb", "MariaDB Unicode", "SOCKET=FOLDER/socket;DATABASE=t_1;UID=corvane;");
  Prove(server, "`Ä €`", 2, ".Ä €:TABLE|.v:VIEW|");
}

}  // namespace corvane::test
