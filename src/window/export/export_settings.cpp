#include "window/export/export_settings.h"

#include <QSettings>

#include "base/latin1_text.h"
#include "base/state_folder.h"

namespace norvex {
namespace {

QSettings settings() {
  return QSettings(settingsFolder() + QStringLiteral("/export.ini"), QSettings::IniFormat);
}

}  // namespace

ExportChoice storedExportChoice() {
  const QSettings stored = settings();
  ExportChoice choice;
  if (const auto format = formatNamed(stored.value(QStringLiteral("format")).toString().toStdString()))
    choice.format = *format;
  bool ok = false;
  const double dpi = stored.value(QStringLiteral("pixelsPerInch")).toDouble(&ok);
  if (ok && dpi >= kLeastExportDpi && dpi <= kMostExportDpi) choice.dpi = dpi;
  choice.background = QColor(stored.value(QStringLiteral("background")).toString());
  choice.color = outputColorNamed(stored.value(QStringLiteral("color")).toString().toStdString())
                     .value_or(OutputColor::Rgb);
  const int quality = stored.value(QStringLiteral("quality")).toInt(&ok);
  if (ok && quality >= 1 && quality <= 100) choice.quality = quality;
  choice.keepText = stored.value(QStringLiteral("text")).toBool();
  return choice;
}

void storeExportChoice(const ExportChoice& choice) {
  QSettings stored = settings();
  stored.setValue(QStringLiteral("format"), QString(latin1(rowOf(choice.format).name)));
  if (isRaster(choice.format)) {
    stored.setValue(QStringLiteral("pixelsPerInch"), choice.dpi);
    stored.setValue(QStringLiteral("background"),
                    choice.background.isValid() ? choice.background.name(QColor::HexArgb) : QString());
  }
  if (isRaster(choice.format))
    stored.setValue(QStringLiteral("color"), QString(latin1(nameOf(choice.color))));
  if (choice.format == PictureFormat::Svg || choice.format == PictureFormat::Svgz)
    stored.setValue(QStringLiteral("text"), choice.keepText);
  if (rowOf(choice.format).quality == NoQuality) return;
  if (choice.quality)
    stored.setValue(QStringLiteral("quality"), *choice.quality);
  else
    stored.remove(QStringLiteral("quality"));
}

}  // namespace norvex
