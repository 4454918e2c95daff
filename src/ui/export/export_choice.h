// The part of a picture that is written, and how.
#pragma once

#include <QColor>
#include <QList>
#include <QSizeF>
#include <QString>

#include <optional>

#include "types/output_color.h"
#include "types/picture_format.h"

namespace norvex {

/// Page: the shown page, turned as it is shown. Document: every page, as the file has them. Pages: some of
/// them, as the file has them.
enum class ExportArea { Selection, Visible, Page, Document, Pages };

/// True if the file gets pages of the document in place of a picture of one.
[[nodiscard]] constexpr bool holdsPages(ExportArea area) {
  return area == ExportArea::Document || area == ExportArea::Pages;
}

/// Bounds of ExportChoice::dpi.
inline constexpr double kLeastExportDpi = 1, kMostExportDpi = 4800;

struct ExportChoice {
  PictureFormat format = PictureFormat::Png;
  ExportArea area = ExportArea::Page;
  double dpi = 144;                      ///< pixels an inch, of formats that hold pixels
  OutputColor color = OutputColor::Rgb;  ///< of pixels
  QColor background;                     ///< of pixels; invalid: what is not painted stays transparent
  std::optional<int> quality;       ///< 1 … 100, of formats that can lose some; nothing: the format's own
  int firstPage = 1, lastPage = 1;  ///< of Pages; from 1, in order
  bool keepText = false;            ///< of an SVG: as text, with its fonts
  bool operator==(const ExportChoice&) const = default;
};

/// All that there is to choose from.
struct ExportOffer {
  struct Area {
    ExportArea area;
    QSizeF size;  ///< points
  };
  QList<PictureFormat> formats;      ///< at least one
  QList<Area> areas;                 ///< at least one
  int pageCount = 1, shownPage = 0;  ///< of the document; from 0
  QString folder;                    ///< absolute; where the file goes at first
  QString name;                      ///< proposed, without extension
  bool drawsSvg = true;              ///< false: an SVG stays the SVG that it is, text and all
};

}  // namespace norvex
