#include "encoders/output_format.h"

#include <QFileInfo>

#include <algorithm>

#include "picture/web_image_rep.h"

namespace norvex {
namespace {

struct FormatRow {
  OutputFormat format;
  const char* name;
  QStringList extensions;  ///< the first is the one that is written
  bool raster;
};

const QList<FormatRow>& rows() {
  static const QList<FormatRow> all = {
      {OutputFormat::Eps, "eps", {QStringLiteral("eps"), QStringLiteral("epsf")}, false},
      {OutputFormat::EpsPreview, "eps-preview", {QStringLiteral("eps")}, false},
      {OutputFormat::Epsi, "epsi", {QStringLiteral("epsi")}, false},
      {OutputFormat::Pdf, "pdf", {QStringLiteral("pdf")}, false},
      {OutputFormat::Svg, "svg", {QStringLiteral("svg")}, false},
      {OutputFormat::Svgz, "svgz", {QLatin1String(ZyWebViewSVGZExtension)}, false},
      {OutputFormat::Tiff, "tiff", {QStringLiteral("tiff"), QStringLiteral("tif")}, true},
      {OutputFormat::Png, "png", {QStringLiteral("png")}, true},
      {OutputFormat::Jpeg, "jpeg", {QStringLiteral("jpg"), QStringLiteral("jpeg")}, true},
      {OutputFormat::Gif, "gif", {QStringLiteral("gif")}, true},
  };
  return all;
}

const FormatRow& rowOf(OutputFormat format) {
  return *std::find_if(rows().begin(), rows().end(),
                       [format](const FormatRow& row) { return row.format == format; });
}

template <typename Matches>
std::optional<OutputFormat> firstRow(Matches matches) {
  const auto at = std::find_if(rows().begin(), rows().end(), matches);
  return at == rows().end() ? std::nullopt : std::optional(at->format);
}

/// The keys that a file of this format has room for.
QStringList keysHeld(PictureKind source, OutputFormat format) {
  switch (format) {
    case OutputFormat::Eps:
    case OutputFormat::EpsPreview:
    case OutputFormat::Epsi:
      return {header::Title, header::Creator, header::CreationDate, header::For, header::Copyright};
    case OutputFormat::Pdf:
      return source == PictureKind::Pdf ? QStringList{header::Title, header::Creator, header::For,
                                                      header::Description, header::CreationDate}
                                        : QStringList{header::Title, header::Creator, header::For};
    case OutputFormat::Svg:
    case OutputFormat::Svgz:
      return {header::Title, header::Description};
    default:
      return {};
  }
}

}  // namespace

const QList<OutputFormat>& allOutputFormats() {
  static const QList<OutputFormat> all = [] {
    QList<OutputFormat> formats;
    for (const FormatRow& row : rows()) formats << row.format;
    return formats;
  }();
  return all;
}

QString nameOf(OutputFormat format) {
  return QLatin1String(rowOf(format).name);
}
QString extensionOf(OutputFormat format) {
  return rowOf(format).extensions.first();
}
bool isRaster(OutputFormat format) {
  return rowOf(format).raster;
}

bool isPostScript(OutputFormat format) {
  return format == OutputFormat::Eps || format == OutputFormat::EpsPreview || format == OutputFormat::Epsi;
}

std::optional<OutputFormat> outputFormatNamed(const QString& name) {
  return firstRow([&name](const FormatRow& row) { return name == QLatin1String(row.name); });
}

std::optional<OutputFormat> outputFormatOfFileName(const QString& fileName) {
  const QString extension = QFileInfo(fileName).suffix().toLower();
  return firstRow([&extension](const FormatRow& row) { return row.extensions.contains(extension); });
}

QByteArray encodedPicture(PictureEncoder& encoder, OutputFormat format) {
  switch (format) {
    case OutputFormat::Eps:
      return encoder.postScriptData();
    case OutputFormat::EpsPreview:
      return encoder.postScriptDataWithPreview();
    case OutputFormat::Epsi:
      return encoder.epsiData();
    case OutputFormat::Pdf:
      return encoder.pdfData();
    case OutputFormat::Svg:
      return encoder.svgData();
    case OutputFormat::Svgz: {
      const QByteArray svg = encoder.svgData();
      return svg.isEmpty() ? QByteArray() : ZyWebImageRep::gzip(svg);
    }
    case OutputFormat::Tiff:
      return encoder.tiffData(encoder.imageRep());
    case OutputFormat::Png:
      return encoder.pngData(encoder.imageRep());
    case OutputFormat::Jpeg:
      return encoder.jpgData(encoder.imageRep());
    case OutputFormat::Gif:
      return encoder.gifData(encoder.imageRep());
  }
  return {};
}

QStringList metadataLost(const HeaderDictionary& header, PictureKind source, OutputFormat format,
                         bool handedOn) {
  if (handedOn) return {};
  const QStringList held = keysHeld(source, format);
  QStringList lost;
  for (const QString& key : {header::Title, header::Creator, header::CreationDate, header::For,
                             header::Copyright, header::Description}) {
    if (!header.value(key).toString().trimmed().isEmpty() && !held.contains(key)) lost << key;
  }
  return lost;
}

}  // namespace norvex
