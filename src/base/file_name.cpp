#include "base/file_name.h"

#include <sys/stat.h>

#include <QStringDecoder>

#include <cstdlib>
#include <memory>

namespace norvex {
namespace {

constexpr ushort kRawByte = 0xDC00;

/// How many bytes the character at the front claims to have, by its first byte.
qsizetype claimedLength(uchar first) {
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

/// The first character; empty when the bytes do not begin with one.
QString firstCharacter(QByteArrayView bytes, qsizetype length) {
  if (length == 0 || length > bytes.size()) return {};
  QStringDecoder decoder(QStringDecoder::Utf8,
                         QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
  const QString text = decoder(bytes.first(length));
  return decoder.hasError() ? QString() : text;
}

}  // namespace

QString fileNameText(QByteArrayView bytes) {
  QString name;
  name.reserve(bytes.size());
  while (!bytes.isEmpty()) {
    const qsizetype length = claimedLength(uchar(bytes.front()));
    const QString character = firstCharacter(bytes, length);
    if (character.isEmpty())
      name += QChar(ushort(kRawByte + uchar(bytes.front())));
    else
      name += character;
    bytes = bytes.sliced(character.isEmpty() ? 1 : length);
  }
  return name;
}

int rawByteOf(QChar character, QChar before) {
  const ushort code = character.unicode();
  const bool stands = code >= kRawByte + 0x80 && code <= kRawByte + 0xFF && !before.isHighSurrogate();
  return stands ? code - kRawByte : -1;
}

QByteArray fileNameBytes(const QString& name) {
  QByteArray bytes;
  qsizetype textBegin = 0;
  for (qsizetype i = 0; i < name.size(); ++i) {
    const int byte = rawByteOf(name[i], i > 0 ? name[i - 1] : QChar());
    if (byte < 0) continue;
    bytes += QStringView(name).sliced(textBegin, i - textBegin).toUtf8();
    bytes += char(byte);
    textBegin = i + 1;
  }
  return bytes + QStringView(name).sliced(textBegin).toUtf8();
}

QByteArray realPath(const QByteArray& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr), &std::free);
  return real ? QByteArray(real.get()) : path;
}

bool fileExists(const QString& name) {
  struct stat status {};
  return ::stat(fileNameBytes(name).constData(), &status) == 0;
}

bool folderExists(const QString& name) {
  struct stat status {};
  return ::stat(fileNameBytes(name).constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace norvex
