// The zoom menu as a widget.
#pragma once

#include <QComboBox>

namespace norvex {

class SKTZoomingScrollView;

/// Shows and chooses the factor of a scroll view. Main thread.
class FactorBox final : public QComboBox {
  Q_OBJECT
 public:
  /// The scroll view is borrowed, and gets its menu.
  FactorBox(SKTZoomingScrollView& scrollView, QWidget* parent);

  /// Shows the factor as it is now.
  void synchronize();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  SKTZoomingScrollView& scrollView_;
};

}  // namespace norvex
