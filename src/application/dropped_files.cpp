#include "application/dropped_files.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include "ui/style/drop_mark.h"

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
  const QEvent::Type type = event->type();
  if (type == QEvent::DragLeave || type == QEvent::Drop) delete mark_;
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
    return QObject::eventFilter(watched, event);
  auto* drop = static_cast<QDropEvent*>(event);
  const QList<QUrl> files = filesIn(drop->mimeData());
  if (files.isEmpty() || drop->source()) return false;  // a drag out of our own window is no file to open
  drop->setDropAction(Qt::CopyAction);
  drop->accept();
  if (type == QEvent::DragEnter) {
    delete mark_;
    if (auto* window = qobject_cast<QWidget*>(watched)) mark_ = new DropMark(*window);
  }
  if (type == QEvent::Drop) emit filesDropped(files);
  return true;
}

}  // namespace norvex
