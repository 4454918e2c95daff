// Taking something out of a widget as a file, with the mouse.
#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>
#include <optional>

class QMouseEvent;
class QWidget;

namespace norvex {

/// A file that exists only once it has been dropped.
struct DraggedFile {
  QString name;  ///< without a folder
  std::function<QByteArray()>
      bytes;  ///< asked when the file is dropped; may wait; empty: there is no file after all
};

/// Watches a widget: a drag with the Control key held drags a file out of it, and the widget sees nothing of
/// that drag. Without the key nothing changes, so that drags inside the widget keep their meaning; where it
/// has none, no key may be asked for. Main thread.
class DragSource final : public QObject {
  Q_OBJECT
 public:
  using Offer = std::function<std::optional<DraggedFile>()>;

  /// `offer` is asked when a drag begins; nothing: there is nothing to drag.
  DragSource(QWidget& widget, Offer offer, QObject* parent, Qt::KeyboardModifiers held = Qt::ControlModifier);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool press(const QMouseEvent& event);
  bool move(const QMouseEvent& event);

  QWidget& widget_;
  Offer offer_;
  Qt::KeyboardModifiers held_;
  std::optional<QPoint> pressed_;
};

}  // namespace norvex
