// A toolbar that keeps its items in sight.
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QToolBar;

namespace norvex {

/// Shows the items' labels where there is room for all of them, otherwise the icons alone: nothing goes into
/// the toolbar's own menu before that. The bar outlives it. Main thread.
class ToolbarLabels final : public QObject {
  Q_OBJECT
 public:
  ToolbarLabels(QToolBar& bar, QList<QAction*> labelled, QObject* parent);

  /// To be called when an item has another label; it follows the bar's size by itself.
  void fit();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setLabelled(bool labelled);

  QToolBar& bar_;
  const QList<QAction*> labelled_;
};

}  // namespace norvex
