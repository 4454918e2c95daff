// One picture into another format: what the convert command does with each of its files.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

#include "base/cancel_token.h"
#include "cli/arguments/page_list.h"
#include "cli/reader/reader_options.h"
#include "encoders/encoded_picture.h"
#include "picture/open_picture.h"
#include "picture/process/picture_process.h"
#include "types/output_color.h"

namespace norvex {

struct ConversionOptions {
  PictureFormat format = PictureFormat::Pdf;
  double rotateDegrees = 0;    ///< counter-clockwise
  std::optional<QRectF> crop;  ///< points in the rotated view, origin at its lower-left corner, y up
  std::optional<int> page;     ///< from 1
  double dpi = 72;
  std::optional<int> quality;            ///< 1 … 100; nothing: the format's own
  OutputColor color = OutputColor::Rgb;  ///< of formats of pixels
  bool keepActions = false;              ///< of a PDF, in the PDF made of it
  bool keepText = false;                 ///< as text, in an SVG
  QColor background;                     ///< invalid: what is not painted stays transparent
  ReaderOptions reader;
  PictureLimits limits;
};

/// Bytes and what there is to tell about them.
struct Conversion {
  QByteArray bytes;  ///< empty: report.error says why
  qint64 size = 0;   ///< of the bytes, which are dropped when they are written
  EncodingReport report;
  QStringList metadataLost;  ///< keys of the header dictionary
  int page = 0;              ///< from 1, where pages were asked for one by one
};

/// Blocks for the picture process. The page is that of the options; of several without one it is the first,
/// which is told, unless the format holds them all. Thread-safe.
[[nodiscard]] Conversion convertPicture(PictureService& service, PictureSource source,
                                        const ConversionOptions& options, const CancelToken& cancel = {});

/// What becomes of the pages: those that there will be, all of them before the first is made, and then each
/// as it is done.
struct PageTaker {
  std::function<std::optional<Error>(const QList<int>& pages)> begin;
  /// False: no more are wanted.
  std::function<bool(Conversion)> take;
};

/// Each of the pages as if it were asked for alone, by one picture process. Fails where none is made: the
/// source cannot be opened, or does not have one of them. Thread-safe.
[[nodiscard]] Result<void> convertPages(PictureService& service, PictureSource source,
                                        const ConversionOptions& options, const PageList& pages,
                                        const PageTaker& taker, const CancelToken& cancel = {});

}  // namespace norvex
