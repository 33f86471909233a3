#pragma once

#include "platform/RuntimeError.h"
#include "platform/data/TargetConnection.h"

namespace corvane::test {

/// A system behind ODBC that is not there: it names itself as a test says, and notes what it is asked.
struct TestTargets : TargetConnector {
  struct Connection : TargetConnection {
    Connection(TestTargets& owner, std::string text) : Owner(owner), Text(std::move(text)) { Owner.Meet(Text); }
    std::string ConnectionString() const override { return Text; }
    std::string DbmsName() const override { return Owner.DbmsName; }
    std::vector<TargetTable> Tables() override { return Owner.Tables; }
    void Execute(const std::string& sql) override { Owner.Meet(sql); }
    TestTargets& Owner;
    std::string Text;
  };
  std::unique_ptr<TargetConnection> Open(const std::string& text) override {
    return std::make_unique<Connection>(*this, text);
  }
  std::vector<std::string> Drivers() override { return {"A driver"}; }
  std::vector<std::string> DataSources() override { return {"events"}; }
  void Meet(const std::string& call) {
    Calls.push_back(call);
    if (!Fails.empty() && call.find(Fails) != call.npos)
      throw RuntimeError(errors::DataFailure, "It is not to be", "A driver");
  }

  std::string DbmsName = "Microsoft SQL Server";
  std::vector<TargetTable> Tables{{"APP", "Seen", "TABLE"}, {"SYS", "Dual", "SYSTEM TABLE"}, {"APP", "Shown", "VIEW"}};
  /// The strings of connections and the statements, in order; what holds the text of `Fails` fails.
  std::vector<std::string> Calls;
  std::string Fails;
};

}  // namespace corvane::test
