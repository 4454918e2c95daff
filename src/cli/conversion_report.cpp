#include "cli/conversion_report.h"

#include <QJsonArray>

#include "base/latin1_text.h"
#include "cli/files/json_output.h"

namespace norvex {
namespace {

QString rasterRemark(const EncodingReport& report) {
  QString remark = report.regionsRasterised == 1 ? QStringLiteral("1 part")
                                                 : QStringLiteral("%1 parts").arg(report.regionsRasterised);
  if (report.rasterisedAreaShare > 0)
    remark += QStringLiteral(" (%1 % of the area)").arg(report.rasterisedAreaShare * 100, 0, 'f', 1);
  remark +=
      report.regionsRasterised == 1 ? QStringLiteral(" became an image") : QStringLiteral(" became images");
  if (report.rasterisedDpi > 0) remark += QStringLiteral(" of %1 dpi").arg(report.rasterisedDpi, 0, 'f', 0);
  return remark;
}

}  // namespace

QJsonObject conversionObject(const ConvertTask& task, const ConversionOptions& options,
                             const Conversion& conversion) {
  const EncodingReport& report = conversion.report;
  QJsonObject object{{QStringLiteral("format"), latin1(rowOf(options.format).name)}};
  insertName(object, QStringLiteral("file"), task.file);
  insertName(object, QStringLiteral("output"), task.output);
  if (conversion.page > 0) object.insert(QStringLiteral("page"), conversion.page);
  if (report.error) {
    insertError(object, *report.error);
  } else {
    object.insert(QStringLiteral("bytes"), conversion.size);
    QJsonObject rasterized{{QStringLiteral("regions"), report.regionsRasterised},
                           {QStringLiteral("areaShare"), report.rasterisedAreaShare}};
    if (report.rasterisedDpi > 0) rasterized.insert(QStringLiteral("dpi"), report.rasterisedDpi);
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
    remarks << rasterRemark(report);
  }
  if (!isRaster(options.format) && !conversion.metadataLost.isEmpty()) {
    remarks << QStringLiteral("not in the file: %1").arg(conversion.metadataLost.join(QStringLiteral(", ")));
  }
  return remarks.join(QStringLiteral("; "));
}

}  // namespace norvex
