// How the picture is looked at in its window: pages, fitting, full screen, the inspector beside it, dragging.
#pragma once

namespace Ui {
class MainWindowController;
}

namespace norvex {

class MainWindowController;
struct WindowCommands;

/// Makes the commands of it, which the controller owns, and adds them to the menus that `ui` made. Once the
/// window is loaded. Main thread.
void setUpViewing(MainWindowController& controller, WindowCommands& commands, Ui::MainWindowController& ui);

}  // namespace norvex
