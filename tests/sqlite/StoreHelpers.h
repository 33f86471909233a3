#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/RuntimeError.h"
#include "support/TestStore.h"

namespace corvane::test {

/// The number of the error that the work raises, 0 for none, and its text.
inline int ErrorOf(const std::function<void()>& work, std::string* description = nullptr) {
  try {
    work();
  } catch (const RuntimeError& error) {
    if (description != nullptr) *description = error.Description;
    return error.Number;
  }
  return 0;
}

/// The first field of the first row, as the engine itself reads it from the file.
inline std::string Ask(const std::filesystem::path& file, const std::string& sql) {
  sqlite3* engine = nullptr;
  sqlite3_stmt* statement = nullptr;
  EXPECT_EQ(sqlite3_open(file.c_str(), &engine), SQLITE_OK);
  EXPECT_EQ(sqlite3_prepare_v2(engine, sql.c_str(), -1, &statement, nullptr), SQLITE_OK) << sql;
  std::string answer;
  if (sqlite3_step(statement) == SQLITE_ROW) {
    const void* text = sqlite3_column_text(statement, 0);
    if (text != nullptr) answer = static_cast<const char*>(text);
  }
  sqlite3_finalize(statement);
  sqlite3_close(engine);
  return answer;
}

inline std::unique_ptr<Recordset> Rows(TestStore& store, Connection& connection, const std::string& source,
                                       LockType lock = LockType::ReadOnly) {
  auto rows = store.Provider.NewRecordset();
  rows->Open(source, connection, lock == LockType::ReadOnly ? CursorType::ForwardOnly : CursorType::Keyset, lock);
  return rows;
}

inline std::string Cell(TestStore& store, Connection& connection, const std::string& sql, const char* field) {
  return ToText(Rows(store, connection, sql)->Field(field));
}

/// Another process on the same file. It answers and waits through two pipes; the test must not have the file open when
/// it is made, as the engine's connections do not survive a fork.
class OtherProcess {
 public:
  explicit OtherProcess(const std::function<void(OtherProcess&)>& work) {
    EXPECT_EQ(::pipe(toParent_), 0);
    EXPECT_EQ(::pipe(toChild_), 0);
    child_ = ::fork();
    if (child_ != 0) return;
    ::alarm(30);
    const int error = ErrorOf([&] { work(*this); });
    Tell(error);
    ::_exit(0);
  }
  ~OtherProcess() {
    if (child_ > 0) Kill();
    for (const int pipe : {toParent_[0], toParent_[1], toChild_[0], toChild_[1]}) ::close(pipe);
  }

  /// In the process: says a number to the test.
  void Tell(int number) const { EXPECT_EQ(::write(toParent_[1], &number, sizeof number), 4); }
  /// In the process: waits until the test lets it go on.
  void Wait() const {
    char ready = 0;
    EXPECT_EQ(::read(toChild_[0], &ready, 1), 1);
  }
  /// In the test: the next number the process says; the last one is the number of the error it ended with.
  int Hear() const {
    int number = -1;
    EXPECT_EQ(::read(toParent_[0], &number, sizeof number), 4);
    return number;
  }
  void Release() const { EXPECT_EQ(::write(toChild_[1], "", 1), 1); }
  void Kill() {
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
    child_ = -1;
  }

 private:
  int toParent_[2] = {}, toChild_[2] = {};
  pid_t child_ = 0;
};

}  // namespace corvane::test
