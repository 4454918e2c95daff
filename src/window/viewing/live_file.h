// A file that others go on writing.
#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>

#include <functional>
#include <optional>
#include <utility>

#include "document/picture_view.h"

class QAction;

namespace norvex {

class PagesCommand;
class StickyFit;
class WindowParts;

/// Shows the file again when it has become another one and is whole: by itself, or when the user says so, as
/// was chosen once for all windows. Page, angle, zoom, place and selection stay. Not while something is done
/// with the picture that the new one would spoil. What it is given outlives it. Main thread.
class LiveFile final : public QObject {
  Q_OBJECT
 public:
  LiveFile(WindowParts& parts, PagesCommand& pages, StickyFit& fit, QObject* parent);

  /// The choice as a menu item.
  [[nodiscard]] QAction* makeAction();
  /// True if a changed file is to be shown again without a question, now.
  [[nodiscard]] bool reloadsByItself() const;
  /// Has `reload` read the file again, and puts the new picture where the old one was.
  void reloadInPlace(const std::function<void()>& reload);
  /// True while what is read is put where the old one was.
  [[nodiscard]] bool comesBack() const { return place_.has_value(); }
  /// The file was read again, for whatever reason.
  void documentDidChange();
  /// It could not be: what is shown has stayed.
  void documentDidStay() { place_.reset(); }
  /// The file has changed while it is being read: what comes of that may be what it was before.
  void fileDidChangeMeanwhile() { changedMeanwhile_ = true; }
  /// True once after that: the change has yet to be shown, or told.
  [[nodiscard]] bool takeChangeMeanwhile() { return std::exchange(changedMeanwhile_, false); }

 private:
  struct Place {
    int page = 0;
    double degrees = 0;  ///< of the dial
    double zoom = 1;
    KeptFit fit = KeptFit::Nothing;  ///< instead of the zoom
    QPointF offset;
    QRectF selected;
  };

  WindowParts& parts_;
  PagesCommand& pages_;
  StickyFit& fit_;
  std::optional<Place> place_;  ///< to come back to; nothing: nothing is being reloaded
  bool changedMeanwhile_ = false;
};

}  // namespace norvex
