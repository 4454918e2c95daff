#include "picture/client/worker_client.h"

#include "picture/client/worker_answers.h"
#include "protocol/limits.h"
#include "protocol/program_stop.h"
#include "protocol/sealed_memory.h"
#include "protocol/shared_errors.h"
#include "protocol/start_trace.h"

#include <algorithm>
#include <utility>

namespace norvex {
namespace {

/// Interpreters that end before they can serve are started twice: the third process runs PostScript without.
constexpr int kTries = 3;

/// True if the document itself is the reason, so that another try would end the same way.
bool isFinal(ErrorKind kind) {
  return kind != ErrorKind::TimedOut && kind != ErrorKind::Cancelled && kind != ErrorKind::Died &&
         kind != ErrorKind::Protocol;
}

bool isOfPage(const RequestBody& body, int page) {
  const auto* drawing = std::get_if<RenderRequest>(&body);
  return drawing != nullptr && drawing->purpose == RenderPurpose::View && drawing->page == page;
}

/// True if the process lives and can do nothing any more that takes PostScript.
bool hasLostInterpreter(const WorkerAnswer& answer) {
  const auto* error = std::get_if<Error>(&answer.body);
  return error != nullptr && isInterpreterLost(*error);
}

}  // namespace

WorkerClient::WorkerClient(std::shared_ptr<WorkerStarter> starter, QByteArray bytes, PictureKind kind,
                           const ForkRequest& process, std::unique_ptr<WorkerConnection> connection)
    : starter_(std::move(starter)),
      bytes_(std::move(bytes)),
      kind_(kind),
      process_(process),
      connection_(std::move(connection)) {
  (void)beginToOpen(deadline());  // the first call tries again and tells why not
}

WorkerClient::~WorkerClient() = default;

QDeadlineTimer WorkerClient::deadline() const {
  return QDeadlineTimer(qint64(process_.limits.seconds) * 1000 + limits::answerGrace);
}

Result<void> WorkerClient::beginToOpen(QDeadlineTimer until) {
  if (!connection_ || !connection_->isUsable()) {
    connection_.reset();
    auto opened = WorkerConnection::open(starter_, process_);
    if (!opened) return opened.error();
    connection_ = std::move(*opened);
  }
  const Result<FileDescriptor> memory = SealedMemory::seal(bytes_);
  if (!memory) return connection_.reset(), memory.error();
  const Result<quint32> id = connection_->post(OpenRequest{kind_, process_.limits}, *memory);
  if (!id) return connection_.reset(), id.error();
  opening_ = *id;
  openDeadline_ = until;
  return {};
}

template <typename T>
Result<T> WorkerClient::distrusted(Result<T> result) {
  // A process that has lied once, or has died, is not asked again.
  if (!result && (result.error().kind == ErrorKind::Protocol || result.error().kind == ErrorKind::Died))
    connection_.reset();
  return result;
}

bool WorkerClient::mayAnotherOpen(const Result<WorkerAnswer>& answer) {
  if (!answer) return connection_->hasNotComeUp();
  const auto* error = std::get_if<Error>(&answer->body);
  if (error != nullptr && process_.needs == NeedFacts && isDrawingNeeded(*error)) {
    process_.needs = kind_ == PictureKind::Svg ? svgNeeds(PictureUse::Drawing) : NeedPages;
    return true;
  }
  return hasLostInterpreter(*answer);
}

Result<PictureFacts> WorkerClient::finishOpening(const CancelToken& cancel) {
  Result<WorkerAnswer> answer = connection_->wait(opening_, openDeadline_, cancel);
  for (int tries = 1; tries < kTries; ++tries) {
    if (!mayAnotherOpen(answer)) break;
    connection_.reset();
    if (auto begun = beginToOpen(openDeadline_); !begun) return begun.error();
    answer = connection_->wait(opening_, openDeadline_, cancel);
  }
  // A process that has died may have found less memory than another one will: nothing is final without an
  // answer.
  const bool answered = answer.ok();
  Result<PictureFacts> facts = answer ? distrusted(factsFrom(std::move(*answer))) : answer.error();
  traceStep("facts came");
  opening_ = 0;
  if (!facts) connection_.reset();  // also after an obeyed cancel: the document is not open there
  if (answered && (facts || isFinal(facts.error().kind))) {
    const std::lock_guard lock(outcomeMutex_);
    if (!outcome_) outcome_ = facts;
  }
  return facts;
}

std::optional<Result<PictureFacts>> WorkerClient::known() const {
  const std::lock_guard lock(outcomeMutex_);
  return outcome_;
}

Result<PictureFacts> WorkerClient::facts(const CancelToken& cancel) {
  if (auto outcome = known()) return *outcome;
  const auto turn = turns_.take(cancel);
  if (!turn) return workCancelled();
  if (auto outcome = known()) return *outcome;
  if (!connection_) {
    if (auto begun = beginToOpen(deadline()); !begun) return begun.error();
  }
  return finishOpening(cancel);
}

/// REQUIRES the caller's turn.
Result<WorkerAnswer> WorkerClient::ask(RequestBody body, const CancelToken& cancel,
                                       const FileDescriptor& memory) {
  std::optional<QDeadlineTimer> until;
  for (int tries = 1;; ++tries) {
    Result<WorkerAnswer> answer = askOnce(body, cancel, memory, until);
    if (!answer || !hasLostInterpreter(*answer) || tries == kTries) return answer;
    connection_.reset();
  }
}

Result<WorkerAnswer> WorkerClient::askOnce(RequestBody body, const CancelToken& cancel,
                                           const FileDescriptor& memory,
                                           std::optional<QDeadlineTimer>& until) {
  if (auto outcome = known(); outcome && !*outcome) return outcome->error();
  if (cancel.cancelled()) return workCancelled();
  // Only what a program had begun is worth waiting for who tells it: on a busy machine that takes its time.
  const bool isBegun = kind_ == PictureKind::Eps && isOfPage(body, begunPage);
  if (connection_) {
    const QDeadlineTimer patience(isBegun ? qint64(limits::toolSeconds) * 1000 : 0);
    if (auto settled = connection_->settle(patience, cancel);
        !settled && settled.error().kind == ErrorKind::Cancelled)
      return settled.error();
  }
  if (connection_ && opening_ == 0 && !connection_->isUsable()) connection_.reset();
  if (!connection_) {
    if (auto begun = beginToOpen(until.value_or(deadline())); !begun) return begun.error();
  }
  if (opening_ != 0) {
    if (auto facts = finishOpening(cancel); !facts) return facts.error();
  }
  const bool mayHaveBegun = kind_ == PictureKind::Eps && isOfPage(body, 0);
  const Result<quint32> id = connection_->post(std::move(body), memory);
  if (!id) return id.error();
  if (!until) until = deadline();
  Result<WorkerAnswer> answer = connection_->wait(*id, *until, cancel, mayHaveBegun);
  traceStep("first answer came");
  if (!answer && !connection_->isUsable()) connection_.reset();
  return answer;
}

Result<QImage> WorkerClient::render(const RenderRequest& request, const CancelToken& cancel) {
  const QSize size = request.pixelSize;
  if (std::max(size.width(), size.height()) > limits::maximumSide)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the image would have a side of more than %1 pixels").arg(limits::maximumSide)};
  if (double(size.width()) * size.height() > process_.limits.megapixels * 1.0e6)
    return Error{ErrorKind::Limit, QStringLiteral("the picture would have more pixels than it is allowed")};
  const auto turn = turns_.take(cancel);
  if (!turn) return workCancelled();
  Result<WorkerAnswer> answer = ask(request, cancel);
  if (!answer) return answer.error();
  QStringList remarks;
  Result<QImage> image = distrusted(imageFrom(std::move(*answer), size, remarks));
  noteStop(remarks);
  const std::lock_guard lock(outcomeMutex_);
  for (const QString& remark : std::as_const(remarks))
    if (!remarks_.contains(remark) && remarks_.size() < limits::maximumWarnings) remarks_ << remark;
  return image;
}

QStringList WorkerClient::drawingRemarks() const {
  const std::lock_guard lock(outcomeMutex_);
  return remarks_;
}

Result<PictureBytes> WorkerClient::askForBytes(RequestBody body, const CancelToken& cancel,
                                               const FileDescriptor& memory) {
  const auto turn = turns_.take(cancel);
  if (!turn) return workCancelled();
  Result<WorkerAnswer> answer = ask(std::move(body), cancel, memory);
  if (!answer) return answer.error();
  Result<PictureBytes> bytes = distrusted(bytesFrom(std::move(*answer), process_.limits));
  if (bytes) noteStop(bytes->report.warnings);
  return bytes;
}

/// The program runs with the first drawing, when the facts have long been told: they learn it from there.
void WorkerClient::noteStop(QStringList& warnings) {
  const QString stop = takeProgramStop(warnings);
  const std::lock_guard lock(outcomeMutex_);
  if (!stop.isEmpty() && outcome_ && *outcome_) (*outcome_)->stoppedBy = stop;
}

Result<PictureBytes> WorkerClient::pdf(const PdfRequest& request, const CancelToken& cancel) {
  return askForBytes(request, cancel);
}

Result<PictureBytes> WorkerClient::compose(const ComposeRequest& request, const CancelToken& cancel) {
  return askForBytes(request, cancel);
}

Result<PictureBytes> WorkerClient::svg(const SvgRequest& request, const CancelToken& cancel) {
  return askForBytes(request, cancel);
}

Result<PictureBytes> WorkerClient::examine(const ExamineRequest& request, const CancelToken& cancel) {
  return askForBytes(request, cancel);
}

Result<PictureBytes> WorkerClient::setPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes,
                                                    const CancelToken& cancel) {
  const Result<FileDescriptor> memory = SealedMemory::seal(pdf);
  return memory ? askForBytes(AttributesRequest{attributes}, cancel, *memory)
                : Result<PictureBytes>(memory.error());
}

void WorkerClient::retire() {
  const auto turn = turns_.take({});
  connection_.reset();
  opening_ = 0;
}

qint64 WorkerClient::processId() {
  const auto turn = turns_.take({});
  return connection_ ? connection_->processId() : 0;
}

}  // namespace norvex
