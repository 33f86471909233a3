#include "adapters/qt/FormView.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <algorithm>

#include "adapters/qt/Dispatcher.h"
#include "adapters/qt/DragController.h"
#include "adapters/qt/SplitterShares.h"
#include "adapters/qt/Text.h"
#include "adapters/qt/WindowPlace.h"
#include "adapters/qt/bindings/Binding.h"
#include "platform/ui/SimpleControls.h"
#include "platform/ui/UiHost.h"

namespace corvane::qt {
namespace {

bool NeedsMainWindow(const ui::Form& form) {
  return std::any_of(form.Controls().begin(), form.Controls().end(), [](const ui::Control* control) {
    return control->Kind() == ui::ControlKind::Toolbar || control->Kind() == ui::ControlKind::StatusBar ||
           control->Kind() == ui::ControlKind::MenuItem;
  });
}

bool IsMnemonic(const std::string& caption) {
  const std::size_t mark = caption.find('&');
  return mark != std::string::npos && mark + 1 < caption.size() && caption[mark + 1] != '&';
}

std::unique_ptr<QWidget> MakeMainWindow(QWidget* content) {
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::PreventContextMenu);
  window->setCentralWidget(content);
  return window;
}

std::unique_ptr<QWidget> MakeDialog(QWidget* content) {
  auto window = std::make_unique<QDialog>();
  auto* layout = new QVBoxLayout(window.get());
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(content);
  if (content->minimumSize() == content->maximumSize()) layout->setSizeConstraint(QLayout::SetFixedSize);
  return window;
}

}  // namespace

std::string WidgetName(const ui::Control& control) {
  std::string name(control.Name());
  return control.Index < 0 ? name : name + "_" + std::to_string(control.Index);
}

FormView::FormView(ui::Form& form, const FormEntry& entry, Dispatcher& dispatcher)
    : form_(form), dispatcher_(dispatcher), drag_(std::make_unique<DragController>(*this)) {
  const Dispatcher::Writing writing(dispatcher_);
  BuildWindow(entry);
  BindControls();
  SetTabOrder();
  SetBuddies();
  Flush();
  window_->resize(content_->size().expandedTo(window_->minimumSizeHint()));
}

FormView::~FormView() { Close(); }

void FormView::BuildWindow(const FormEntry& entry) {
  auto content = std::make_unique<QWidget>();
  content_ = content.get();
  entry.Place(*content_);
  const bool main = NeedsMainWindow(form_);
  window_ = main ? MakeMainWindow(content.release()) : MakeDialog(content.release());
  if (entry.Frame == WindowFrame::None) window_->setWindowFlag(Qt::FramelessWindowHint);
  window_->setObjectName(ToQt(form_.Name()));
  window_->installEventFilter(this);
  content_->installEventFilter(this);
}

void FormView::BindControls() {
  for (ui::Control* control : form_.Controls())
    if (auto binding = Binding::Make(*this, *control, WidgetFor(*control))) bindings_.push_back(std::move(binding));
  shares_ = std::make_unique<SplitterShares>(*content_, *this);
}

QWidget* FormView::WidgetFor(const ui::Control& control) const {
  return content_->findChild<QWidget*>(ToQt(WidgetName(control)));
}

std::vector<QWidget*> FormView::FocusChain() const {
  std::vector<QWidget*> chain;
  for (const auto& binding : bindings_)
    if (QWidget* widget = binding->Widget(); widget != nullptr && widget->focusPolicy() != Qt::NoFocus)
      chain.push_back(widget);
  return chain;
}

void FormView::SetTabOrder() {
  const std::vector<QWidget*> chain = FocusChain();
  for (std::size_t i = 1; i < chain.size(); ++i) QWidget::setTabOrder(chain[i - 1], chain[i]);
}

void FormView::SetBuddies() {
  const auto& controls = form_.Controls();
  for (std::size_t i = 0; i + 1 < controls.size(); ++i) {
    if (controls[i]->Kind() != ui::ControlKind::Label) continue;
    if (!IsMnemonic(static_cast<ui::Label*>(controls[i])->Caption)) continue;
    if (auto* label = qobject_cast<QLabel*>(WidgetFor(*controls[i]))) label->setBuddy(WidgetFor(*controls[i + 1]));
  }
}

void FormView::Show(QWidget* opener, bool modal) {
  if (window_->isHidden()) PlaceAbove(*window_, NeedsMainWindow(form_) ? nullptr : opener, modal);
  window_->show();
  window_->raise();
  window_->activateWindow();
  if (QApplication::focusWidget() == nullptr || QApplication::focusWidget()->window() != window_.get()) SetFirstFocus();
}

