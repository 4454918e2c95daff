#include "picture/client/worker_answers.h"

#include "picture/process/plain_sentence.h"
#include "protocol/sealed_memory.h"
#include "protocol/shared_errors.h"

namespace norvex {
namespace {

QStringList plainSentences(const QStringList& sentences) {
  QStringList plain;
  for (const QString& sentence : sentences) plain << plainSentence(sentence);
  return plain;
}

/// The body of the wanted sort, or why there is none. `withMemory`: a descriptor must be there, or must not.
template <typename Body>
Result<Body> bodyOf(const WorkerAnswer& answer, bool withMemory) {
  if (const auto* error = std::get_if<Error>(&answer.body)) return *error;
  const auto* body = std::get_if<Body>(&answer.body);
  if (body == nullptr || answer.descriptor.valid() != withMemory) return untrueAnswer();
  return *body;
}

bool isTightlyPacked(const PreviewReply& preview) {
  const qint64 bits = qint64(preview.pixelsWide) * preview.samplesPerPixel * preview.bitsPerSample;
  const bool wholeSamples = preview.bitsPerSample == 1 || preview.bitsPerSample == 2 ||
                            preview.bitsPerSample == 4 || preview.bitsPerSample == 8 ||
                            preview.bitsPerSample == 16;
  return wholeSamples && preview.bytesPerRow == (bits + 7) / 8;
}

}  // namespace

Result<PictureFacts> factsFrom(WorkerAnswer answer) {
  Result<PictureFacts> facts = bodyOf<PictureFacts>(answer, false);
  if (!facts) return facts;
  for (QStringList* texts : {&facts->warnings, &facts->fonts, &facts->colorSpaces})
    *texts = plainSentences(*texts);
  facts->stoppedBy = plainSentence(facts->stoppedBy);
  return facts;
}

Result<QImage> imageFrom(WorkerAnswer answer, const QSize& pixelSize, QStringList& remarks) {
  const Result<BitmapReply> reply = bodyOf<BitmapReply>(answer, true);
  if (!reply) return reply.error();
  const qsizetype size = qsizetype(reply->bytesPerRow) * pixelSize.height();
  if (reply->pixelSize != pixelSize || reply->bytesPerRow != pixelSize.width() * 4) return untrueAnswer();
  Result<SealedMemory> memory = SealedMemory::map(std::move(answer.descriptor), size);
  if (!memory) return memory.error();
  if (memory->size() != size) return untrueAnswer();
  remarks = plainSentences(reply->warnings);
  auto* owner = new SealedMemory(*memory);
  const auto* pixels = reinterpret_cast<const uchar*>(owner->data());
  return QImage(
      pixels, pixelSize.width(), pixelSize.height(), reply->bytesPerRow, QImage::Format_ARGB32_Premultiplied,
      [](void* memoryOfImage) { delete static_cast<SealedMemory*>(memoryOfImage); }, owner);
}

Result<PictureBytes> bytesFrom(WorkerAnswer answer, const PictureLimits& limits) {
  Result<BytesReply> reply = bodyOf<BytesReply>(answer, true);
  if (!reply) return reply.error();
  const Result<SealedMemory> memory =
      SealedMemory::map(std::move(answer.descriptor), qsizetype(limits.memoryMiB) << 20);
  if (!memory) return memory.error();
  reply->warnings = plainSentences(reply->warnings);
  return PictureBytes{memory->toByteArray(), *reply};
}

Result<NSBitmapImageRep> bitmapFrom(WorkerAnswer answer, const PictureLimits& limits) {
  const Result<PreviewReply> reply = bodyOf<PreviewReply>(answer, true);
  if (!reply) return reply.error();
  const double pixels = double(reply->pixelsWide) * reply->pixelsHigh;
  if (!isTightlyPacked(*reply) || pixels > limits.megapixels * 1.0e6) return untrueAnswer();
  const qsizetype size = qsizetype(reply->bytesPerRow) * reply->pixelsHigh;
  const Result<SealedMemory> memory = SealedMemory::map(std::move(answer.descriptor), size);
  if (!memory) return memory.error();
  if (memory->size() != size) return untrueAnswer();
  NSBitmapImageRep bitmap;
  bitmap.pixelsWide = reply->pixelsWide;
  bitmap.pixelsHigh = reply->pixelsHigh;
  bitmap.bitsPerSample = reply->bitsPerSample;
  bitmap.samplesPerPixel = reply->samplesPerPixel;
  bitmap.hasAlpha = reply->hasAlpha;
  bitmap.colorSpaceName = reply->colorSpaceName;
  bitmap.bytesPerRow = reply->bytesPerRow;
  bitmap.bitsPerPixel = reply->bitsPerSample * reply->samplesPerPixel;
  bitmap.pointsWide = reply->pointsWide;
  bitmap.pointsHigh = reply->pointsHigh;
  bitmap.data = memory->toByteArray();
  return bitmap.isConsistent() ? Result<NSBitmapImageRep>(bitmap) : Result<NSBitmapImageRep>(untrueAnswer());
}

}  // namespace norvex
