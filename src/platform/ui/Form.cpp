#include "platform/ui/Form.h"

#include "platform/ui/SimpleControls.h"
#include "platform/ui/UiHost.h"

namespace corvane::ui {

std::string Literal(std::string_view text) {
  std::string literal;
  for (const char character : text) literal.append(character == '&' ? 2 : 1, character);
  return literal;
}

Control::Control(Form& form, std::string_view name, ControlKind kind) : form_(form), name_(name), kind_(kind) {
  form.controls_.push_back(this);
}

void ShowFace(const std::vector<Control*>& controls, bool shown) {
  for (Control* control : controls) control->Visible = control->Enabled = shown;
}

Form::Form(UiHost& host, std::string_view name) : host_(host), name_(name) {}

Form::~Form() {
  if (shown_) host_.Forget(*this);
}

bool Form::Load() {
  if (!loaded_) {
    loaded_ = true;
    accepted_ = Form_Load();
  }
  return accepted_;
}

void Form::ShowModal() {
  if (!Load() || unloaded_) return;
  shown_ = true;
  host_.ShowModal(*this);
}

void Form::Show() {
  if (!Load() || unloaded_) return;
  shown_ = true;
  host_.Show(*this);
}

void Form::Unload() {
  if (unloaded_) return;
  unloaded_ = true;
  Form_Unload();
}

void Form::CloseBox() {
  CommandButton* cancel = CancelButton();
  if (cancel == nullptr)
    Unload();
  else if (cancel->Enabled && cancel->Click)
    cancel->Click();
}

CommandButton* Form::FindButton(bool CommandButton::*role) const {
  for (Control* control : controls_) {
    if (control->Kind() != ControlKind::CommandButton || !control->Visible) continue;
    auto* button = static_cast<CommandButton*>(control);
    if (button->*role) return button;
  }
  return nullptr;
}

CommandButton* Form::DefaultButton() const { return FindButton(&CommandButton::Default); }

CommandButton* Form::CancelButton() const { return FindButton(&CommandButton::Cancel); }

}  // namespace corvane::ui
