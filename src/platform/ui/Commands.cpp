#include "platform/ui/Commands.h"

#include "platform/RuntimeError.h"

namespace corvane::ui {

MenuItem::MenuItem(MenuItem& parent, std::string_view name, std::string caption)
    : MenuItem(parent.Parent(), name, std::move(caption)) {
  Menu = &parent;
  parent.Items.push_back(this);
}

ToolButton& Toolbar::Button(std::string_view key) {
  for (ToolButton& button : Buttons)
    if (!button.Separator && button.Key == key) return button;
  throw RuntimeError(errors::ElementNotFound, "Element not found");
}

}  // namespace corvane::ui
