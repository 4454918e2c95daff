// UTType: what a file is, as an identifier in a graph of kinds, whatever its extension or MIME type calls it.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

#include "base/latin1_text.h"
#include "types/picture_format.h"

namespace norvex {

/// A type of data. A value; two are equal when their identifiers are (letter case does not count, as
/// everywhere with identifiers). Thread-safe, the registry of types included.
class UTType {
 public:
  /// The type of that identifier. An identifier that nobody declared is a type of its own that conforms to
  /// itself alone; the empty text gives nothing.
  [[nodiscard]] static std::optional<UTType> typeWithIdentifier(const QString& identifier);
  /// Nothing when no declared type has that extension (without the dot) or that MIME type; aliases count.
  [[nodiscard]] static std::optional<UTType> typeWithFilenameExtension(const QString& extension);
  [[nodiscard]] static std::optional<UTType> typeWithMIMEType(const QString& mimeType);
  /// Declares a further type; it then conforms to `parents` and to all that they conform to. Declaring an
  /// identifier again changes nothing.
  static UTType exportedTypeWithIdentifier(const QString& identifier, const QStringList& parents);

  [[nodiscard]] const QString& identifier() const { return identifier_; }
  /// True when this is `other` or one of the kinds of it, however far down.
  [[nodiscard]] bool conformsToType(const UTType& other) const;
  [[nodiscard]] bool conformsToType(const QString& identifier) const;
  /// Without the dot; empty for a type that no file has.
  [[nodiscard]] QString preferredFilenameExtension() const;
  [[nodiscard]] QString preferredMIMEType() const;

  friend bool operator==(const UTType& a, const UTType& b) {
    return a.identifier_.compare(b.identifier_, Qt::CaseInsensitive) == 0;
  }

 private:
  explicit UTType(QString identifier) : identifier_(std::move(identifier)) {}
  QString identifier_;
};

/// Identifiers of the types that Norvex reads or writes. Use them with UTType::typeWithIdentifier().
inline const QString NorvexEPSType = latin1(rowOf(PictureFormat::Eps).type);
inline const QString NorvexEPSIType = latin1(rowOf(PictureFormat::Epsi).type);
inline const QString NorvexIllustratorType = latin1(rowOf(PictureFormat::Illustrator).type);
inline const QString NorvexSVGZType = latin1(rowOf(PictureFormat::Svgz).type);
inline const QString PostScriptType = QStringLiteral("com.adobe.postscript");

/// The type of a format's files.
[[nodiscard]] UTType typeOf(PictureFormat format);

/// The platform's own types.
[[nodiscard]] UTType UTTypePDF();
[[nodiscard]] UTType UTTypeSVG();
[[nodiscard]] UTType UTTypeTIFF();
[[nodiscard]] UTType UTTypePNG();
[[nodiscard]] UTType UTTypeJPEG();
[[nodiscard]] UTType UTTypeGIF();
[[nodiscard]] UTType UTTypeData();  ///< anything at all: what identifyType() says when nothing else fits

}  // namespace norvex
