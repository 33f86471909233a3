#include "core/Browser.h"

#include "core/PassOver.h"
#include "core/modMain.h"
#include "platform/Launcher.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

// A link is data, the command line is not. What no URL holds as it stands (RFC 3986) and could end an argument early is
// written in its percent form, so that any link arrives as one argument.
std::string AsArgument(const std::string& link) {
  static constexpr std::string_view hex = "0123456789ABCDEF";
  std::string argument;
  for (const char character : link) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte > ' ' && byte != 127 && character != '"' && character != '\\')
      argument += character;
    else
      argument += {'%', hex[byte / 16], hex[byte % 16]};
  }
  return argument;
}

}  // namespace

std::string DefaultBrowserCommand(modMain& main) {
  return main.Registry.DeNullString(main.Registry.GetKeyValueHKCR("http\\shell\\open\\command", ""));
}

void OpenInBrowser(modMain& main, const std::string& link) {
  std::string command = DefaultBrowserCommand(main);
  const std::size_t place = command.find("%1");
  if (place == std::string::npos)
    command += " " + AsArgument(link);
  else
    command.replace(place, 2, AsArgument(link));
  if (PassOver([&] { main.Platform.Launcher.Run(command); })) return;
  main.Ui.MsgBox("No default browser was found to connect to " + link +
                     "\nIf you do have a browser installed, start it and go to " + link,
                 ui::MsgIcon::Exclamation);
}

}  // namespace corvane
