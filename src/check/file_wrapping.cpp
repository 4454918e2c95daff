#include "check/file_wrapping.h"

#include <QtEndian>

namespace norvex {
namespace {

// MacBinary I to III: a header of 128 bytes, then each fork, padded to the next 128.
constexpr qsizetype kMacBinaryHeader = 128;
// RFC 1740: AppleSingle.
constexpr QByteArrayView kAppleSingle("\x00\x05\x16\x00\x00\x02\x00\x00", 8);
constexpr qsizetype kEntries = 26;
constexpr qsizetype kEntryBytes = 12;
constexpr quint32 kDataFork = 1, kResourceFork = 2;

quint32 number(QByteArrayView file, qsizetype at) {
  return qFromBigEndian<quint32>(file.data() + at);
}

/// Nothing: it does not lie in the file.
std::optional<QByteArrayView> part(QByteArrayView file, qint64 at, qint64 length) {
  if (at > file.size() || length > file.size() - at) return std::nullopt;
  return file.sliced(at, length);
}

std::optional<WrappedFile> macBinary(QByteArrayView file) {
  if (file.size() < kMacBinaryHeader || file[0] != 0 || file[74] != 0 || file[82] != 0) return std::nullopt;
  const int nameLength = uchar(file[1]);
  if (nameLength < 1 || nameLength > 63) return std::nullopt;
  const qint64 data = number(file, 83), resource = number(file, 87);
  const qint64 behindData = kMacBinaryHeader + (data + 127) / 128 * 128;
  const auto dataFork = part(file, kMacBinaryHeader, data);
  const auto resourceFork = resource > 0 ? part(file, behindData, resource) : QByteArrayView();
  if (data == 0 || !dataFork || !resourceFork) return std::nullopt;
  return WrappedFile{QStringLiteral("MacBinary"), *dataFork, *resourceFork};
}

std::optional<WrappedFile> appleSingle(QByteArrayView file) {
  if (!file.startsWith(kAppleSingle) || file.size() < kEntries) return std::nullopt;
  const int count = qFromBigEndian<quint16>(file.data() + 24);
  const qint64 behindEntries = kEntries + count * kEntryBytes;
  if (behindEntries > file.size()) return std::nullopt;
  WrappedFile wrapped{QStringLiteral("AppleSingle"), {}, {}};
  for (int i = 0; i < count; ++i) {
    const qsizetype at = kEntries + i * kEntryBytes;
    const qint64 begin = number(file, at + 4);
    const auto fork = part(file, begin, number(file, at + 8));
    // A fork that held the header would be wrapped once more in itself, without end.
    if (!fork || (begin < behindEntries && !fork->isEmpty())) return std::nullopt;
    if (number(file, at) == kDataFork) wrapped.dataFork = *fork;
    if (number(file, at) == kResourceFork) wrapped.resourceFork = *fork;
  }
  if (wrapped.dataFork.isEmpty()) return std::nullopt;
  return wrapped;
}

}  // namespace

std::optional<WrappedFile> wrappedFile(QByteArrayView file) {
  const auto mac = macBinary(file);
  return mac ? mac : appleSingle(file);
}

QByteArray withoutWrapping(const QByteArray& file) {
  // A file can be wrapped as often as it has room for headers, so nothing is copied on the way.
  QByteArrayView inner(file);
  while (const auto wrapped = wrappedFile(inner)) inner = wrapped->dataFork;
  return inner.size() == file.size() ? file : inner.toByteArray();
}

}  // namespace norvex
