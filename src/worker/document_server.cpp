#include "worker/document_server.h"

#include <unistd.h>

#include <algorithm>
#include <exception>
#include <limits>
#include <new>

#include "protocol/process_end.h"
#include "protocol/sealed_memory.h"
#include "protocol/shared_errors.h"
#include "worker/confinement/resource_limits.h"

namespace norvex {
namespace {

constexpr qsizetype kAnySize = std::numeric_limits<qsizetype>::max();

Error notOpen() {
  return {ErrorKind::Protocol, QStringLiteral("no picture has been opened")};
}
Error notDone() {
  return {ErrorKind::NotParsable, QStringLiteral("the picture could not be processed")};
}
Error unsupported() {
  return {ErrorKind::Unsupported, QStringLiteral("this cannot be done here")};
}
Error outOfRange() {
  return {ErrorKind::Limit, QStringLiteral("the measures of the picture are larger than can be handled")};
}

PreviewReply replyFor(const NSBitmapImageRep& bitmap) {
  PreviewReply reply;
  reply.pixelsWide = bitmap.pixelsWide;
  reply.pixelsHigh = bitmap.pixelsHigh;
  reply.bitsPerSample = bitmap.bitsPerSample;
  reply.samplesPerPixel = bitmap.samplesPerPixel;
  reply.bytesPerRow = bitmap.bytesPerRow;
  reply.hasAlpha = bitmap.hasAlpha;
  reply.colorSpaceName = bitmap.colorSpaceName;
  reply.pointsWide = bitmap.pointsWide;
  reply.pointsHigh = bitmap.pointsHigh;
  return reply;
}

}  // namespace

DocumentServer::DocumentServer(FileDescriptor socket, const EngineSet& engines, engine::EngineContext context,
                               std::optional<Error> refusal)
    : channel_(std::move(socket)),
      engines_(engines),
      context_(std::move(context)),
      refusal_(std::move(refusal)) {}

void DocumentServer::run() {
  using Reading = RequestQueue::Reading;
  // Its thread, where it has one, uses it until the process ends.
  auto* queue = new RequestQueue(channel_, engines_.onlyFacts ? Reading::BetweenRequests : Reading::AtWork);
  while (true) {
    ArrivedRequest arrived = queue->next();
    const quint32 id = arrived.request.id;
    send(id, answer(arrived));
  }
}

DocumentServer::Answer DocumentServer::answer(ArrivedRequest& arrived) {
  if (refusal_) return {*refusal_, {}};
  context_.cancel = arrived.cancel;
  if (context_.cancel.cancelled()) return {workCancelled(), {}};
  // Two threads may draw a picture (two_halves.h). Where it cannot be granted, the last grant holds.
  (void)limitProcessorTime(context_.limits.seconds * std::clamp(context_.processors, 1, 2));
  try {
    return std::visit([&](const auto& body) { return serve(body, std::move(arrived.descriptor)); },
                      arrived.request.body);
  } catch (const std::bad_alloc&) {
    return {memoryUsedUp(), {}};
  } catch (const std::exception&) {
    return {notDone(), {}};
  }
}

DocumentServer::Answer DocumentServer::serve(const OpenRequest& request, FileDescriptor descriptor) {
  if (engine_ || !engines_.open) return {notOpen(), {}};
  Result<SealedMemory> memory = SealedMemory::map(std::move(descriptor), kAnySize);
  if (!memory) return {memory.error(), {}};
  // A copy of its own ends with a NUL, on which C libraries may rely; the shared memory is let go.
  document_ = memory->toByteArray();
  *memory = {};
  context_.limits = request.limits;
  context_.password = request.password;
  context_.layers = request.layers;
  auto opened = engines_.open(request.kind, document_, context_);
  if (!opened) return {opened.error(), {}};
  Result<PictureFacts> facts = (*opened)->facts();
  if (!facts) return {facts.error(), {}};
  engine_ = std::move(*opened);
  return {*facts, {}};
}

DocumentServer::Answer DocumentServer::serve(const RenderRequest& request, FileDescriptor) {
  if (!engine_) return {notOpen(), {}};
  Result<engine::Bitmap> image = engine_->render(request);
  if (!image) return {image.error(), {}};
  if (image->size() != request.pixelSize) return {notDone(), {}};
  Result<FileDescriptor> pixels = SealedMemory::seal(image->row(0), image->byteCount());
  if (!pixels) return {pixels.error(), {}};
  return {BitmapReply{image->size(), image->bytesPerRow(), engine_->drawingRemarks()}, std::move(*pixels)};
}

DocumentServer::Answer DocumentServer::serve(const PdfRequest& request, FileDescriptor) {
  return engine_ ? answerOf(engine_->pdf(request)) : Answer{notOpen(), {}};
}

DocumentServer::Answer DocumentServer::serve(const ComposeRequest& request, FileDescriptor) {
  return engine_ ? answerOf(engine_->compose(request)) : Answer{notOpen(), {}};
}

DocumentServer::Answer DocumentServer::serve(const SvgRequest& request, FileDescriptor) {
  return engine_ ? answerOf(engine_->svg(request)) : Answer{notOpen(), {}};
}

DocumentServer::Answer DocumentServer::serve(const ExamineRequest& request, FileDescriptor) {
  return engine_ ? answerOf(engine_->examine(request)) : Answer{notOpen(), {}};
}

DocumentServer::Answer DocumentServer::serve(const DecodePreviewRequest&, FileDescriptor descriptor) {
  if (!engines_.decodePreview) return {unsupported(), {}};
  Result<SealedMemory> tiff = SealedMemory::map(std::move(descriptor), kAnySize);
  if (!tiff) return {tiff.error(), {}};
  Result<NSBitmapImageRep> bitmap = engines_.decodePreview(tiff->toByteArray(), context_.limits);
  if (!bitmap) return {bitmap.error(), {}};
  if (bitmap->isPlanar || !bitmap->isConsistent()) return {notDone(), {}};
  Result<FileDescriptor> samples =
      SealedMemory::seal(bitmap->data.constData(), qsizetype(bitmap->bytesPerRow) * bitmap->pixelsHigh);
  if (!samples) return {samples.error(), {}};
  return {replyFor(*bitmap), std::move(*samples)};
}

DocumentServer::Answer DocumentServer::serve(const AttributesRequest& request, FileDescriptor descriptor) {
  if (!engines_.setPdfAttributes) return {unsupported(), {}};
  Result<SealedMemory> pdf = SealedMemory::map(std::move(descriptor), kAnySize);
  if (!pdf) return {pdf.error(), {}};
  Result<QByteArray> bytes = engines_.setPdfAttributes(pdf->toByteArray(), request.attributes);
  if (!bytes) return {bytes.error(), {}};
  return answerOf(engine::EngineBytes{*bytes, {}});
}

DocumentServer::Answer DocumentServer::serve(const PagesRequest& request, FileDescriptor descriptor) {
  if (!engines_.composePages) return {unsupported(), {}};
  Result<SealedMemory> pdf = SealedMemory::map(std::move(descriptor), kAnySize);
  if (!pdf) return {pdf.error(), {}};
  Result<QByteArray> bytes = engines_.composePages(pdf->toByteArray(), request);
  if (!bytes) return {bytes.error(), {}};
  return answerOf(engine::EngineBytes{*bytes, {}});
}

DocumentServer::Answer DocumentServer::answerOf(Result<engine::EngineBytes> bytes) const {
  if (!bytes) return {bytes.error(), {}};
  if (bytes->bytes.size() > qsizetype(context_.limits.memoryMiB) << 20) return {memoryUsedUp(), {}};
  Result<FileDescriptor> memory = SealedMemory::seal(bytes->bytes);
  if (!memory) return {memory.error(), {}};
  return {std::move(bytes->report), std::move(*memory)};
}

void DocumentServer::send(quint32 id, Answer answer) {
  QByteArray cbor = encodeReply({id, std::move(answer.body)});
  // The other side ends a process that tells impossible numbers; a strange document shall cost an answer
  // only.
  if (!decodeReply(cbor)) {
    cbor = encodeReply({id, outOfRange()});
    answer.descriptor.reset();
  }
  if (!channel_.send(cbor, answer.descriptor.get())) ::_exit(0);
}

}  // namespace norvex
