// The picture of the file that the program was started with, opened while there is no window yet.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <mutex>
#include <thread>

#include "base/cancel_token.h"
#include "picture/process/forwarding_process.h"

namespace norvex {

/// Reads and opens one file on a thread of its own, as its window will: when that asks for the same bytes,
/// their facts are there, and what its process loads is loaded. An early picture that nobody asks for is
/// given up at the end. `service` must outlive it. Thread-safe.
class EarlyPictureService final : public ForwardingService {
 public:
  explicit EarlyPictureService(PictureService& service) : ForwardingService(service) {}
  ~EarlyPictureService() override;

  /// Begins with the file at `path` and returns at once. A file that cannot be read is left to its window,
  /// which tells why. Call at most once.
  void begin(const QString& path);
  /// Until everything that begins early has ended.
  void wait();

  std::shared_ptr<PictureProcess> open(const QByteArray& bytes, PictureKind kind,
                                       const PictureLimits& limits = {}) override;

 private:
  class Process;
  struct Early;
  void read(const QString& path);

  std::mutex mutex_;              ///< of the next two
  std::shared_ptr<Early> early_;  ///< until it is handed out
  bool isLate_ = false;           ///< a picture was asked for: nothing is begun early any more
  const CancelToken ending_;
  std::thread reader_;
};

}  // namespace norvex
