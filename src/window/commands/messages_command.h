// The window's messages about its picture: progress, problems, a file that changed.
#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <utility>

#include "base/result.h"
#include "picture/image_rep.h"
#include "ui/picture/message_bar.h"
#include "window/commands/watched_picture.h"

namespace norvex {

class StoppableProcess;
class WindowParts;

/// Calls `ring` after so many milliseconds unless `context` has gone by then. Main thread.
using Alarm = std::function<void(int milliseconds, QObject* context, std::function<void()> ring)>;

/// One message at a time in the window's bar, with what can be done about it; the card tells what is under
/// way, and after a while the bar asks whether to go on. The parts outlive it. Main thread.
class MessagesCommand final : public QObject {
  Q_OBJECT
 public:
  /// How long a picture is waited for before the user is asked; milliseconds.
  static constexpr int patienceMs = 20'000;

  explicit MessagesCommand(WindowParts& parts);

  /// Default: timers.
  void setAlarm(Alarm alarm) { alarm_ = std::move(alarm); }

  /// A picture is shown that this process draws (null: it cannot be stopped): its problems are told from now
  /// on.
  void watchPicture(std::shared_ptr<StoppableProcess> process);
  /// Makes the card follow the work and the drawing.
  void followRendering();
  void showProblem(const Error& error);
  void openingWasStopped();
  /// Stops the drawing until it is tried again; what a program had drawn until then is shown, where it is
  /// known.
  void stopDrawing();
  void fileDidChange();
  void fileDidDisappear();
  /// The file that was read again is no picture any more.
  void pictureStays(const Error& error);
  /// The picture's PDF form could not be made.
  void showPdfFailure(const Error& error);
  /// The first button of the bar was pressed, or the second one.
  void actionChosen();
  void otherChosen();

 signals:
  /// Something was drawn, or is about to be.
  void drawingChanged();
  /// The file shall be read again from the start.
  void reloadChosen();
  /// The opening that was stopped shall begin anew.
  void openingChosen();
  /// The work that is waited for shall end.
  void stopChosen();

 private:
  void tell(MessageBar::Kind kind, const QString& text, const QString& title = {},
            std::function<void()> action = {}, const QString& details = {});
  void retryDrawing();
  /// Goes on until it is asked for and has come, or cannot come.
  void showBegun(bool isAsked);
  void tellWhatWasBegun();
  void followPatience();
  void waitOn();
  void askWhetherToWait();
  void tellWhatStopped();

  WindowParts& parts_;
  std::shared_ptr<StoppableProcess> process_;
  WatchedPicture watched_;
  std::function<void()> action_, other_;
  Alarm alarm_;
  int spell_ = 0;  ///< number of the wait that is going on, or that was the last
  bool waiting_ = false, asking_ = false;
  bool stopIsTold_ = true;     ///< or need not be
  bool begunIsShown_ = false;  ///< in the place of the picture, since the user has stopped it
};

}  // namespace norvex
