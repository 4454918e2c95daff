// The controls of a document window and its inspector: found in what the interface file made, connected, and
// filled with what does not depend on a file's contents.
#pragma once

namespace Ui {
class MainWindowController;
}

namespace norvex {

class MainWindowController;
struct WindowCommands;

/// Both arguments are borrowed and outlive it. Main thread.
class WindowControls final {
 public:
  WindowControls(MainWindowController& controller, WindowCommands& commands)
      : controller_(controller), commands_(commands) {}

  /// Sets the controller's outlets. Once the window is loaded; `ui` is borrowed.
  void take(Ui::MainWindowController& ui);
  /// Connects the outlets to the commands.
  void connect();
  /// Texts, formats and titles of every control, and what tells of the document's file. Safe to repeat.
  void setUp();
  /// Enables what has a picture to act on.
  void validate();

 private:
  void takeOutlets();
  void takeProperties();
  void setUpTitles();
  void setUpToolbarItems();
  void setUpTexts();
  void showFile();

  MainWindowController& controller_;
  WindowCommands& commands_;
  Ui::MainWindowController* ui_ = nullptr;  ///< null before take()
};

}  // namespace norvex
