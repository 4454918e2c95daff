#include "types/type_description.h"

#include <QList>

#include "base/localized_string.h"

namespace norvex {

QString localizedDescription(const UTType& type) {
  struct Title {
    QString identifier;
    const char* key;
  };
  static const QList<Title> titles{
      {NorvexEPSType, "Encapsulated PostScript (EPS)"},
      {NorvexEPSIType, "Encapsulated PostScript with interchange preview (EPSI)"},
      {UTTypePDF().identifier(), "PDF document"},
      {UTTypeSVG().identifier(), "SVG image"},
      {NorvexSVGZType, "Compressed SVG image (SVGZ)"},
      {UTTypeTIFF().identifier(), "TIFF image"},
      {UTTypePNG().identifier(), "PNG image"},
      {UTTypeJPEG().identifier(), "JPEG image"},
      {UTTypeGIF().identifier(), "GIF image"},
  };
  for (const Title& title : titles)
    if (title.identifier == type.identifier()) return localizedString(title.key);
  return type.identifier();
}

}  // namespace norvex
