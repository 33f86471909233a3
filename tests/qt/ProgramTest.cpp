#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>
#include "adapters/qt/QtHost.h"
#include "adapters/settings/RegistryFileStore.h"
#include "app/assembly/InstalledPlatform.h"
#include "app/assembly/RunConsole.h"
#include "app/installation/Installation.h"
#include "core/Settings.h"
#include "core/console/Console.h"
#include "support/TempFolder.h"

namespace corvane::test {
namespace {

// The whole program, as it is installed: real windows over a fresh installation.
class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest() { Installation(CORVANE_SOURCE_DIR "/data").LayOut(folder_, Installation::Kind::Lab); }

  int Run() {
    qt::QtHost host(qt::FormRegistry::Console(), "");
    InstalledPlatform installed(folder_, host);
    return RunConsole(installed.Ports(), [&] { return host.Run(); });
  }
  /// Acts on the first window that answers, looking every 20 ms.
  template <class Act>
  static void Soon(Act act) {
    QTimer::singleShot(20, [act] {
      if (!act()) Soon(act);
    });
  }

  TempFolder place_;
  const std::filesystem::path folder_ = place_.Path() / "installation";
};

// The margins are fixed: the list takes what a larger window gives, and the box of domains keeps to the right edge.
void GrowAndCheck(QWidget& window) {
  const auto& list = *window.findChild<QWidget*>("lvwComputers");
  const auto& box = *window.findChild<QWidget*>("lstDomain");
  const auto right = [&] { return window.width() - box.mapTo(&window, box.rect().topRight()).x(); };
  const QSize before = list.size();
  const int margin = right();
  window.resize(window.size() + QSize(200, 100));
  QApplication::processEvents();
  EXPECT_EQ(before + QSize(200, 100), list.size());
  EXPECT_EQ(margin, right());
}

TEST_F(ProgramTest, FollowsItsWindowAndEndsWhenThatIsClosed) {
  Soon([] {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->objectName() == "frmCVMain" && window->isVisible()) {
        GrowAndCheck(*window);
        window->close();
        return true;
      }
    return false;
  });
  EXPECT_EQ(0, Run());
}

TEST_F(ProgramTest, ShowsAnErrorThatNothingCaughtOnceAndEndsWithOne) {
  RegistryFileStore settings(folder_ / Installation::RegistryFile);
  RegistryHandle key = 0;
  ASSERT_EQ(0, settings.OpenKey(registry::LocalMachine, SettingsKey, registry::AllButLinks, key));
  ASSERT_EQ(0, settings.DeleteValue(key, "RCAtStartup"));
  QString text;
  Soon([&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return false;
    text += box->text();
    box->accept();
    return true;
  });
  EXPECT_EQ(1, Run());
  EXPECT_EQ("Run-time error '13':\n\nType mismatch", text);
}

}  // namespace
}  // namespace corvane::test
