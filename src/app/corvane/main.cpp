#include <QApplication>
#include <QMessageBox>
#include <filesystem>

#include "adapters/qt/QtHost.h"
#include "adapters/qt/look/Look.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/assembly/RunConsole.h"
#include "app/installation/Installation.h"
#include "platform/RuntimeError.h"

namespace {

// The console belongs to the installation that its own file lies in.
std::filesystem::path InstallationFolder() {
  return std::filesystem::path(QCoreApplication::applicationDirPath().toStdString());
}

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  corvane::qt::SetUpLook();
  const std::filesystem::path folder = InstallationFolder();
  corvane::qt::QtHost host(corvane::qt::FormRegistry::Console(), (folder / corvane::Installation::HelpFolder).string());
  try {
    corvane::InstalledPlatform installed(folder, host);
    return corvane::RunConsole(installed.Ports(), [&] { return host.Run(); });
  } catch (const corvane::RuntimeError& error) {
    QMessageBox::critical(nullptr, "Corvane",
                          "There is no usable installation in " + QString::fromStdString(folder.string()) + ".\n\n" +
                              QString::fromStdString(error.Description));
    return 1;
  }
}
