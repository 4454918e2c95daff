// A picture process that the window's Cancel button can stop, whoever is waiting for it.
#pragma once

#include <QHash>

#include <memory>
#include <mutex>

#include "base/cancel_token.h"
#include "picture/process/forwarding_process.h"

namespace norvex {

/// stop() ends the renderings under way and makes later ones fail at once, until
/// resume(). Reading the facts ends when the loading's own token is cancelled. Thread-safe.
class StoppableProcess final : public ForwardingProcess {
 public:
  StoppableProcess(std::shared_ptr<PictureProcess> process, CancelToken loading);

  void stop();
  void resume();
  /// Whether renderings that were stopped have not ended yet.
  [[nodiscard]] bool isStopping();
  /// Whether the error says that the drawing was stopped, not that it failed.
  [[nodiscard]] static bool meansStopped(const Error& error);

  Result<PictureFacts> facts(const CancelToken& cancel = {}) override;
  Result<QImage> render(const RenderRequest& request, const CancelToken& cancel = {}) override;

 private:
  const CancelToken loading_;
  std::mutex mutex_;                    ///< of everything below
  QHash<quint64, CancelToken> active_;  ///< of the renderings under way
  quint64 lastId_ = 0;
  bool stopped_ = false;
};

/// Opens documents in stoppable processes. `service` must outlive it; thread-safe.
class StoppableService final : public ForwardingService {
 public:
  StoppableService(PictureService& service, CancelToken loading)
      : ForwardingService(service), loading_(std::move(loading)) {}

  std::shared_ptr<PictureProcess> open(const QByteArray& bytes, PictureKind kind,
                                       const PictureLimits& limits = {}) override;

 private:
  const CancelToken loading_;
};

}  // namespace norvex
