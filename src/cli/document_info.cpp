#include "cli/document_info.h"

#include "base/time_limit.h"
#include "cli/files/input_file.h"
#include "metadata/dos_eps_header.h"
#include "metadata/eps_resources.h"
#include "metadata/pdf_header.h"
#include "picture/embedded_preview.h"
#include "picture/eps_image_rep.h"
#include "picture/picture_header.h"
#include "picture/process/null_picture_service.h"
#include "picture/process/page_names.h"
#include "types/document_kind.h"

namespace norvex {
namespace {

QString nameOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::Svg:
      return QStringLiteral("SVG");
    case DocumentKind::Eps:
      return QStringLiteral("EPS");
    case DocumentKind::Illustrator:
      return QStringLiteral("Illustrator");
    case DocumentKind::Pdf:
      return QStringLiteral("PDF");
    case DocumentKind::Other:
      break;
  }
  return QStringLiteral("other");
}

// The header has no place for one within the program of a binary file, nor for a Windows metafile.
void tellOtherPreview(DocumentInfo& info, const Result<std::optional<NSBitmapImageRep>>& preview,
                      qsizetype metafileBytes) {
  if (!preview) info.warnings << preview.error().message;
  if (!preview || !*preview) return;
  const QString kind = metafileBytes > 0 ? QStringLiteral("a Windows metafile of %1 bytes").arg(metafileBytes)
                                         : QStringLiteral("an interchange preview");
  info.warnings << QStringLiteral("the embedded preview is %1, drawn with %2 × %3 pixels")
                       .arg(kind)
                       .arg((*preview)->pixelsWide)
                       .arg((*preview)->pixelsHigh);
}

void readEps(DocumentInfo& info, PictureService& service, const QByteArray& bytes,
             const PictureLimits& limits, const CancelToken& cancel) {
  const TiffDecoder decodeTiff = [&](const QByteArray& tiff) -> std::optional<NSBitmapImageRep> {
    const Result<NSBitmapImageRep> preview = service.decodePreview(tiff, cancel, limits);
    if (preview) return *preview;
    info.warnings << preview.error().message;
    return std::nullopt;
  };
  info.header = pictureHeader(PictureKind::Eps, bytes, PictureFacts(), decodeTiff);
  info.guessed = guessedHeader(bytes, info.header);
  if (!info.header.contains(header::Preview) && info.warnings.isEmpty())
    tellOtherPreview(info, embeddedPreview(service, bytes, cancel, limits), metafileOf(bytes).size());
  // The header is all that the representation reads; without a service it starts no process for the drawing.
  NullPictureService undrawn;
  const auto rep = NSEPSImageRep::imageRepWithData(undrawn, bytes);
  if (!rep) {
    info.error = rep.error();
    return;
  }
  info.rectangle = (*rep)->boundingBox();
  info.hiResBoundingBox = (*rep)->hiResBoundingBox();
  info.pages = 1;
  info.warnings += (*rep)->warnings();
  const EpsResources resources = epsResources(bytes);
  info.fonts = resources.fonts;
  info.colorSpaces = resources.colors;
  info.plates = resources.plates;
}

void readFacts(DocumentInfo& info, const Result<PictureFacts>& facts) {
  if (!facts) {
    info.error = facts.error();
    return;
  }
  if (!facts->pageBounds.isEmpty()) info.rectangle = facts->pageBounds.first();
  info.pages = facts->pageCount;
  info.viewBox = facts->viewBox;
  info.fonts = facts->fonts;
  info.colorSpaces = facts->colorSpaces;
  info.layers = facts->layers;
  info.warnings = facts->warnings;
}

void readPicture(DocumentInfo& info, PictureService& service, PictureKind kind, const QByteArray& bytes,
                 const PictureLimits& limits, const ReaderOptions& reader) {
  const TimeLimit time(std::chrono::seconds(limits.seconds), {});
  info.rectangleTitle = kind == PictureKind::Svg ? QStringLiteral("ViewBox") : QStringLiteral("Bounds");
  if (kind == PictureKind::Eps) return readEps(info, service, bytes, limits, time.token());
  PictureSource source = sourceOfInput(bytes, info.file);
  const Result<QStringList> read = readAsOptioned(service, source, reader, limits, time.token());
  const Result<PictureFacts> facts =
      read ? factsWithNames(*service.open(source.bytes, kind, limits), kind, time.token()) : read.error();
  readFacts(info, facts);
  if (info.error) info.error = time.explained(*info.error);
  info.header = pictureHeader(kind, bytes, facts);
}

}  // namespace

DocumentInfo documentInfo(PictureService& service, const QString& file, const Result<QByteArray>& bytes,
                          const PictureLimits& limits, const ReaderOptions& reader) {
  DocumentInfo info;
  info.file = file;
  if (!bytes) {
    info.error = bytes.error();
    return info;
  }
  info.typeIdentifier = sourceOfInput(*bytes, file).typeIdentifier;
  info.kind = nameOf(documentKind(info.typeIdentifier));
  const Result<PictureKind> kind = pictureKindOf(*bytes, info.typeIdentifier);
  if (kind)
    readPicture(info, service, *kind, *bytes, limits, reader);
  else
    info.error = kind.error();
  return info;
}

}  // namespace norvex
