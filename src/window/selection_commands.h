// SelectionCommands: the commands of the Edit menu that change an existing selection by small steps.
#pragma once

#include <QAction>
#include <QList>
#include <QObject>
#include <QPointF>

class QMenu;

namespace norvex {

class NorvexView;
class ZoomingScrollArea;

/// The picture's view itself knows the mouse only; these commands are the way for everybody else. Two menus,
/// "Move Selection" and "Resize Selection", each with the four directions by 1 point and by 10. Arrow keys
/// move, with Ctrl they size, with Shift the step is 10 points; the keys count while the scroll area has the
/// keyboard. Sizing moves the upper right corner. Without a rectangle the commands are disabled, and arrow
/// keys scroll. Main thread.
class SelectionCommands final : public QObject {
  Q_OBJECT
 public:
  /// Adds both menus to `menu` before `before`. None of the arguments is owned; the view must live as long as
  /// `area`.
  SelectionCommands(QMenu& menu, QAction* before, NorvexView& view, ZoomingScrollArea& area, QObject* parent);

  /// To be called whenever the selection was reported: enables the commands exactly while there is a
  /// rectangle.
  void selectionDidChange();

 private:
  enum class Deed { Move, Resize };
  struct Direction;

  void addMenu(QMenu& menu, QAction* before, Deed deed);
  void addCommand(QMenu& menu, Deed deed, const Direction& direction, double points);

  NorvexView& view_;
  ZoomingScrollArea& area_;
  QList<QAction*> commands_;
};

}  // namespace norvex
