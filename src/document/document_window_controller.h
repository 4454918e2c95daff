// The seam between a document and its window: so that documents live and are tested without widgets, and so
// that nothing in this folder includes a window's header.
#pragma once

#include <QPoint>

#include <functional>
#include <memory>
#include <optional>

#include "document/picture_view.h"

namespace norvex {

class Document;
class NorvexView;
class PictureProducers;

/// A document's one window controller, as the document sees it. Main thread only. Owned by the document.
class DocumentWindowController {
 public:
  virtual ~DocumentWindowController() = default;

  /// The document that the controller belongs to; null when it is being removed. Not owned. Called before the
  /// window is loaded: file location, type and picture service are the document's.
  virtual void setDocument(Document* document) = 0;
  /// With true, closing the window calls Document::close().
  virtual void setShouldCloseDocument(bool close) = 0;
  /// Loads the window on the first call (which runs windowDidLoad()), shows, raises and activates it.
  virtual void showWindow() = 0;
  /// The set-up: reads the picture from the document's file again and fills every control. Safe to repeat.
  virtual void windowDidLoad() = 0;
  /// Redraws the window at once.
  virtual void display() = 0;
  /// The producers that turn the shown picture into bytes; null: this controller writes nothing. Owned by the
  /// controller.
  virtual PictureProducers* producers() { return nullptr; }
  /// The view that shows the picture; null before there is one. Owned by the controller.
  [[nodiscard]] virtual NorvexView* imageView() { return nullptr; }
  /// How the picture is shown now; nothing while there is none.
  [[nodiscard]] virtual std::optional<PictureView> pictureView() const { return {}; }
  /// The next window takes the size of this one, as if this had been closed.
  virtual void rememberFrame() {}
  /// The upper left corner of its contents on the screen, for a window that takes its place.
  [[nodiscard]] virtual std::optional<QPoint> cornerToHandOn() const { return {}; }
  /// Takes the place of a window that goes; told before the window is loaded.
  virtual void takePlace(const QPoint&) {}
  /// The picture shall be shown so when it has been read for the first time.
  virtual void setFirstView(const PictureView&) {}
  /// The file on disk is another one than was read, and is whole: offer to reload it, quietly.
  virtual void fileDidChangeOnDisk() {}
  /// There is no file any more where it was.
  virtual void fileDidDisappear() {}
  /// True if the window was to close and does so by itself when its work has ended.
  [[nodiscard]] virtual bool closesWhenDone() const { return false; }
};

/// Makes a window controller with its plain initialiser.
using DocumentWindowControllerFactory = std::function<std::unique_ptr<DocumentWindowController>()>;

}  // namespace norvex
