// The three texts that tell what is selected.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace norvex {

struct SelectionReport {
  QString start, end, area;  ///< two numbers separated by one tab, or empty
};

/// Two numbers as "%g\t%g", whatever the locale.
[[nodiscard]] QString shortPair(double first, double second);
/// Two numbers as "%9.2f\t%9.2f", whatever the locale.
[[nodiscard]] QString widePair(double first, double second);

/// For pictures whose y axis points up. `topLeft` and `bottomRight` are the picture points of the selection's
/// origin and of the corner opposite.
[[nodiscard]] SelectionReport selectionReport(const QRectF& selectRect, const QPointF& topLeft,
                                              const QPointF& bottomRight);

/// For pictures whose y axis points down. The end point is a plain rotation of the upper right corner, not
/// flipped like the start point; readers of the report rely on it.
[[nodiscard]] SelectionReport flippedSelectionReport(const QRectF& selectRect, const QSizeF& imageSize,
                                                     double rotate);

}  // namespace norvex
