#include "picture/process/stoppable_process.h"

#include <algorithm>
#include <utility>

#include "protocol/program_stop.h"

namespace norvex {
namespace {

Error stoppedError() {
  return {ErrorKind::TimedOut, QStringLiteral("the drawing was stopped")};
}

}  // namespace

StoppableProcess::StoppableProcess(std::shared_ptr<PictureProcess> process, CancelToken loading, Clock clock,
                                   PictureKind kind)
    : ForwardingProcess(std::move(process)),
      loading_(std::move(loading)),
      clock_(std::move(clock)),
      kind_(kind) {}

void StoppableProcess::stop() {
  const std::lock_guard lock(mutex_);
  stopped_ = true;
  for (const CancelToken& token : std::as_const(active_)) token.cancel();
}

void StoppableProcess::resume() {
  const std::lock_guard lock(mutex_);
  stopped_ = shownBegun_ = false;
  deaths_ = 0;  // somebody asks for it
}

bool StoppableProcess::isStopped() {
  const std::lock_guard lock(mutex_);
  return stopped_;
}

bool StoppableProcess::hasShownBegun() {
  const std::lock_guard lock(mutex_);
  return shownBegun_;
}

bool StoppableProcess::showsBegun() {
  return kind_ == PictureKind::Eps && isStopped();
}

/// It takes no time: nothing is run for it.
Result<QImage> StoppableProcess::renderBegun(RenderRequest request, const CancelToken& cancel) {
  request.page = begunPage;
  Result<QImage> begun = ForwardingProcess::render(request, cancel);
  const std::lock_guard lock(mutex_);
  if (begun && stopped_) shownBegun_ = true;
  return begun || begun.error().kind == ErrorKind::Cancelled ? std::move(begun)
                                                             : Result<QImage>(stoppedError());
}

/// REQUIRES the lock.
std::optional<Error> StoppableProcess::refusal() const {
  if (stopped_) return stoppedError();
  const bool rests = deaths_ >= deathsWithoutPause && clock_() < rest_;
  return rests ? lastDeath_ : std::nullopt;
}

/// REQUIRES the lock.
void StoppableProcess::note(const Result<QImage>& result) {
  if (result) deaths_ = 0;
  if (result || result.error().kind != ErrorKind::Died) return;
  lastDeath_ = result.error();
  if (++deaths_ < deathsWithoutPause) return;
  constexpr int mostDoublings = 6;
  const auto pause = firstPause * (1 << std::min(deaths_ - deathsWithoutPause, mostDoublings));
  rest_ = clock_() + std::min(pause, longestPause);
}

bool StoppableProcess::isStopping() {
  const std::lock_guard lock(mutex_);
  return std::any_of(active_.cbegin(), active_.cend(),
                     [](const CancelToken& token) { return token.cancelled(); });
}

bool StoppableProcess::meansStopped(const Error& error) {
  const Error stopped = stoppedError();
  return error.kind == ErrorKind::Cancelled ||
         (error.kind == stopped.kind && error.message == stopped.message);
}

Result<PictureFacts> StoppableProcess::facts(const CancelToken& cancel) {
  if (loading_.cancelled()) return ForwardingProcess::facts(cancel);
  const CancelToken either;
  const CancelListener loading(loading_, [&] { either.cancel(); });
  const CancelListener caller(cancel, [&] { either.cancel(); });
  return ForwardingProcess::facts(either);
}

Result<QImage> StoppableProcess::render(const RenderRequest& request, const CancelToken& cancel) {
  if (request.purpose == RenderPurpose::View && showsBegun()) return renderBegun(request, cancel);
  // A fresh token would hide the caller's, so the caller's own is what stop() cancels.
  quint64 id = 0;
  {
    const std::lock_guard lock(mutex_);
    if (const auto reason = refusal()) return *reason;
    id = ++lastId_;
    active_.insert(id, cancel);
  }
  Result<QImage> result = ForwardingProcess::render(request, cancel);
  const std::lock_guard lock(mutex_);
  active_.remove(id);
  note(result);
  return result;
}

std::shared_ptr<PictureProcess> StoppableService::open(const QByteArray& bytes, PictureKind kind,
                                                       const PictureLimits& limits) {
  return std::make_shared<StoppableProcess>(ForwardingService::open(bytes, kind, limits), loading_,
                                            std::chrono::steady_clock::now, kind);
}

}  // namespace norvex
