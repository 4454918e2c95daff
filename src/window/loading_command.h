// Reading the document's file, on another thread where the window is on the screen.
#pragma once

#include <QObject>
#include <QUrl>

#include <memory>

#include "picture/process/reader_choices.h"

namespace norvex {

struct DocumentContents;
class WindowParts;

/// Reads what the document is to show. What is read in the place of a picture that is shown is drawn once on
/// trial: a program that draws nothing any more is no picture. The parts outlive it. Main thread.
class LoadingCommand final : public QObject {
  Q_OBJECT
 public:
  explicit LoadingCommand(WindowParts& parts) : parts_(parts) {}
  ~LoadingCommand() override;

  /// Reads while the caller waits; finished() follows before it returns.
  void readNow();
  /// Reads on another thread, but waits the moment that a quick document takes. What was being read is given
  /// up.
  void start();
  /// Gives up what is being read. False: nothing was.
  bool stop();
  /// From the next reading on, for as long as the window is there. A password stays in its memory alone.
  void setPassword(const QString& password) { choices_.password = password; }
  [[nodiscard]] QString password() const { return choices_.password; }
  void setLayers(const QList<PictureLayer>& layers) { choices_.layers = layers; }
  [[nodiscard]] bool isReading() const { return reading_ != nullptr; }

 signals:
  /// `again`: a picture is shown, which was there before this one was read.
  void finished(const norvex::DocumentContents& contents, bool again);

 private:
  struct Reading;
  void take();

  WindowParts& parts_;
  ReaderChoices choices_;
  std::shared_ptr<Reading> reading_;  ///< null while nothing is read
};

}  // namespace norvex
