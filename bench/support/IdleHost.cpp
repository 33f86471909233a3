#include "support/IdleHost.h"

#include <stdexcept>

#include "platform/ui/Form.h"

namespace corvane::bench {

void IdleHost::ShowModal(ui::Form& form) {
  if (OnModal) OnModal(form);
  form.Unload();
}

ui::MsgResult IdleHost::MsgBox(const std::string& text, ui::MsgIcon, ui::MsgButtons, const std::string&) {
  throw std::runtime_error("a box that was not foreseen: " + text);
}

}  // namespace corvane::bench
