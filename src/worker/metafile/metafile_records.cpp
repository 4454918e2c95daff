#include "worker/metafile/metafile_records.h"

#include <QtEndian>

#include <algorithm>

namespace norvex::engine {
namespace {

constexpr quint32 kPlaceable = 0x9AC6CDD7;
constexpr qsizetype kPlaceableBytes = 22;
constexpr qsizetype kHeaderBytes = 18;
constexpr qsizetype kRecordBytes = 6;

quint32 doubleWordAt(QByteArrayView bytes, qsizetype at) {
  return qFromLittleEndian<quint32>(bytes.data() + at);
}

quint16 wordAt(QByteArrayView bytes, qsizetype at) {
  return qFromLittleEndian<quint16>(bytes.data() + at);
}

bool isPlaceable(QByteArrayView bytes) {
  return bytes.size() >= kPlaceableBytes && doubleWordAt(bytes, 0) == kPlaceable;
}

Error damaged() {
  return {ErrorKind::NotParsable, QStringLiteral("the embedded Windows metafile is damaged")};
}

}  // namespace

quint16 MetafileWords::unsignedWord() {
  if (bytes_.size() - at_ < 2) {
    isShort_ = true;
    return 0;
  }
  at_ += 2;
  return wordAt(bytes_, at_ - 2);
}

quint32 MetafileWords::doubleWord() {
  const quint32 low = unsignedWord();
  return low | quint32(unsignedWord()) << 16;
}

QByteArrayView MetafileWords::text(int bytes) {
  const qsizetype there = std::clamp<qsizetype>(bytes, 0, bytes_.size() - at_);
  isShort_ = isShort_ || there < bytes;
  const QByteArrayView result = bytes_.sliced(at_, there);
  at_ = std::min(at_ + there + there % 2, bytes_.size());
  return result;
}

bool isMetafile(QByteArrayView bytes) {
  if (isPlaceable(bytes)) bytes = bytes.sliced(kPlaceableBytes);
  return bytes.size() >= kHeaderBytes && (wordAt(bytes, 0) == 1 || wordAt(bytes, 0) == 2) &&
         wordAt(bytes, 2) == kHeaderBytes / 2;
}

Result<Metafile> readMetafile(QByteArrayView bytes) {
  if (!isMetafile(bytes)) return damaged();
  Metafile metafile;
  if (isPlaceable(bytes)) {
    MetafileWords words(bytes.sliced(6, 10));
    const int left = words.signedWord(), top = words.signedWord();
    const int right = words.signedWord(), bottom = words.signedWord();
    metafile.frame = QRect(QPoint(std::min(left, right), std::min(top, bottom)),
                           QSize(std::abs(right - left), std::abs(bottom - top)));
    metafile.unitsPerInch = words.unsignedWord();
    bytes = bytes.sliced(kPlaceableBytes);
  }
  bytes = bytes.sliced(kHeaderBytes);
  while (bytes.size() >= kRecordBytes) {
    const qsizetype size = qsizetype(doubleWordAt(bytes, 0)) * 2;
    const quint16 function = wordAt(bytes, 4);
    if (function == 0) break;
    if (size < kRecordBytes || size > bytes.size()) {
      if (metafile.records.isEmpty()) return damaged();
      break;  // what came before it is shown
    }
    metafile.records << MetafileRecord{function, bytes.sliced(kRecordBytes, size - kRecordBytes)};
    bytes = bytes.sliced(size);
  }
  return metafile;
}

}  // namespace norvex::engine
