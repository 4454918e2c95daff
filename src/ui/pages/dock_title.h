// The title above a list that stands beside the picture.
#pragma once

#include <QWidget>

class QDockWidget;
class QLabel;

namespace norvex {

/// The dock's title and a button that closes it, with room around them. Main thread.
class DockTitle final : public QWidget {
  Q_OBJECT
 public:
  explicit DockTitle(QDockWidget& dock);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QLabel* title_;
};

}  // namespace norvex
