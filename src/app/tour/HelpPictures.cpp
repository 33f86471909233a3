#include "app/tour/HelpPictures.h"

#include <QAction>

#include "app/tour/Script.h"

namespace corvane::tour {
namespace {

constexpr const char* Main = "frmCVMain";
constexpr const char* About = "frmStartup";

// The splash bears the same name, and is gone when the main window is there.
bool StartIsOver() { return Driver::Window(Main) != nullptr && Driver::Window(About) == nullptr; }

}  // namespace

void AddHelpPictures(Script& script) {
  script.When("the start is over", StartIsOver, [] {});
  script.Picture(Main, "main-window");
  script.On(Main, [] { Driver::Window(Main)->findChild<QAction*>("mnuHelpAbout")->trigger(); });
  script.Picture(About, "about");
  script.On(About, [] { Driver::Click(About, "cmdClose"); });
  script.On(Main, [] { Driver::Window(Main)->close(); });
}

}  // namespace corvane::tour
