#pragma once

#include <QDialog>
#include <optional>

#include "platform/ui/UiHost.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace corvane::qt {

/// Shows a tree of containers, branch by branch as they are opened, and takes the choice of one.
class ContainerDialog : public QDialog {
 public:
  ContainerDialog(const std::string& title, const DirectoryContainer& root, ui::ContainersOf containersOf);

  /// What was chosen with OK; nothing after Cancel.
  std::optional<DirectoryContainer> Chosen() const;

 private:
  void Add(QTreeWidgetItem& item, const DirectoryContainer& container);
  void Fill(QTreeWidgetItem& item);

  ui::ContainersOf containersOf_;
  QTreeWidget* tree_;
};

}  // namespace corvane::qt
