// The text of an SVG document: from bytes in any encoding to UTF-8 and back.
#pragma once

#include <QByteArray>
#include <QString>

#include "base/result.h"

namespace norvex::engine {

/// A document's text as UTF-8 without a byte-order mark and up to the first NUL, and what is needed to write
/// it out as it came.
struct SvgText {
  QByteArray utf8;  ///< the XML declaration, where there is one, still names the encoding of the bytes
  /// One of the encoding names and its number (see metadata/header_dictionary.h). An encoding that has none
  /// there is handed on as UTF-8, and encodeSvgText() writes it so.
  QString encodingName;
  int encodingNumber = 0;
  QByteArray declaredName;      ///< as the document calls its encoding; "UTF-8" where it says nothing
  bool handedOnAsUtf8 = false;  ///< the document's own encoding is none of ours
  bool byteOrderMark = false;   ///< UTF-8 only: UTF-16 always gets one
  bool littleEndian = false;    ///< UTF-16 only
};

/// REQUIRES bytes that are not compressed. Fails with NotParsable: an encoding that nobody knows, or bytes
/// that are not text in the encoding that they claim.
[[nodiscard]] Result<SvgText> decodeSvgText(const QByteArray& bytes);

/// `utf8` in the encoding of `like`, with its byte-order mark; UTF-16 always gets one. A character that the
/// encoding lacks becomes a character reference. Empty only when `utf8` is.
[[nodiscard]] QByteArray encodeSvgText(const QByteArray& utf8, const SvgText& like);

/// The text with an XML declaration that names `encoding`, in the place of the one that it has; a text
/// without a declaration, or with one that names no encoding, stays as it is.
[[nodiscard]] QByteArray withDeclaredEncoding(const QByteArray& utf8, const QByteArray& encoding);

}  // namespace norvex::engine
