#pragma once

#include <QTextBrowser>
#include <string>

namespace corvane::qt {

/// The help pages of a folder, <context>.html each and index.html for the contents. It opens nothing outside of it.
class HelpWindow : public QTextBrowser {
 public:
  explicit HelpWindow(std::string folder);

  /// Shows a topic; a context without a page shows the contents.
  void ShowTopic(int context);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool IsInside(const QUrl& url) const;

  QString folder_;
};

}  // namespace corvane::qt
