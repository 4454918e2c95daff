// QuitKey: the keys of Quit in windows that have no menu of their own.
#pragma once

#include <QObject>

#include <functional>

namespace norvex {

/// Preferences, the manual, panels and sheets have no menu bar, and a sheet keeps keys from the window below
/// it: whoever presses the keys of Quit there is heard as well. Fields that record keys, open menus and the
/// progress of something under way keep them. Main thread.
class QuitKey final : public QObject {
  Q_OBJECT
 public:
  /// Calls `quit` behind the event that asked for it. The keys are those of the document windows' command,
  /// as their user chose them.
  explicit QuitKey(std::function<void()> quit, QObject* parent = nullptr);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> quit_;
};

}  // namespace norvex
