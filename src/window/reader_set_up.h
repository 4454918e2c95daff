// What a reader of a document does in its window: a password, the layers to see, text to find and to take.
#pragma once

class QMenu;

namespace norvex {

class LiveFile;
class LoadingCommand;
class MainWindowController;
class PagesCommand;
class WindowSizingCommand;

/// Makes the commands of it, which the controller owns, and has the document read again with what is chosen.
/// `menu` takes the one that is about the document, the window's Edit menu those that are about its text.
/// Main thread.
void setUpReader(MainWindowController& controller, LoadingCommand& loading, LiveFile& live,
                 PagesCommand& pages, WindowSizingCommand& sizing, QMenu& menu);

}  // namespace norvex
