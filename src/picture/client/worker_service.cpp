#include "picture/client/worker_service.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "base/background_threads.h"
#include "picture/client/worker_answers.h"
#include "picture/client/worker_client.h"
#include "picture/process/alike_limits.h"
#include "picture/process/reader_choices.h"
#include "protocol/every_page.h"
#include "protocol/limits.h"
#include "protocol/sealed_memory.h"
#include "protocol/shared_errors.h"

namespace norvex {
namespace {

/// True if what was prepared will do for what is wanted now.
bool fits(const ForkRequest& prepared, const ForkRequest& wanted) {
  return areAlike(prepared.limits, wanted.limits) && prepared.postScript == wanted.postScript &&
         (wanted.needs & ~prepared.needs) == 0;
}

}  // namespace

WorkerService::WorkerService(const QString& program, SpawnedWorker running, SpawnedPicture picture)
    : starter_(std::make_shared<WorkerStarter>(program.isEmpty() ? WorkerStarter::defaultProgram() : program,
                                               std::move(running))) {
  if (picture.pid == 0) return;
  spawned_.reset(::fcntl(picture.pidfd.get(), F_DUPFD_CLOEXEC, 0));
  prepared_ = WorkerConnection::to(std::move(picture));
}

WorkerService::~WorkerService() {
  if (!spawned_.valid()) return;
  // It has been told to go long ago; nobody may be there to bury it after us.
  ::syscall(SYS_pidfd_send_signal, spawned_.get(), SIGKILL, nullptr, 0);
  while (::waitid(P_PIDFD, id_t(spawned_.get()), nullptr, WEXITED) < 0 && errno == EINTR) continue;
}

Result<void> WorkerService::start() {
  return starter_->start();
}

void WorkerService::yieldToWindows(std::chrono::milliseconds beginning) {
  starter_->setNice(kNicerThanFrames, beginning);
}

ForkRequest WorkerService::processFor(PictureKind kind, const PictureLimits& limits) const {
  const PictureNeeds pages = use_ == PictureUse::Facts && kind == PictureKind::Pdf ? NeedFacts : NeedPages;
  return {limits, kind == PictureKind::Eps, kind == PictureKind::Svg ? svgNeeds(use_) : pages};
}

void WorkerService::prepare(PictureKind kind, const PictureLimits& limits) {
  auto opened = WorkerConnection::open(starter_, processFor(kind, limits));
  const std::lock_guard lock(preparedMutex_);
  if (opened) prepared_ = std::move(*opened);
}

std::shared_ptr<PictureProcess> WorkerService::open(const QByteArray& bytes, PictureKind kind,
                                                    const PictureLimits& limits) {
  const ForkRequest process = processFor(kind, limits);
  std::unique_ptr<WorkerConnection> connection;
  {
    const std::lock_guard lock(preparedMutex_);
    if (prepared_ && fits(prepared_->request(), process)) connection = std::move(prepared_);
    // It was made for the first document and will not do for another either.
    if (prepared_ && prepared_->isOwnChild()) prepared_.reset();
  }
  return std::make_shared<WorkerClient>(starter_, bytes, kind, process, std::move(connection));
}

Result<WorkerAnswer> WorkerService::askTools(PictureNeed need, RequestBody body, const QByteArray& bytes,
                                             const CancelToken& cancel, const PictureLimits& limits) {
  const bool willDo = tools_ && (tools_->request().needs & need) != 0 &&
                      areAlike(tools_->request().limits, limits) && tools_->isUsable();
  if (!willDo) {
    tools_.reset();
    auto opened = WorkerConnection::open(starter_, ForkRequest{limits, false, need});
    if (!opened) return opened.error();
    tools_ = std::move(*opened);
  }
  const Result<FileDescriptor> memory = SealedMemory::seal(bytes);
  if (!memory) return memory.error();
  const Result<quint32> id = tools_->post(std::move(body), *memory);
  if (!id) return id.error();
  return tools_->wait(*id, QDeadlineTimer(qint64(limits.seconds) * 1000), cancel);
}

Result<PictureBytes> WorkerService::chosenPdf(const QByteArray& pdf, const ReaderChoices& choices,
                                              const PictureLimits& limits, const CancelToken& cancel) {
  // A process of its own, so that none that lives on has ever known the password.
  auto opened = WorkerConnection::open(starter_, ForkRequest{limits, false, NeedPages});
  if (!opened) return opened.error();
  WorkerConnection& line = **opened;
  const Result<FileDescriptor> memory = SealedMemory::seal(pdf);
  if (!memory) return memory.error();
  const QDeadlineTimer deadline(qint64(limits.seconds) * 1000 + limits::answerGrace);
  const Result<quint32> opening =
      line.post(OpenRequest{PictureKind::Pdf, limits, choices.password, choices.layers}, *memory);
  if (!opening) return opening.error();
  Result<WorkerAnswer> answer = line.wait(*opening, deadline, cancel);
  if (!answer) return answer.error();
  if (const Result<PictureFacts> facts = factsFrom(std::move(*answer)); !facts) return facts.error();
  const Result<quint32> asking = line.post(PdfRequest{everyPage, std::nullopt, true});
  if (!asking) return asking.error();
  answer = line.wait(*asking, deadline, cancel);
  return answer ? bytesFrom(std::move(*answer), limits) : Result<PictureBytes>(answer.error());
}

Result<NSBitmapImageRep> WorkerService::decodePreview(const QByteArray& tiff, const CancelToken& cancel,
                                                      const PictureLimits& limits) {
  const auto turn = toolTurns_.take(cancel);
  if (!turn) return workCancelled();
  Result<WorkerAnswer> answer = askTools(NeedPreviews, DecodePreviewRequest{}, tiff, cancel, limits);
  Result<NSBitmapImageRep> bitmap = answer ? bitmapFrom(std::move(*answer), limits) : answer.error();
  // A process that one document has made fail shall not see the next one.
  if (!bitmap) tools_.reset();
  return bitmap;
}

Result<QByteArray> WorkerService::composePages(const QByteArray& pdf, const PagesRequest& request,
                                               const CancelToken& cancel) {
  const auto turn = toolTurns_.take(cancel);
  if (!turn) return workCancelled();
  PagesRequest pages = request;
  pages.picture = !pdf.isEmpty();
  // A message's memory cannot be empty.
  Result<WorkerAnswer> answer =
      askTools(NeedSheets, std::move(pages), pdf.isEmpty() ? QByteArray(1, ' ') : pdf, cancel, toolLimits());
  Result<PictureBytes> bytes = answer ? bytesFrom(std::move(*answer), toolLimits()) : answer.error();
  if (!bytes) tools_.reset();
  return bytes ? Result<QByteArray>(bytes->bytes) : Result<QByteArray>(bytes.error());
}

}  // namespace norvex
