// Rectangles that were selected before.
#pragma once

#include <QList>
#include <QObject>
#include <QRectF>

class QAction;
class QMenu;

namespace norvex {

class NorvexView;
class WindowParts;

/// Selects `rect` (view coordinates), as far as it lies in the view; an empty one clears the selection.
void selectRectangle(NorvexView& view, const QRectF& rect);

/// Undo and Redo of what was selected, and a rectangle by its numbers. Only what was the selection when
/// nothing was dragged counts. The parts outlive it. Main thread.
class SelectionHistory final : public QObject {
  Q_OBJECT
 public:
  SelectionHistory(WindowParts& parts, QObject* parent);

  /// Adds its commands at the top of `menu`; that with numbers is enabled as `all` is, which selects
  /// everything.
  void setUp(QMenu& menu, const QAction& all);
  /// The selection was reported: it may be another one.
  void selectionDidChange();
  /// Another picture: nothing of what was selected means anything there.
  void clear();

 private:
  void step(QList<QRectF>& from, QList<QRectF>& to);
  void askForNumbers();
  void validate();

  WindowParts& parts_;
  QAction *undo_ = nullptr, *redo_ = nullptr, *numbers_ = nullptr;
  QList<QRectF> before_, after_;  ///< the nearest last
  QRectF now_;                    ///< empty: nothing is selected
};

}  // namespace norvex
