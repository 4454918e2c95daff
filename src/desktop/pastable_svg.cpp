#include "desktop/pastable_svg.h"

#include <QRegularExpression>
#include <QString>

#include <cmath>

namespace norvex {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72;

QString number(double value) {
  return QString::number(value, 'g', 10);
}

/// Of the root element, without those that only a root has.
QString inheritedAttributes(const QString& tag) {
  static const QRegularExpression attribute(QStringLiteral(R"re(\s([a-z-]+)="[^"<]*")re"));
  QString all;
  for (const QRegularExpressionMatch& each : attribute.globalMatch(tag)) {
    const QString name = each.captured(1);
    if (name != QLatin1String("width") && name != QLatin1String("height") &&
        name != QLatin1String("version") && name != QLatin1String("xmlns"))
      all += each.captured();
  }
  return all;
}

}  // namespace

QByteArray pastableSvg(const QByteArray& svg) {
  const qsizetype begin = svg.indexOf("<svg "), end = svg.indexOf('>', begin),
                  last = svg.lastIndexOf("</svg>");
  if (begin < 0 || end < 0 || last < end) return svg;
  QString tag = QString::fromUtf8(svg.mid(begin, end - begin));
  static const QRegularExpression size(
      QStringLiteral(R"re( width="([0-9.]+)pt" height="([0-9.]+)pt" viewBox="0 0 ([0-9.]+) ([0-9.]+)")re"));
  const QRegularExpressionMatch found = size.match(tag);
  const double width = found.captured(1).toDouble(), height = found.captured(2).toDouble();
  const double boxWidth = found.captured(3).toDouble(), boxHeight = found.captured(4).toDouble();
  if (!(width > 0 && boxWidth > 0 && boxHeight > 0)) return svg;
  const double scale = width / boxWidth;
  if (std::abs(height / boxHeight - scale) > 1e-3 * scale) return svg;
  const QString wide = number(width * kPixelsPerPoint), high = number(height * kPixelsPerPoint);
  const QString group = QStringLiteral("<g transform=\"scale(%1)\"%2>")
                            .arg(number(scale * kPixelsPerPoint), inheritedAttributes(tag));
  tag.replace(found.captured(),
              QStringLiteral(" width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\"").arg(wide, high));
  return svg.left(begin) + tag.toUtf8() + ">\n" + group.toUtf8() + svg.mid(end + 1, last - end - 1) +
         "</g>\n" + svg.mid(last);
}

}  // namespace norvex
