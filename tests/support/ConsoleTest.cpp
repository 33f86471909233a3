#include "support/ConsoleTest.h"

#include <algorithm>

#include "support/Cases.h"

namespace corvane::test {

std::string Message(const std::string& name, const std::string& with, ui::MsgIcon* icon) {
  static const auto messages = Cases("support/Messages.txt");
  const auto found = std::ranges::find(messages, name, [](const auto& message) { return message[0]; });
  if (found == messages.end()) throw std::runtime_error("no message " + name);
  if (icon) *icon = static_cast<ui::MsgIcon>(std::string("!i?").find((*found)[1]));
  std::string text;
  for (const char c : (*found)[2]) text += c == '@' ? with : std::string(1, c);
  return text;
}

void ConsoleTest::TearDown() {
  for (const ShownBox& box : Host.Boxes) {
    if (!icons_.contains(box.Text)) continue;
    EXPECT_EQ(icons_[box.Text], box.Icon) << box.Text;
    EXPECT_EQ(box.Icon == ui::MsgIcon::Question, box.Buttons == ui::MsgButtons::YesNo) << box.Text;
  }
}

void ConsoleTest::OnMessage(const std::string& name, const std::string& with, ui::MsgResult answer) {
  ui::MsgIcon icon{};
  const std::string text = Message(name, with, &icon);
  icons_[text] = icon;
  Host.OnBox(text, answer);
}

std::string ConsoleTest::Panel(std::size_t panel) {
  const ui::StatusPanel& shown = Window().stbMain.Panels[panel];
  return shown.Text + (shown.Picture.empty() ? "" : " " + shown.Picture);
}

void ConsoleTest::Watch(const std::string& computer, int log, const std::string& domain, bool isMarked) {
  const std::string number = std::to_string(log);
  Console.Rows("INSERT OR IGNORE INTO RegisteredServers VALUES ('" + computer + number + "', '" + domain + "', '" +
               computer + "', " + number + ", 0, " + (isMarked ? "1" : "0") + ", 0, 0)");
}

void ConsoleTest::SetService(const std::string& name, const std::string& state, const std::string& refuses) {
  Console.SetLab("Service " + name, "State", state);
  Console.SetLab("Service " + name, "Until", "0");
  Console.SetLab("Service " + name, "Refuses", refuses);
}

void ConsoleTest::SetStatistics(const std::string& idName, const std::map<std::string, std::string>& values) {
  const char* key = "Software\\Tarnwick\\Corvane\\Statistics";
  Main.Registry.CreateNewKey(key, registry::LocalMachine);
  for (const auto& [name, value] : values) Main.Registry.SetKeyValue(key, idName + "_" + name, value, registry::String);
}

}  // namespace corvane::test
