// Stop: what the user ends of all that a window has under way.
#pragma once

namespace norvex {

class MainWindowController;
struct WindowCommands;

/// Both are borrowed and outlive it. Main thread.
class StopCommand final {
 public:
  StopCommand(MainWindowController& controller, WindowCommands& commands)
      : controller_(controller), commands_(commands) {}

  /// Ends the reading of the file; else the newest work; else the drawing of the picture.
  void stop();
  /// As stop(), but of the work only what examines the picture.
  void stopExamined();

 private:
  bool stopReading();

  MainWindowController& controller_;
  WindowCommands& commands_;
};

}  // namespace norvex
