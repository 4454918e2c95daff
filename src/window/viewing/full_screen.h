// The picture alone on the screen.
#pragma once

#include <QObject>

class QAction;
class QShortcut;

namespace norvex {

class WindowParts;

/// While the window is in full screen nothing but the picture is shown; the pointer at the upper edge brings
/// menu and toolbar back until it goes down again, and Escape leaves where no selection has a use for it. The
/// parts outlive it. Main thread.
class FullScreen final : public QObject {
  Q_OBJECT
 public:
  FullScreen(WindowParts& parts, QObject* parent);

  /// `deselect` has the Escape key while it is enabled, unless it was given others. Not owned.
  void setUp(QAction& deselect);
  void set(bool on);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void follow();
  /// Escape is the full screen's where `deselect` does not have it.
  void validate();
  void showBars(bool shown);

  WindowParts& parts_;
  QAction* deselect_ = nullptr;
  QShortcut* escape_ = nullptr;
  bool on_ = false;  ///< what the bars are arranged for
  bool wasMaximized_ = false;
};

}  // namespace norvex
