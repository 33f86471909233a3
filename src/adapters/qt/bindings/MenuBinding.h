#pragma once

#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/Commands.h"

class QAction;
class QMenu;

namespace corvane::qt {

/// A menu or an item. A menu stands on the bar or in the menu above it; a pop-up one waits to be opened.
class MenuBinding : public Binding {
 public:
  MenuBinding(FormView& view, ui::MenuItem& control);
  ~MenuBinding() override;

  /// Opens the menu at a point of the screen and returns when it is closed.
  void Popup(const QPoint& place);

 protected:
  void Update() override;

 private:
  void Place();
  QMenu* ParentMenu() const;

  ui::MenuItem& control_;
  std::unique_ptr<QMenu> menu_;
  std::unique_ptr<QAction> item_;
  /// What stands in the menu above or on the bar; null for a pop-up menu.
  QAction* action_ = nullptr;
};

}  // namespace corvane::qt
