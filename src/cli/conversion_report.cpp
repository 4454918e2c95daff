#include "cli/conversion_report.h"

#include <QJsonArray>

namespace norvex {

QJsonObject conversionObject(const ConvertTask& task, const ConversionOptions& options,
                             const Conversion& conversion) {
  const EncodingReport& report = conversion.report;
  QJsonObject object{{QStringLiteral("file"), task.file},
                     {QStringLiteral("output"), task.output},
                     {QStringLiteral("format"), nameOf(options.format)}};
  if (report.error) {
    object.insert(QStringLiteral("error"), report.error->message);
  } else {
    object.insert(QStringLiteral("bytes"), conversion.size);
    QJsonObject rasterized{{QStringLiteral("regions"), report.regionsRasterised},
                           {QStringLiteral("areaShare"), report.rasterisedAreaShare}};
    if (isRaster(options.format)) {
      rasterized = {{QStringLiteral("regions"), 1},
                    {QStringLiteral("areaShare"), 1.0},
                    {QStringLiteral("dpi"), options.dpi}};
    }
    object.insert(QStringLiteral("rasterized"), rasterized);
    object.insert(QStringLiteral("metadataLost"), QJsonArray::fromStringList(conversion.metadataLost));
  }
  object.insert(QStringLiteral("warnings"), QJsonArray::fromStringList(report.warnings));
  return object;
}

QString conversionRemarks(const ConversionOptions& options, const Conversion& conversion) {
  QStringList remarks = conversion.report.warnings;
  const EncodingReport& report = conversion.report;
  if (!isRaster(options.format) && report.regionsRasterised > 0) {
    remarks << QStringLiteral("%1 parts (%2 % of the area) became images")
                   .arg(report.regionsRasterised)
                   .arg(report.rasterisedAreaShare * 100, 0, 'f', 1);
  }
  if (!isRaster(options.format) && !conversion.metadataLost.isEmpty()) {
    remarks << QStringLiteral("not in the file: %1").arg(conversion.metadataLost.join(QStringLiteral(", ")));
  }
  return remarks.join(QStringLiteral("; "));
}

}  // namespace norvex
