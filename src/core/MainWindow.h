#pragma once

#include <string>

#include "platform/ui/Control.h"

namespace corvane::ui {
class ComboBox;
class ImageList;
class ListView;
}  // namespace corvane::ui

namespace corvane {

/// What other screens ask of the main window.
class MainWindow {
 public:
  virtual ~MainWindow() = default;

  /// The box of domains; its text is the domain everything is relative to.
  virtual ui::ComboBox& DomainBox() = 0;
  /// Reads the watched logs of the chosen domain, or the accepted syslog devices, anew.
  virtual void RefillLogs() = 0;
  virtual void RefillSyslogs() = 0;
  /// The rows of watched logs as they are shown.
  virtual const ui::ListView& WatchedLogs() const = 0;
  /// Key of the selected watched log; empty when none is selected or its log is unknown.
  virtual std::string CurrentIDName() const = 0;
  /// Pictures shared by the lists and trees of all screens.
  virtual const ui::ImageList& Images() const = 0;
  /// Shape of the pointer over the main window and its list of logs.
  virtual void SetPointer(ui::Pointer pointer) = 0;
};

}  // namespace corvane
