// The formats that a picture can be written in.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

#include "encoders/picture_encoder.h"
#include "metadata/header_dictionary.h"

namespace norvex {

enum class OutputFormat { Eps, EpsPreview, Epsi, Pdf, Svg, Svgz, Tiff, Png, Jpeg, Gif };

/// Every format, in the order in which they are offered.
[[nodiscard]] const QList<OutputFormat>& allOutputFormats();
/// "eps", "eps-preview", "epsi", "pdf", "svg", "svgz", "tiff", "png", "jpeg", "gif".
[[nodiscard]] QString nameOf(OutputFormat format);
[[nodiscard]] std::optional<OutputFormat> outputFormatNamed(const QString& name);
/// By a file name's extension, in any letter case; "eps" is plain EPS.
[[nodiscard]] std::optional<OutputFormat> outputFormatOfFileName(const QString& fileName);
/// Without the dot.
[[nodiscard]] QString extensionOf(OutputFormat format);
[[nodiscard]] bool isRaster(OutputFormat format);
/// Plain EPS or one of those with a preview.
[[nodiscard]] bool isPostScript(OutputFormat format);

/// The bytes of the encoder's picture in `format`; none: the encoder's report says why.
[[nodiscard]] QByteArray encodedPicture(PictureEncoder& encoder, OutputFormat format);

/// The keys of `header` whose text does not reach a file of `format`. `handedOn`: the source becomes the file
/// as it is.
[[nodiscard]] QStringList metadataLost(const HeaderDictionary& header, PictureKind source,
                                       OutputFormat format, bool handedOn);

}  // namespace norvex
