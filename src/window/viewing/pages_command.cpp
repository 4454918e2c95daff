#include "window/viewing/pages_command.h"

#include <QAction>
#include <QBoxLayout>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QScrollBar>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "picture/pdf_image_rep.h"
#include "ui/controls/number_matrix.h"
#include "ui/pages/page_strip.h"
#include "ui/pages/page_switch.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "window/commands/window_parts.h"
#include "window/place/window_frames.h"
#include "window/viewing/page_thumbnails.h"

namespace norvex {
namespace {

const QString kStrip = QStringLiteral("views/pages");

}  // namespace

PagesCommand::PagesCommand(WindowParts& parts, WindowSizingCommand& sizing, QObject* parent)
    : QObject(parent), parts_(parts), room_(parts, sizing) {}

void PagesCommand::setUp(QMenu& menu) {
  auto* bar = parts_.mainWindow()->findChild<QWidget*>(QStringLiteral("bottomBar"));
  switch_ = new PageSwitch(bar);
  static_cast<QBoxLayout*>(bar->layout())->insertWidget(1, switch_);
  connect(switch_, &PageSwitch::pageChosen, this, &PagesCommand::show);
  connect(switch_, &PageSwitch::leftNumber, parts_.scrollArea(),
          [this] { parts_.scrollArea()->setFocus(Qt::OtherFocusReason); });
  parts_.scrollArea()->installEventFilter(this);
  parts_.mainWindow()->installEventFilter(this);
  const auto mayGoOn = [this] { return shown() + 1 < count(); };
  const auto mayGoBack = [this] { return shown() > 0; };
  addCommand(
      menu, "&Next Page", "nextPageAction", {Qt::CTRL | Qt::Key_PageDown, Qt::ALT | Qt::Key_Down},
      [this] { show(shown() + 1); }, mayGoOn);
  addCommand(
      menu, "&Previous Page", "previousPageAction", {Qt::CTRL | Qt::Key_PageUp, Qt::ALT | Qt::Key_Up},
      [this] { show(shown() - 1); }, mayGoBack);
  addCommand(
      menu, "&First Page", "firstPageAction", {Qt::CTRL | Qt::Key_Home}, [this] { show(0); }, mayGoBack);
  addCommand(
      menu, "&Last Page", "lastPageAction", {Qt::CTRL | Qt::Key_End}, [this] { show(count() - 1); }, mayGoOn);
  addCommand(
      menu, "&Go to Page…", "goToPageAction", {Qt::CTRL | Qt::Key_G}, [this] { switch_->editNumber(); },
      [this] { return count() > 1; });
  menu.addSeparator();
  addStrip(menu);
  validate();
}

void PagesCommand::addCommand(QMenu& menu, const char* title, const char* name,
                              const QList<QKeySequence>& keys, const std::function<void()>& act,
                              const std::function<bool()>& possible) {
  QAction* action = menu.addAction(localizedString(title));
  action->setObjectName(QLatin1String(name));
  action->setShortcuts(keys);
  connect(action, &QAction::triggered, this, act);
  commands_ << Command{action, possible};
}

void PagesCommand::addStrip(QMenu& menu) {
  dock_ = new QDockWidget(localizedString("Pages"), parts_.mainWindow());
  dock_->setObjectName(QStringLiteral("pagesDock"));
  dock_->setFeatures(QDockWidget::DockWidgetClosable);
  dock_->setTitleBarWidget(new QWidget(dock_));  // what it is can be seen
  strip_ = new PageStrip(dock_);
  dock_->setWidget(strip_);
  dock_->toggleViewAction()->setVisible(false);  // the menu below has it, where there are pages
  dock_->hide();
  parts_.mainWindow()->addDockWidget(Qt::LeftDockWidgetArea, dock_);
  thumbnails_ = new PageThumbnails(*strip_, this);
  connect(strip_, &PageStrip::pageChosen, this, &PagesCommand::show);
  stripAction_ = menu.addAction(localizedString("Page &Thumbnails"));
  stripAction_->setObjectName(QStringLiteral("pageThumbnailsAction"));
  stripAction_->setCheckable(true);
  stripAction_->setShortcut(Qt::Key_F7);
  stripAction_->setChecked(savedView(kStrip, false));
  connect(stripAction_, &QAction::toggled, this, [this](bool on) {
    saveView(kStrip, on);
    showStrip();
  });
}

std::shared_ptr<NSPDFImageRep> PagesCommand::page() const {
  return parts_.view() ? std::dynamic_pointer_cast<NSPDFImageRep>(parts_.view()->imageRep()) : nullptr;
}

int PagesCommand::count() const {
  const auto shown = page();
  return shown ? shown->readPageCount() : 1;
}

int PagesCommand::shown() const {
  const auto now = page();
  return now ? now->page() : 0;
}

void PagesCommand::documentDidChange() {
  thumbnails_->setDocument(page());
  validate();
}

void PagesCommand::show(int wanted) {
  const auto now = page();
  if (!now || wanted == now->page() || wanted < 0 || wanted >= count()) return validate();
  const auto made = now->imageRepWithPage(wanted);
  if (!made) {
    BriefNote::tell(*parts_.scrollArea(), localizedString("Page %1 has no area.").arg(wanted + 1));
    return validate();
  }
  NorvexView& view = *parts_.view();
  view.clearSelectRect();
  view.setImageRep(*made);
  view.setCoordinateRect((*made)->bounds());
  view.setImageSize((*made)->size());
  view.setRotate(view.rotate(), view.flippedCoordinate());
  parts_.scrollArea()->scrollToTop();
  parts_.viewWidget()->update();
  parts_.epsMatrix->setRect((*made)->bounds());
  parts_.previewImageView()->setImageRep(*made);
  thumbnails_->setDocument(*made);
  validate();
  if (!switch_->isVisible())
    BriefNote::tell(*parts_.scrollArea(), localizedString("%1 of %2").arg(wanted + 1).arg(count()));
  emit pageDidChange();
}

void PagesCommand::validate() {
  switch_->setPages(shown(), count());
  for (const Command& command : commands_) command.action->setEnabled(command.possible());
  stripAction_->setEnabled(count() > 1);
  strip_->setShownPage(shown());
}

void PagesCommand::showStrip() {
  room_.show(*dock_, wantsStrip());
}

bool PagesCommand::wantsStrip() const {
  return count() > 1 && stripAction_->isChecked() && !parts_.mainWindow()->isFullScreen();
}

bool PagesCommand::eventFilter(QObject* watched, QEvent* event) {
  // A full screen has no strip, and gives no room.
  if (event->type() == QEvent::WindowStateChange) dock_->setVisible(wantsStrip());
  if (event->type() != QEvent::KeyPress || watched != parts_.scrollArea() || count() < 2)
    return QObject::eventFilter(watched, event);
  // A page key goes on to the next page where the shown one ends.
  const QScrollBar* bar = parts_.scrollArea()->verticalBar();
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_PageDown && bar->value() == bar->maximum()) return show(shown() + 1), true;
  if (key == Qt::Key_PageUp && bar->value() == bar->minimum()) return show(shown() - 1), true;
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
