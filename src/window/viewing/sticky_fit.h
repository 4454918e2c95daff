// A zoom that follows the window.
#pragma once

#include <QObject>

#include "document/picture_view.h"

class QAction;

namespace norvex {

class WindowParts;

/// After Fit or Fit Width the picture keeps filling the window, or its width, when the window gets another
/// size or the picture another angle or page, until another zoom is chosen. The parts outlive it. Main
/// thread.
class StickyFit final : public QObject {
  Q_OBJECT
 public:
  StickyFit(WindowParts& parts, QObject* parent);

  /// `fit` is the command that fits the whole picture; the one for its width is made and stands behind it.
  [[nodiscard]] QAction* setUp(QAction& fit);
  [[nodiscard]] KeptFit kept() const { return kept_; }
  void keep(KeptFit kept);
  /// The picture has another size.
  void fitAgain();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void zoomDidChange();
  [[nodiscard]] double factor() const;

  WindowParts& parts_;
  KeptFit kept_ = KeptFit::Nothing;
  bool fitting_ = false;
};

}  // namespace norvex
