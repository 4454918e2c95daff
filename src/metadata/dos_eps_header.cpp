#include "metadata/dos_eps_header.h"

#include <QtEndian>

#include <algorithm>

namespace norvex {
namespace {

/// The part of a section that lies in the source.
QByteArrayView section(QByteArrayView source, qsizetype start, quint32 offset, quint32 length) {
  const qint64 from = qint64(start) + offset;
  if (from >= source.size()) return {};
  return source.sliced(from, std::min<qint64>(length, source.size() - from));
}

}  // namespace

std::optional<DosEpsHeader> dosEpsHeader(QByteArrayView source, qsizetype start) {
  if (source.size() < dosEpsMinimumBytes || source.size() - start < dosEpsHeaderBytes) return {};
  if (!source.sliced(start).startsWith("\xC5\xD0")) return {};
  const auto number = [&](qsizetype at) { return qFromLittleEndian<quint32>(source.data() + start + at); };
  return DosEpsHeader{number(4), number(8), number(12), number(16), number(20), number(24)};
}

QByteArrayView postScriptSection(QByteArrayView source, const DosEpsHeader& header, qsizetype start) {
  if (qint64(start) + header.postScriptOffset < source.size())
    return section(source, start, header.postScriptOffset, header.postScriptLength);
  const QByteArrayView behindHeader = source.sliced(start + dosEpsHeaderBytes);
  const qsizetype at = behindHeader.indexOf("%!PS");
  return at < 0 ? QByteArrayView() : behindHeader.sliced(at);
}

QByteArrayView tiffSection(QByteArrayView source, const DosEpsHeader& header, qsizetype start) {
  return section(source, start, header.tiffOffset, header.tiffLength);
}

QByteArrayView metafileOf(QByteArrayView source) {
  const qsizetype start = source.startsWith("\xEF\xBB\xBF") ? 3 : 0;
  const auto header = dosEpsHeader(source, start);
  return header ? section(source, start, header->metafileOffset, header->metafileLength) : QByteArrayView();
}

QByteArrayView postScriptOf(QByteArrayView source) {
  const qsizetype start = source.startsWith("\xEF\xBB\xBF") ? 3 : 0;
  const auto header = dosEpsHeader(source, start);
  return header ? postScriptSection(source, *header, start) : source.sliced(start);
}

}  // namespace norvex
