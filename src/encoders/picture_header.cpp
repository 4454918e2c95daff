#include "encoders/picture_header.h"

#include "metadata/eps_header.h"
#include "metadata/pdf_header.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/svg_header.h"
#include "picture/web_image_rep.h"

namespace norvex {

HeaderDictionary pictureHeader(const NSImageRep* imageRep, const QLocale& locale) {
  if (const auto* eps = dynamic_cast<const NSEPSImageRep*>(imageRep))
    return epsHeader(eps->EPSRepresentation());
  if (const auto* pdf = dynamic_cast<const NSPDFImageRep*>(imageRep)) return pdfHeader(pdf->facts(), locale);
  if (const auto* svg = dynamic_cast<const ZyWebImageRep*>(imageRep))
    return svgHeader(svg->facts(), svg->colorSpace());
  return {};
}

}  // namespace norvex
