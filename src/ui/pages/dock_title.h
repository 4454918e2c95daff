// The title above a list that stands beside the picture.
#pragma once

#include <QWidget>

class QDockWidget;

namespace norvex {

/// The dock's title and a button that closes it, with room around them. Main thread.
class DockTitle final : public QWidget {
  Q_OBJECT
 public:
  explicit DockTitle(QDockWidget& dock);
};

}  // namespace norvex
