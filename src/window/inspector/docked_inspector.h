// The inspector beside the picture, in the document's window.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>

#include "window/commands/side_room.h"

class QAction;
class QDockWidget;

namespace norvex {

class InspectorCommand;
class WindowParts;
class WindowSizingCommand;

/// A choice of the user, kept from one window to the next: the inspector is a window of its own, or a panel
/// at the right edge of the document's. While it is a panel, windows begin with it as it was shown last, and
/// as wide as somebody drew it, but never wider than half the window unless its controls need that. Parts and
/// commands outlive it. Main thread.
class DockedInspector final : public QObject {
  Q_OBJECT
 public:
  DockedInspector(WindowParts& parts, InspectorCommand& inspector, WindowSizingCommand& sizing,
                  QObject* parent);

  /// Puts the inspector where it is to be, and makes the command for it.
  QAction* setUp();
  /// The command that goes from the picture to the inspector and back with the keyboard.
  QAction* makeFocusAction();
  [[nodiscard]] bool isDocked() const { return !dock_.isNull(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setDocked(bool docked);
  void dock();
  void release();
  /// Shows or hides the panel and gives the window the width for it.
  void setPanelShown(bool shown);
  /// Gives the panel its width in the window as it is.
  void fitPanel();
  /// Remembers the width if the edge of the panel was drawn to another place.
  void keepWidth();
  void switchFocus();

  WindowParts& parts_;
  InspectorCommand& inspector_;
  SideRoom room_;
  QPointer<QDockWidget> dock_;  ///< null: the inspector is a window
  QSize ownLeast_;              ///< of the inspector as a window
  bool shown_ = false;          ///< the panel, but in a full screen
  int drawnFrom_ = 0;           ///< the panel's width when its edge was taken
  int wanted_ = 0;              ///< width that was chosen by hand; 0: the panel's own
};

}  // namespace norvex
