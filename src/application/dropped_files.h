// Files that are dropped on a window.
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

class QMimeData;
class QWidget;

namespace norvex {

/// The local files in what is dragged; empty when it holds none.
[[nodiscard]] QList<QUrl> filesIn(const QMimeData* data);

/// Makes windows take dropped files. Main thread.
class FileDropTarget final : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

  /// The window takes files from now on; not owned.
  void watch(QWidget* window);
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void filesDropped(const QList<QUrl>& urls);
};

}  // namespace norvex
