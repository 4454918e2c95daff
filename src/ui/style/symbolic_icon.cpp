#include "ui/style/symbolic_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace norvex {

namespace {

// Every symbol is drawn in a square of 24 units with lines 1.6 units wide.

QPainterPath lens() {
  QPainterPath path;
  path.addEllipse(QPointF(10.5, 10.5), 6.5, 6.5);
  path.moveTo(15.4, 15.4);
  path.lineTo(20, 20);
  path.moveTo(7.5, 10.5);
  path.lineTo(13.5, 10.5);
  return path;
}

QPainterPath arrow(double x, double y, double dx, double dy) {
  QPainterPath path(QPointF(x - dy + dx, y + dx + dy));
  path.lineTo(x, y);
  path.lineTo(x + dy + dx, y - dx + dy);
  return path;
}

QPainterPath turnLeft() {
  QPainterPath path;
  path.arcMoveTo(4.5, 5.5, 15, 15, 140);
  path.arcTo(4.5, 5.5, 15, 15, 140, -270);
  path.moveTo(5.6, 4);
  path.lineTo(5.9, 8.6);
  path.lineTo(10.4, 8);
  return path;
}

QPainterPath page(double x, double y, double w, double h) {
  QPainterPath path;
  path.addRoundedRect(QRectF(x, y, w, h), 1.6, 1.6);
  return path;
}

QPainterPath inspector() {
  QPainterPath path = page(3.5, 5, 17, 14);
  path.moveTo(14.5, 5);
  path.lineTo(14.5, 19);
  path.moveTo(16.6, 8.6);
  path.lineTo(18.4, 8.6);
  path.moveTo(16.6, 11.6);
  path.lineTo(18.4, 11.6);
  return path;
}

QPainterPath fit() {
  QPainterPath path;
  const auto corner = [&](double x, double y, double dx, double dy) {
    path.moveTo(x + dx, y);
    path.lineTo(x, y);
    path.lineTo(x, y + dy);
  };
  corner(4, 5, 4, 4);
  corner(20, 5, -4, 4);
  corner(4, 19, 4, -4);
  corner(20, 19, -4, -4);
  path.addRoundedRect(QRectF(8.5, 9, 7, 6), 1, 1);
  return path;
}

QPainterPath printer() {
  QPainterPath path = page(4, 9.5, 16, 7);
  path.addRect(QRectF(7.5, 4.5, 9, 5));
  path.addRect(QRectF(7.5, 14, 9, 5.5));
  return path;
}

QPainterPath saveTo() {
  QPainterPath path;
  path.moveTo(12, 4);
  path.lineTo(12, 14.5);
  path.addPath(arrow(12, 14.5, 0, -4));
  path.moveTo(4.5, 14);
  path.lineTo(4.5, 19.5);
  path.lineTo(19.5, 19.5);
  path.lineTo(19.5, 14);
  return path;
}

/// A page with a folded corner, and a pencil across its lower edge.
QPainterPath saveAs() {
  QPainterPath path(QPointF(10.5, 19.5));
  path.lineTo(5, 19.5);
  path.lineTo(5, 4.5);
  path.lineTo(12.5, 4.5);
  path.lineTo(17, 9);
  path.lineTo(17, 10.5);
  path.moveTo(12.5, 4.5);
  path.lineTo(12.5, 9);
  path.lineTo(17, 9);
  path.moveTo(13.2, 19.8);
  path.lineTo(13.7, 17.2);
  path.lineTo(18.4, 12.5);
  path.lineTo(20.5, 14.6);
  path.lineTo(15.8, 19.3);
  path.closeSubpath();
  return path;
}

QPainterPath reload() {
  QPainterPath path;
  path.arcMoveTo(4.5, 4.5, 15, 15, 30);
  path.arcTo(4.5, 4.5, 15, 15, 30, 300);
  path.moveTo(19.2, 3.6);
  path.lineTo(18.8, 8.4);
  path.lineTo(14.2, 7.8);
  return path;
}

QPainterPath open() {
  QPainterPath path(QPointF(4, 18.5));
  path.lineTo(4, 6.5);
  path.lineTo(9.5, 6.5);
  path.lineTo(11.5, 8.8);
  path.lineTo(20, 8.8);
  path.lineTo(20, 18.5);
  path.closeSubpath();
  return path;
}

QPainterPath outline(Symbol symbol) {
  switch (symbol) {
    case Symbol::Inspector:
      return inspector();
    case Symbol::Copy:
      return page(8.5, 8.5, 11, 11);
    case Symbol::Print:
      return printer();
    case Symbol::SaveTo:
      return saveTo();
    case Symbol::SaveAs:
      return saveAs();
    case Symbol::ZoomOut:
      return lens();
    case Symbol::ZoomIn: {
      QPainterPath path = lens();
      path.moveTo(10.5, 7.5);
      path.lineTo(10.5, 13.5);
      return path;
    }
    case Symbol::Fit:
      return fit();
    case Symbol::RotateLeft:
      return turnLeft();
    case Symbol::RotateRight:
      return QTransform(-1, 0, 0, 1, 24, 0).map(turnLeft());
    case Symbol::Open:
      return open();
    case Symbol::Reload:
      return reload();
  }
  return {};
}

class SymbolEngine final : public QIconEngine {
 public:
  explicit SymbolEngine(Symbol symbol) : symbol_(symbol) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QColor color = QGuiApplication::palette().color(
        QPalette::Active, mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
    color.setAlphaF(mode == QIcon::Disabled ? 0.35f : 0.85f);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const double side = std::min(rect.width(), rect.height());
    painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
    painter->scale(side / 24, side / 24);
    painter->setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(outline(symbol_));
    if (symbol_ == Symbol::Copy) painter->drawPath(copyBehind());
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new SymbolEngine(symbol_); }

 private:
  static QPainterPath copyBehind() {
    QPainterPath path(QPointF(15.5, 6.2));
    path.lineTo(15.5, 5.6);
    path.quadTo(15.5, 4.5, 14.4, 4.5);
    path.lineTo(5.6, 4.5);
    path.quadTo(4.5, 4.5, 4.5, 5.6);
    path.lineTo(4.5, 14.4);
    path.quadTo(4.5, 15.5, 5.6, 15.5);
    path.lineTo(6.2, 15.5);
    return path;
  }

  Symbol symbol_;
};

}  // namespace

QIcon symbolicIcon(Symbol symbol) {
  return QIcon(new SymbolEngine(symbol));
}  // the icon owns its engine

}  // namespace norvex
