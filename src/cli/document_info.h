// The facts of a document without rendering it.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>

#include "base/result.h"
#include "cli/reader/reader_options.h"
#include "metadata/eps_resources.h"
#include "metadata/guessed_header.h"
#include "metadata/header_dictionary.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// Facts of one file. What could be had stands beside the error that prevented the rest.
struct DocumentInfo {
  QString file;  ///< as it was given
  QString kind;  ///< "SVG", "EPS", "Illustrator", "PDF" or "other"; empty when the file could not be read
  QString typeIdentifier;
  HeaderDictionary header;
  std::optional<GuessedHeader> guessed;  ///< of a source that decodes in no encoding
  std::optional<QRectF> rectangle;       ///< bounding box (EPS) or bounds (PDF, SVG), points
  QString rectangleTitle;                ///< "Bounds", or "ViewBox" for SVG
  std::optional<QRectF> viewBox;
  std::optional<QRectF> hiResBoundingBox;
  std::optional<int> pages;
  QStringList fonts, colorSpaces;  ///< that the picture uses, as far as that is told without drawing it
  QList<PictureLayer> layers;      ///< of a PDF, as they are shown
  QList<EpsPlate> plates;          ///< of a separated EPS file
  QStringList warnings;
  std::optional<Error> error;
};

/// Finds everything out about a file that was read. PostScript is looked at here; PDF and SVG are opened by
/// `service`, and so is the TIFF preview of binary EPS. Blocks; may be called by several threads.
[[nodiscard]] DocumentInfo documentInfo(PictureService& service, const QString& file,
                                        const Result<QByteArray>& bytes, const PictureLimits& limits = {},
                                        const ReaderOptions& reader = {});

}  // namespace norvex
