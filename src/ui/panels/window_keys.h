// WindowKeys: the keys of Quit and Close in windows that have no menu of their own.
#pragma once

#include <QObject>

#include <functional>

namespace norvex {

/// Preferences, the manual, panels and sheets have no menu bar, and a sheet keeps keys from the window below
/// it: whoever presses the keys of Quit there is heard as well, and those of Close close the window that has
/// the focus, unless it asks something. Fields that record keys, open menus and the progress of something
/// under way keep them. Main thread.
class WindowKeys final : public QObject {
  Q_OBJECT
 public:
  /// Calls `quit` behind the event that asked for it. The keys are those of the document windows' commands,
  /// as their user chose them.
  explicit WindowKeys(std::function<void()> quit, QObject* parent = nullptr);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> quit_;
};

}  // namespace norvex
