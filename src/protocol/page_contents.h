// A page's contents: the answers to ExamineRequest, as values and as CBOR. The picture process writes them,
// the window and the command line read them as everything that comes from there: strictly, within limits.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

#include "base/result.h"

namespace norvex {

// Every rectangle is in picture coordinates: points, origin at the picture's lower-left corner, y up.

struct UsedFont {
  QString name;  ///< PostScript name without the tag of a subset; of a Type 3 font perhaps empty
  QString type;  ///< as PDF calls it: "Type1", "TrueType", "Type0", "Type3", "MMType1"
  bool embedded = false;
  bool subset = false;
  bool used = false;  ///< text is shown in it
};

enum class ImageColours { LineArt = 1, Grey = 2, Colour = 3 };

struct UsedImage {
  QString name;  ///< "object 12", or "inline"
  int pixelsWide = 1, pixelsHigh = 1;
  ImageColours colours = ImageColours::Colour;
  double dpiX = 0, dpiY = 0;  ///< effective, as it is placed
  QRectF rect;                ///< what it covers
};

/// Something measured, and where.
struct Measured {
  double value = 0;
  QRectF rect;
};

struct PageContents {
  QSizeF size;  ///< of the page as it is shown, points
  QList<UsedFont> fonts;
  QList<UsedImage> images;
  QStringList colorSpaces;  ///< as PictureFacts has them
  QStringList spotInks;
  std::optional<Measured> thinnestLine;  ///< points
  std::optional<Measured> smallestText;  ///< points
  std::optional<Measured> mostInk;       ///< percent: of colours as they are set, images apart
  std::optional<Measured> outside;       ///< how far something is drawn beyond the page's box, points
  std::optional<QRectF> rgb, cmyk;       ///< where such a colour is first used
  std::optional<QRectF> transparency;    ///< likewise
  std::optional<QRectF> whiteOverprint;  ///< white that overprints
  std::optional<QRectF> blackKnocksOut;  ///< black text that does not overprint
  bool complete = true;                  ///< false: the page is longer than what is looked at
  // of the document
  bool encrypted = false;
  QStringList forbidden;      ///< what its permissions do not allow: "print", "change", "copy"
  QStringList claims;         ///< "PDF/X-1a:2003", "PDF/A-2b"
  QStringList outputIntents;  ///< names of their conditions
  QStringList missingFonts;   ///< sentences: others stand in for them
  QStringList remarks;        ///< of the drawing, sentences
  // of an SVG document
  int outsideReferences = 0;
  int filters = 0;
  bool runsSomething = false;    ///< scripts or animations
  bool sizeWithoutUnit = false;  ///< width or height are absent, or numbers alone
};

/// The rectangle that is really drawn.
struct DrawnInk {
  std::optional<QRectF> ink;      ///< what is neither left unpainted nor white; nothing: the page is white
  std::optional<QRectF> painted;  ///< with the white that was painted
  QRectF area;                    ///< within which it was looked for
  double accuracy = 0;            ///< points
};

[[nodiscard]] QByteArray encodePageContents(const PageContents& contents);
[[nodiscard]] QByteArray encodeDrawnInk(const DrawnInk& drawn);
/// Fail with Protocol, as decodeReply().
[[nodiscard]] Result<PageContents> decodePageContents(const QByteArray& cbor);
[[nodiscard]] Result<DrawnInk> decodeDrawnInk(const QByteArray& cbor);

}  // namespace norvex
