#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace corvane::qt {

enum class WindowFrame { Normal, None };

/// How a form is placed: a function that puts its widgets into an empty one, and the frame of its window.
struct FormEntry {
  std::function<void(QWidget&)> Place;
  WindowFrame Frame = WindowFrame::Normal;
};

/// The placement of every form, by the form's name.
class FormRegistry {
 public:
  /// All forms of the console.
  static FormRegistry Console();

  void Add(std::string name, FormEntry entry) { entries_[std::move(name)] = std::move(entry); }
  /// Raises `ElementNotFound` for a form that is not registered.
  const FormEntry& At(std::string_view name) const;
  std::vector<std::string> Names() const;

 private:
  std::map<std::string, FormEntry, std::less<>> entries_;
};

}  // namespace corvane::qt
