// The header dictionary: what is known about a document, whatever its format.
#pragma once

#include <QString>
#include <QVariant>

#include <limits>

namespace norvex {

/// Text keys to values, built fresh by each extractor and owned by the caller. An absent key is an absent
/// fact. Title, Creator, CreationDate, For, Copyright, Description and Encoding hold a QString,
/// EncodingNumber a qint64, Preview an NSBitmapImageRep, ColorSpace a QColorSpace, and the two fixed-ratio
/// keys of SVG a bool.
using HeaderDictionary = QVariantMap;

namespace header {
inline const QString Title = QStringLiteral("Title");
inline const QString Creator = QStringLiteral("Creator");
inline const QString CreationDate = QStringLiteral("CreationDate");
inline const QString For = QStringLiteral("For");
inline const QString Copyright = QStringLiteral("Copyright");
inline const QString Description = QStringLiteral("Description");
inline const QString Encoding = QStringLiteral("Encoding");
inline const QString EncodingNumber = QStringLiteral("EncodingNumber");
inline const QString Preview = QStringLiteral("Preview");
inline const QString ColorSpace = QStringLiteral("ColorSpace");
}  // namespace header

/// Selects the text decoder and encoder everywhere.
namespace encoding {
inline constexpr qint64 Ascii = 1;
inline constexpr qint64 EucJp = 3;
inline constexpr qint64 Utf8 = 4;
inline constexpr qint64 NonLossyAscii = 7;
inline constexpr qint64 ShiftJis = 8;
inline constexpr qint64 Utf16 = 10;
inline constexpr qint64 None = std::numeric_limits<qint64>::max();  ///< PDF: there is no text
}  // namespace encoding

}  // namespace norvex
