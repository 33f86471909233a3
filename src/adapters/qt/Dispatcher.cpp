#include "adapters/qt/Dispatcher.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "adapters/qt/FormView.h"

namespace corvane::qt {

Dispatcher::Dispatcher(std::function<void()> flush) : flush_(std::move(flush)) {
  drain_.setSingleShot(true);
  drain_.setInterval(0);
  QObject::connect(&drain_, &QTimer::timeout, [this] { Drain(); });
}

Dispatcher::Asleep::~Asleep() {
  if (--dispatcher_.asleep_ == 0 && !dispatcher_.postponed_.empty()) dispatcher_.drain_.start();
}

bool Dispatcher::IsHeld() const { return writing_ > 0 || asleep_ > 0 || failure_ != nullptr; }

void Dispatcher::Fire(FormView& view, ui::Handler handler) {
  if (!handler || IsHeld()) return;
  Drain();
  RunHandler(&view, handler);
}

void Dispatcher::Postpone(FormView& view, ui::Handler handler) {
  if (handler && writing_ == 0) Keep(&view, std::move(handler));
}

void Dispatcher::Keep(FormView* view, ui::Handler handler) {
  if (failure_ != nullptr) return;
  postponed_.push_back({view, std::move(handler)});
  drain_.start();
}

// A handler may open a loop that drains what is left, or postpone more; so one event is taken at a time.
void Dispatcher::Drain() {
  while (!postponed_.empty() && !IsHeld()) {
    const Event event = std::move(postponed_.front());
    postponed_.erase(postponed_.begin());
    RunHandler(event.View, event.Run);
  }
}

void Dispatcher::Forget(const FormView& view) {
  std::erase_if(postponed_, [&](const Event& event) { return event.View == &view; });
}

void Dispatcher::RunHandler(FormView* view, const ui::Handler& handler) {
  if (IsHeld() || (view != nullptr && !view->IsOpen())) return;
  ++depth_;
  try {
    handler();
    flush_();
  } catch (...) {
    Fail(std::current_exception());
  }
  --depth_;
}

// Nothing may be thrown through the toolkit, so every loop is told to end and its caller raises the failure again.
void Dispatcher::Fail(std::exception_ptr failure) {
  if (!failure_) failure_ = std::move(failure);
  for (QEventLoop* loop : loops_) loop->quit();
  while (QWidget* popup = QApplication::activePopupWidget())
    if (!popup->close()) break;
}

void Dispatcher::Run(QEventLoop& loop) {
  if (failure_) return;
  loops_.push_back(&loop);
  loop.exec();
  std::erase(loops_, &loop);
}

void Dispatcher::Rethrow() {
  if (!failure_) return;
  const std::exception_ptr failure = failure_;
  if (loops_.empty() && depth_ == 0) failure_ = nullptr;
  std::rethrow_exception(failure);
}

}  // namespace corvane::qt
