// DropMark: shows that a window takes what is dragged over it.
#pragma once

#include <QWidget>

namespace norvex {

/// A frame in the colour of what is chosen, just inside the edges of `window`, over everything in it. It
/// takes neither the mouse nor the drag. Shown at once, gone when it is destroyed; owned by the window. Main
/// thread.
class DropMark final : public QWidget {
  Q_OBJECT
 public:
  explicit DropMark(QWidget& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace norvex
