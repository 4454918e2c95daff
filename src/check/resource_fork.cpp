#include "check/resource_fork.h"

#include <QtEndian>

namespace norvex {
namespace {

// Inside Macintosh, More Macintosh Toolbox, "Resource Manager": a header that tells where data and map are;
// in the map a list of types, and for each type a list of references to data.
constexpr qsizetype kHeaderBytes = 16, kMapTypes = 24, kTypeBytes = 8;

/// Reads what lies in the fork, and 0 with isShort() true for what does not.
class Fork {
 public:
  explicit Fork(QByteArrayView bytes) : bytes_(bytes) {}
  quint32 longAt(qsizetype at) { return there(at, 4) ? qFromBigEndian<quint32>(bytes_.data() + at) : 0; }
  quint16 wordAt(qsizetype at) {
    return there(at, 2) ? qFromBigEndian<quint16>(bytes_.data() + at) : quint16(0);
  }
  [[nodiscard]] bool isShort() const { return isShort_; }

 private:
  bool there(qsizetype at, qsizetype length) {
    const bool inside = at >= 0 && at <= bytes_.size() - length;
    isShort_ = isShort_ || !inside;
    return inside;
  }
  QByteArrayView bytes_;
  bool isShort_ = false;
};

/// Where the first reference to a picture is; 0 without one.
qsizetype pictureReference(Fork& fork, qsizetype map) {
  const qsizetype types = map + fork.wordAt(map + kMapTypes);
  const int count = quint16(fork.wordAt(types) + 1);
  for (int i = 0; i < count && !fork.isShort(); ++i) {
    const qsizetype type = types + 2 + i * kTypeBytes;
    if (fork.longAt(type) == 0x50494354) return types + fork.wordAt(type + 6);  // "PICT"
  }
  return 0;
}

}  // namespace

std::optional<QSize> pictureInResources(QByteArrayView bytes) {
  if (bytes.size() < kHeaderBytes) return std::nullopt;
  Fork fork(bytes);
  const qsizetype reference = pictureReference(fork, fork.longAt(4));
  if (reference == 0) return std::nullopt;
  const qsizetype data = qsizetype(fork.longAt(0)) + (fork.longAt(reference + 4) & 0xFFFFFF);
  // A length of the resource, one of the picture that is not used, and its frame: top, left, bottom, right.
  const qsizetype frame = data + 6;
  const int height = qint16(fork.wordAt(frame + 4)) - qint16(fork.wordAt(frame));
  const int width = qint16(fork.wordAt(frame + 6)) - qint16(fork.wordAt(frame + 2));
  if (fork.isShort() || width <= 0 || height <= 0) return std::nullopt;
  return QSize(width, height);
}

}  // namespace norvex
