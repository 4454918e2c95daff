#include "worker/svg/svg_facts.h"

#include <QRectF>

#include <optional>
#include <utility>

#include "protocol/limits.h"
#include "types/gzip_mark.h"
#include "worker/svg/gzip_inflate.h"

namespace norvex::engine {
namespace {

QStringList warnings(const SvgReading& read) {
  QStringList list;
  const auto warn = [&](bool when, const QString& text) {
    if (when) list << text;
  };
  warn(read.text.handedOnAsUtf8, QStringLiteral("the text is in %1 and is handed on as UTF-8")
                                     .arg(QString::fromUtf8(read.text.declaredName.left(40))));
  warn(read.geometry.badWidth || read.geometry.badHeight,
       QStringLiteral("the document's width or height is not a length and is passed over"));
  warn(read.geometry.badViewBox,
       QStringLiteral("the document's view box is not readable and is passed over"));
  warn(read.inspection.outsideReferences > 0,
       QStringLiteral("the document refers to other files, which are never loaded (references: %1)")
           .arg(read.inspection.outsideReferences));
  warn(read.inspection.hasScript, QStringLiteral("the document has scripts, which are never run"));
  warn(read.inspection.hasAnimation,
       QStringLiteral("the document is animated and is shown as it stands at rest"));
  return list;
}

}  // namespace

Result<SvgReading> readSvg(const QByteArray& bytes) {
  SvgReading read{bytes, {}, {}, {}};
  if (isGzip(bytes)) {
    Result<QByteArray> inflated = inflateGzip(bytes);
    if (!inflated) return inflated.error();
    read.source = std::move(*inflated);
  }
  if (read.source.size() > limits::maximumInflatedBytes)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the document is larger than %1 MiB").arg(limits::maximumInflatedBytes >> 20)};
  Result<SvgText> text = decodeSvgText(read.source);
  if (!text) return text.error();
  read.text = std::move(*text);
  Result<SvgInspection> inspection = inspectSvg(read.text.utf8);
  if (!inspection) return inspection.error();
  read.inspection = std::move(*inspection);
  read.geometry = svgGeometry(read.inspection.rootAttributes);
  return read;
}

Result<QSizeF> measuredSvg(const SvgGeometry& geometry, const std::function<Result<QSizeF>()>& drawn) {
  std::optional<Error> failed;
  const QSizeF pixels = svgPixelSize(geometry, [&]() -> QSizeF {
    const Result<QSizeF> extent = drawn();
    if (!extent) failed = extent.error();
    return extent ? *extent : QSizeF();
  });
  if (failed) return *failed;
  const QSizeF size = pixels * pointsPerPixel;
  if (!(size.width() > 0 && size.height() > 0))
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture is empty: its width or height is zero")};
  if (!(size.width() <= limits::maximumPoints && size.height() <= limits::maximumPoints))
    return Error{ErrorKind::Limit, QStringLiteral("the picture is wider or higher than %1 points")
                                       .arg(limits::maximumPoints, 0, 'f', 0)};
  return pixels;
}

PictureFacts svgFacts(const SvgReading& read, QSizeF pixels) {
  PictureFacts facts;
  facts.pageBounds = {QRectF(QPointF(0, 0), pixels * pointsPerPixel)};
  facts.viewBox = read.geometry.viewBox;
  facts.fonts = read.inspection.fonts;
  facts.colorSpaces = {
      QStringLiteral("sRGB")};  // the colours of the format; what else a document names is not drawn
  facts.title = read.inspection.title;
  facts.description = read.inspection.description;
  facts.encodingName = read.text.encodingName;
  facts.encodingNumber = read.text.encodingNumber;
  if (read.geometry.width) facts.fixedRatioX = !read.geometry.width->isPercentage;
  if (read.geometry.height) facts.fixedRatioY = !read.geometry.height->isPercentage;
  facts.warnings = warnings(read);
  return facts;
}

}  // namespace norvex::engine
