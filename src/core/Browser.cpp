#include "core/Browser.h"

#include "core/PassOver.h"
#include "core/modMain.h"
#include "platform/Launcher.h"
#include "platform/ui/UiHost.h"

namespace corvane {

std::string DefaultBrowserCommand(modMain& main) {
  return main.Registry.DeNullString(main.Registry.GetKeyValueHKCR("http\\shell\\open\\command", ""));
}

void OpenInBrowser(modMain& main, const std::string& link) {
  std::string command = DefaultBrowserCommand(main);
  const std::size_t place = command.find("%1");
  if (place == std::string::npos)
    command += " " + link;
  else
    command.replace(place, 2, link);
  if (PassOver([&] { main.Platform.Launcher.Run(command); })) return;
  main.Ui.MsgBox("No default browser was found to connect to " + link +
                     "\nIf you do have a browser installed, start it and go to " + link,
                 ui::MsgIcon::Exclamation);
}

}  // namespace corvane
