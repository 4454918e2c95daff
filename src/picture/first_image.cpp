#include "picture/first_image.h"

#include <QVariant>

#include "picture/image_rep.h"

namespace norvex {
namespace {

constexpr char kProperty[] = "firstImage";

}  // namespace

void showFirst(NSImageRep& rep, const QImage& image) {
  rep.setProperty(kProperty, image);
}

QImage firstImageOf(const NSImageRep& rep) {
  return rep.property(kProperty).value<QImage>();
}

}  // namespace norvex
