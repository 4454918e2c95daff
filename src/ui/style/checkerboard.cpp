#include "ui/style/checkerboard.h"

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QRectF>

#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

constexpr int kSquare = 8;

QPixmap tile(bool dark) {
  const QColor first = dark ? QColor(0x2b, 0x2b, 0x2d) : QColor(0xff, 0xff, 0xff);
  const QColor second = dark ? QColor(0x33, 0x33, 0x36) : QColor(0xf0, 0xf0, 0xf1);
  QPixmap pixmap(2 * kSquare, 2 * kSquare);
  pixmap.fill(first);
  QPainter painter(&pixmap);
  painter.fillRect(0, 0, kSquare, kSquare, second);
  painter.fillRect(kSquare, kSquare, kSquare, kSquare, second);
  return pixmap;
}

}  // namespace

void drawCheckerboard(QPainter& painter, const QRectF& rect, const QPalette& palette) {
  const bool dark = isDarkScheme(palette);
  static const QPixmap tiles[2] = {tile(false), tile(true)};
  const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter.fillRect(rect, QBrush(tiles[dark ? 1 : 0]));
  painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
}

}  // namespace norvex
