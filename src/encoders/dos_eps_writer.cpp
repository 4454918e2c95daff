#include "encoders/dos_eps_writer.h"

#include <QtEndian>

namespace norvex {
namespace {

constexpr qsizetype headerLength = 30;

void append32(QByteArray& bytes, qsizetype value) {
  const quint32 little = qToLittleEndian(static_cast<quint32>(value));
  bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

}  // namespace

QByteArray dosEpsFile(const QByteArray& tiff, const QByteArray& postScript) {
  QByteArray file;
  file.reserve(headerLength + tiff.size() + postScript.size());
  file.append("\xC5\xD0\xD3\xC6", 4);
  append32(file, headerLength + tiff.size());
  append32(file, postScript.size());
  append32(file, 0);  // no metafile
  append32(file, 0);
  append32(file, headerLength);
  append32(file, tiff.size());
  file.append("\xFF\xFF", 2);
  file.append(tiff);
  file.append(postScript);
  return file;
}

}  // namespace norvex
