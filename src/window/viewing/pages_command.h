// Going through the pages of a document.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

#include "window/commands/side_room.h"

class QAction;
class QDockWidget;
class QMenu;

namespace norvex {

class NSPDFImageRep;
class PageStrip;
class PageSwitch;
class PageThumbnails;
class WindowParts;
class WindowSizingCommand;

/// Shows another page in the place of the one that is shown: every command then acts on that one, angle and
/// zoom stay, a selection goes. Where there is one page, nothing of it is seen. Parts and sizing outlive it.
/// Main thread.
class PagesCommand final : public QObject {
  Q_OBJECT
 public:
  PagesCommand(WindowParts& parts, WindowSizingCommand& sizing, QObject* parent);

  /// Adds its commands to `menu` and its widgets to the window.
  void setUp(QMenu& menu);
  /// What the window shows is another document, or another state of it. Its thumbnails stay away until
  /// showStrip(): they take no room from a picture whose size is not known.
  void documentDidChange();
  /// Shows the thumbnails beside the picture where they are wanted, or hides them.
  void showStrip();
  /// Counted from 0; where there is no such page, nothing happens.
  void show(int page);
  [[nodiscard]] int count() const;
  [[nodiscard]] int shown() const;

 signals:
  /// Another page is shown, and the view has the size of it.
  void pageDidChange();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] std::shared_ptr<NSPDFImageRep> page() const;
  void addCommand(QMenu& menu, const char* title, const char* name, const QList<QKeySequence>& keys,
                  const std::function<void()>& act, const std::function<bool()>& possible);
  void addStrip(QMenu& menu);
  void validate();
  [[nodiscard]] bool wantsStrip() const;

  WindowParts& parts_;
  SideRoom room_;
  QDockWidget* dock_ = nullptr;
  PageSwitch* switch_ = nullptr;
  PageStrip* strip_ = nullptr;
  PageThumbnails* thumbnails_ = nullptr;
  QAction* stripAction_ = nullptr;
  struct Command {
    QAction* action;
    std::function<bool()> possible;
  };
  QList<Command> commands_;
};

}  // namespace norvex
