#include "window/reader_set_up.h"

#include <QAction>
#include <QMenu>

#include "ui/source/source_text_view.h"
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"
#include "window/reading/find_command.h"
#include "window/reading/late_text_marks.h"
#include "window/reading/layers_command.h"
#include "window/reading/page_letters.h"
#include "window/reading/password_command.h"
#include "window/reading/text_command.h"
#include "window/viewing/live_file.h"
#include "window/viewing/pages_command.h"
#include "window/window_commands.h"

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

/// What has no source, as a PDF, is looked through by what it shows: the keys are everybody's for finding.
void setUpFinding(MainWindowController& controller, InspectorCommand& inspector, FindCommand& inPicture,
                  Ui::MainWindowController& ui) {
  MainWindowController* const c = &controller;
  const auto set = [c, &inspector](QAction* action, const QKeySequence& key, auto inSource, auto instead) {
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, c, [c, &inspector, inSource, instead] {
      if (c->sourceTextView->string().isEmpty()) return instead();
      inspector.showSource();
      inSource(*c->sourceTextView);
    });
  };
  FindCommand* const find = &inPicture;
  set(
      ui.findAction, QKeySequence::Find, [](SourceTextView& text) { text.showFindBar(); },
      [find] { find->open(); });
  set(
      ui.findNextAction, Qt::Key_F3, [](SourceTextView& text) { text.findNext(); },
      [find] { find->findNext(); });
  set(
      ui.findPreviousAction, Qt::SHIFT | Qt::Key_F3, [](SourceTextView& text) { text.findNext(true); },
      [find] { find->findNext(true); });
}

void setUpText(MainWindowController& controller, InspectorCommand& inspector, PagesCommand& pages,
               Ui::MainWindowController& ui) {
  MainWindowController* const c = &controller;
  QMenu* const menu = ui.editMenu;
  const QList<QAction*> actions = menu->actions();
  QAction* before = actions.value(actions.indexOf(ui.findPreviousAction) + 1);
  auto* letters = new PageLetters(controller, c);
  auto* marks = new LateTextMarks(controller, c);
  auto* find = new FindCommand(controller, *letters, *marks, c);
  find->setUp(*menu, before);
  setUpFinding(controller, inspector, *find, ui);
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

void setUpReader(MainWindowController& controller, WindowCommands& commands, LiveFile& live,
                 PagesCommand& pages, Ui::MainWindowController& ui, QMenu& menu) {
  setUpPasswords(controller, commands.loading);
  setUpLayers(controller, commands.loading, live, commands.sizing, menu);
  setUpText(controller, commands.inspector, pages, ui);
}

}  // namespace norvex
