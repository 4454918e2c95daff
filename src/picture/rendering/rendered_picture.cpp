#include "picture/rendering/rendered_picture.h"

#include <QMetaObject>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "picture/rendering/rendered_frame.h"

namespace norvex {
namespace {

constexpr int kMaximumLayers = 8;
constexpr int kMaximumStandIns = 2;  // besides the overview: a frame has a few milliseconds
constexpr int kMaximumFailures = 3;
constexpr int kMaximumBlocked = 32;
constexpr int kRestMilliseconds = 150;
constexpr int kLongFrameMilliseconds = 6;       // beyond, a window does not keep up with its screen
constexpr qint64 kManyStandInPixels = 600'000;  // smooth ones take longer than that, at 6 to 10 ns each

bool isUsable(const QTransform& t) {
  const double all = t.m11() + t.m12() + t.m21() + t.m22() + t.dx() + t.dy();
  return std::isfinite(all) && t.isInvertible() && t.isAffine() && std::abs(t.dx()) < (1 << 28) &&
         std::abs(t.dy()) < (1 << 28);
}

}  // namespace

RenderedPicture::RenderedPicture(std::shared_ptr<PictureProcess> process, int page, const QSizeF& size,
                                 const RenderedPictureOptions& options)
    : size_(size),
      page_(page),
      options_(options),
      queue_(
          std::move(process), [this] { QMetaObject::invokeMethod(this, "collect", Qt::QueuedConnection); },
          options.clock) {
  restTimer_.setSingleShot(true);
  connect(&restTimer_, &QTimer::timeout, this, &RenderedPicture::rest);
  connect(&staleTimer_, &QTimer::timeout, this, &RenderedPicture::plan);
}

RenderedPicture::~RenderedPicture() = default;

// ---- views and layers

const RenderedLayer* RenderedPicture::layerFitting(const QTransform& transform) const {
  for (const RenderedLayer& layer : layers_)
    if (layer.fits(transform, size_)) return &layer;
  return nullptr;
}

QList<const RenderedLayer*> RenderedPicture::nearestLayers(const QTransform& t) const {
  QList<const RenderedLayer*> nearest;
  for (const RenderedLayer& layer : layers_) nearest << &layer;
  std::stable_sort(nearest.begin(), nearest.end(), [&](const RenderedLayer* a, const RenderedLayer* b) {
    return a->distance(t, size_) < b->distance(t, size_);
  });
  return nearest;
}

/// A layer that is there or on its way gives its own sub-pixel position: scrolling by parts of a pixel then
/// moves what is rendered instead of rendering it again.
QTransform RenderedPicture::layerTransformFor(const QTransform& t) const {
  if (const RenderedLayer* layer = layerFitting(t)) return layer->transform();
  for (const RenderJob& job : outstanding_)
    if (RenderedLayer(job.layer).fits(t, size_)) return job.layer;
  return QTransform(t.m11(), t.m12(), t.m21(), t.m22(), t.dx() - std::floor(t.dx()),
                    t.dy() - std::floor(t.dy()));
}

std::optional<RenderedPicture::View> RenderedPicture::viewFor(const QTransform& t,
                                                              const QRect& visible) const {
  if (!isUsable(t) || size_.isEmpty()) return std::nullopt;
  View view;
  view.layer = layerTransformFor(t);
  view.box = pixelRect(view.layer.mapRect(QRectF(QPointF(), size_)));
  view.visible = visible.translated(-RenderedLayer(view.layer).offset(t)) & view.box;
  return view;
}

const RenderedPicture::Blocked* RenderedPicture::blockFor(const QTransform& transform) const {
  for (const Blocked& blocked : blocked_)
    if (blocked.layer.fits(transform, size_)) return &blocked;
  return nullptr;
}

bool RenderedPicture::isSharpFor(const QTransform& t, const QRect& visible) const {
  const auto view = viewFor(t, visible);
  if (!view) return true;  // there is nothing to be seen
  if (view->visible.isEmpty()) return true;
  const RenderedLayer* layer = layerFitting(t);
  return layer && layer->covers(view->visible);
}

bool RenderedPicture::isBusy() const {
  return std::any_of(outstanding_.begin(), outstanding_.end(),
                     [](const RenderJob& job) { return !job.background; });
}

qint64 RenderedPicture::cacheBytes() const {
  qint64 sum = overview_ ? overview_->bytes() : 0;
  for (const RenderedLayer& layer : layers_) sum += layer.bytes();
  return sum;
}

// ---- drawing

void RenderedPicture::showFirst(const QImage& image) {
  if (image.isNull() || size_.isEmpty()) return;
  const double x = image.width() / size_.width(), y = image.height() / size_.height();
  first_.emplace(QTransform(x, 0, 0, -y, 0, image.height()));
  first_->add(image.rect(), image);
}

void RenderedPicture::draw(QPainter& painter, const QTransform& t, const QRect& visible) {
  if (!isUsable(t)) return;
  RenderedFrame frame(t, visible, size_);
  for (const RenderedLayer* layer : nearestLayers(t))
    if (frame.standIns() < kMaximumStandIns) frame.add(*layer);
  if (overview_) frame.add(*overview_);
  if (first_) frame.add(*first_);
  painter.save();
  painter.setWorldTransform(QTransform());
  painter.setWorldTransform(painter.deviceTransform().inverted());
  const qint64 begun = options_.clock();
  if (restTimer_.isActive() && frame.standInPixels() > kManyStandInPixels) isInHurry_ = true;
  frame.paint(painter, isInHurry_ ? Sampling::Nearest : Sampling::Smooth);
  if (restTimer_.isActive() && options_.clock() - begun > kLongFrameMilliseconds) isInHurry_ = true;
  painter.restore();
}

// ---- asking

void RenderedPicture::request(const QTransform& t, const QRect& visible) {
  const std::optional<View> last = view_;
  view_ = viewFor(t, visible);
  const bool moved = !last || !view_ || last->layer != view_->layer || last->visible != view_->visible;
  if (moved) restTimer_.start(kRestMilliseconds);
  if (view_) {
    const auto fits = [&](const RenderedLayer& layer) { return layer.fits(view_->layer, size_); };
    const auto at = std::find_if(layers_.begin(), layers_.end(), fits);
    if (at != layers_.end()) std::rotate(layers_.begin(), at, at + 1);
    const Blocked* blocked = blockFor(view_->layer);
    if (blocked && !blocked->backgroundOnly) error_ = blocked->error;
  }
  plan();
}

QRect RenderedPicture::wantedFor(const View& view, bool withMargin) const {
  return wantedRect(view.visible, view.box, options_, withMargin);
}

void RenderedPicture::rest() {
  const bool wasInHurry = std::exchange(isInHurry_, false);
  plan();
  if (wasInHurry) emit rendered();
}

void RenderedPicture::plan() {
  // Requests that only wait are planned anew, so that many small steps of a view end as one rendering.
  const QSet<quint64> begun = queue_.suspend();
  outstanding_.removeIf([&](const RenderJob& job) { return !begun.contains(job.id); });
  QList<RenderJob> jobs;
  if (view_ && !view_->visible.isEmpty() && failuresInARow_ < kMaximumFailures) planVisible(jobs);
  outstanding_ = jobs;
  const int patience = queue_.setWanted(jobs);
  if (patience > 0)
    staleTimer_.start(patience);
  else
    staleTimer_.stop();
}

void RenderedPicture::planVisible(QList<RenderJob>& jobs) {
  const Blocked* blocked = blockFor(view_->layer);
  const RenderedLayer* layer = layerFitting(view_->layer);
  const bool sharp = layer && layer->covers(view_->visible);
  if (!sharp && (!blocked || blocked->backgroundOnly)) planRegion(wantedFor(*view_, false), false, jobs);
  planOverview(jobs);
  const QRect around = wantedFor(*view_, true);
  if (sharp && !blocked && !restTimer_.isActive() && pixelCount(around) * 4 < options_.cacheBytes)
    planRegion(around, true, jobs);
}

/// Lists what is missing of `rect`: a job that is under way keeps its identity, new ones fill the rest.
void RenderedPicture::planRegion(const QRect& rect, bool background, QList<RenderJob>& jobs) {
  QRegion missing(rect);
  if (const RenderedLayer* layer = layerFitting(view_->layer)) missing -= layer->covered();
  for (RenderJob job : std::as_const(outstanding_)) {
    if (job.overview || job.layer != view_->layer || !missing.intersects(job.rect)) continue;
    job.background = background;
    jobs << job;
    missing -= job.rect;
  }
  for (const QRect& piece : piecesOf(missing)) {
    jobs << jobFor(view_->layer, piece);
    jobs.last().background = background;
  }
}

void RenderedPicture::planOverview(QList<RenderJob>& jobs) {
  if (overview_ || overviewFailed_ || pixelCount(view_->box) <= options_.wholePixels) return;
  const double scale = std::sqrt(double(options_.overviewPixels) / (size_.width() * size_.height()));
  const QTransform layer(scale, 0, 0, -scale, 0, std::ceil(size_.height() * scale));
  for (const RenderJob& job : std::as_const(outstanding_))
    if (job.overview) return void(jobs << job);
  const QRect box = pixelRect(layer.mapRect(QRectF(QPointF(), size_)));
  if (box.width() > longestPiece * 4 || box.height() > longestPiece * 4) return;
  jobs << jobFor(layer, box);
  jobs.last().background = jobs.last().overview = true;
}

RenderJob RenderedPicture::jobFor(const QTransform& layer, const QRect& rect) {
  RenderJob job;
  job.id = ++lastId_;
  job.layer = layer;
  job.rect = rect;
  job.request = {page_, layer * QTransform::fromTranslate(-rect.x(), -rect.y()), rect.size(),
                 RenderPurpose::View};
  return job;
}

// ---- answers

void RenderedPicture::collect() {
  for (const RenderQueue::Finished& finished : queue_.takeFinished()) finish(finished);
}

void RenderedPicture::finish(const RenderQueue::Finished& finished) {
  const auto& [job, result] = finished;
  const auto same = [id = job.id](const RenderJob& other) { return other.id == id; };
  const auto at = std::find_if(outstanding_.begin(), outstanding_.end(), same);
  const bool wanted = at != outstanding_.end();
  RenderJob known = wanted ? *at : job;  // it may have become visible since it was asked for
  if (wanted) outstanding_.erase(at);
  if (result.ok() && result.value().size() == job.rect.size()) {
    store(known, result.value());
    plan();
    emit rendered();
  } else if (wanted) {
    const Error wrongSize{ErrorKind::Protocol,
                          QStringLiteral("the picture process answered with another size")};
    fail(known, result.ok() ? wrongSize : result.error());
  }
}

void RenderedPicture::store(const RenderJob& job, const QImage& image) {
  failuresInARow_ = 0;
  if (!job.background) error_.reset();
  const QRect box = pixelRect(job.layer.mapRect(QRectF(QPointF(), size_)));
  const bool whole = job.rect == box;
  if (whole && (!overview_ || overview_->covered().boundingRect().width() < box.width())) {
    RenderedLayer layer(job.layer);
    layer.add(job.rect, image);
    overview_ = layer;
  }
  if (overview_) first_.reset();
  if (job.overview) return;
  const auto fits = [&](const RenderedLayer& layer) { return layer.fits(job.layer, size_); };
  auto at = std::find_if(layers_.begin(), layers_.end(), fits);
  if (at == layers_.end()) {
    // The layer of the current view stands first, a late answer for another one behind it.
    const bool current = view_ && RenderedLayer(view_->layer).fits(job.layer, size_);
    at = layers_.insert(current || layers_.isEmpty() ? 0 : 1, RenderedLayer(job.layer));
  }
  at->add(job.rect, image);
  if (at->covers(box)) first_.reset();
  trim();
}

void RenderedPicture::fail(const RenderJob& job, const Error& error) {
  if (!job.background && error.kind != ErrorKind::Cancelled) first_.reset();
  if (job.overview) {
    overviewFailed_ = true;
  } else {
    blocked_.removeIf([&](const Blocked& blocked) { return blocked.layer.fits(job.layer, size_); });
    blocked_.append({RenderedLayer(job.layer), error, job.background});
    if (blocked_.size() > kMaximumBlocked) blocked_.removeFirst();
  }
  if (error.kind != ErrorKind::Cancelled) ++failuresInARow_;
  if (!job.background) error_ = error;
  plan();
  if (!job.background && error.kind != ErrorKind::Cancelled) emit failed(error);
}

void RenderedPicture::retry() {
  blocked_.clear();
  error_.reset();
  overviewFailed_ = false;
  failuresInARow_ = 0;
  plan();
}

void RenderedPicture::trim() {
  while (layers_.size() > kMaximumLayers || (layers_.size() > 1 && cacheBytes() > options_.cacheBytes))
    layers_.removeLast();
  if (!view_ || layers_.isEmpty() || cacheBytes() <= options_.cacheBytes) return;
  RenderedLayer& current = layers_.first();
  if (!current.fits(view_->layer, size_)) return;
  const qint64 rest = cacheBytes() - current.bytes();
  current.shrink(options_.cacheBytes - rest, wantedFor(*view_, true));
}

}  // namespace norvex
