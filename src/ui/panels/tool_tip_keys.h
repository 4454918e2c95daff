// The keys of a command in its button's tool tip.
#pragma once

#include <QObject>

class QToolBar;

namespace norvex {

/// Shows the tool tips of the buttons of a tool bar with the first keys that their commands have then, if
/// they have any. The texts themselves stay as they are. Owned by the tool bar. Main thread.
class ToolTipKeys final : public QObject {
  Q_OBJECT
 public:
  explicit ToolTipKeys(QToolBar& toolbar);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace norvex
