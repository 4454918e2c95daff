// The inspector: its window, rotation, background, and what it tells about a picture.
#pragma once

#include <QColor>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>

#include "base/cancel_token.h"
#include "window/commands/watched_picture.h"

namespace norvex {

class NSImageRep;
class PictureProcess;
class WindowParts;

/// The parts outlive it. Main thread.
class InspectorCommand final : public QObject {
  Q_OBJECT
 public:
  explicit InspectorCommand(WindowParts& parts) : parts_(parts), watched_(*this) {}
  ~InspectorCommand() override;

  /// Once the window is loaded: the order of its controls for the keyboard, from top to bottom.
  void order();
  /// Shows the inspector's window, beside the document's at first, or hides it.
  void toggle();
  /// Where the inspector is no window of its own: what shows and hides it; unset: it is one.
  void setPanel(std::function<void(bool shown)> showPanel) { showPanel_ = std::move(showPanel); }
  /// Gives the inspector its title where it has none.
  void title();
  /// Shows the source text, whatever was shown.
  void showSource();

  void takeColor(const QColor& color);
  /// `state` as of a check box: 0 off, 1 mixed, 2 on.
  void useBackground(int state);
  /// The window draws its background unless `state` is off.
  void applyBackground(int state);

  /// Turns dial and view to an angle in the dial's notation.
  void rotateChange(double dmsValue);
  /// Turns the view to the angle of the dial.
  void rotateFromKnob();

  /// Bounding boxes, notes, fonts and colours; null: of no picture. The names in a PDF are asked for when
  /// they are seen, and not before the picture is.
  void showFacts(const NSImageRep* rep);
  /// Another page of that picture is shown: the names are asked for once it is drawn.
  void watch(const NSImageRep* rep);
  /// Adds the fonts that others stand in for, which are known once something was drawn.
  void showDrawingRemarks();

 signals:
  /// The view has another angle: the window may need another size.
  void turned();

 protected:
  /// The page of the names comes into sight.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void place();
  void showBoundingBoxes(const NSImageRep* rep);
  void showNotes(const NSImageRep* rep);
  void addNotes(const QStringList& sentences);
  void showResources(const NSImageRep* rep);
  void showNames(const QStringList& fonts, const QStringList& colors);
  void pictureWasDrawn();
  void askForNames();

  WindowParts& parts_;
  std::function<void(bool)> showPanel_;
  bool placed_ = false;
  WatchedPicture watched_;
  std::shared_ptr<PictureProcess> unnamed_;  ///< of a picture whose names are yet to be asked for
  bool drawn_ = false;
  CancelToken naming_;
};

}  // namespace norvex
