#include "app/assembly/RunConsole.h"

#include "core/console/Console.h"
#include "platform/RuntimeError.h"
#include "platform/ui/UiHost.h"

namespace corvane {

int RunConsole(Platform& platform, const std::function<int()>& loop) {
  std::string failure;
  try {
    Console console(platform);
    console.Main();
    return console.Started() ? loop() : 0;
  } catch (const ui::ProgramEnd& end) {
    return end.ExitCode;
  } catch (const RuntimeError& error) {
    failure = "Run-time error '" + std::to_string(error.Number) + "':\n\n" + error.Description;
  }
  platform.Ui.MsgBox(failure, ui::MsgIcon::Exclamation);
  return 1;
}

}  // namespace corvane
