// What can be done with the picture where the mouse is: its context menu, and dragging the selection out.
#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QtConcurrent>

#include "base/localized_string.h"
#include "base/waiting_threads.h"
#include "ui/picture/drag_source.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"

namespace norvex {

namespace {

/// The best format that other programs take as a file: SVG where there is one, otherwise PDF.
qsizetype bestFileFormat(const PictureFormats& formats) {
  const qsizetype svg = formats.indexOf(UTTypeSVG());
  return svg >= 0 ? svg : formats.indexOf(UTTypePDF());
}

}  // namespace

void MainWindowController::setUpPictureMenu() {
  viewWidget_->setWhatsThis(
      localizedString("Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another "
                      "program as a file."));
  viewWidget_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(viewWidget_, &QWidget::customContextMenuRequested, this, [this](const QPoint& point) {
    if (!validateUserInterfaceItem()) return;
    auto* menu = new QMenu(viewWidget_);
    menu->setObjectName(QStringLiteral("pictureMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions({copyToolbarItem, doSaveToToolbarItem});
    menu->addSeparator();
    menu->addActions({ui_->selectAllAction, ui_->deselectAction});
    menu->addSeparator();
    menu->addActions({ui_->rotateLeftAction, ui_->rotateRightAction, ui_->resetRotationAction});
    menu->popup(viewWidget_->mapToGlobal(point));
  });
  new DragSource(
      *viewWidget_, [this] { return draggedFile(); }, this);
}

std::optional<DraggedFile> MainWindowController::draggedFile() {
  const PictureFormats formats = pboardTypesAndDataObjects();
  const qsizetype best = bestFileFormat(formats);
  if (best < 0) return std::nullopt;
  const std::shared_ptr<PromisedData> data = formats.DataObjects.at(best);
  static_cast<void>(QtConcurrent::run(&waitingThreads(),
                                      [data] { return data->get(); }));  // the drag takes a while: use it
  const QString extension = formats.UTIs.at(best).preferredFilenameExtension();
  // When nobody can ask for the file any more its making ends.
  const std::shared_ptr<void> asked(nullptr, [cancel = formats.cancel](void*) { cancel.cancel(); });
  return DraggedFile{clipName() + u'.' + extension, [data, asked] { return data->get(); }};
}

}  // namespace norvex
