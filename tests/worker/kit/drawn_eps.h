// An EPS source as it is drawn, a pixel a point, with what was told about it.
#pragma once

#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>

#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/postscript/eps_engine.h"

namespace norvex::kit {

struct DrawnEps {
  QImage image;  ///< null when it failed
  QStringList remarks;
  QString stoppedBy;
  QString error;
};

inline DrawnEps drawnEps(const QByteArray& source) {
  QTemporaryDir folder;
  engine::EngineContext context;
  context.scratchFolder = folder.path();
  context.limits.seconds = 60;
  const auto opened = engine::openEps(source, context);
  if (!opened) return {{}, {}, {}, opened.error().message};
  const QRectF box = (*opened)->facts()->pageBounds.first();
  RenderRequest request;
  request.pixelSize = box.size().toSize();
  request.pictureToDevice = QTransform(1, 0, 0, -1, 0, box.height());
  const auto image = imageOf((*opened)->render(request));
  DrawnEps drawn{{}, (*opened)->drawingRemarks(), (*opened)->facts()->stoppedBy, {}};
  if (image)
    drawn.image = *image;
  else
    drawn.error = image.error().message;
  return drawn;
}

/// How many pixels differ by more than `tolerance` in a channel; all of them when the sizes differ.
inline int differentPixels(const QImage& a, const QImage& b, int tolerance) {
  if (a.size() != b.size() || a.isNull()) return -1;
  int count = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
      const int most = std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                                 std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
      count += most > tolerance;
    }
  return count;
}

/// How many pixels are painted at all.
inline int paintedPixels(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += qAlpha(image.pixel(x, y)) > 0;
  return count;
}

}  // namespace norvex::kit
