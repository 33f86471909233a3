#pragma once

#include <gtest/gtest.h>

#include <map>

#include "support/TestConsole.h"

namespace corvane::test {

/// The text of a message box by its name in Messages.txt, where every `@` stands for what differs; gives its icon too.
std::string Message(const std::string& name, const std::string& with = "", ui::MsgIcon* icon = nullptr);

/// A test on a console of its own, and what is done to it past its screens.
class ConsoleTest : public ::testing::Test {
 protected:
  void TearDown() override;

  /// The next box by its name in Messages.txt; its icon is checked, and that a question is answered with Yes or No.
  void OnMessage(const std::string& name, const std::string& with = "", ui::MsgResult answer = ui::MsgResult::Ok);
  virtual frmCVMain& Window() { return Console.Window(); }
  /// The text of a panel of the status line and, where it has one, the name of its picture.
  std::string Panel(std::size_t panel);

  /// Puts a log under watch, if no log has its key.
  void Watch(const std::string& computer, int log, const std::string& domain = "MERIDIAN", bool isMarked = false);
  /// Puts a service of the lab in a state that lasts; it may refuse "control" or "everything".
  void SetService(const std::string& name, const std::string& state, const std::string& refuses = "nothing");
  /// What the service left about a log, such as its `LastCheck`.
  void SetStatistics(const std::string& idName, const std::map<std::string, std::string>& values);

  TestConsole Console;
  ScriptedHost& Host = Console.Host;
  modMain& Main = Console.App.State();

 private:
  std::map<std::string, ui::MsgIcon> icons_;
};

}  // namespace corvane::test
