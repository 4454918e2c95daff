#include "window/commands/picture_formats.h"

#include <cmath>

#include "desktop/pastable_svg.h"
#include "display/picture_geometry.h"
#include "encoders/encoded_picture.h"
#include "picture/eps_image_rep.h"
#include "picture/web_image_rep.h"

namespace norvex {
namespace {

const QString kPasteboardTypePDF = QStringLiteral("com.adobe.pdf");
const QString kPasteboardTypeTIFF = QStringLiteral("public.tiff");

using Raster = QByteArray (PictureEncoder::*)(const std::shared_ptr<NSImageRep>&);

UTType epsType() {
  return *UTType::typeWithIdentifier(NorvexEPSType);
}

/// An encoder of one task: an encoder serves one thread at a time.
QByteArray encoded(const PictureSnapshot& snapshot, const CancelToken& cancel, Raster raster,
                   const std::shared_ptr<NSImageRep>& imageRep) {
  PictureEncoder encoder(snapshot.imageRep, snapshot.surroundings, cancel);
  return (encoder.*raster)(imageRep);
}

/// The same bytes as those of a file with this part of the picture.
QByteArray insideRect(const PictureSnapshot& snapshot, const CancelToken& cancel, PictureFormat format) {
  EncoderSurroundings surroundings = snapshot.surroundings;
  surroundings.region = regionOf(snapshot);
  surroundings.subjectMayBeLeftOut = true;
  PictureEncoder encoder(snapshot.imageRep, surroundings, cancel);
  return encodedPicture(encoder, format);
}

QByteArray cutSvg(const PictureSnapshot& snapshot, const SvgCut& cut, const CancelToken& cancel) {
  return PictureEncoder(snapshot.imageRep, snapshot.surroundings, cancel).svgInside(cut);
}

std::shared_ptr<NSPDFImageRep> pdfImageRepOf(const PictureSnapshot& snapshot, const QByteArray& pdf,
                                             const CancelToken& cancel) {
  if (pdf.isEmpty() || !snapshot.surroundings.service) return nullptr;
  const auto rep = NSPDFImageRep::imageRepWithData(*snapshot.surroundings.service, pdf, {}, 0, cancel);
  if (!rep) return nullptr;
  // Whichever thread asks first makes it, but threads of a pool deliver no events.
  if (snapshot.home) (*rep)->moveToThread(snapshot.home);
  return *rep;
}

bool hasRect(const PictureSnapshot& snapshot) {
  return snapshot.imageRep && isFinite(snapshot.rect) && snapshot.rect.width() > 0 &&
         snapshot.rect.height() > 0;
}

std::shared_ptr<PromisedData> appendPdf(PictureFormats& formats, const PictureSnapshot& snapshot) {
  formats.append(kPasteboardTypePDF, UTTypePDF(), [snapshot, cancel = formats.cancel] {
    return insideRect(snapshot, cancel, PictureFormat::Pdf);
  });
  auto pdf = formats.DataObjects.last();
  formats.pdfImageRep = std::make_shared<PromisedValue<std::shared_ptr<NSPDFImageRep>>>(
      [snapshot, pdf, cancel = formats.cancel] { return pdfImageRepOf(snapshot, pdf->get(), cancel); });
  return pdf;
}

/// `needed`: bytes without which this format is left out; null: none.
void appendEps(PictureFormats& formats, const PictureSnapshot& snapshot,
               const std::shared_ptr<PromisedData>& needed) {
  formats.append(NorvexEPSType, epsType(), [snapshot, needed, cancel = formats.cancel] {
    return needed && needed->get().isEmpty() ? QByteArray()
                                             : insideRect(snapshot, cancel, PictureFormat::Eps);
  });
}

std::function<QByteArray()> rasterOfPdf(const PictureFormats& formats, const PictureSnapshot& snapshot,
                                        Raster raster) {
  return [snapshot, raster, rep = formats.pdfImageRep, cancel = formats.cancel] {
    return encoded(snapshot, cancel, raster, rep->get());
  };
}

/// TIFF of the cut document; of the PDF where that cannot be drawn.
std::function<QByteArray()> tiffOfSvg(const PictureFormats& formats, const PictureSnapshot& snapshot,
                                      const std::shared_ptr<PromisedData>& cut) {
  return [snapshot, cut, pdf = formats.pdfImageRep, cancel = formats.cancel] {
    const auto& source = static_cast<const ZyWebImageRep&>(*snapshot.imageRep);
    const QByteArray svg = cut->get();
    if (svg.isEmpty() || !snapshot.surroundings.service) return QByteArray();
    const auto rep =
        ZyWebImageRep::imageRepWithData(*snapshot.surroundings.service, svg,
                                        source.valueForKey(QStringLiteral("fileURL")).toUrl(), {}, cancel);
    if (!rep) return QByteArray();
    const QByteArray tiff = encoded(snapshot, cancel, &PictureEncoder::tiffData, *rep);
    return tiff.isEmpty() ? encoded(snapshot, cancel, &PictureEncoder::tiffData, pdf->get()) : tiff;
  };
}

void appendSvgFormats(PictureFormats& formats, const PictureSnapshot& snapshot) {
  formats.append(QString::fromLatin1(ZySVGPboardType), UTTypeSVG(),
                 [snapshot, cut = svgCutOf(snapshot), cancel = formats.cancel] {
                   return cutSvg(snapshot, cut, cancel);
                 });
  const auto svg = formats.DataObjects.last();
  const auto pdf = appendPdf(formats, snapshot);
  appendEps(formats, snapshot, pdf);
  formats.append(kPasteboardTypeTIFF, UTTypeTIFF(), tiffOfSvg(formats, snapshot, svg));
}

}  // namespace

void PictureFormats::append(const QString& pasteboardType, const UTType& type,
                            std::function<QByteArray()> make) {
  Types << pasteboardType;
  UTIs << type;
  DataObjects << std::make_shared<PromisedData>(std::move(make));
}

void PictureFormats::removeAt(qsizetype index) {
  Types.removeAt(index);
  UTIs.removeAt(index);
  DataObjects.removeAt(index);
}

PictureRegion regionOf(const PictureSnapshot& snapshot) {
  const QSizeF page = snapshot.imageRep->size();
  const double s = std::sin(snapshot.placement.rotate), c = std::cos(snapshot.placement.rotate);
  const QPointF offset = snapshot.placement.pivot - QPointF(page.width() * 0.5, page.height() * 0.5);
  const QPointF shift(c * offset.x() - s * offset.y(), s * offset.x() + c * offset.y());
  return PictureRegion{snapshot.rect.translated(shift), snapshot.placement.rotate};
}

SvgCut svgCutOf(const PictureSnapshot& snapshot) {
  const QRectF& r = snapshot.rect;
  const QRectF& f = snapshot.frame;
  SvgCut cut;
  cut.rect = QRectF(r.x() + f.width() * 0.5, f.height() * 0.5 + r.y(), r.width(), r.height());
  cut.angle = snapshot.placement.rotate;
  if (snapshot.clockwise != snapshot.flippedCoordinate) {
    cut.rect.moveTop((f.y() + f.height()) * 0.5 - (r.y() + r.height()));
    cut.angle = twoPi - cut.angle;
  }
  return cut;
}

PictureFormats selectionFormats(const PictureSnapshot& snapshot) {
  PictureFormats formats;
  if (!hasRect(snapshot)) return formats;
  if (dynamic_cast<const NSEPSImageRep*>(snapshot.imageRep.get())) {
    appendEps(formats, snapshot, nullptr);
    appendPdf(formats, snapshot);
  } else if (dynamic_cast<const NSPDFImageRep*>(snapshot.imageRep.get())) {
    appendEps(formats, snapshot, appendPdf(formats, snapshot));
  } else if (dynamic_cast<const ZyWebImageRep*>(snapshot.imageRep.get())) {
    appendSvgFormats(formats, snapshot);
    return formats;
  } else {
    return formats;
  }
  formats.append(kPasteboardTypeTIFF, UTTypeTIFF(),
                 rasterOfPdf(formats, snapshot, &PictureEncoder::tiffData));
  return formats;
}

PictureFormats wholePictureFormats(const PictureSnapshot& snapshot) {
  PictureFormats formats;
  const std::shared_ptr<NSImageRep>& rep = snapshot.imageRep;
  if (const auto svg = std::dynamic_pointer_cast<ZyWebImageRep>(rep)) {
    formats.append(QString::fromLatin1(ZySVGPboardType),
                   *UTType::typeWithIdentifier(QString::fromLatin1(ZySVGDocumentTypeName)),
                   [svg] { return svg->SVGRepresentation(); });
    formats.append(kPasteboardTypePDF, UTTypePDF(), [svg] { return svg->PDFRepresentation(); });
    formats.append(NorvexEPSType, epsType(), [svg] { return svg->EPSRepresentation(); });
    formats.append(kPasteboardTypeTIFF, UTTypeTIFF(), [snapshot, cancel = formats.cancel] {
      return encoded(snapshot, cancel, &PictureEncoder::tiffData, snapshot.imageRep);
    });
  } else if (const auto eps = std::dynamic_pointer_cast<NSEPSImageRep>(rep)) {
    formats.append(NorvexEPSType, epsType(), [eps] { return eps->EPSRepresentation(); });
  } else if (const auto pdf = std::dynamic_pointer_cast<NSPDFImageRep>(rep)) {
    formats.append(kPasteboardTypePDF, UTTypePDF(), [pdf] { return pdf->PDFRepresentation(); });
  }
  return formats;
}

void appendRasterFormats(PictureFormats& formats, const PictureSnapshot& snapshot) {
  if (!formats.pdfImageRep) return;
  formats.append(UTTypePNG().identifier(), UTTypePNG(),
                 rasterOfPdf(formats, snapshot, &PictureEncoder::pngData));
  formats.append(UTTypeJPEG().identifier(), UTTypeJPEG(),
                 rasterOfPdf(formats, snapshot, &PictureEncoder::jpgData));
  formats.append(UTTypeGIF().identifier(), UTTypeGIF(),
                 rasterOfPdf(formats, snapshot, &PictureEncoder::gifData));
}

PictureFormats translatedFormats(const PictureFormats& offered, const PictureSnapshot& snapshot) {
  PictureFormats made;
  made.cancel = offered.cancel;
  made.pdfImageRep = offered.pdfImageRep;
  if (offered.count() == 0 || !hasRect(snapshot)) return made;
  if (offered.indexOf(UTTypeSVG()) < 0)
    made.append(QString::fromLatin1(ZySVGPboardType), UTTypeSVG(), [snapshot, cancel = offered.cancel] {
      const QByteArray svg = insideRect(snapshot, cancel, PictureFormat::Svg);
      // An engine that has no SVG may answer with its own.
      return svg.contains("<svg") ? pastableSvg(svg) : QByteArray();
    });
  if (offered.indexOf(UTTypePDF()) < 0) appendPdf(made, snapshot);
  if (offered.indexOf(epsType()) < 0) appendEps(made, snapshot, nullptr);
  made.append(
      UTTypePNG().identifier(), UTTypePNG(),
      made.pdfImageRep ? rasterOfPdf(made, snapshot, &PictureEncoder::pngData)
                       : [snapshot, cancel = offered.cancel] {
                           return encoded(snapshot, cancel, &PictureEncoder::pngData, snapshot.imageRep);
                         });
  return made;
}

PictureSnapshot wholeOf(PictureSnapshot snapshot) {
  const QPointF pivot = snapshot.placement.pivot;
  snapshot.placement.rotate = 0;
  snapshot.rect = snapshot.frame = QRectF(-pivot.x(), -pivot.y(), 2 * pivot.x(), 2 * pivot.y());
  return snapshot;
}

}  // namespace norvex
