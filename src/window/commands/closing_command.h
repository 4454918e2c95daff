// Closing a window: at once, or when what is being written or printed has ended.
#pragma once

#include <QObject>

#include <functional>

namespace norvex {

class PrintingCommand;
class SaveAsCommand;
class WindowParts;

/// Asks before a file or a print job is lost with the window. All are borrowed and outlive this. Main thread.
class ClosingCommand final : public QObject {
  Q_OBJECT
 public:
  ClosingCommand(WindowParts& parts, const SaveAsCommand& saving, PrintingCommand& printing);

  /// True if the window stays for now: the user wants that, or it closes by itself when its work has ended.
  bool closesLater();
  /// True if it was to close and does so by itself when its work has ended.
  [[nodiscard]] bool closesWhenDone() const { return closesWhenDone_; }
  /// Something ended: closes the window if it waited for that. The question what to do goes when there is
  /// nothing left to ask: the window closes, as it was to, unless something failed.
  void closeIfDone();
  /// Something failed, and can be tried again as long as there is a window.
  void stay();

 private:
  [[nodiscard]] bool wouldLoseWork() const;

  WindowParts& parts_;
  const SaveAsCommand& saving_;
  PrintingCommand& printing_;
  bool closesWhenDone_ = false, asking_ = false;
  std::function<void()> dismiss_;           ///< the question on the screen
  bool answered_ = false, failed_ = false;  ///< since it was asked: by itself; with something to try again
};

}  // namespace norvex
