// WorkerService: the PictureService whose documents live in processes of norvex-worker (or in a
// norvex-picture-…).
//
//   WorkerService service({}, std::move(running));              // what main() started before anything else
//   auto process = service.open(bytes, PictureKind::Svg);       // returns at once
//   Result<PictureFacts> facts = process->facts();              // waits
#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>

#include "picture/client/turn_taking.h"
#include "picture/client/worker_connection.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// See PictureService. Processes that were opened may outlive the service, but for the one it was given; the
/// warm program ends with the last of them.
class WorkerService final : public PictureService {
 public:
  /// `program`: another norvex-worker than the one beside the running program (tests). See WorkerStarter.
  /// `running`: the warm program when it was started already. `picture`: a process for the first document, if
  /// it will do for that; it ends with this service at the latest. The program is then started when it does
  /// not do, or when there are more documents.
  explicit WorkerService(const QString& program = {}, SpawnedWorker running = {},
                         SpawnedPicture picture = {});
  ~WorkerService() override;

  /// Starts the warm program, which links and initialises itself while the caller goes on. Needs no
  /// application object and no other call before it. Optional: open() starts it as well. A failure is told
  /// again by every call.
  Result<void> start();
  /// For programs with a window: pictures that are drawn must not take the processor from frames that are
  /// shown. The first picture of a document comes at our own priority, unless it takes longer than
  /// `beginning`: on a machine where everything is busy it would not come for a long time otherwise, and
  /// nobody zooms before it is there.
  void yieldToWindows(std::chrono::milliseconds beginning = std::chrono::seconds(1));
  /// Makes a process ready for a document of this kind that is expected; for PostScript its interpreter
  /// begins to start. The next open() with this kind and these limits takes it. Returns at once.
  void prepare(PictureKind kind, const PictureLimits& limits = {});

  void openOnlyFor(PictureUse use) override { use_ = use; }
  std::shared_ptr<PictureProcess> open(const QByteArray& bytes, PictureKind kind,
                                       const PictureLimits& limits = {}) override;
  Result<PictureBytes> chosenPdf(const QByteArray& pdf, const ReaderChoices& choices,
                                 const PictureLimits& limits = {}, const CancelToken& cancel = {}) override;
  Result<NSBitmapImageRep> decodePreview(const QByteArray& tiff, const CancelToken& cancel = {},
                                         const PictureLimits& limits = toolLimits()) override;
  Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request,
                                  const CancelToken& cancel = {}) override;

  /// Number of the warm program's process, 0 when it does not run.
  [[nodiscard]] qint64 programProcessId() const { return starter_->pid(); }

 private:
  [[nodiscard]] ForkRequest processFor(PictureKind kind, const PictureLimits& limits) const;
  /// `need`: what the process must be able to do.
  Result<WorkerAnswer> askTools(PictureNeed need, RequestBody body, const QByteArray& bytes,
                                const CancelToken& cancel, const PictureLimits& limits);

  std::shared_ptr<WorkerStarter> starter_;
  std::atomic<PictureUse> use_ = PictureUse::Everything;
  std::mutex preparedMutex_;
  std::unique_ptr<WorkerConnection> prepared_;
  FileDescriptor spawned_;  ///< pidfd of our own child among the picture processes, or none
  TurnTaking toolTurns_;
  /// Serves what belongs to no open document, one after the other; replaced after any failure. Used by the
  /// thread whose turn it is.
  std::unique_ptr<WorkerConnection> tools_;
};

}  // namespace norvex
