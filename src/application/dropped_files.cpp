#include "application/dropped_files.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

namespace norvex {

QList<QUrl> filesIn(const QMimeData* data) {
  QList<QUrl> files;
  if (!data || !data->hasUrls()) return files;
  for (const QUrl& url : data->urls())
    if (url.isLocalFile()) files << url;
  return files;
}

void FileDropTarget::watch(QWidget* window) {
  window->setAcceptDrops(true);
  window->removeEventFilter(this);
  window->installEventFilter(this);
}

bool FileDropTarget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
      event->type() != QEvent::Drop)
    return QObject::eventFilter(watched, event);
  auto* drop = static_cast<QDropEvent*>(event);
  const QList<QUrl> files = filesIn(drop->mimeData());
  if (files.isEmpty() || drop->source()) return false;  // a drag out of our own window is no file to open
  drop->setDropAction(Qt::CopyAction);
  drop->accept();
  if (event->type() == QEvent::Drop) emit filesDropped(files);
  return true;
}

}  // namespace norvex
