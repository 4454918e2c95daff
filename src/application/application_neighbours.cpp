// The application: going from a picture to those beside it, in the same place.
#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>

#include "application/document_application.h"
#include "application/folder_neighbours.h"
#include "base/localized_string.h"
#include "document/document.h"
#include "document/document_window_controller.h"

namespace norvex {
void DocumentApplication::addNeighbours(QMainWindow* window) {
  auto* menu = window->findChild<QMenu*>(QStringLiteral("goMenu"));
  if (!menu) return;
  menu->addSeparator();
  const auto add = [&](const char* title, const char* name, const QKeySequence& key, int step) {
    QAction* action = menu->addAction(localizedString(title));
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, [this, window, step] { showNeighbour(window, step); });
  };
  add("Next Picture in F&older", "nextPictureAction", Qt::ALT | Qt::Key_Right, 1);
  add("Previous Pictu&re in Folder", "previousPictureAction", Qt::ALT | Qt::Key_Left, -1);
}

void DocumentApplication::showNeighbour(QMainWindow* window, int step) {
  const QUrl url = neighbourOf(QUrl::fromLocalFile(window->windowFilePath()), step);
  if (url.isEmpty()) return QApplication::beep();
  // One that is open already, by whatever name, comes to the front, and this one stays.
  if (!documents_.documentForURL(url)) replaced_.insert(url, window);
  documents_.openDocuments({url});
}

void DocumentApplication::replaceWindow(Document* document) {
  const QPointer<QMainWindow> old = replaced_.take(document->fileURL());
  if (!old) return;
  const bool fills = old->isFullScreen(), isMaximized = old->isMaximized();
  old->close();
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (!qobject_cast<QMainWindow*>(widget) || widget->windowFilePath() != document->fileURL().toLocalFile())
      continue;
    if (isMaximized) widget->showMaximized();
    auto* fullScreen = widget->findChild<QAction*>(QStringLiteral("fullScreenAction"));
    if (fills && fullScreen && !fullScreen->isChecked()) fullScreen->trigger();
  }
}

DocumentWindowController* DocumentApplication::shownBefore(const QUrl& url) const {
  const QMainWindow* const old = replaced_.value(url);
  if (!old) return nullptr;
  for (const Document* document : documents_.documents())
    if (document->fileURL() == QUrl::fromLocalFile(old->windowFilePath()))
      return document->windowController();
  return nullptr;
}

}  // namespace norvex
