// RenderQueue: asks one picture process for bitmaps, on a thread of its own, in the order in which they are
// wanted.
#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QSet>
#include <QTransform>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "picture/process/picture_process.h"

namespace norvex {

/// One bitmap that is wanted.
struct RenderJob {
  quint64 id = 0;  ///< given by the owner, never reused
  RenderRequest request;
  QTransform layer;         ///< picture coordinates → pixels of the layer that `rect` belongs to
  QRect rect;               ///< the bitmap's place in the layer
  bool background = false;  ///< nobody looks at its place yet
  bool overview = false;    ///< the whole picture, small
};

/// Milliseconds from any fixed start, never going back.
using MillisecondClock = std::function<qint64()>;
[[nodiscard]] qint64 steadyMilliseconds();

/// The whole interface is "this is what I want now, most urgent first": whatever is no longer in the list is
/// dropped, and cancelled if it runs already. As a cancel may cost the process its life, a running job is
/// cancelled only once it has run for as long as the document took to open. Thread-safe.
class RenderQueue {
 public:
  struct Finished {
    RenderJob job;
    Result<QImage> result;
  };

  /// `notify` is called on the queue's thread whenever there is something for takeFinished().
  RenderQueue(std::shared_ptr<PictureProcess> process, std::function<void()> notify,
              MillisecondClock clock = steadyMilliseconds);
  /// Cancels what runs and waits for its end; `notify` is not called any more after that.
  ~RenderQueue();
  RenderQueue(const RenderQueue&) = delete;
  RenderQueue& operator=(const RenderQueue&) = delete;

  /// Begins no further job until the next setWanted(), so that the list can be made anew without a job
  /// starting meanwhile. Result: the listed jobs that run or have ended.
  [[nodiscard]] QSet<quint64> suspend();
  /// Replaces the list. A job that runs, or has ended but is still listed, is not begun again.
  /// Result: 0, or the milliseconds after which the same call would cancel what runs in vain.
  int setWanted(const QList<RenderJob>& jobs);
  /// The answers since the last call, in their order: one for every job that was begun, cancelled ones
  /// included.
  [[nodiscard]] QList<Finished> takeFinished();

 private:
  void run();
  std::optional<RenderJob> next(CancelToken& token);
  Result<QImage> render(const RenderJob& job, const CancelToken& token);
  int cancelRunning();

  const std::shared_ptr<PictureProcess> process_;
  const std::function<void()> notify_;
  const MillisecondClock clock_;
  const CancelToken life_;  ///< cancelled with the queue
  std::mutex mutex_;        ///< of everything below but the thread
  std::condition_variable changed_;
  QList<RenderJob> waiting_;
  QList<Finished> finished_;
  QSet<quint64> ended_;  ///< ended, and perhaps still listed by the owner
  quint64 running_ = 0;  ///< 0: nothing runs
  CancelToken cancel_;   ///< of the running job
  qint64 runningSince_ = 0;
  qint64 openingTook_ = -1;  ///< milliseconds; negative: not open yet
  bool suspended_ = false;
  bool stop_ = false;
  std::thread thread_;
};

}  // namespace norvex
