#include "adapters/qt/bindings/MenuBinding.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "adapters/qt/Text.h"
#include "adapters/qt/look/Icons.h"

namespace corvane::qt {

// A menu is made for every item that may hold others, and for those that stand on the bar.
MenuBinding::MenuBinding(FormView& view, ui::MenuItem& control) : Binding(view, control, nullptr), control_(control) {
  if (control.Menu == nullptr || !control.Items.empty()) {
    menu_ = std::make_unique<QMenu>(&view.Window());
    menu_->setObjectName(ToQt(control.Name()));
    action_ = menu_->menuAction();
    connect(menu_.get(), &QMenu::aboutToShow, this, [this] { Fire(control_.Click); });
  } else {
    item_ = std::make_unique<QAction>(&view.Window());
    action_ = item_.get();
    action_->setSeparator(control.Caption == "-");
    connect(action_, &QAction::triggered, this, [this] { Fire(control_.Click); });
  }
  action_->setObjectName(ToQt(control.Name()));
  Place();
}

MenuBinding::~MenuBinding() = default;

QMenu* MenuBinding::ParentMenu() const {
  const auto* parent = static_cast<const MenuBinding*>(View().Find(*control_.Menu));
  return parent == nullptr ? nullptr : parent->menu_.get();
}

void MenuBinding::Place() {
  if (control_.Menu != nullptr) {
    if (QMenu* menu = ParentMenu()) menu->addAction(action_);
  } else if (!control_.Popup) {
    static_cast<QMainWindow&>(View().Window()).menuBar()->addAction(action_);
  }
}

void MenuBinding::Popup(const QPoint& place) {
  if (menu_) menu_->exec(place);
}

void MenuBinding::Update() {
  if (action_->isVisible() != control_.Visible) action_->setVisible(control_.Visible);
  if (action_->isSeparator()) return;
  if (const QString caption = ToQt(control_.Caption); action_->text() != caption) action_->setText(caption);
  if (const QKeySequence key(ToQt(control_.Shortcut)); action_->shortcut() != key) action_->setShortcut(key);
  if (action_->icon().name() != ToQt(control_.Picture)) action_->setIcon(icons::Get(control_.Picture));
  if (action_->isEnabled() != control_.Enabled) action_->setEnabled(control_.Enabled);
}

}  // namespace corvane::qt
