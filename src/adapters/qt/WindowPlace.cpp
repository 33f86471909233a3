#include "adapters/qt/WindowPlace.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace corvane::qt {

// Modal only towards its opener, so that the help window stays usable.
void PlaceAbove(QWidget& window, QWidget* opener, bool modal) {
  if (modal) window.setWindowModality(Qt::WindowModal);
  if (opener == nullptr) return;
  window.winId();
  window.windowHandle()->setTransientParent(opener->windowHandle());
  const QRect screen = opener->screen()->availableGeometry();
  QRect frame(QPoint(), window.size());
  frame.moveCenter(opener->frameGeometry().center());
  window.move(std::max(screen.left(), std::min(frame.left(), screen.right() - frame.width())),
              std::max(screen.top(), std::min(frame.top(), screen.bottom() - frame.height())));
}

}  // namespace corvane::qt
