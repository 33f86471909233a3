#pragma once

#include <string>
#include <vector>

#include "platform/ui/Control.h"

namespace corvane::ui {

/// A menu or one of its items. An item without a parent stands on the menu bar, unless it is a pop-up menu.
struct MenuItem : Control {
  MenuItem(Form& form, std::string_view name, std::string caption)
      : Control(form, name, ControlKind::MenuItem), Caption(std::move(caption)) {}
  MenuItem(MenuItem& parent, std::string_view name, std::string caption);

  /// "-" draws a separator.
  std::string Caption;
  /// A key such as "F5" that runs the item from anywhere in the window.
  std::string Shortcut;
  /// The item's picture, a key of the resources.
  std::string Picture;
  /// True for a menu that is only opened by `UiHost::PopupMenu`.
  bool Popup = false;
  /// For an item its command; for a menu what runs before it opens.
  Handler Click;
  MenuItem* Menu = nullptr;
  std::vector<MenuItem*> Items;
};

/// A line in the drop-down of a toolbar button.
struct ToolItem {
  std::string Caption;
  Handler Click;
};

struct ToolButton {
  std::string Key;
  std::string Caption;
  std::string ToolTip;
  std::string Picture;
  bool Enabled = true;
  bool Separator = false;
  /// What the arrow beside the button drops down; a button without any has no arrow.
  std::vector<ToolItem> Items{};
};

struct Toolbar : Control {
  Toolbar(Form& form, std::string_view name) : Control(form, name, ControlKind::Toolbar) {}

  /// The button of a key; raises `ElementNotFound`.
  ToolButton& Button(std::string_view key);

  std::vector<ToolButton> Buttons;
  std::function<void(const std::string& key)> ButtonClick;
};

}  // namespace corvane::ui
