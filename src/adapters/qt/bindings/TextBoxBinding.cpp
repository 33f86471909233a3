#include "adapters/qt/bindings/TextBoxBinding.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "adapters/qt/Text.h"
#include "adapters/qt/bindings/CharacterFilter.h"

namespace corvane::qt {
namespace {

constexpr int PageMargin = 10;
constexpr int AnyLength = 32767;

// Counts characters as the control does: one outside the basic plane is one, a line break two.
int CaretOf(QString before) {
  before.replace('\n', "\r\n");
  return static_cast<int>(before.toUcs4().size());
}

// How much of a text of the toolkit's stands before a caret of the control's.
int PositionOf(const QString& text, int caret) {
  int position = 0;
  for (int left = caret; left > 0 && position < text.size(); ++position) {
    left -= text.at(position) == '\n' ? 2 : 1;
    if (text.at(position).isHighSurrogate()) ++position;
  }
  return std::min(position, static_cast<int>(text.size()));
}

}  // namespace

// Half-way between the ground of a box and the colour of a selection, so that it fits a dark theme too.
void ShowHighlight(QWidget& widget, bool highlighted) {
  if (highlighted == widget.testAttribute(Qt::WA_SetPalette)) return;
  if (!highlighted) return widget.setPalette(QPalette());
  const QPalette own = QApplication::palette(&widget);
  const QColor ground = own.color(QPalette::Base), mark = own.color(QPalette::Highlight);
  const auto mix = [](int a, int b) { return (a + b) / 2; };
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(mix(ground.red(), mark.red()), mix(ground.green(), mark.green()),
                                          mix(ground.blue(), mark.blue())));
  widget.setPalette(palette);
}

LineBinding::LineBinding(FormView& view, ui::TextBox& control, QLineEdit* line)
    : Binding(view, control, line), control_(control), line_(line) {
  if (control.KeyPress) line->setValidator(new CharacterFilter(control, this));
  if (control.IsPassword) line->setEchoMode(QLineEdit::Password);
  connect(line, &QLineEdit::textChanged, this, &LineBinding::Changed);
  connect(line, &QLineEdit::cursorPositionChanged, this, &LineBinding::NoteCaret);
}

void LineBinding::Changed(const QString& text) {
  if (!IsUsers()) return;
  control_.Text = FromQt(text);
  NoteCaret();
  Fire(control_.Change);
}

void LineBinding::NoteCaret() {
  if (IsUsers()) control_.SelStart = shownCaret_ = CaretOf(line_->text().left(line_->cursorPosition()));
}

// A full line asks nobody about what is typed, so this is asked before it is tried.
bool LineBinding::Filter(QEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease) Postpone(control_.Click);
  if (event.type() != QEvent::KeyPress || !Refuses(static_cast<const QKeyEvent&>(event).text())) return false;
  Fire(control_.Refused);
  return true;
}

bool LineBinding::Refuses(const QString& typed) const {
  return control_.Refused && !typed.isEmpty() && typed.front().isPrint() && !control_.KeyPress(typed.toUcs4().front());
}

void LineBinding::Update() {
  if (const int length = control_.MaxLength > 0 ? control_.MaxLength : AnyLength; line_->maxLength() != length)
    line_->setMaxLength(length);
  if (const QString text = ToQt(control_.Text); line_->text() != text) ShowText(text);
  if (control_.SelStart != shownCaret_) {
    shownCaret_ = control_.SelStart;
    line_->setCursorPosition(PositionOf(line_->text(), shownCaret_));
  }
  if (line_->isReadOnly() != control_.Locked) line_->setReadOnly(control_.Locked);
  ShowHighlight(*line_, control_.Highlighted);
}

// The caret goes behind a new text, unless the form has put it elsewhere.
void LineBinding::ShowText(const QString& text) {
  line_->setText(text);
  if (control_.SelStart == shownCaret_) control_.SelStart = shownCaret_ = CaretOf(text);
}

TextBinding::TextBinding(FormView& view, ui::TextBox& control, QPlainTextEdit* text)
    : Binding(view, control, text), control_(control), text_(text) {
  text->setTabChangesFocus(true);
  text->document()->setDocumentMargin(PageMargin);
  connect(text, &QPlainTextEdit::textChanged, this, &TextBinding::Changed);
  connect(text, &QPlainTextEdit::cursorPositionChanged, this, &TextBinding::NoteCaret);
}

void TextBinding::Changed() {
  if (!IsUsers()) return;
  TakeOutRefused();
  control_.Text = shown_ = FromQt(text_->toPlainText().replace('\n', "\r\n"));
  NoteCaret();
  Fire(control_.Change);
}

// What was typed or pasted stands before the cursor; the characters that are too many are the last of it.
void TextBinding::TakeOutRefused() {
  QString text = text_->toPlainText();
  int cursor = text_->textCursor().position();
  if (control_.KeyPress) CharacterFilter(control_, nullptr).validate(text, cursor);
  if (const int spare = control_.MaxLength > 0 ? static_cast<int>(text.size()) - control_.MaxLength : 0; spare > 0) {
    text.remove(std::max(0, cursor - spare), spare);
    cursor = std::max(0, cursor - spare);
  }
  if (text == text_->toPlainText()) return;
  const QSignalBlocker quiet(text_);
  text_->setPlainText(text);
  QTextCursor place = text_->textCursor();
  place.setPosition(std::min(cursor, static_cast<int>(text.size())));
  text_->setTextCursor(place);
}

bool TextBinding::IsRefused(int key) const {
  return (key == Qt::Key_Return || key == Qt::Key_Enter) && control_.KeyPress && !control_.KeyPress(U'\n');
}

void TextBinding::NoteCaret() {
  if (!IsUsers()) return;
  control_.SelStart = shownCaret_ = CaretOf(text_->toPlainText().left(text_->textCursor().position()));
}

bool TextBinding::Filter(QEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease) Postpone(control_.Click);
  // Where Enter makes no line it presses the default button, as it does everywhere else.
  if (event.type() != QEvent::KeyPress || !IsRefused(static_cast<const QKeyEvent&>(event).key())) return false;
  event.ignore();
  return true;
}

void TextBinding::Update() {
  const bool isNew = control_.Text != shown_;
  if (isNew) text_->setPlainText(ToQt(shown_ = control_.Text));
  if (isNew || control_.SelStart != shownCaret_) MoveCaret();
  if (text_->isReadOnly() != control_.Locked) text_->setReadOnly(control_.Locked);
  ShowHighlight(*text_, control_.Highlighted);
}

void TextBinding::MoveCaret() {
  shownCaret_ = control_.SelStart;
  QTextCursor cursor = text_->textCursor();
  cursor.setPosition(PositionOf(text_->toPlainText(), shownCaret_));
  text_->setTextCursor(cursor);
}

}  // namespace corvane::qt
