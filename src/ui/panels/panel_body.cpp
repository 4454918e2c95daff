#include "ui/panels/panel_body.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMap>
#include <QScrollBar>

#include <algorithm>
#include <utility>

#include "ui/panels/centred_window.h"
#include "ui/panels/window_place.h"

namespace norvex {
namespace {

constexpr int kAround = 8;  ///< of what gets the keyboard is seen

/// The rows of a layout that an item of it stands in.
std::pair<int, int> rowsOf(const QLayout& layout, int index) {
  const auto* grid = qobject_cast<const QGridLayout*>(&layout);
  if (!grid) return {index, index};
  int row = 0, column = 0, rows = 1, columns = 1;
  grid->getItemPosition(index, &row, &column, &rows, &columns);
  return {row, row + std::max(1, rows) - 1};
}

/// How high the other rows of a layout are, and what is around them.
int heightBeside(const QLayout& layout, const QWidget& body, int width) {
  const int own = layout.indexOf(&body);
  if (own < 0) return 0;
  const auto [first, last] = rowsOf(layout, own);
  QMap<int, int> heights;
  for (int i = 0; i < layout.count(); ++i) {
    const auto [from, to] = rowsOf(layout, i);
    QLayoutItem* item = layout.itemAt(i);
    if (item->isEmpty() || (from <= last && to >= first)) continue;
    const int height = item->hasHeightForWidth() ? item->heightForWidth(width) : item->minimumSize().height();
    heights[from] = std::max(heights.value(from), height);
  }
  const QMargins margins = layout.contentsMargins();
  int sum = margins.top() + margins.bottom();
  for (const int height : std::as_const(heights)) sum += height + std::max(0, layout.spacing());
  return sum;
}

QAbstractSlider::SliderAction actionOf(int key) {
  switch (key) {
    case Qt::Key_PageUp:
      return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
      return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
      return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
      return QAbstractSlider::SliderToMaximum;
    default:
      return QAbstractSlider::SliderNoAction;
  }
}

}  // namespace

PanelBody::PanelBody(QWidget* contents, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(contents);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { showFocus(now); });
}

PanelBody::~PanelBody() {
  // The keyboard goes from field to field while these go, when there is nothing to scroll any more.
  if (qApp) qApp->disconnect(this);
}

void PanelBody::stackWhereNarrow(QBoxLayout& row, bool isReversed) {
  row.setDirection(QBoxLayout::LeftToRight);
  const QSize least = widget()->minimumSizeHint(), most = room();
  const int bar = least.height() > most.height() ? verticalScrollBar()->sizeHint().width() : 0;
  if (least.width() + bar > most.width())
    row.setDirection(isReversed ? QBoxLayout::BottomToTop : QBoxLayout::TopToBottom);
}

QSize PanelBody::room() const {
  const QLayout* layout = parentWidget() ? parentWidget()->layout() : nullptr;
  const QSize screen = fittingScreen(*this, QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
  if (!layout) return screen;
  const QMargins margins = layout->contentsMargins();
  const int width = screen.width() - margins.left() - margins.right();
  return {width, std::max(1, screen.height() - heightBeside(*layout, *this, width))};
}

QSize PanelBody::bounded(const QSize& wanted) const {
  const QSize most = room();
  QSize size = wanted;
  if (wanted.height() > most.height()) size.rwidth() += verticalScrollBar()->sizeHint().width();
  if (wanted.width() > most.width()) size.rheight() += horizontalScrollBar()->sizeHint().height();
  return size.boundedTo(most);
}

QSize PanelBody::sizeHint() const {
  return bounded(widget()->sizeHint());
}

QSize PanelBody::minimumSizeHint() const {
  return bounded(widget()->minimumSizeHint().expandedTo(widget()->minimumSize()));
}

bool PanelBody::hasHeightForWidth() const {
  return widget()->hasHeightForWidth();
}

int PanelBody::heightForWidth(int width) const {
  return std::min(widget()->heightForWidth(width), room().height());
}

bool PanelBody::isScrolled() const {
  return verticalScrollBar()->maximum() > 0;
}

bool PanelBody::scrollBy(int key) {
  const auto action = actionOf(key);
  if (action == QAbstractSlider::SliderNoAction || !isScrolled()) return false;
  verticalScrollBar()->triggerAction(action);
  return true;
}

void PanelBody::showFocus(QWidget* focus) {
  // A field that is pressed is seen, and shall not move away below the pointer.
  if (focus && widget()->isAncestorOf(focus) && QApplication::mouseButtons() == Qt::NoButton)
    ensureWidgetVisible(focus, kAround, kAround);
}

/// Its upper left corner stays where it is when it grows.
void PanelBody::keepPanelOnScreen() {
  QWidget& panel = *window();
  if (!panel.isVisible() || QApplication::mouseButtons() != Qt::NoButton) return;
  const QRect screen = roomOn(*panel.screen());
  // It grows to the right and downwards. The other edges are not looked at: until the window manager has
  // placed the panel, it seems to be at or beyond the screen's corner.
  const QRect place = panel.geometry();
  if (place.right() <= screen.right() && place.bottom() <= screen.bottom()) return;
  panel.setGeometry(placedOnScreens(panel.geometry(), {{screen}, usualFrame}, panel.minimumSize()));
}

bool PanelBody::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {  // as large as the contents, which have changed
    updateGeometry();
    QMetaObject::invokeMethod(this, &PanelBody::keepPanelOnScreen, Qt::QueuedConnection);
  }
  return QScrollArea::event(event);
}

void PanelBody::showEvent(QShowEvent* event) {
  for (QWidget* each : widget()->findChildren<QWidget*>()) {
    if (!qobject_cast<QAbstractSpinBox*>(each) && !qobject_cast<QComboBox*>(each)) continue;
    if (each->focusPolicy() == Qt::WheelFocus) each->setFocusPolicy(Qt::StrongFocus);
    each->installEventFilter(this);
  }
  window()->installEventFilter(this);
  QScrollArea::showEvent(event);
  QMetaObject::invokeMethod(this, &PanelBody::keepPanelOnScreen, Qt::QueuedConnection);
}

bool PanelBody::eventFilter(QObject* watched, QEvent* event) {
  // A key comes to the panel when whatever has the keyboard does nothing with it.
  if (event->type() == QEvent::KeyPress && watched == window())
    return scrollBy(static_cast<QKeyEvent*>(event)->key());
  const auto* control = qobject_cast<QWidget*>(watched);
  if (event->type() == QEvent::Wheel && control && control != viewport() && control != widget() &&
      isScrolled() && !control->hasFocus()) {
    event->ignore();  // so that it comes to what is scrolled
    return true;
  }
  return QScrollArea::eventFilter(watched, event);
}

PanelBody* fillPanel(QDialog& panel, QWidget* contents, QWidget* buttons) {
  auto* body = new PanelBody(contents, &panel);
  if (QLayout* layout = contents->layout()) layout->setContentsMargins(20, 18, 20, 2);
  buttons->setContentsMargins(20, 12, 20, 16);
  auto* column = new QVBoxLayout(&panel);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(body, 1);
  column->addWidget(buttons);
  return body;
}

}  // namespace norvex
