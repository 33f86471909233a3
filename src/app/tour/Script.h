#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <vector>

#include "app/tour/Driver.h"

namespace corvane::tour {

/// A list of steps that runs while the program serves its events, modal windows included. Each step waits until it may
/// begin, for ten seconds at the most, and then acts.
class Script : public QObject {
 public:
  explicit Script(std::string pictureFolder) : folder_(std::move(pictureFolder)) {}

  /// Where the pictures go.
  const std::string& Folder() const { return folder_; }

  using Condition = std::function<bool()>;
  using Act = std::function<void()>;

  /// Acts as soon as the condition holds.
  void When(std::string what, Condition ready, Act act);
  /// Acts as soon as the window of the form is on the screen.
  void On(const QString& form, Act act);
  /// Takes a numbered picture of the form's window.
  void Picture(const QString& form, const std::string& name);
  /// Takes a picture of the message box of that title and presses one of its buttons.
  void Answer(const QString& title, const std::string& name, QMessageBox::StandardButton button);

  void Start();
  /// Empty when every step was done.
  const std::string& Failed() const { return failed_; }

 private:
  struct Step {
    std::string What;
    Condition Ready;
    Act Do;
  };

  void Take(QWidget& window, const std::string& name);
  void Advance();
  void Fail(const std::string& why);

  std::string folder_;
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  int pictures_ = 0;
  int waited_ = 0;
  std::string failed_ = "the tour did not begin";
};

}  // namespace corvane::tour
