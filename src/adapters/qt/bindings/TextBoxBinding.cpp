#include "adapters/qt/bindings/TextBoxBinding.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include "adapters/qt/Text.h"
#include "adapters/qt/bindings/CharacterFilter.h"

namespace corvane::qt {
namespace {

constexpr int PageMargin = 10;

}  // namespace

LineBinding::LineBinding(FormView& view, ui::TextBox& control, QLineEdit* line)
    : Binding(view, control, line), control_(control), line_(line) {
  if (control.KeyPress) line->setValidator(new CharacterFilter(control, this));
  if (control.IsPassword) line->setEchoMode(QLineEdit::Password);
  connect(line, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (IsUsers()) control_.Text = FromQt(text);
  });
}

void LineBinding::Update() {
  if (const QString text = ToQt(control_.Text); line_->text() != text) line_->setText(text);
  if (line_->isReadOnly() != control_.Locked) line_->setReadOnly(control_.Locked);
}

TextBinding::TextBinding(FormView& view, ui::TextBox& control, QPlainTextEdit* text)
    : Binding(view, control, text), control_(control), text_(text) {
  text->setTabChangesFocus(true);
  text->document()->setDocumentMargin(PageMargin);
  connect(text, &QPlainTextEdit::textChanged, this, [this] {
    if (IsUsers()) control_.Text = shown_ = FromQt(text_->toPlainText());
  });
}

void TextBinding::Update() {
  if (control_.Text != shown_) text_->setPlainText(ToQt(shown_ = control_.Text));
  if (text_->isReadOnly() != control_.Locked) text_->setReadOnly(control_.Locked);
}

}  // namespace corvane::qt
