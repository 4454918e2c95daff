#include "window/viewing/pointer_readout.h"

#include <QBoxLayout>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QToolButton>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "display/picture_geometry.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/style/quiet_text.h"
#include "window/commands/window_parts.h"
#include "window/viewing/view_choices.h"

namespace norvex {
namespace {

/// Gives way where the bar is narrow, and does not move its neighbours with every digit.
class ReadoutField final : public QToolButton {
 public:
  explicit ReadoutField(QWidget* parent) : QToolButton(parent) {
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  }
  [[nodiscard]] QSize sizeHint() const override {
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("00000.0, 00000.0 mm")) + 16;
    return {width, heightOfText()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return {0, heightOfText()}; }

 private:
  [[nodiscard]] bool isSeen() const {
    constexpr int kEdges = 10;  // of the style, at both sides
    return fontMetrics().horizontalAdvance(text()) + kEdges <= width();
  }
  /// The window's size counts on a foot that keeps its height, and without a picture there is no text.
  [[nodiscard]] int heightOfText() const {
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, QStringLiteral("0"));
    return style()->sizeFromContents(QStyle::CT_ToolButton, &option, text, this).height();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    // Half a number is worse than none.
    if (isSeen()) QToolButton::paintEvent(event);
  }
  void resizeEvent(QResizeEvent* event) override {
    // Nobody is to look for a keyboard that has gone where nothing is.
    setFocusPolicy(isSeen() ? Qt::TabFocus : Qt::NoFocus);
    QToolButton::resizeEvent(event);
  }
};

}  // namespace

PointerReadout::PointerReadout(WindowParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

void PointerReadout::setUp() {
  auto* bar = parts_.mainWindow()->findChild<QWidget*>(QStringLiteral("bottomBar"));
  field_ = new ReadoutField(bar);
  field_->setObjectName(QStringLiteral("pointerReadout"));
  field_->setAutoRaise(true);
  field_->setFocusPolicy(Qt::TabFocus);
  field_->setToolTip(localizedString("Where the pointer is in the picture. Click for another unit."));
  field_->setAccessibleName(localizedString("Unit of lengths"));
  makeQuiet(*field_);
  static_cast<QBoxLayout*>(bar->layout())->insertWidget(1, field_);
  connect(field_, &QToolButton::clicked, this, &PointerReadout::stepUnit);
  parts_.viewWidget()->installEventFilter(this);
  ViewChoices& choices = ViewChoices::shared();
  connect(&choices, &ViewChoices::unitChanged, this, [this](LengthUnit unit) {
    unit_ = unit;
    show();
  });
  unit_ = choices.unit();
  show();
}

void PointerReadout::stepUnit() {
  ViewChoices::shared().setUnit(nextUnit(unit_));
}

std::optional<QPointF> PointerReadout::pictureAt(const QPointF& point) const {
  const NorvexView& view = *parts_.view();
  const QSizeF size = view.imageSize();
  if (!view.imageRep() || size.isEmpty()) return std::nullopt;
  QPointF at = pictureToView(size, view.rotate()).inverted().map(parts_.viewWidget()->toView(point));
  if (!QRectF(QPointF(0, 0), size).contains(at)) return std::nullopt;
  if (parts_.dialKnob()->clockwise() != view.flippedCoordinate()) at.setY(size.height() - at.y());
  return at;
}

void PointerReadout::show() {
  parts_.viewWidget()->setLengthUnit(unit_);
  const QString unit = unitName(unit_);
  field_->setText(
      at_ ? QStringLiteral("%1, %2 %3").arg(lengthText(at_->x(), unit_), lengthText(at_->y(), unit_), unit)
          : wholeText());
  field_->setAccessibleDescription(unit);
}

QString PointerReadout::wholeText() const {
  const QSizeF size = parts_.view()->imageSize();
  // A unit alone would say nothing.
  if (!parts_.view()->imageRep() || size.isEmpty()) return {};
  return sizeText(size, unit_) + u' ' + unitName(unit_);
}

bool PointerReadout::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove || event->type() == QEvent::Leave) {
    at_ = event->type() == QEvent::Leave ? std::nullopt
                                         : pictureAt(static_cast<QMouseEvent*>(event)->position());
    show();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
