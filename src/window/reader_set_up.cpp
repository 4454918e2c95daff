#include "window/reader_set_up.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include "window/loading_command.h"
#include "window/main_window_controller.h"
#include "window/reading/find_command.h"
#include "window/reading/late_text_marks.h"
#include "window/reading/layers_command.h"
#include "window/reading/page_letters.h"
#include "window/reading/password_command.h"
#include "window/reading/text_command.h"
#include "window/viewing/live_file.h"
#include "window/viewing/pages_command.h"

namespace norvex {
namespace {

void setUpPasswords(MainWindowController& controller, LoadingCommand& loading) {
  MainWindowController* const c = &controller;
  auto* passwords = new PasswordCommand(controller, c);
  QObject::connect(passwords, &PasswordCommand::passwordGiven, c, [c, &loading](const QString& password) {
    loading.setPassword(password);
    c->windowDidLoad();
  });
}

void setUpLayers(MainWindowController& controller, LoadingCommand& loading, LiveFile& live,
                 WindowSizingCommand& sizing, QMenu& menu) {
  MainWindowController* const c = &controller;
  auto* layers = new LayersCommand(controller, sizing, c);
  layers->setUp(menu);
  QObject::connect(c, &MainWindowController::documentShown, layers, &LayersCommand::documentDidChange);
  QObject::connect(layers, &LayersCommand::layersStayed, c,
                   [&loading](const QList<PictureLayer>& shown) { loading.setLayers(shown); });
  QObject::connect(layers, &LayersCommand::layersChosen, c,
                   [c, &loading, &live](const QList<PictureLayer>& chosen) {
                     loading.setLayers(chosen);
                     live.reloadInPlace([c] { c->windowDidLoad(); });
                   });
}

void setUpText(MainWindowController& controller, PagesCommand& pages) {
  MainWindowController* const c = &controller;
  auto* menu = c->window()->findChild<QMenu*>(QStringLiteral("editMenu"));
  const auto* findPrevious = c->window()->findChild<QAction*>(QStringLiteral("findPreviousAction"));
  if (!menu || !findPrevious) return;
  const QList<QAction*> actions = menu->actions();
  QAction* before = actions.value(actions.indexOf(findPrevious) + 1);
  auto* letters = new PageLetters(controller, c);
  auto* marks = new LateTextMarks(controller, c);
  auto* find = new FindCommand(controller, *letters, *marks, c);
  find->setUp(*menu, before);
  auto* text = new TextCommand(controller, *letters, *marks, c);
  text->setUp(*menu, before);
  const auto follow = [find, text] {
    find->pageDidChange();
    text->pageDidChange();
  };
  QObject::connect(c, &MainWindowController::documentShown, find, follow);
  QObject::connect(&pages, &PagesCommand::pageDidChange, find, follow);
  QObject::connect(find, &FindCommand::pageChosen, &pages, &PagesCommand::show);
  QObject::connect(text, &TextCommand::pageChosen, &pages, &PagesCommand::show);
}

}  // namespace

void setUpReader(MainWindowController& controller, LoadingCommand& loading, LiveFile& live,
                 PagesCommand& pages, WindowSizingCommand& sizing, QMenu& menu) {
  setUpPasswords(controller, loading);
  setUpLayers(controller, loading, live, sizing, menu);
  setUpText(controller, pages);
}

}  // namespace norvex
