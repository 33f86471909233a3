#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <fstream>
#include <regex>

#include "adapters/qt/QtHost.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/assembly/RunConsole.h"
#include "app/installation/Installation.h"
#include "app/installation/TextFile.h"
#include "support/TempFolder.h"

namespace corvane::test {

// The whole program, as it is installed: real windows over a fresh installation.
class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest() { Installation(CORVANE_SOURCE_DIR "/data").LayOut(folder_, Installation::Kind::Lab); }

  /// Runs the program and tries to act on it every 20 ms until that is done.
  int Run(const std::function<bool()>& act) {
    QTimer trying;
    QObject::connect(&trying, &QTimer::timeout, [&] {
      if (act()) trying.stop();
    });
    trying.start(20);
    qt::QtHost host(qt::FormRegistry::Console(), "");
    InstalledPlatform installed(folder_, host);
    return RunConsole(installed.Ports(), [&] { return host.Run(); });
  }

  TempFolder place_;
  const std::filesystem::path folder_ = place_.Path() / "installation";
};

TEST_F(ProgramTest, FollowsItsWindowAndEndsWhenThatIsClosed) {
  EXPECT_EQ(0, Run([] {
              for (QWidget* window : QApplication::topLevelWidgets()) {
                if (window->objectName() != "frmCVMain" || !window->isVisible()) continue;
                const auto& list = *window->findChild<QWidget*>("lvwComputers");
                const QSize before = list.size();
                window->resize(window->size() + QSize(200, 100));
                QApplication::processEvents();
                EXPECT_EQ(before + QSize(200, 100), list.size());
                return window->close();
              }
              return false;
            }));
}

TEST_F(ProgramTest, ShowsAnErrorThatNothingCaughtOnceAndEndsWithOne) {
  const std::filesystem::path settings = folder_ / Installation::RegistryFile;
  const std::string broken = std::regex_replace(ReadTextFile(settings), std::regex("\"RCAtStartup\".*\n"), "");
  std::ofstream(settings) << broken;
  QString text;
  EXPECT_EQ(1, Run([&] {
              auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
              if (box == nullptr) return false;
              text += box->text();
              box->accept();
              return true;
            }));
  EXPECT_EQ("Run-time error '13':\n\nType mismatch", text);
}

}  // namespace corvane::test
