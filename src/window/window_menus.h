// WindowMenus: what each command of a document window calls, its keys, and when it is enabled.
#pragma once

namespace Ui {
class MainWindowController;
}

namespace norvex {

class MainWindowController;
class SelectionCommands;
struct WindowCommands;

/// The menus and the toolbar. Both arguments are borrowed and outlive it. Main thread.
class WindowMenus final {
 public:
  WindowMenus(MainWindowController& controller, WindowCommands& commands)
      : controller_(controller), commands_(commands) {}

  /// Connects what the interface file made and adds what it does not hold: printing, export, the choices of
  /// viewing, the picture's own menu. Once the window is loaded; `ui` is borrowed.
  void setUp(Ui::MainWindowController& ui);
  /// Enables what the document and its picture allow.
  void validate();
  /// The same for what needs a selection.
  void validateSelection();
  /// The Touch Bar as a strip below the picture, and its command.
  void showTouchBar(bool on);

 private:
  void connectFile();
  void connectEdit();
  void connectView();
  void connectWindow();
  void addPrinting();
  void addExport();
  void addPictureMenu();
  void setUpToolbar();
  void rotateBy(double degrees);

  MainWindowController& controller_;
  WindowCommands& commands_;
  Ui::MainWindowController* ui_ = nullptr;          ///< null before the set-up
  SelectionCommands* selectionCommands_ = nullptr;  ///< owned by the controller
};

}  // namespace norvex
