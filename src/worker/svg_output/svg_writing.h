// Numbers, texts and data as SVG holds them: short, and nothing that a document says becomes markup.
#pragma once

#include <QByteArray>
#include <QString>

#include "base/affine_transform.h"

namespace norvex::engine {

/// Numbers of SVG: no exponent, no zero before the point, none behind the last digit.
[[nodiscard]] QByteArray svgNumber(double value, int decimals);

/// `units` times 10^-decimals, separated from the number before it where the two would run into each other.
/// `text` ends with a command letter or with a number that was appended likewise.
void appendPathNumber(QByteArray& text, qint64 units, int decimals);

/// The value of a transform attribute: the linear part with six significant digits, the offset with
/// `decimals`. Empty for the identity.
[[nodiscard]] QByteArray svgTransform(const AffineTransform& matrix, int decimals);

/// ` name="value"`, of a value that holds nothing to escape.
[[nodiscard]] QByteArray attribute(const char* name, const QByteArray& value);

/// An element with more attributes, in front of its own.
[[nodiscard]] QByteArray withAttributes(const QByteArray& element, const QByteArray& attributes);

/// What an attribute calls a definition of this name: `url(#name)`.
[[nodiscard]] QByteArray reference(const QByteArray& name);

/// A path, filled and stroked with these attributes; without the first it is not filled.
[[nodiscard]] QByteArray pathElement(const QByteArray& data, const QByteArray& fill,
                                     const QByteArray& stroke);

/// Text for elements and attributes: markup is escaped, and what XML cannot hold becomes a blank.
[[nodiscard]] QByteArray xmlText(const QString& text);

/// data:TYPE;base64,…
[[nodiscard]] QByteArray dataAddress(const char* type, const QByteArray& bytes);

}  // namespace norvex::engine
