// Windows metafiles made record by record.
#pragma once

#include <QByteArray>
#include <QList>

namespace norvex::kit {

inline QByteArray words(const QList<int>& values) {
  QByteArray bytes;
  for (const int value : values) bytes.append(char(value & 0xFF)).append(char(value >> 8 & 0xFF));
  return bytes;
}

inline QByteArray metafileRecord(int function, const QList<int>& parameters, QByteArray more = {}) {
  if (more.size() % 2) more += '\0';
  const QByteArray body = words(parameters) + more;
  const int size = int(body.size()) / 2 + 3;
  return words({size & 0xFFFF, size >> 16, function}) + body;
}

/// Of 40 × 30 units, drawn on white.
inline QByteArray madeMetafile(const QByteArray& records, bool withExtent = true) {
  return words({1, 9, 0x300, 0, 0, 0, 0, 0, 0}) +
         (withExtent ? metafileRecord(0x20B, {0, 0}) + metafileRecord(0x20C, {30, 40}) : QByteArray()) +
         records + metafileRecord(0, {});
}

/// In a frame from (100, 100) to (140, 130), 20 units an inch.
inline QByteArray placeableMetafile(const QByteArray& records) {
  return words({0xCDD7, 0x9AC6, 0, 100, 100, 140, 130, 20, 0, 0, 0}) + madeMetafile(records, false);
}

}  // namespace norvex::kit
