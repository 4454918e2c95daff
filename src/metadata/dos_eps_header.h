// The 30-byte header of a binary (DOS) EPS file and the sections that it points to.
#pragma once

#include <QByteArrayView>

#include <optional>

namespace norvex {

/// The fields that are used. Offsets are counted from the header's first byte and are taken from the file as
/// they stand: they may lie outside it.
struct DosEpsHeader {
  quint32 postScriptOffset = 0;
  quint32 postScriptLength = 0;
  quint32 metafileOffset = 0;
  quint32 metafileLength = 0;
  quint32 tiffOffset = 0;
  quint32 tiffLength = 0;
};

inline constexpr qsizetype dosEpsHeaderBytes = 30;
/// A file of fewer bytes is text, whatever it begins with.
inline constexpr qsizetype dosEpsMinimumBytes = 31;

/// The header at `start` of `source`. Nothing unless the source has at least 31 bytes, the two bytes at
/// `start` are C5 D0 (the two that follow are not looked at) and all 30 bytes of the header are there.
[[nodiscard]] std::optional<DosEpsHeader> dosEpsHeader(QByteArrayView source, qsizetype start = 0);

/// The PostScript section: exactly the bytes that the header names, cut at the end of the source. When the
/// section begins outside the source, what follows the first "%!PS" behind the header; empty without one.
/// Borrowed.
[[nodiscard]] QByteArrayView postScriptSection(QByteArrayView source, const DosEpsHeader& header,
                                               qsizetype start = 0);

/// The TIFF section, cut at the end of the source; empty when there is none or it begins outside. Borrowed.
[[nodiscard]] QByteArrayView tiffSection(QByteArrayView source, const DosEpsHeader& header,
                                         qsizetype start = 0);

/// The section of a Windows metafile in any source, cut at its end; empty when there is none. Borrowed.
[[nodiscard]] QByteArrayView metafileOf(QByteArrayView source);

/// The PostScript of any EPS source, plain or binary, byte-order mark left out. Borrowed from `source`.
[[nodiscard]] QByteArrayView postScriptOf(QByteArrayView source);

}  // namespace norvex
