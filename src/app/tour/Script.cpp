#include "app/tour/Script.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "platform/Conversions.h"

namespace corvane::tour {
namespace {

constexpr int PollMs = 20;
constexpr int PatienceMs = 10000;

}  // namespace

void Script::When(std::string what, Condition ready, Act act) {
  steps_.push_back({std::move(what), std::move(ready), std::move(act)});
}

void Script::On(const QString& form, Act act) {
  When(
      form.toStdString() + " is shown", [form] { return Driver::Window(form) != nullptr; }, std::move(act));
}

void Script::Picture(const QString& form, const std::string& name) {
  On(form, [this, form, name] { Take(*Driver::Window(form), name); });
}

void Script::Answer(const QString& title, const std::string& name, QMessageBox::StandardButton button) {
  When(
      "the box " + title.toStdString() + " is shown",
      [title] { return Driver::Box() != nullptr && Driver::Box()->windowTitle() == title; },
      [this, name, button] {
        Take(*Driver::Box(), name);
        QTest::mouseClick(Driver::Box()->button(button), Qt::LeftButton);
      });
}

void Script::Take(QWidget& window, const std::string& name) {
  const std::string file = folder_ + "/" + PadZero(++pictures_, 2) + "-" + name + ".png";
  if (!window.grab().save(QString::fromStdString(file))) throw Failure("the picture " + file + " cannot be written");
}

void Script::Start() {
  failed_ = "the program ended before the tour did";
  QTimer::singleShot(PollMs, this, [this] { Advance(); });
}

// The next look is asked for before a step acts: what it opens may serve events until it is closed again.
void Script::Advance() {
  if (next_ == steps_.size()) {
    failed_.clear();
    return;
  }
  QTimer::singleShot(PollMs, this, [this] { Advance(); });
  const Step& step = steps_[next_];
  try {
    if (step.Ready()) {
      waited_ = 0;
      ++next_;
      if (next_ == steps_.size()) failed_.clear();
      step.Do();
    } else if ((waited_ += PollMs) > PatienceMs) {
      Fail("waited in vain until " + step.What);
    }
  } catch (const Failure& failure) {
    Fail(failure.what());
  }
}

void Script::Fail(const std::string& why) {
  failed_ = why;
  next_ = steps_.size();
  std::fprintf(stderr, "tour: %s\n", why.c_str());
  std::_Exit(1);
}

}  // namespace corvane::tour
