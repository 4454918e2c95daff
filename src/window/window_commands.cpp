#include "window/window_commands.h"

#include "display/norvex_view.h"
#include "window/main_window_controller.h"

namespace norvex {

WindowCommands::WindowCommands(MainWindowController& controller)
    : producers([c = &controller] {
        return WindowProducers::Shown{c->view() ? c->view()->imageRep() : nullptr,
                                      c->document() ? &c->document()->pictureService() : nullptr,
                                      c->windowColorSpace()};
      }),
      inspector(controller),
      contents(controller, inspector),
      encoding(controller),
      loading(controller),
      messages(controller),
      copying(controller),
      savingTo(controller, copying),
      savingAs(controller, producers),
      printing(controller),
      closing(controller, savingAs, printing),
      sizing(controller),
      touchBar(controller, controller,
               [c = &controller](TouchBarAction action) { c->performTouchBarAction(action); }),
      stopping(controller, *this),
      shownView(controller, sizing),
      controls(controller, *this),
      menus(controller, *this) {
  connectReading(controller);
  connectResults(controller);
}

void WindowCommands::connectReading(MainWindowController& controller) {
  MainWindowController* const c = &controller;
  QObject::connect(&messages, &MessagesCommand::reloadChosen, c, &MainWindowController::reload);
  QObject::connect(&messages, &MessagesCommand::drawingChanged, &inspector,
                   &InspectorCommand::showDrawingRemarks);
  QObject::connect(&messages, &MessagesCommand::openingChosen, &loading, &LoadingCommand::start);
  QObject::connect(&messages, &MessagesCommand::stopChosen, c, [this] { stopping.stopExamined(); });
  QObject::connect(&inspector, &InspectorCommand::turned, c, &MainWindowController::setWindowSize);
  QObject::connect(
      &encoding, &EncodingCommand::reread, c,
      [this](const HeaderDictionary& header, const QString& text) { contents.showTexts(header, text); });
}

void WindowCommands::connectResults(MainWindowController& controller) {
  MainWindowController* const c = &controller;
  QObject::connect(&c->work(), &WindowWork::changed, c, [this, c] {
    if (c->isWindowLoaded()) messages.followRendering();
    closing.closeIfDone();
  });
  QObject::connect(&c->work(), &WindowWork::failed, &closing, &ClosingCommand::stay);
  QObject::connect(&copying, &CopyCommand::ended, c, &MainWindowController::copied);
  QObject::connect(&savingTo, &SaveToCommand::ended, c, &MainWindowController::savedTo);
  QObject::connect(&savingTo, &SaveToCommand::failed, &closing, &ClosingCommand::stay);
  QObject::connect(&savingAs, &SaveAsCommand::failed, &closing, &ClosingCommand::stay);
  QObject::connect(&savingAs, &SaveAsCommand::ended, &closing, &ClosingCommand::closeIfDone);
  QObject::connect(&printing, &PrintingCommand::ended, &closing, [this](bool printed) {
    if (!printed) closing.stay();
    closing.closeIfDone();
  });
}

}  // namespace norvex
