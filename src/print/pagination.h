// How a picture is spread over pages.
#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>

#include <optional>

#include "base/result.h"
#include "print/print_info.h"

namespace norvex {

/// One page: `source` of the picture is drawn as `target` of the sheet. Points, y up, origins at the
/// lower-left corners of the picture and of the sheet. A page without anything on it has an empty target.
struct PageTile {
  QRectF source, target;
};

/// Pages from left to right, row by row from the top.
struct Pagination {
  QSizeF sheet;      ///< the paper as it is read
  QRectF imageable;  ///< what the margins, the header and the footer leave
  double scale = 1;  ///< points on paper for a point of the picture
  int columns = 1, rows = 1;
  QList<PageTile> tiles;
  std::optional<QRectF> header, footer;  ///< where the lines are, when there are any
};

/// Automatic pagination makes as many pages as the picture takes, whose edges meet; Fit makes the picture
/// smaller (never larger) until that direction takes one page; Clip leaves out what is beyond the first page.
/// A direction that takes one page is centred when the settings ask for it; otherwise the picture begins at
/// the left and at the top. The page range of the settings is not looked at. Without a picture (an empty
/// size) there is one blank page. Fails when the margins leave no room, and for more than
/// limits::maximumSheets pages.
[[nodiscard]] Result<Pagination> paginate(const QSizeF& picture, const NSPrintInfo& info,
                                          bool hasHeader = false, bool hasFooter = false);

}  // namespace norvex
