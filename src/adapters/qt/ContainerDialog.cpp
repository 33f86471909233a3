#include "adapters/qt/ContainerDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "adapters/qt/Text.h"
#include "adapters/qt/look/Icons.h"
#include "platform/RuntimeError.h"

namespace corvane::qt {
namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int FilledRole = Qt::UserRole + 1;

}  // namespace

ContainerDialog::ContainerDialog(const std::string& title, const DirectoryContainer& root,
                                 ui::ContainersOf containersOf)
    : containersOf_(std::move(containersOf)), tree_(new QTreeWidget) {
  setObjectName("ContainerDialog");
  setWindowTitle(ToQt(title));
  auto* layout = new QVBoxLayout(this);
  auto* label = new QLabel("Choose an organizational unit or &container:");
  label->setBuddy(tree_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  layout->addWidget(label);
  layout->addWidget(tree_);
  layout->addWidget(buttons);
  tree_->setObjectName("tree");
  tree_->setHeaderHidden(true);
  buttons->button(QDialogButtonBox::Ok)->setObjectName("ok");
  buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(tree_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { Fill(*item); });
  connect(tree_, &QTreeWidget::itemSelectionChanged, this,
          [this, buttons] { buttons->button(QDialogButtonBox::Ok)->setEnabled(!tree_->selectedItems().isEmpty()); });
  auto* top = new QTreeWidgetItem(tree_);
  Add(*top, root);
  top->setIcon(0, icons::Get("domain"));
  top->setExpanded(true);
  resize(420, 420);
}

void ContainerDialog::Add(QTreeWidgetItem& item, const DirectoryContainer& container) {
  item.setText(0, ToQt(container.Name));
  item.setData(0, PathRole, ToQt(container.Path));
  item.setIcon(0, icons::Get("alarmcat"));
  item.setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
}

// A branch that cannot be read says so in its place, and is tried again when it is opened the next time.
void ContainerDialog::Fill(QTreeWidgetItem& item) {
  if (item.data(0, FilledRole).toBool()) return;
  qDeleteAll(item.takeChildren());
  try {
    const auto containers = containersOf_(FromQt(item.data(0, PathRole).toString()));
    for (const DirectoryContainer& container : containers) Add(*new QTreeWidgetItem(&item), container);
    item.setData(0, FilledRole, true);
    if (containers.empty()) item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicator);
  } catch (const RuntimeError& error) {
    auto* note = new QTreeWidgetItem(&item, {ToQt(error.Description)});
    note->setFlags(Qt::NoItemFlags);
  }
}

std::optional<DirectoryContainer> ContainerDialog::Chosen() const {
  const auto selected = tree_->selectedItems();
  if (result() != Accepted || selected.isEmpty()) return std::nullopt;
  return DirectoryContainer{FromQt(selected.first()->text(0)), FromQt(selected.first()->data(0, PathRole).toString())};
}

}  // namespace corvane::qt
