#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "platform/ui/UiHost.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace corvane::qt {

/// Puts a connection string together: from a driver with the computer and the database, or from a data source that is
/// set up already; with the account, and whatever else the driver wants. The string can be tried out.
class ConnectionDialog : public QDialog {
 public:
  ConnectionDialog(const std::string& title, ui::ConnectionPrompt prompt);

  /// The string, when OK was pressed.
  std::optional<std::string> Chosen() const;

 private:
  QComboBox* AddList(const char* name, const std::vector<std::string>& items);
  QLineEdit* AddLine(QFormLayout& fields, const char* name, const char* caption);
  void AddButtons();
  void Changed();
  void Test();
  std::string ConnectionString() const;

  ui::ConnectionPrompt prompt_;
  QFormLayout* fields_;
  QRadioButton* byDriver_;
  QRadioButton* bySource_;
  QComboBox* driver_;
  QComboBox* source_;
  QLineEdit *server_, *port_, *database_, *user_, *password_, *other_;
  QLabel* outcome_;
  QPushButton *test_ = nullptr, *ok_ = nullptr;
};

}  // namespace corvane::qt
