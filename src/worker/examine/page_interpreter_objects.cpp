#include <algorithm>
#include <cmath>

#include "protocol/limits.h"
#include "worker/examine/operands.h"
#include "worker/examine/page_interpreter.h"

// Forms and images of a page.
namespace norvex::engine {
namespace {

constexpr double kPointsPerInch = 72;

int sideOf(QPDFObjectHandle side) {
  if (!side.isInteger()) return 0;
  const long long value = side.getIntValue();
  return value > 0 && value <= limits::maximumImageSide ? int(value) : 0;
}

bool isTrue(QPDFObjectHandle value) {
  return value.isBool() && value.getBoolValue();
}

double dpiOf(int pixels, double points) {
  return points > 0 && std::isfinite(points) ? std::min(pixels * kPointsPerInch / points, 1.0e8) : 0;
}

}  // namespace

void PageInterpreter::showObject(const Operands& operands) {
  if (operands.empty()) return;
  QPDFObjectHandle object = resource("/XObject", operands[0]);
  if (!object.isStream()) return;
  QPDFObjectHandle dictionary = object.getDict();
  if (dictionary.getKey("/Subtype").isNameAndEquals("/Form")) return runForm(object, state_.toPicture);
  if (dictionary.getKey("/Subtype").isNameAndEquals("/Image"))
    showImage(dictionary, QStringLiteral("object %1").arg(object.getObjectID()), false);
}

void PageInterpreter::showImage(QPDFObjectHandle dictionary, const QString& name, bool isInline) {
  UsedImage image;
  image.name = name;
  image.pixelsWide = sideOf(dictionary.getKey("/Width"));
  image.pixelsHigh = sideOf(dictionary.getKey("/Height"));
  if (image.pixelsWide == 0 || image.pixelsHigh == 0) return;
  const AffineTransform& m = state_.toPicture;
  image.rect = m.mapRect(QRectF(0, 0, 1, 1));
  image.dpiX = dpiOf(image.pixelsWide, std::hypot(m.m11(), m.m12()));
  image.dpiY = dpiOf(image.pixelsHigh, std::hypot(m.m21(), m.m22()));
  const bool isMask = isTrue(dictionary.getKey("/ImageMask"));
  QPDFObjectHandle space = dictionary.getKey("/ColorSpace"), bits = dictionary.getKey("/BitsPerComponent");
  if (QPDFObjectHandle found = resource("/ColorSpace", space); isInline && !found.isNull()) space = found;
  const ColourSpace colours = isMask ? state_.fill.space : colourSpaceOf(space);
  if (isMask || (bits.isInteger() && bits.getIntValue() == 1))
    image.colours = ImageColours::LineArt;
  else
    image.colours = colours.model == ColourModel::Grey ? ImageColours::Grey : ImageColours::Colour;
  const bool isTransparent = !isMask && dictionary.getKey("/SMask").isStream();
  findings_.image(state_, std::move(image), colours, isTransparent);
}

}  // namespace norvex::engine
