// Binary EPS files made for tests.
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <initializer_list>

namespace norvex::testdata {

inline QByteArray littleEndian(quint32 value) {
  QByteArray bytes(4, '\0');
  qToLittleEndian(value, bytes.data());
  return bytes;
}

/// The 30 bytes of a header; the third and fourth magic byte can be chosen.
inline QByteArray dosHeader(quint32 psOffset, quint32 psLength, quint32 tiffOffset, quint32 tiffLength,
                            const QByteArray& magic = QByteArray("\xC5\xD0\xD3\xC6")) {
  QByteArray bytes = magic;
  for (const quint32 value : {psOffset, psLength, 0u, 0u, tiffOffset, tiffLength})
    bytes += littleEndian(value);
  return bytes + "\xFF\xFF";
}

/// Header, PostScript section, TIFF section, in this order.
inline QByteArray binaryEps(const QByteArray& postScript, const QByteArray& tiff = {}) {
  const auto psLength = quint32(postScript.size());
  const auto tiffLength = quint32(tiff.size());
  return dosHeader(30, psLength, tiff.isEmpty() ? 0 : 30 + psLength, tiffLength) + postScript + tiff;
}

}  // namespace norvex::testdata
