#pragma once

#include "adapters/qt/bindings/Binding.h"

class QTreeView;

namespace corvane::qt {

/// What lists and trees have in common: it tells the keyboard from the mouse, since a click counts when the button is
/// let go, and a key at once.
class ItemViewBinding : public Binding {
 public:
  ItemViewBinding(FormView& view, ui::Control& control, QTreeView* tree);

 protected:
  bool Filter(QEvent& event) override;
  /// A mouse button was let go over the rows, or the menu key asked for a menu.
  virtual void MouseReleased(Qt::MouseButton) {}
  bool ByKey() const { return byKey_; }
  QTreeView& Tree() const { return *tree_; }

 private:
  QTreeView* tree_;
  bool byKey_ = false;
};

}  // namespace corvane::qt
