// RenderedPicture: what is rendered of one page, so that a frame never waits for the picture process.
#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QRect>
#include <QSizeF>
#include <QTimer>
#include <QTransform>

#include <memory>
#include <optional>

#include "picture/process/picture_process.h"
#include "picture/rendering/render_queue.h"
#include "picture/rendering/render_rects.h"
#include "picture/rendering/rendered_layer.h"

class QPainter;

namespace norvex {

/// Bounds of what is asked for and of the cache of one picture.
struct RenderedPictureOptions : RenderRectLimits {
  qint64 cacheBytes = 256LL << 20;  ///< bitmaps kept beyond what is visible. Default: 256 MiB
  qint64 overviewPixels =
      1'000'000;  ///< the bitmap that stands in where nothing else is. Default: 1 megapixel
  MillisecondClock clock = steadyMilliseconds;  ///< Default: the system's
};

/// Keeps layers of bitmaps, the newest views and one overview; draws a frame from them at once, and asks for
/// what is missing of the current view: the visible part first, then the overview, and when the view rests a
/// margin around it. What a newer view does not need is cancelled. "Device" means true pixels, origin
/// top-left, y down; pictureToDevice maps picture coordinates (points, origin lower-left, y up) to them.
/// Belongs to one thread, in which the signals come; the process is called on a thread of its own.
class RenderedPicture final : public QObject {
  Q_OBJECT
 public:
  RenderedPicture(std::shared_ptr<PictureProcess> process, int page, const QSizeF& size,
                  const RenderedPictureOptions& options = {});
  /// Cancels what is being rendered and waits for its end.
  ~RenderedPicture() override;

  /// Lets `image`, if it is none that is null, fill the whole picture where nothing else does, until the
  /// first bitmap is there or a rendering has failed. It makes no view sharp.
  void showFirst(const QImage& image);

  /// Paints what there is, sharp where it is sharp. Respects the painter's clip, ignores its transform. Asks
  /// nothing. While the view moves, and once a frame of that movement has taken long or is so large that
  /// it would, what is scaled or turned is painted by its nearest pixels.
  void draw(QPainter& painter, const QTransform& pictureToDevice, const QRect& visibleDeviceRect);
  /// Makes this the current view. Cheap when nothing is missing, so it may follow every draw().
  void request(const QTransform& pictureToDevice, const QRect& visibleDeviceRect);
  /// True if draw() would show every pixel of this view as it was rendered for it.
  [[nodiscard]] bool isSharpFor(const QTransform& pictureToDevice, const QRect& visibleDeviceRect) const;
  /// True if a part of the current view is being rendered.
  [[nodiscard]] bool isBusy() const;

  /// Why the current view does not become sharp. A failed view is not asked for again until retry(); another
  /// scale or angle is tried, but after three failures in a row nothing is.
  [[nodiscard]] const std::optional<Error>& error() const { return error_; }
  /// Forgets the failures and asks again.
  void retry();

  /// Memory held by bitmaps, the overview's included.
  [[nodiscard]] qint64 cacheBytes() const;

 signals:
  /// A bitmap arrived, or the view rests after frames that were painted in a hurry.
  void rendered();
  /// A part of the current view failed; error() tells it until retry() or another view succeeds.
  void failed(const norvex::Error& error);

 private slots:
  void collect();

 private:
  struct View {
    QTransform layer;  ///< of the layer that it needs
    QRect visible;     ///< in that layer, cut to the picture
    QRect box;         ///< the whole picture in that layer
  };
  struct Blocked {
    RenderedLayer layer;  ///< without bitmaps
    Error error;
    bool backgroundOnly;
  };
  [[nodiscard]] std::optional<View> viewFor(const QTransform& pictureToDevice, const QRect& visible) const;
  [[nodiscard]] QTransform layerTransformFor(const QTransform& pictureToDevice) const;
  [[nodiscard]] const RenderedLayer* layerFitting(const QTransform& transform) const;
  [[nodiscard]] QList<const RenderedLayer*> nearestLayers(const QTransform& pictureToDevice) const;
  [[nodiscard]] const Blocked* blockFor(const QTransform& transform) const;
  [[nodiscard]] QRect wantedFor(const View& view, bool withMargin) const;
  void rest();
  void plan();
  void planVisible(QList<RenderJob>& jobs);
  void planOverview(QList<RenderJob>& jobs);
  void planRegion(const QRect& rect, bool background, QList<RenderJob>& jobs);
  /// Of what is to be seen, until it is told otherwise.
  RenderJob jobFor(const QTransform& layer, const QRect& rect);
  void finish(const RenderQueue::Finished& finished);
  void store(const RenderJob& job, const QImage& image);
  void fail(const RenderJob& job, const Error& error);
  void trim();

  const QSizeF size_;
  const int page_;
  const RenderedPictureOptions options_;
  QList<RenderedLayer> layers_;  ///< the one that was used last stands first
  std::optional<RenderedLayer> overview_;
  std::optional<RenderedLayer> first_;  ///< until there is a layer
  std::optional<View> view_;
  QList<RenderJob> outstanding_;
  QList<Blocked> blocked_;
  std::optional<Error> error_;
  bool overviewFailed_ = false;
  int failuresInARow_ = 0;
  quint64 lastId_ = 0;
  bool isInHurry_ = false;  ///< a frame took long, or would have, since the view began to move
  QTimer restTimer_;        ///< runs while the view moves
  QTimer staleTimer_;       ///< ends the queue's patience with a job that runs in vain
  RenderQueue queue_;       ///< last: its thread must end before the rest goes
};

}  // namespace norvex
