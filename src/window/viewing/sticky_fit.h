// A zoom that follows the window.
#pragma once

#include <QObject>

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
  /// The picture has another size.
  void fitAgain();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Kept { Nothing, Whole, Width };
  void keep(Kept kept);
  void zoomDidChange();
  [[nodiscard]] double factor() const;

  WindowParts& parts_;
  Kept kept_ = Kept::Nothing;
  bool fitting_ = false;
};

}  // namespace norvex
