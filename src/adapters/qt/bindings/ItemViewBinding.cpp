#include "adapters/qt/bindings/ItemViewBinding.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTreeView>

namespace corvane::qt {

ItemViewBinding::ItemViewBinding(FormView& view, ui::Control& control, QTreeView* tree)
    : Binding(view, control, tree), tree_(tree) {
  tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree->setUniformRowHeights(true);
  tree->setAllColumnsShowFocus(true);
}

bool ItemViewBinding::Filter(QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      byKey_ = true;
      break;
    case QEvent::MouseButtonPress:
      byKey_ = false;
      break;
    case QEvent::MouseButtonRelease:
      MouseReleased(static_cast<const QMouseEvent&>(event).button());
      break;
    case QEvent::ContextMenu:
      if (static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard)
        MouseReleased(Qt::RightButton);
      break;
    default:
      break;
  }
  return false;
}

}  // namespace corvane::qt
