#include "adapters/qt/QtHost.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>

#include "adapters/qt/ConnectionDialog.h"
#include "adapters/qt/ContainerDialog.h"
#include "adapters/qt/FormView.h"
#include "adapters/qt/HelpWindow.h"
#include "adapters/qt/Text.h"
#include "adapters/qt/WindowPlace.h"
#include "adapters/qt/bindings/MenuBinding.h"
#include "platform/ui/Commands.h"
#include "platform/ui/Form.h"

namespace corvane::qt {
namespace {

constexpr int EventsInterval = 10;
constexpr int SleepSlice = 10;
constexpr int InputBoxWidth = 460;

QMessageBox::Icon IconOf(ui::MsgIcon icon) {
  switch (icon) {
    case ui::MsgIcon::Exclamation:
      return QMessageBox::Warning;
    case ui::MsgIcon::Information:
      return QMessageBox::Information;
    case ui::MsgIcon::Question:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

struct Answer {
  QMessageBox::StandardButton Button;
  ui::MsgResult Result;
};

std::vector<Answer> AnswersOf(ui::MsgButtons buttons) {
  switch (buttons) {
    case ui::MsgButtons::OkCancel:
      return {{QMessageBox::Ok, ui::MsgResult::Ok}, {QMessageBox::Cancel, ui::MsgResult::Cancel}};
    case ui::MsgButtons::YesNo:
      return {{QMessageBox::Yes, ui::MsgResult::Yes}, {QMessageBox::No, ui::MsgResult::No}};
    case ui::MsgButtons::Ok:
      break;
  }
  return {{QMessageBox::Ok, ui::MsgResult::Ok}};
}

QString FirstFolder() { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }

}  // namespace

QtHost::QtHost(FormRegistry forms, std::string helpFolder)
    : forms_(std::move(forms)), helpFolder_(std::move(helpFolder)), dispatcher_([this] { Flush(); }) {
  QApplication::setQuitOnLastWindowClosed(false);
  clearing_.setSingleShot(true);
  QObject::connect(&clearing_, &QTimer::timeout, [this] { ClearRetired(); });
}

QtHost::~QtHost() = default;

FormView* QtHost::ViewOf(const ui::Form& form) const {
  for (const auto& view : views_)
    if (view->Shows(form)) return view.get();
  return nullptr;
}

QWidget* QtHost::Opener() const {
  for (auto view = views_.rbegin(); view != views_.rend(); ++view)
    if ((*view)->IsOpen()) return &(*view)->Window();
  return nullptr;
}

FormView& QtHost::Open(ui::Form& form, bool modal) {
  dispatcher_.Rethrow();
  Flush();
  QWidget* opener = Opener();
  views_.push_back(std::make_unique<FormView>(form, forms_.At(form.Name()), dispatcher_));
  views_.back()->Show(opener, modal);
  return *views_.back();
}

void QtHost::Show(ui::Form& form) {
  if (FormView* view = ViewOf(form))
    view->Show(nullptr, false);
  else
    Open(form, false);
}

void QtHost::ShowModal(ui::Form& form) {
  FormView& view = Open(form, true);
  QEventLoop loop;
  view.Closed = [&loop] { loop.quit(); };
  dispatcher_.Run(loop);
  view.Closed = nullptr;
  Retire(view);
  ClearRetired();
  Reactivate();
  dispatcher_.Rethrow();
}

// A form may be destroyed before the flush that would have taken its window away.
void QtHost::Forget(const ui::Form& form) {
  if (FormView* view = ViewOf(form)) Retire(*view);
  ClearRetired();
}

void QtHost::Retire(FormView& view) {
  view.Close();
  const auto found = std::find_if(views_.begin(), views_.end(), [&](const auto& one) { return one.get() == &view; });
  if (found == views_.end()) return;
  retired_.push_back(std::move(*found));
  views_.erase(found);
  clearing_.start(0);
}

// While a handler runs one of these windows may be the one whose event is being served.
void QtHost::ClearRetired() {
  if (!dispatcher_.InHandler()) retired_.clear();
}

void QtHost::Reactivate() {
  if (QWidget* opener = Opener()) {
    opener->raise();
    opener->activateWindow();
  }
}

void QtHost::Flush() {
  for (std::size_t i = 0; i < views_.size(); ++i) {
    FormView& view = *views_[i];
    if (!view.IsOpen()) continue;
    if (view.Form().IsUnloaded())
      view.Close();
    else
      view.Flush();
  }
  for (std::size_t i = views_.size(); i-- > 0;)
    if (!views_[i]->IsOpen() && !views_[i]->Closed) Retire(*views_[i]);
  if (!retired_.empty()) clearing_.start(0);
  if (main_ != nullptr && views_.empty()) main_->quit();
}

int QtHost::Run() {
  QEventLoop loop;
  main_ = &loop;
  try {
    Flush();
    if (!views_.empty()) dispatcher_.Run(loop);
    main_ = nullptr;
    dispatcher_.Rethrow();
  } catch (const ui::ProgramEnd& end) {
    return end.ExitCode;
  }
  return 0;
}

ui::MsgResult QtHost::MsgBox(const std::string& text, ui::MsgIcon icon, ui::MsgButtons buttons,
                             const std::string& title) {
  dispatcher_.Rethrow();
  Flush();
  QMessageBox box(IconOf(icon), ToQt(title), ToQt(text), QMessageBox::NoButton);
  box.setTextFormat(Qt::PlainText);
  const std::vector<Answer> answers = AnswersOf(buttons);
  for (const Answer& answer : answers) box.addButton(answer.Button);
  box.setDefaultButton(answers.front().Button);
  box.setEscapeButton(answers.back().Button);
  box.adjustSize();
  RunDialog(box);
  for (const Answer& answer : answers)
    if (box.standardButton(box.clickedButton()) == answer.Button) return answer.Result;
  return answers.back().Result;
}

// Shows a dialog of the toolkit's above the window in front until it is answered.
void QtHost::RunDialog(QDialog& dialog) {
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  PlaceAbove(dialog, Opener(), true);
  dialog.show();
  dispatcher_.Run(loop);
  Reactivate();
  dispatcher_.Rethrow();
}

// The toolkit's own dialog: one of the desktop would run its loop beyond the reach of the host.
std::optional<std::string> QtHost::ChosenFile(QFileDialog& chooser) {
  dispatcher_.Rethrow();
  Flush();
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  RunDialog(chooser);
  if (chooser.result() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return std::nullopt;
  std::string path = FromQt(chooser.selectedFiles().first());
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

std::optional<std::string> QtHost::SaveFile(const ui::SaveDialog& dialog) {
  QFileDialog chooser(nullptr, ToQt(dialog.Title), FirstFolder(), ToQt(dialog.Filter));
  chooser.setObjectName("SaveDialog");
  chooser.setAcceptMode(QFileDialog::AcceptSave);
  chooser.setDefaultSuffix(ToQt(dialog.Pattern).section('.', -1));
  chooser.selectFile(ToQt(dialog.FileName));
  return ChosenFile(chooser);
}

std::optional<std::string> QtHost::OpenFile(const ui::OpenDialog& dialog) {
  QFileDialog chooser(nullptr, ToQt(dialog.Title), FirstFolder(), ToQt(dialog.Filter));
  chooser.setObjectName("OpenDialog");
  chooser.setAcceptMode(QFileDialog::AcceptOpen);
  chooser.setFileMode(dialog.MayBeNew ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (dialog.MayBeNew) chooser.setLabelText(QFileDialog::Accept, "&Choose");
  return ChosenFile(chooser);
}

std::string QtHost::InputBox(const std::string& text, const std::string& title) {
  dispatcher_.Rethrow();
  Flush();
  QInputDialog box;
  box.setObjectName("InputBox");
  box.setWindowTitle(ToQt(title));
  box.setLabelText(PlainToolTip(text));
  for (QLabel* label : box.findChildren<QLabel*>()) label->setWordWrap(true);
  box.resize(InputBoxWidth, box.sizeHint().height());
  RunDialog(box);
  return box.result() == QDialog::Accepted ? FromQt(box.textValue()) : std::string();
}

std::optional<std::string> QtHost::PromptConnection(const ui::ConnectionPrompt& prompt) {
  dispatcher_.Rethrow();
  Flush();
  ConnectionDialog dialog(Title, prompt);
  RunDialog(dialog);
  return dialog.Chosen();
}

std::optional<DirectoryContainer> QtHost::ChooseContainer(const std::string& title, const DirectoryContainer& root,
                                                          const ui::ContainersOf& containersOf) {
  dispatcher_.Rethrow();
  Flush();
  ContainerDialog dialog(title, root, containersOf);
  RunDialog(dialog);
  return dialog.Chosen();
}

void QtHost::SetClipboardText(const std::string& text) { QGuiApplication::clipboard()->setText(ToQt(text)); }

void QtHost::Beep() { QApplication::beep(); }

void QtHost::PopupMenu(ui::MenuItem& menu) {
  dispatcher_.Rethrow();
  Flush();
  FormView* view = ViewOf(menu.Parent());
  if (view == nullptr) return;
  if (auto* binding = dynamic_cast<MenuBinding*>(view->Find(menu))) binding->Popup(QCursor::pos());
  dispatcher_.Rethrow();
}

void QtHost::SetFocus(ui::Control& control) {
  Flush();
  FormView* view = ViewOf(control.Parent());
  if (view == nullptr) return;
  const Binding* binding = view->Find(control);
  if (binding != nullptr && binding->Widget() != nullptr) binding->Widget()->setFocus(Qt::OtherFocusReason);
}

void QtHost::DoEvents() {
  dispatcher_.Rethrow();
  if (sinceEvents_.isValid() && sinceEvents_.elapsed() < EventsInterval) return;
  Flush();
  QCoreApplication::processEvents();
  sinceEvents_.start();
  dispatcher_.Rethrow();
}

void QtHost::Repaint() {
  if (sinceEvents_.isValid() && sinceEvents_.elapsed() < EventsInterval) return;
  Flush();
  const Dispatcher::Asleep asleep(dispatcher_);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  sinceEvents_.start();
}

// The timer is only the object of this thread that the action is sent to: what is on its way dies with the host.
void QtHost::Post(std::function<void()> action) {
  QMetaObject::invokeMethod(
      &clearing_, [this, action = std::move(action)] { dispatcher_.Postpone(action); }, Qt::QueuedConnection);
}

// Windows paint meanwhile, but what the user does waits for the next loop.
void QtHost::Sleep(int milliseconds) {
  Flush();
  const Dispatcher::Asleep asleep(dispatcher_);
  QElapsedTimer time;
  time.start();
  do {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    const qint64 left = milliseconds - time.elapsed();
    if (left > 0) QThread::msleep(static_cast<unsigned long>(std::min<qint64>(left, SleepSlice)));
  } while (time.elapsed() < milliseconds);
}

void QtHost::ShowHelp(int context) {
  if (!help_) help_ = std::make_unique<HelpWindow>(helpFolder_);
  help_->ShowTopic(context);
}

void QtHost::CloseHelp() { help_.reset(); }

QImage QtHost::Picture(const ui::Form& form) {
  Flush();
  FormView* view = ViewOf(form);
  return view == nullptr ? QImage() : view->Window().grab().toImage();
}

bool QtHost::SavePicture(const ui::Form& form, const std::string& path) {
  const QImage picture = Picture(form);
  return !picture.isNull() && picture.save(ToQt(path), "PNG");
}

}  // namespace corvane::qt