// A tab bar takes part in the tab order, but whoever opens a form wants to begin with its first field.
void FormView::SetFirstFocus() {
  for (const bool tabs : {false, true}) {
    for (const auto& binding : bindings_) {
      QWidget* widget = binding->Widget();
      if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus || !widget->isEnabled() || !widget->isVisible())
        continue;
      if ((binding->Control().Kind() == ui::ControlKind::TabControl) != tabs) continue;
      widget->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

// Signals are blocked first: hiding the window moves the focus and the current rows, and no control may hear of it.
void FormView::Close() {
  if (!open_) return;
  open_ = false;
  dispatcher_.Forget(*this);
  drag_->Cancel();
  for (QObject* object : window_->findChildren<QObject*>()) object->blockSignals(true);
  window_->hide();
  if (Closed) Closed();
}

void FormView::Flush() {
  if (!open_) return;
  const Dispatcher::Writing writing(dispatcher_);
  for (const auto& binding : bindings_) binding->Flush();
  shares_->Flush();
  FlushFrame();
}

void FormView::FlushFrame() {
  if (const QString caption = ToQt(form_.Caption); window_->windowTitle() != caption) window_->setWindowTitle(caption);
  const Qt::CursorShape shape = form_.MousePointer == ui::Pointer::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor;
  if (window_->cursor().shape() != shape) window_->setCursor(shape);
}

Binding* FormView::Find(const ui::Control& control) const {
  for (const auto& binding : bindings_)
    if (&binding->Control() == &control) return binding.get();
  return nullptr;
}

ui::Control* FormView::ControlAt(const QPoint& screen) const {
  for (QWidget* widget = window_->childAt(window_->mapFromGlobal(screen)); widget != nullptr;
       widget = widget->parentWidget())
    for (ui::Control* control : form_.Controls())
      if (const Binding* binding = Find(*control); binding != nullptr && binding->Widget() == widget) return control;
  return nullptr;
}

void FormView::Fire(ui::Handler handler) { dispatcher_.Fire(*this, std::move(handler)); }

void FormView::Postpone(ui::Handler handler) { dispatcher_.Postpone(*this, std::move(handler)); }

bool FormView::IsWriting() const { return dispatcher_.IsWriting(); }

bool FormView::IsHeld() const { return dispatcher_.IsHeld(); }

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  if (!open_) return false;
  if (watched == window_.get() && event->type() == QEvent::Close) {
    event->ignore();
    Fire([this] { form_.CloseBox(); });
    return true;
  }
  if (watched == window_.get() && event->type() == QEvent::KeyPress)
    return KeyPressed(static_cast<QKeyEvent*>(event)->key());
  if (watched == content_ && event->type() == QEvent::MouseButtonRelease) Fire(form_.Click);
  return false;
}

// Only keys that no widget wanted arrive here.
bool FormView::KeyPressed(int key) {
  switch (key) {
    case Qt::Key_F1:
      form_.Host().ShowHelp(form_.HelpContext);
      return true;
    case Qt::Key_Escape:
      if (drag_->Cancel()) return true;
      if (form_.CancelButton() != nullptr) Fire([this] { form_.CloseBox(); });
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto* focused = qobject_cast<QPushButton*>(window_->focusWidget()))
        focused->click();
      else
        PressButton(form_.DefaultButton());
      return true;
    default:
      return false;
  }
}

bool FormView::PressButton(ui::CommandButton* button) {
  const Binding* binding = button == nullptr ? nullptr : Find(*button);
  auto* widget = binding == nullptr ? nullptr : qobject_cast<QPushButton*>(binding->Widget());
  if (widget == nullptr) return false;
  widget->click();
  return true;
}

std::vector<std::string> FormView::Mismatches() const {
  std::vector<std::string> found;
  QStringList names;
  for (const ui::Control* control : form_.Controls()) {
    names << ToQt(WidgetName(*control));
    if (Find(*control) == nullptr) found.push_back("control without a fitting widget: " + WidgetName(*control));
  }
  static const QRegularExpression controlName(
      "^(cmd|lbl|txt|lst|cmb|chk|opt|lvw|lv|tv|fra|img|prg|pgb|tab|ud|sld)[A-Z]");
  for (const QWidget* widget : content_->findChildren<QWidget*>())
    if (controlName.match(widget->objectName()).hasMatch() && !names.contains(widget->objectName()))
      found.push_back("widget without a control: " + FromQt(widget->objectName()));
  return found;
}

}  // namespace corvane::qt
