#include "window/inspector_pages.h"

#include <QTabWidget>
#include <QVBoxLayout>
#include <QWidget>

#include <array>
#include <utility>

#include "base/localized_string.h"
#include "ui/check/check_page.h"
#include "ui/inks/inks_page.h"
#include "window/check/check_command.h"
#include "window/check/repair_command.h"
#include "window/inks/inks_command.h"
#include "window/main_window_controller.h"
#include "window/viewing/pages_command.h"

namespace norvex {
namespace {

/// Empty until it is seen.
class LatePage final : public QWidget {
 public:
  LatePage(MainWindowController& window, const InspectorPage& page)
      : window_(window), make_(page.make), column_(new QVBoxLayout(this)) {
    setObjectName(QLatin1String(page.name));
    column_->setContentsMargins(0, 0, 0, 0);
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QWidget::showEvent(event);
    const auto make = std::exchange(make_, nullptr);
    if (!make) return;
    QWidget* contents = make(window_, this);
    column_->addWidget(contents);
    contents->show();  // what was there already is shown by now
  }

 private:
  MainWindowController& window_;
  QWidget* (*make_)(MainWindowController&, QWidget*);  ///< null: it was made
  QVBoxLayout* column_;
};

QWidget* makeCheckPage(MainWindowController& window, QWidget* page) {
  auto* shown = new CheckPage(page);
  auto* check = new CheckCommand(window, *shown, page);
  check->setPassword([&window] { return window.password(); });
  auto* repair = new RepairCommand(window, page);
  QObject::connect(&window, &MainWindowController::documentShown, check, &CheckCommand::documentDidChange);
  QObject::connect(&window, &MainWindowController::fileChanged, check, &CheckCommand::fileDidChange);
  QObject::connect(check, &CheckCommand::pageWanted, &window, [&window](int wanted) {
    if (auto* pages = window.findChild<PagesCommand*>()) pages->show(wanted);
  });
  QObject::connect(shown, &CheckPage::repairWanted, repair,
                   [repair](const Finding& finding) { repair->run({finding}); });
  QObject::connect(shown, &CheckPage::repairAllWanted, repair,
                   [repair, check] { repair->run(check->findings()); });
  return shown;
}

QWidget* makeInksPage(MainWindowController& window, QWidget* page) {
  auto* shown = new InksPage(page);
  auto* inks = new InksCommand(window, *shown, page);
  QObject::connect(&window, &MainWindowController::documentShown, inks, &InksCommand::pictureDidChange);
  if (const auto* pages = window.findChild<PagesCommand*>())
    QObject::connect(pages, &PagesCommand::pageDidChange, inks, &InksCommand::pictureDidChange);
  return shown;
}

constexpr std::array kPages{InspectorPage{"checkPage", "Check", makeCheckPage},
                            InspectorPage{"inksPage", "Inks", makeInksPage}};

}  // namespace

std::span<const InspectorPage> inspectorPages() {
  return kPages;
}

void addInspectorPages(MainWindowController& window, std::span<const InspectorPage> pages) {
  for (const InspectorPage& page : pages)
    window.inspectorTabs->addTab(new LatePage(window, page), localizedString(page.title));
}

}  // namespace norvex
