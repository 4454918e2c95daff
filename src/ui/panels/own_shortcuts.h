// The keys that the user gave to commands in the place of those that they come with.
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class QMenu;
class QSettings;

namespace norvex {

/// A command as people read it: without the mark of its mnemonic and the dots of commands that ask first.
[[nodiscard]] QString plainTitle(QString text);

/// Kept by the commands' object names in shortcuts.ini of the settings folder. What cannot be understood
/// there, and keys that another command has, are passed over. Main thread.
class OwnShortcuts final : public QObject {
  Q_OBJECT
 public:
  /// Of the whole program.
  static OwnShortcuts& shared();

  /// Gives the commands of the window's menus their keys, now and whenever somebody chooses others. To be
  /// called again when commands were added.
  void apply(QWidget& window);
  /// Why the command cannot have these keys, a sentence; empty: it can.
  [[nodiscard]] static QString complaintAbout(const QWidget& window, const QAction& command,
                                              const QKeySequence& keys);
  /// False: commands without a name keep their keys.
  [[nodiscard]] static bool mayChange(const QAction& command);
  /// An empty list: the command has no keys. Like the two below it answers why nothing was changed, a
  /// sentence: mostly that the file cannot be written. Empty: it is done.
  [[nodiscard]] QString set(const QAction& command, const QList<QKeySequence>& keys);
  /// The keys that the command came with, unless another command of the window has one of them now.
  [[nodiscard]] QString reset(const QWidget& window, const QAction& command);
  /// Those of every command.
  [[nodiscard]] QString resetAll();
  [[nodiscard]] bool isOwn(const QAction& command) const;
  [[nodiscard]] bool hasAny() const;

 signals:
  /// Commands have other keys now.
  void changed();

 private:
  void applyToAll();
  QString write(const std::function<void(QSettings&)>& change);
  QList<QPointer<QWidget>> windows_;
};

}  // namespace norvex
