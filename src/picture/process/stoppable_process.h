// A picture process that the window's Cancel button can stop, whoever is waiting for it.
#pragma once

#include <QHash>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "base/cancel_token.h"
#include "picture/process/forwarding_process.h"

namespace norvex {

/// stop() ends the renderings under way and makes later ones fail at once, until
/// resume(). But those of a PostScript picture show what its program had drawn when it was stopped, where
/// that is known. Renderings fail at once also after processes that died for the same document several times
/// in a row: the pauses before another one is started grow. Reading the facts ends when the loading's own
/// token is cancelled. Thread-safe.
class StoppableProcess final : public ForwardingProcess {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;
  /// Deaths in a row that are met by starting again at once.
  static constexpr int deathsWithoutPause = 3;
  /// The first pause, which doubles with each death, and the longest.
  static constexpr std::chrono::seconds firstPause{1}, longestPause{60};

  StoppableProcess(std::shared_ptr<PictureProcess> process, CancelToken loading,
                   Clock clock = std::chrono::steady_clock::now, PictureKind kind = PictureKind::Pdf);

  void stop();
  void resume();
  [[nodiscard]] bool isStopped();
  /// True if what a program had begun has been given away as its picture since it was stopped.
  [[nodiscard]] bool hasShownBegun();
  /// True if renderings that were stopped have not ended yet.
  [[nodiscard]] bool isStopping();
  /// True if the error says that the drawing was stopped, not that it failed.
  [[nodiscard]] static bool meansStopped(const Error& error);

  Result<PictureFacts> facts(const CancelToken& cancel = {}) override;
  Result<QImage> render(const RenderRequest& request, const CancelToken& cancel = {}) override;

 private:
  [[nodiscard]] bool showsBegun();
  Result<QImage> renderBegun(RenderRequest request, const CancelToken& cancel);
  [[nodiscard]] std::optional<Error> refusal() const;
  void note(const Result<QImage>& result);

  const CancelToken loading_;
  const Clock clock_;
  const PictureKind kind_;
  std::mutex mutex_;                    ///< of everything below
  QHash<quint64, CancelToken> active_;  ///< of the renderings under way
  quint64 lastId_ = 0;
  bool stopped_ = false, shownBegun_ = false;
  int deaths_ = 0;                              ///< in a row
  std::chrono::steady_clock::time_point rest_;  ///< until when nothing is started
  std::optional<Error> lastDeath_;
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
