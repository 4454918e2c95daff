// Files that are dropped on a window.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QUrl>

class QMimeData;
class QWidget;

namespace norvex {

class DropMark;

/// The local files in what is dragged; empty when it holds none.
[[nodiscard]] QList<QUrl> filesIn(const QMimeData* data);

/// Makes windows take dropped files, and show that they do while files are over them. Main thread.
class FileDropTarget final : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

  /// The window takes files from now on; not owned.
  void watch(QWidget* window);
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void filesDropped(const QList<QUrl>& urls);

 private:
  QPointer<DropMark> mark_;  ///< in the window that the files are over
};

}  // namespace norvex
