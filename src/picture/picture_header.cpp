#include "picture/picture_header.h"

#include "metadata/pdf_header.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/svg_header.h"
#include "picture/web_image_rep.h"

namespace norvex {

HeaderDictionary pictureHeader(PictureKind kind, const QByteArray& source, const Result<PictureFacts>& facts,
                               const TiffDecoder& decodeTiff, const QLocale& locale) {
  switch (kind) {
    case PictureKind::Eps:
      return epsHeader(source, decodeTiff);
    case PictureKind::Pdf:
      return pdfHeader(facts, locale);
    case PictureKind::Svg:
      return svgHeader(facts);
  }
  return {};
}

HeaderDictionary pictureHeader(const NSImageRep* imageRep, const TiffDecoder& decodeTiff,
                               const QLocale& locale) {
  PictureFacts facts;
  if (const auto* pdf = dynamic_cast<const NSPDFImageRep*>(imageRep))
    facts = pdf->facts();
  else if (const auto* svg = dynamic_cast<const ZyWebImageRep*>(imageRep))
    facts = svg->facts();
  else if (!dynamic_cast<const NSEPSImageRep*>(imageRep))
    return {};
  return pictureHeader(imageRep->pictureKind(), imageRep->sourceBytes(), facts, decodeTiff, locale);
}

}  // namespace norvex
