// A picture of one colour on the screen of a session, found again by its pixels.
#pragma once

#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>

#include <cmath>
#include <cstdlib>
#include <functional>

namespace norvex::kit {

// Small enough to be seen whole at every angle in the smallest window.
inline constexpr double kWidth = 160, kHeight = 120;
/// One colour all over, and one that no theme has.
inline const QByteArray kEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 160 120\n%%EndComments\n1 0.9 0.2 setrgbcolor 0 0 160 120 "
    "rectfill\n%%EOF\n";
inline const QByteArray kSvg =
    "<svg xmlns='http://www.w3.org/2000/svg' width='160pt' height='120pt'><rect width='100%' height='100%' "
    "fill='#ffe633'/></svg>";

inline bool isPaper(QRgb c) {
  return std::abs(qRed(c) - 255) < 12 && std::abs(qGreen(c) - 230) < 12 && std::abs(qBlue(c) - 51) < 16;
}
inline bool isBlue(QRgb c) {
  return qBlue(c) > 180 && qRed(c) < 110 && qGreen(c) < 110;
}
inline bool isRed(QRgb c) {
  return qRed(c) > 200 && qGreen(c) < 110 && qBlue(c) < 110;
}

inline QRect boundsOf(const QRect& within, const std::function<bool(int, int)>& counts) {
  QRect box;
  for (int y = within.top(); y <= within.bottom(); ++y)
    for (int x = within.left(); x <= within.right(); ++x)
      if (counts(x, y)) box |= QRect(x, y, 1, 1);
  return box;
}

/// Bounds of the largest piece of the picture's colour: icons have a few pixels of it too.
inline QRect paperIn(const QImage& image) {
  QImage seen(image.size(), QImage::Format_Grayscale8);
  seen.fill(0);
  QRect largest;
  qsizetype most = 0;
  const auto visit = [&](QList<QPoint>& open, int x, int y) {
    if (!image.valid(x, y) || seen.constScanLine(y)[x] || !isPaper(image.pixel(x, y))) return;
    seen.scanLine(y)[x] = 1;
    open << QPoint(x, y);
  };
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      QList<QPoint> piece;
      visit(piece, x, y);
      QRect box;
      for (qsizetype i = 0; i < piece.size(); ++i) {
        const QPoint at = piece[i];
        box |= QRect(at, QSize(1, 1));
        for (const QPoint& step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
          visit(piece, at.x() + step.x(), at.y() + step.y());
      }
      if (piece.size() > most) most = piece.size(), largest = box;
    }
  return largest;
}

inline int count(const QImage& image, const QRect& within, bool (*is)(QRgb)) {
  int found = 0;
  for (int y = within.top(); y <= within.bottom(); ++y)
    for (int x = within.left(); x <= within.right(); ++x) found += is(image.pixel(x, y)) ? 1 : 0;
  return found;
}

/// Whether a pixel of this colour is at the point or beside it.
inline bool near(const QImage& image, const QPoint& at, bool (*is)(QRgb)) {
  return count(image, QRect(at, at).adjusted(-1, -1, 1, 1), is) > 0;
}

}  // namespace norvex::kit
