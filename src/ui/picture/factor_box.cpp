#include "ui/picture/factor_box.h"

#include <QFontDatabase>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <cmath>

#include "base/localized_string.h"
#include "display/skt_zooming_scroll_view.h"
#include "display/zoom_factors.h"

namespace norvex {

FactorBox::FactorBox(SKTZoomingScrollView& scrollView, QWidget* parent)
    : QComboBox(parent), scrollView_(scrollView) {
  scrollView_.validateFactorPopUpButton();
  FactorPopUp* menu = scrollView_.factorPopUpButton();
  addItems(FactorPopUp::titles());
  for (int i = 0; i < count(); ++i) setItemData(i, FactorPopUp::representedFactor(i));
  setFrame(false);
  setFont(QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont));
  setAccessibleName(localizedString("Zoom"));
  setToolTip(accessibleName());
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  setMaxVisibleItems(count());
  connect(this, &QComboBox::activated, menu, &FactorPopUp::choose);
  connect(menu, &FactorPopUp::selectedIndexDidChange, this, &QComboBox::setCurrentIndex);
}

void FactorBox::synchronize() {
  // The menu's first item stands for a factor that nobody has told yet: pictures are shown in natural size
  // first.
  const int chosen = scrollView_.factorPopUpButton()->selectedIndex();
  const bool isUntold = chosen == 0 && indexOfZoomFactor(scrollView_.factor()) != 0;
  setCurrentIndex(isUntold ? indexOfZoomFactor(1.0) : chosen);
  setPlaceholderText(QStringLiteral("%1%").arg(std::lround(scrollView_.factor() * 100)));
}

/// A factor beside those of the menu is shown as clearly as they are; Qt's own box shows it like a hint.
void FactorBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  if (currentIndex() < 0) option.currentText = placeholderText();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace norvex
