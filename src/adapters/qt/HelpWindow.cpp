#include "adapters/qt/HelpWindow.h"

#include <QFileInfo>
#include <QKeyEvent>

#include "adapters/qt/Text.h"

namespace corvane::qt {

HelpWindow::HelpWindow(std::string folder) : folder_(QFileInfo(ToQt(folder)).canonicalFilePath()) {
  setWindowTitle("Corvane Help");
  setObjectName("HelpWindow");
  setOpenExternalLinks(false);
  document()->setDocumentMargin(20);
  resize(720, 560);
}

void HelpWindow::ShowTopic(int context) {
  QString page = folder_ + "/" + QString::number(context) + ".html";
  if (context == 0 || !QFileInfo::exists(page)) page = folder_ + "/index.html";
  setSource(QUrl::fromLocalFile(page));
  show();
  raise();
  activateWindow();
}

bool HelpWindow::IsInside(const QUrl& url) const {
  const QString path = QFileInfo(url.toLocalFile()).canonicalFilePath();
  return url.isLocalFile() && !folder_.isEmpty() && path.startsWith(folder_ + "/");
}

QVariant HelpWindow::loadResource(int type, const QUrl& name) {
  const QUrl url = source().isValid() ? source().resolved(name) : name;
  return IsInside(url) ? QTextBrowser::loadResource(type, url) : QVariant();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else
    QTextBrowser::keyPressEvent(event);
}

}  // namespace corvane::qt
