// The name of an XML document's root element, found without parsing the document.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace norvex {

/// The root element's name without its prefix; empty when the bytes do not begin like XML or end before the
/// element. Reads UTF-8 and everything that keeps ASCII, and UTF-16 in both orders, with and without a
/// byte-order mark; skips the XML declaration, processing instructions, comments and a document type with its
/// internal subset.
[[nodiscard]] QString xmlRootName(QByteArrayView bytes);

}  // namespace norvex
