// What a reader of a document does in its window: a password, the layers to see, text to find and to take.
#pragma once

class QMenu;

namespace Ui {
class MainWindowController;
}

namespace norvex {

class LiveFile;
class MainWindowController;
class PagesCommand;
struct WindowCommands;

/// Makes the commands of it, which the controller owns, and has the document read again with what is chosen.
/// `menu` takes the one that is about the document, the Edit menu of `ui` those that are about its text.
/// Main thread.
void setUpReader(MainWindowController& controller, WindowCommands& commands, LiveFile& live,
                 PagesCommand& pages, Ui::MainWindowController& ui, QMenu& menu);

}  // namespace norvex
