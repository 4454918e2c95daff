#include "picture/early_picture.h"

#include <QFileInfo>

#include <condition_variable>
#include <utility>

#include "picture/document_file.h"
#include "picture/open_picture.h"
#include "picture/process/alike_limits.h"
#include "protocol/shared_errors.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

/// Opens once. Thread-safe.
class Gate {
 public:
  void open() {
    const std::lock_guard lock(mutex_);
    isOpen_ = true;
    changed_.notify_all();
  }
  /// False: cancelled before it was open.
  [[nodiscard]] bool pass(const CancelToken& cancel) {
    const CancelListener listener(cancel, [this] {
      const std::lock_guard lock(mutex_);
      changed_.notify_all();
    });
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return isOpen_ || cancel.cancelled(); });
    return isOpen_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  bool isOpen_ = false;
};

}  // namespace

/// Its facts may be on their way for nobody yet.
class EarlyPictureService::Process final : public ForwardingProcess {
 public:
  Process(std::shared_ptr<PictureProcess> process, std::shared_ptr<Gate> told, CancelToken early)
      : ForwardingProcess(std::move(process)), told_(std::move(told)), early_(std::move(early)) {}
  ~Process() override { early_.cancel(); }

  Result<PictureFacts> facts(const CancelToken& cancel) override {
    if (!told_->pass(cancel)) return workCancelled();
    return ForwardingProcess::facts(cancel);
  }

 private:
  const std::shared_ptr<Gate> told_;  ///< opened once they are known, or not to be had
  const CancelToken early_;
};

struct EarlyPictureService::Early {
  QByteArray bytes;
  PictureKind kind;
  std::shared_ptr<Process> process;
};

EarlyPictureService::~EarlyPictureService() {
  ending_.cancel();
  wait();
}

void EarlyPictureService::begin(const QString& path) {
  reader_ = std::thread([this, path] { read(path); });
}

void EarlyPictureService::wait() {
  if (reader_.joinable()) reader_.join();
}

void EarlyPictureService::read(const QString& path) {
  const Result<QByteArray> bytes = readDocumentFile(path);
  if (!bytes) return;
  const QString type = identifyType(*bytes, QFileInfo(path).fileName()).identifier();
  const Result<PictureKind> kind = pictureKindOf(*bytes, type);
  if (!kind || *kind == PictureKind::Eps)
    return;  // its process begins with its program, which somebody must be able to stop
  const auto told = std::make_shared<Gate>();
  std::shared_ptr<PictureProcess> process;
  {
    const std::lock_guard lock(mutex_);
    if (isLate_ || ending_.cancelled()) return;
    process = ForwardingService::open(*bytes, *kind, {});
    early_ = std::make_shared<Early>(Early{*bytes, *kind, std::make_shared<Process>(process, told, ending_)});
  }
  (void)process->facts(ending_);  // which keeps them, or is asked again
  told->open();
}

std::shared_ptr<PictureProcess> EarlyPictureService::open(const QByteArray& bytes, PictureKind kind,
                                                          const PictureLimits& limits) {
  std::shared_ptr<Early> early;
  {
    const std::lock_guard lock(mutex_);
    isLate_ = true;
    early = std::move(early_);
  }
  if (early && early->kind == kind && areAlike(PictureLimits(), limits) && early->bytes == bytes)
    return early->process;
  if (early) ending_.cancel();  // it is another picture's, or that file has changed
  return ForwardingService::open(bytes, kind, limits);
}

}  // namespace norvex
