#include "window/reading/layers_command.h"

#include <QAction>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QSignalBlocker>

#include <memory>
#include <utility>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "picture/pdf_image_rep.h"
#include "protocol/limits.h"
#include "ui/pages/dock_title.h"
#include "ui/pages/layer_list.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_parts.h"
#include "window/place/window_frames.h"

namespace norvex {
namespace {

const QString kShown = QStringLiteral("views/layers");

}  // namespace

LayersCommand::LayersCommand(WindowParts& parts, WindowSizingCommand& sizing, QObject* parent)
    : QObject(parent), parts_(parts), room_(parts, sizing) {}

void LayersCommand::setUp(QMenu& menu) {
  action_ = menu.addAction(localizedString("La&yers"));
  action_->setObjectName(QStringLiteral("layersAction"));
  action_->setCheckable(true);
  action_->setShortcut(Qt::Key_F8);
  action_->setChecked(savedView(kShown, false));
  connect(action_, &QAction::toggled, this, [this](bool on) {
    saveView(kShown, on);
    keptAway_ = false;
    validate();
  });
  parts_.mainWindow()->installEventFilter(this);
  validate();
}

void LayersCommand::makeList() {
  if (dock_ || !showsList()) return;
  dock_ = new QDockWidget(localizedString("Layers"), parts_.mainWindow());
  dock_->setObjectName(QStringLiteral("layersDock"));
  dock_->setFeatures(QDockWidget::DockWidgetClosable);
  list_ = new LayerList(dock_);
  dock_->setWidget(list_);
  dock_->setTitleBarWidget(new DockTitle(*dock_));
  dock_->toggleViewAction()->setVisible(false);  // the menu below has it, where there are layers
  dock_->hide();
  parts_.mainWindow()->addDockWidget(Qt::LeftDockWidgetArea, dock_);
  list_->setLayers(shown());
  connect(list_, &LayerList::layersChosen, this, &LayersCommand::choose);
  // Its own button closes the list as the command does.
  dock_->installEventFilter(this);
}

void LayersCommand::choose(const QList<PictureLayer>& layers) {
  wanted_ = layers;
  const QList<PictureLayer> before = shown();
  for (touched_ = 0; touched_ < before.size(); ++touched_)
    if (before.at(touched_).shown != layers.at(touched_).shown) break;
  emit layersChosen(toChoose(before));
}

QList<PictureLayer> LayersCommand::shown() const {
  const auto rep = parts_.view() ? std::dynamic_pointer_cast<NSPDFImageRep>(parts_.view()->imageRep())
                                 : std::shared_ptr<NSPDFImageRep>();
  return rep ? rep->facts().layers : QList<PictureLayer>();
}

QList<PictureLayer> LayersCommand::toChoose(const QList<PictureLayer>& before) const {
  // A layer that comes up may exclude one that is shown now, which the file itself need not show.
  const bool comesUp = touched_ < wanted_.size() && wanted_.at(touched_).shown;
  const bool fits = before.size() == wanted_.size() && 2 * wanted_.size() <= limits::maximumLayers;
  return comesUp && fits ? before + wanted_ : wanted_;
}

void LayersCommand::documentDidChange() {
  const QList<PictureLayer> now = shown();
  if (list_) list_->setLayers(now);
  tellLocked(now);
  keepAwayFromReload(!now.isEmpty());
  validate();
}

void LayersCommand::keepAwayFromReload(bool hasLayers) {
  const QString file = parts_.mainWindow()->windowFilePath();
  const bool again = std::exchange(file_, file) == file;
  if (!again && std::exchange(keptAway_, false)) setWanted(true);
  const bool hadLayers = std::exchange(hadLayers_, hasLayers || (again && hadLayers_));
  if (!again || hadLayers || !hasLayers || !action_->isChecked()) return;
  keptAway_ = true;
  setWanted(false);
}

void LayersCommand::setWanted(bool on) {
  const QSignalBlocker quiet(action_);
  action_->setChecked(on);
}

void LayersCommand::documentDidStay() {
  const QList<PictureLayer> now = shown();
  if (list_) list_->setLayers(now);
  if (!std::exchange(wanted_, {}).isEmpty()) emit layersStayed(now);
}

void LayersCommand::tellLocked(const QList<PictureLayer>& now) {
  const QList<PictureLayer> wanted = std::exchange(wanted_, {});
  if (touched_ < 0 || touched_ >= wanted.size() || touched_ >= now.size()) return;
  const bool stayed = now.at(touched_).name == wanted.at(touched_).name &&
                      now.at(touched_).shown != wanted.at(touched_).shown;
  if (stayed) BriefNote::tell(*parts_.scrollArea(), localizedString("The document locks this layer."));
}

void LayersCommand::validate() {
  action_->setEnabled(!shown().isEmpty());
  makeList();
  if (dock_) room_.show(*dock_, showsList());
}

bool LayersCommand::showsList() const {
  return !shown().isEmpty() && action_->isChecked() && !parts_.mainWindow()->isFullScreen();
}

bool LayersCommand::eventFilter(QObject* watched, QEvent* event) {
  if (dock_ && watched == dock_ && event->type() == QEvent::Close) action_->setChecked(false);
  // The type first: a window that is going to be gone tells of its children without being one any more.
  if (event->type() == QEvent::WindowStateChange && watched == parts_.mainWindow()) {
    // A full screen has no list, and gives no room.
    makeList();
    if (dock_) dock_->setVisible(showsList());
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
