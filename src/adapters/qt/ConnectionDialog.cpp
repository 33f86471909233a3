#include "adapters/qt/ConnectionDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "adapters/qt/Text.h"

namespace corvane::qt {
namespace {

constexpr int Width = 520;
constexpr int SpaceForOutcome = 52;

// A value that holds what parts a connection string stands in braces, with a closing one doubled.
std::string Quoted(const std::string& value) {
  if (value.find_first_of(";{}=") == value.npos) return value;
  std::string quoted = "{";
  for (const char character : value) quoted.append(character == '}' ? 2 : 1, character);
  return quoted + "}";
}

}  // namespace

ConnectionDialog::ConnectionDialog(const std::string& title, ui::ConnectionPrompt prompt)
    : prompt_(std::move(prompt)), fields_(new QFormLayout), outcome_(new QLabel) {
  setObjectName("ConnectionDialog");
  setWindowTitle(ToQt(title));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(fields_);
  fields_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  byDriver_ = new QRadioButton("D&river:");
  driver_ = AddList("driver", prompt_.Drivers);
  fields_->addRow(byDriver_, driver_);
  bySource_ = new QRadioButton("Data &source:");
  source_ = AddList("source", prompt_.DataSources);
  fields_->addRow(bySource_, source_);
  server_ = AddLine(*fields_, "server", "S&erver:");
  port_ = AddLine(*fields_, "port", "&Port:");
  database_ = AddLine(*fields_, "database", "&Database:");
  user_ = AddLine(*fields_, "user", "&User name:");
  password_ = AddLine(*fields_, "password", "Pass&word:");
  password_->setEchoMode(QLineEdit::Password);
  other_ = AddLine(*fields_, "other", "&Other options:");
  other_->setPlaceholderText("OPTION=value;OPTION=value");
  outcome_->setObjectName("outcome");
  outcome_->setTextFormat(Qt::PlainText);
  outcome_->setWordWrap(true);
  outcome_->setMinimumHeight(SpaceForOutcome);
  outcome_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  layout->addWidget(outcome_);
  AddButtons();
  for (auto* choice : {byDriver_, bySource_}) connect(choice, &QRadioButton::toggled, this, [this] { Changed(); });
  (prompt_.Drivers.empty() && !prompt_.DataSources.empty() ? bySource_ : byDriver_)->setChecked(true);
  resize(Width, sizeHint().height());
}

QComboBox* ConnectionDialog::AddList(const char* name, const std::vector<std::string>& items) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  for (const std::string& item : items) list->addItem(ToQt(item));
  return list;
}

QLineEdit* ConnectionDialog::AddLine(QFormLayout& fields, const char* name, const char* caption) {
  auto* line = new QLineEdit;
  line->setObjectName(name);
  fields.addRow(caption, line);
  return line;
}

void ConnectionDialog::AddButtons() {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  test_ = buttons->addButton("&Test Connection", QDialogButtonBox::ResetRole);
  test_->setObjectName("test");
  ok_ = buttons->button(QDialogButtonBox::Ok);
  ok_->setObjectName("ok");
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(test_, &QPushButton::clicked, this, [this] { Test(); });
  layout()->addWidget(buttons);
}

// A data source knows its server; one that has none to choose from cannot be used.
void ConnectionDialog::Changed() {
  const bool byDriver = byDriver_->isChecked();
  driver_->setEnabled(byDriver);
  source_->setEnabled(!byDriver);
  for (QLineEdit* line : {server_, port_}) line->setEnabled(byDriver);
  const bool canOpen = (byDriver ? driver_ : source_)->count() > 0;
  for (QPushButton* button : {test_, ok_}) button->setEnabled(canOpen);
  outcome_->setText(canOpen ? QString() : tr("None is set up on this computer."));
}

void ConnectionDialog::Test() {
  setCursor(Qt::WaitCursor);
  const std::string failure = prompt_.Test(ConnectionString());
  unsetCursor();
  outcome_->setText(failure.empty() ? tr("The connection was opened.") : ToQt(failure));
}

std::string ConnectionDialog::ConnectionString() const {
  const bool byDriver = byDriver_->isChecked();
  std::string text =
      byDriver ? "DRIVER={" + FromQt(driver_->currentText()) + "};" : "DSN=" + FromQt(source_->currentText()) + ";";
  const auto add = [&](const char* key, const QLineEdit& line) {
    if (line.isEnabled() && !line.text().isEmpty()) text += key + Quoted(FromQt(line.text())) + ";";
  };
  add("SERVER=", *server_);
  add("PORT=", *port_);
  add("DATABASE=", *database_);
  add("UID=", *user_);
  add("PWD=", *password_);
  const std::string other = FromQt(other_->text().trimmed());
  return text + other + (other.empty() || other.back() == ';' ? "" : ";");
}

std::optional<std::string> ConnectionDialog::Chosen() const {
  return result() == Accepted ? std::optional(ConnectionString()) : std::nullopt;
}

}  // namespace corvane::qt
