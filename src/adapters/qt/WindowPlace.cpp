#include "adapters/qt/WindowPlace.h"

#include <QWidget>
#include <QWindow>

namespace corvane::qt {

// Modal only towards its opener, so that the help window stays usable.
void PlaceAbove(QWidget& window, QWidget* opener, bool modal) {
  if (modal) window.setWindowModality(opener != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
  if (opener == nullptr) return;
  window.winId();
  window.windowHandle()->setTransientParent(opener->windowHandle());
  QRect frame(QPoint(), window.size());
  frame.moveCenter(opener->frameGeometry().center());
  window.move(frame.topLeft());
}

}  // namespace corvane::qt
