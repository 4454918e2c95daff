// Every command of a window's menus with its keys, and what can be done with the mouse.
#pragma once

#include <QAction>
#include <QString>
#include <QTreeWidget>

class QMenuBar;

namespace norvex {

/// A group for each menu. It is as the menus are when it is made; the keys are those of now after
/// showKeys(). Main thread.
class ShortcutList final : public QTreeWidget {
  Q_OBJECT
 public:
  ShortcutList(QWidget* parent, const QMenuBar& menus);

  /// The command of the current row; null: it has none, or the command is gone.
  [[nodiscard]] QAction* command() const;
  void showKeys();
  /// At which no row is cut off.
  [[nodiscard]] int wholeWidth() const;
  /// Shows the rows that hold every word of `text`, and the groups of which any is left.
  void filter(const QString& text);
};

}  // namespace norvex
