// The command objects of a document window, and how they hang together.
#pragma once

#include "window/commands/closing_command.h"
#include "window/commands/copy_command.h"
#include "window/commands/inspector_command.h"
#include "window/commands/messages_command.h"
#include "window/commands/printing_command.h"
#include "window/commands/save_as_command.h"
#include "window/commands/save_to_command.h"
#include "window/commands/touch_bar_command.h"
#include "window/commands/window_producers.h"
#include "window/commands/window_sizing_command.h"
#include "window/contents_display.h"
#include "window/inspector/encoding_command.h"
#include "window/loading_command.h"
#include "window/shown_view.h"
#include "window/stop_command.h"
#include "window/window_controls.h"
#include "window/window_menus.h"

namespace norvex {

class MainWindowController;

/// One object a command. The controller owns them, hands itself to them as the parts of its window, and
/// outlives them. Main thread.
struct WindowCommands {
  /// Makes and connects them; none looks at the window before it is loaded.
  explicit WindowCommands(MainWindowController& controller);
  WindowCommands(const WindowCommands&) = delete;
  WindowCommands& operator=(const WindowCommands&) = delete;

  WindowProducers producers;
  InspectorCommand inspector;
  ContentsDisplay contents;
  EncodingCommand encoding;
  LoadingCommand loading;
  MessagesCommand messages;
  CopyCommand copying;
  SaveToCommand savingTo;
  SaveAsCommand savingAs;
  PrintingCommand printing;
  ClosingCommand closing;
  WindowSizingCommand sizing;
  TouchBarCommand touchBar;
  StopCommand stopping;
  ShownView shownView;
  WindowControls controls;
  WindowMenus menus;

 private:
  void connectReading(MainWindowController& controller);
  void connectResults(MainWindowController& controller);
};

}  // namespace norvex
