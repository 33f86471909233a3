#pragma once

#include <QEventLoop>
#include <QTimer>
#include <exception>
#include <functional>
#include <vector>

#include "platform/ui/Control.h"

namespace corvane::qt {

class FormView;

/// The one road from a widget to a handler. It knows whether the face itself is writing to widgets, keeps what was
/// postponed, and stores an error out of a handler until the code that waits for the loop can be told.
class Dispatcher {
 public:
  /// `flush` brings all shown forms up to date; it runs after every handler.
  explicit Dispatcher(std::function<void()> flush);

  /// Runs what was postponed, then the handler, then flushes. Does nothing for an empty handler, while the face is
  /// writing or asleep, after a failure, and for a form that is gone.
  void Fire(FormView& view, ui::Handler handler);
  /// Fires once the present event is done with: for widgets that must not change under their own event.
  void Postpone(FormView& view, ui::Handler handler);
  /// The same for what belongs to no form.
  void Postpone(ui::Handler handler) { Keep(nullptr, std::move(handler)); }
  /// Fires all that is postponed.
  void Drain();
  /// Drops what is postponed for a form that goes.
  void Forget(const FormView& view);

  /// Runs a loop that also ends when a handler fails.
  void Run(QEventLoop& loop);
  /// Raises the stored failure, if there is one. The outermost caller takes it away.
  void Rethrow();
  /// A handler is running.
  bool InHandler() const { return depth_ > 0; }
  bool IsWriting() const { return writing_ > 0; }
  /// No handler may run now.
  bool IsHeld() const;

  /// While one lives, changes of widgets are the face's own and fire nothing.
  class Writing {
   public:
    explicit Writing(Dispatcher& dispatcher) : dispatcher_(dispatcher) { ++dispatcher_.writing_; }
    ~Writing() { --dispatcher_.writing_; }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

   private:
    Dispatcher& dispatcher_;
  };

  /// While one lives, no handler runs; timers and postponed events wait.
  class Asleep {
   public:
    explicit Asleep(Dispatcher& dispatcher) : dispatcher_(dispatcher) { ++dispatcher_.asleep_; }
    ~Asleep();
    Asleep(const Asleep&) = delete;
    Asleep& operator=(const Asleep&) = delete;

   private:
    Dispatcher& dispatcher_;
  };

 private:
  struct Event {
    /// Null for what belongs to no form.
    FormView* View;
    ui::Handler Run;
  };

  void Keep(FormView* view, ui::Handler handler);
  void RunHandler(FormView* view, const ui::Handler& handler);
  void Fail(std::exception_ptr failure);

  std::function<void()> flush_;
  std::vector<QEventLoop*> loops_;
  std::vector<Event> postponed_;
  QTimer drain_;
  std::exception_ptr failure_;
  int depth_ = 0;
  int writing_ = 0;
  int asleep_ = 0;
};

}  // namespace corvane::qt
