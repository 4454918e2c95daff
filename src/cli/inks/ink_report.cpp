#include "cli/inks/ink_report.h"

#include <QColor>
#include <QJsonArray>

#include <algorithm>

#include "picture/inks/ink_colours.h"
#include "picture/inks/ink_image.h"

namespace norvex {
namespace {

QString kindOf(const Ink& ink) {
  return ink.isSpot ? QStringLiteral("spot") : QStringLiteral("process");
}

QString percent(double share) {
  return QString::number(100 * share, 'f', 2).rightJustified(7) + QStringLiteral(" %");
}

QJsonObject objectOf(const PageInks& page, qsizetype index) {
  const Ink& ink = page.inks.at(index);
  QJsonObject object{
      {"name", ink.name}, {"kind", kindOf(ink)}, {"coverage", ink.coverage}, {"amount", ink.amount}};
  if (!ink.isSpot || ink.alternate) object.insert("rgb", QColor(rgbOf(ownColour(page, index))).name());
  if (ink.alternate) {
    QJsonArray shares;
    for (const quint8 share : *ink.alternate) shares.append(qRound(share * 1000.0 / 255) / 1000.0);
    object.insert("cmyk", shares);
  }
  return object;
}

}  // namespace

QString inkLines(const SeparatedPage& page) {
  qsizetype width = 0;
  for (const Ink& ink : page.inks.inks) width = std::max(width, ink.name.simplified().size());
  QString text;
  for (const Ink& ink : page.inks.inks)
    text += QStringLiteral("%1  %2 %3 of the page,%4 ink\n")
                .arg(ink.name.simplified().leftJustified(width), kindOf(ink).leftJustified(7),
                     percent(ink.coverage), percent(ink.amount));
  return text + QStringLiteral("most ink in one place: %1 %\n").arg(mostInk(page.inks), 0, 'f', 1);
}

QJsonObject inkObject(const SeparatedPage& page) {
  QJsonArray inks;
  for (qsizetype i = 0; i < page.inks.inks.size(); ++i) inks.append(objectOf(page.inks, i));
  return {{"width", page.inks.pixels.width()},
          {"height", page.inks.pixels.height()},
          {"dpi", page.inks.dpi},
          {"overprint", page.inks.overprint},
          {"mostInk", mostInk(page.inks)},
          {"inks", inks},
          {"warnings", QJsonArray::fromStringList(page.warnings)}};
}

}  // namespace norvex
