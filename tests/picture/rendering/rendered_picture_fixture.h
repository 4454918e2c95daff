// A RenderedPicture of a picture in memory, and what is looked at in its frames.
#pragma once

#include <QImage>
#include <QPainter>
#include <QTest>
#include <QTransform>

#include <atomic>
#include <cmath>
#include <memory>
#include <utility>

#include "picture/process/memory_picture_service.h"
#include "picture/rendering/rendered_picture.h"

namespace norvex {

inline constexpr QSize kFrame(300, 200);
inline const QRect kVisible(QPoint(), kFrame);

/// A page that is turned about its middle, scaled, and put with its middle at a device point.
inline QTransform placed(const QSizeF& size, double scale, double degrees, const QPointF& middle) {
  QTransform t;
  t.translate(middle.x(), middle.y());
  t.scale(scale, -scale);
  t.rotate(degrees);
  t.translate(-size.width() / 2, -size.height() / 2);
  return t;
}

inline QImage emptyFrame() {
  QImage frame(kFrame, QImage::Format_ARGB32_Premultiplied);
  frame.fill(Qt::transparent);
  return frame;
}

/// Pixels inside the page (one pixel away from its edge) in which nothing was drawn.
inline int blankPixels(const QImage& frame, const QTransform& pictureToDevice, const QSizeF& size) {
  const QTransform back = pictureToDevice.inverted();
  const double edge = 2 / std::sqrt(std::abs(pictureToDevice.determinant()));
  const QRectF inside = QRectF(QPointF(), size).adjusted(edge, edge, -edge, -edge);
  int blank = 0;
  for (int y = 0; y < frame.height(); ++y)
    for (int x = 0; x < frame.width(); ++x)
      if (inside.contains(back.map(QPointF(x + 0.5, y + 0.5))) && qAlpha(frame.pixel(x, y)) == 0) ++blank;
  return blank;
}

inline int differingPixels(const QImage& a, const QImage& b) {
  int count = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) count += a.pixel(x, y) != b.pixel(x, y);
  return count;
}

/// Share of the pixels of `sharp` that look like those of `frame`.
inline double nearPixels(const QImage& frame, const QImage& sharp) {
  int near = 0;
  int inside = 0;
  for (int y = 0; y < sharp.height(); ++y) {
    for (int x = 0; x < sharp.width(); ++x) {
      if (qAlpha(sharp.pixel(x, y)) == 0) continue;
      ++inside;
      near += std::abs(qRed(sharp.pixel(x, y)) - qRed(frame.pixel(x, y))) < 12 &&
              std::abs(qGreen(sharp.pixel(x, y)) - qGreen(frame.pixel(x, y))) < 12;
    }
  }
  return double(near) / inside;
}

/// A picture of one size with everything that a test looks at.
struct Fixture {
  explicit Fixture(const QSizeF& pageSize, RenderedPictureOptions options = {}, MemoryPicture memory = {})
      : size(pageSize) {
    // Opening took no time: what is stale is cancelled at once.
    options.clock = [clock = clock] { return clock->now += clock->step; };
    memory.facts.pageBounds = {QRectF(QPointF(), size)};
    process = std::make_shared<MemoryPictureProcess>(QByteArray(), memory);
    picture = std::make_unique<RenderedPicture>(process, 0, size, options);
  }

  QImage draw(const QTransform& t) const {
    QImage frame = emptyFrame();
    QPainter painter(&frame);
    picture->draw(painter, t, kVisible);
    return frame;
  }
  QImage drawAndRequest(const QTransform& t) const {
    QImage frame = draw(t);
    picture->request(t, kVisible);
    return frame;
  }
  [[nodiscard]] bool becomesSharp(const QTransform& t) const {
    picture->request(t, kVisible);
    return QTest::qWaitFor([&] { return picture->isSharpFor(t, kVisible); }, 20000);
  }
  [[nodiscard]] bool becomesIdle() const {
    int calls = -1;
    return QTest::qWaitFor(
        [&] {
          const int now = process->calls(PictureCall::Render);
          return std::exchange(calls, now) == now && !picture->isBusy();
        },
        20000);
  }
  QImage reference(const QTransform& t) const {
    return testPattern({0, t, kFrame, RenderPurpose::View}, size);
  }
  int renders() const { return process->calls(PictureCall::Render); }

  /// What every look at the clock takes, and what it shows.
  struct Clock {
    std::atomic<qint64> step = 0, now = 0;
  };
  std::shared_ptr<Clock> clock = std::make_shared<Clock>();
  QSizeF size;
  std::shared_ptr<MemoryPictureProcess> process;
  std::unique_ptr<RenderedPicture> picture;
};

inline const QSizeF kSmall(200, 100);
inline const QSizeF kLarge(4000, 3000);  // at factor 4 far more than one bitmap
inline const Error kDied{ErrorKind::Died, QStringLiteral("the picture process ended")};

inline MemoryPicture translucentPicture() {
  MemoryPicture memory;
  memory.paint = [](const RenderRequest& request) {
    QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(0, 0, 255, 100));
    return image;
  };
  return memory;
}

}  // namespace norvex
