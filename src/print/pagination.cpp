#include "print/pagination.h"

#include <algorithm>
#include <cmath>

#include "protocol/limits.h"
#include "protocol/worker_protocol.h"

namespace norvex {
namespace {

constexpr double kTolerance = 0.01;  // points on paper that make no page of their own
constexpr double kLineBand = 36;     // what a header or footer takes of the paper at least
constexpr double kLineHeight = 12;
constexpr double kLineInset = 18;  // from the sheet's edge, where the margin is smaller
constexpr double kLeastRoom = 1;   // points

/// One direction: of the picture in points, with the room on a page.
struct Axis {
  double length = 0, room = 0;
  NSPrintingPaginationMode mode = NSPrintingPaginationMode::Automatic;
  bool centered = false;

  [[nodiscard]] double fittingScale() const {
    return mode == NSPrintingPaginationMode::Fit ? room / length : 1e9;
  }
  [[nodiscard]] double pages(double scale) const {
    if (mode != NSPrintingPaginationMode::Automatic) return 1;
    return std::max(1.0, std::ceil((length * scale - kTolerance) / room));
  }
};

/// From the beginning of an axis (left, or the top).
struct Span {
  double sourceStart, sourceLength, targetStart;
};

Span spanOf(const Axis& axis, double scale, int pages, int page) {
  const double step = axis.room / scale;
  const double start = page * step;
  const double length = std::min(step, axis.length - start);
  const bool centered = axis.centered && pages == 1;
  return {start, length, centered ? (axis.room - length * scale) / 2 : 0};
}

PageTile tileOf(const Span& x, const Span& y, const QRectF& imageable, double pictureHeight, double scale) {
  const QSizeF size(x.sourceLength, y.sourceLength);
  const QPointF source(x.sourceStart, pictureHeight - y.sourceStart - y.sourceLength);
  const QPointF target(imageable.left() + x.targetStart,
                       imageable.bottom() - y.targetStart - size.height() * scale);
  return {QRectF(source, size), QRectF(target, size * scale)};
}

void placeLines(Pagination& pages, const QMarginsF& margins, bool hasHeader, bool hasFooter) {
  const double left = std::max(margins.left(), kLineInset), right = std::max(margins.right(), kLineInset);
  const double width = std::max(pages.sheet.width() - left - right, kLeastRoom);
  // In the middle between the sheet's edge and what is printed.
  const auto line = [&](double low, double high) {
    return QRectF(left, (low + high - kLineHeight) / 2, width, kLineHeight);
  };
  if (hasHeader) pages.header = line(pages.imageable.bottom(), pages.sheet.height());
  if (hasFooter) pages.footer = line(0, pages.imageable.top());
}

}  // namespace

Result<Pagination> paginate(const QSizeF& picture, const NSPrintInfo& info, bool hasHeader, bool hasFooter) {
  Pagination pages;
  pages.sheet = info.paperSize();
  const QMarginsF margins = info.margins();
  const double top = hasHeader ? std::max(margins.top(), kLineBand) : margins.top();
  const double bottom = hasFooter ? std::max(margins.bottom(), kLineBand) : margins.bottom();
  pages.imageable = QRectF(margins.left(), bottom, pages.sheet.width() - margins.left() - margins.right(),
                           pages.sheet.height() - top - bottom);
  if (pages.imageable.width() < kLeastRoom || pages.imageable.height() < kLeastRoom)
    return Error{ErrorKind::Unsupported, QStringLiteral("the margins leave no room on the paper")};
  placeLines(pages, margins, hasHeader, hasFooter);
  if (picture.isEmpty()) {
    pages.tiles = {PageTile{}};
    return pages;
  }
  const Axis x{picture.width(), pages.imageable.width(), info.horizontalPagination(),
               info.isHorizontallyCentered()};
  const Axis y{picture.height(), pages.imageable.height(), info.verticalPagination(),
               info.isVerticallyCentered()};
  pages.scale = std::min({info.scalingFactor(), x.fittingScale(), y.fittingScale()});
  if (x.pages(pages.scale) * y.pages(pages.scale) > limits::maximumSheets)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the picture would take more than %1 sheets of paper").arg(limits::maximumSheets)};
  pages.columns = int(x.pages(pages.scale));
  pages.rows = int(y.pages(pages.scale));
  for (int row = 0; row < pages.rows; ++row)
    for (int column = 0; column < pages.columns; ++column)
      pages.tiles << tileOf(spanOf(x, pages.scale, pages.columns, column),
                            spanOf(y, pages.scale, pages.rows, row), pages.imageable, picture.height(),
                            pages.scale);
  return pages;
}

}  // namespace norvex
