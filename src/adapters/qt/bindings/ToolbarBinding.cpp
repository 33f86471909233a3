#include "adapters/qt/bindings/ToolbarBinding.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "adapters/qt/Text.h"
#include "adapters/qt/look/Icons.h"

namespace corvane::qt {

ToolbarBinding::ToolbarBinding(FormView& view, ui::Toolbar& control)
    : Binding(view, control, nullptr), control_(control), bar_(new QToolBar) {
  static_cast<QMainWindow&>(view.Window()).addToolBar(bar_);
  bar_->setObjectName(ToQt(control.Name()));
  bar_->setMovable(false);
  bar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  SetWidget(bar_);
}

void ToolbarBinding::Build() {
  for (QAction* action : actions_) delete action;
  actions_.clear();
  for (const ui::ToolButton& button : control_.Buttons) {
    QAction* action = button.Separator ? bar_->addSeparator() : bar_->addAction(QString());
    actions_.push_back(action);
    if (button.Separator) continue;
    action->setObjectName(ToQt(button.Key));
    connect(action, &QAction::triggered, this, [this, key = button.Key] { Pressed(key); });
    auto* widget = qobject_cast<QToolButton*>(bar_->widgetForAction(action));
    if (button.Caption.empty()) widget->setToolButtonStyle(Qt::ToolButtonIconOnly);
    if (!button.Items.empty()) AddMenu(*widget, button);
  }
}

void ToolbarBinding::AddMenu(QToolButton& widget, const ui::ToolButton& button) {
  auto* menu = new QMenu(&widget);
  for (const ui::ToolItem& item : button.Items)
    connect(menu->addAction(ToQt(item.Caption)), &QAction::triggered, this,
            [this, click = item.Click] { Fire(click); });
  widget.setMenu(menu);
  widget.setPopupMode(QToolButton::MenuButtonPopup);
}

void ToolbarBinding::Pressed(const std::string& key) {
  if (control_.ButtonClick) Fire([click = control_.ButtonClick, key] { click(key); });
}

void ToolbarBinding::Update() {
  if (actions_.size() != control_.Buttons.size()) Build();
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    const ui::ToolButton& button = control_.Buttons[i];
    QAction& action = *actions_[i];
    if (button.Separator) continue;
    if (action.icon().name() != ToQt(button.Picture)) action.setIcon(icons::Get(button.Picture));
    // A button that shows its picture alone still has a name, for readers of the screen and where the row is too narrow.
    const QString text = ToQt(button.Caption.empty() ? button.ToolTip : button.Caption);
    if (action.text() != text) action.setText(text);
    if (const QString tip = PlainToolTip(button.ToolTip); action.toolTip() != tip) action.setToolTip(tip);
    if (action.isEnabled() != button.Enabled) action.setEnabled(button.Enabled);
  }
}

}  // namespace corvane::qt
