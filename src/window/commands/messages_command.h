// What the window tells about its picture: progress, problems, a file that changed.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

#include "base/result.h"

namespace norvex {

class StoppableProcess;
class WindowParts;

/// One message at a time in the window's bar, with what can be done about it; the card tells what is under
/// way. The parts outlive it. Main thread.
class MessagesCommand final : public QObject {
  Q_OBJECT
 public:
  explicit MessagesCommand(WindowParts& parts) : parts_(parts) {}

  /// A picture is shown that this process draws (null: it cannot be stopped): its problems are told from now
  /// on.
  void watchPicture(std::shared_ptr<StoppableProcess> process);
  /// Makes the card follow the work and the drawing.
  void followRendering();
  void showProblem(const Error& error);
  void openingWasStopped();
  /// Stops the drawing until it is tried again.
  void stopDrawing();
  void fileDidChange();
  void fileDidDisappear();
  /// What was read again is no picture any more.
  void pictureStays(const Error& error);
  /// The picture's PDF form could not be made.
  void showPdfFailure(const Error& error);
  /// The button of the bar was pressed.
  void actionChosen();

 signals:
  /// Something was drawn, or is about to be.
  void drawingChanged();
  /// The file shall be read again from the start.
  void reloadChosen();
  /// The opening that was stopped shall begin anew.
  void openingChosen();

 private:
  void retryDrawing();

  WindowParts& parts_;
  std::shared_ptr<StoppableProcess> process_;
  std::function<void()> action_;
};

}  // namespace norvex
