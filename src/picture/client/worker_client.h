// WorkerClient: a PictureProcess that really is one.
#pragma once

#include <mutex>
#include <optional>

#include "picture/client/turn_taking.h"
#include "picture/client/worker_connection.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// See PictureProcess. A document that cannot be opened (not parsable, encrypted …) fails every call with
/// that first error; after TimedOut, Died, Protocol or a Cancelled that was not obeyed the next call starts
/// again, but for the one that asks for what a program of PostScript had begun: it waits for the cancelled
/// drawing. A call that comes back without its answer because the document's interpreter has ended is made
/// once more, in another process.
class WorkerClient final : public PictureProcess {
 public:
  /// Begins to open the bytes at once and returns. `process`: what the document needs. `connection`: a
  /// process that waits already, or null.
  WorkerClient(std::shared_ptr<WorkerStarter> starter, QByteArray bytes, PictureKind kind,
               const ForkRequest& process, std::unique_ptr<WorkerConnection> connection = nullptr);
  ~WorkerClient() override;

  Result<PictureFacts> facts(const CancelToken& cancel = {}) override;
  Result<QImage> render(const RenderRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> pdf(const PdfRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> compose(const ComposeRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> svg(const SvgRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> examine(const ExamineRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> setPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes,
                                        const CancelToken& cancel = {}) override;
  void retire() override;
  [[nodiscard]] QStringList drawingRemarks() const override;

  /// Number of the process that serves the document now, 0: none. For tests.
  [[nodiscard]] qint64 processId();

 private:
  Result<void> beginToOpen(QDeadlineTimer until);
  Result<PictureFacts> finishOpening(const CancelToken& cancel);
  /// True if the document's opening was answered so that another process, as process_ then has it, will do
  /// better or tell why.
  [[nodiscard]] bool mayAnotherOpen(const Result<WorkerAnswer>& answer);
  Result<WorkerAnswer> ask(RequestBody body, const CancelToken& cancel, const FileDescriptor& memory = {});
  /// `until`: set with the first request, whose time is that of all tries together.
  Result<WorkerAnswer> askOnce(RequestBody body, const CancelToken& cancel, const FileDescriptor& memory,
                               std::optional<QDeadlineTimer>& until);
  void noteStop(QStringList& warnings);
  Result<PictureBytes> askForBytes(RequestBody body, const CancelToken& cancel,
                                   const FileDescriptor& memory = {});
  template <typename T>
  Result<T> distrusted(Result<T> result);
  [[nodiscard]] std::optional<Result<PictureFacts>> known() const;
  [[nodiscard]] QDeadlineTimer deadline() const;

  const std::shared_ptr<WorkerStarter> starter_;
  const QByteArray bytes_;
  const PictureKind kind_;
  ForkRequest process_;  ///< for facts alone until they take more
  TurnTaking turns_;
  // Used by the thread whose turn it is.
  std::unique_ptr<WorkerConnection> connection_;
  quint32 opening_ = 0;  ///< id of the OpenRequest that has not been answered; 0: the document is open
  QDeadlineTimer openDeadline_;

  mutable std::mutex outcomeMutex_;
  std::optional<Result<PictureFacts>> outcome_;  ///< of the opening, once it is final
  QStringList remarks_;
};

}  // namespace norvex
