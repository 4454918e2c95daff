// Laid out by the library that lays out the text of pictures: every script, right to left, fonts that help
// out.
#include "worker/pages/sheet_lines.h"

#include <QList>
#include <QStringList>

#include <algorithm>

#include "worker/svg/inspection/svg_length.h"
#include "worker/svg/svg_pdf.h"
#include "worker/svg/svg_renderer.h"

namespace norvex::engine {
namespace {

constexpr double kMeasuringScale = 10;   // widths are told in whole units
constexpr double kBaselineShare = 0.35;  // of the font's size, below the middle of the line

const char* const kAnchors[] = {"start", "middle", "end"};

/// Characters that XML cannot hold become blanks.
QString escaped(const QString& text) {
  QString plain;
  for (const QChar c : text)
    plain += c < QChar(0x20) || c == QChar(0xfffe) || c == QChar(0xffff) ? QChar(' ') : c;
  return plain.toHtmlEscaped();
}

QByteArray textElement(const PagesRequest& request, const QString& text, double x, double y, double size,
                       const char* anchor) {
  return QStringLiteral(
             "<text x='%1' y='%2' font-size='%3' font-family='%4' text-anchor='%5' "
             "xml:space='preserve'>%6</text>")
      .arg(x, 0, 'f', 3)
      .arg(y, 0, 'f', 3)
      .arg(size, 0, 'f', 3)
      .arg(escaped(request.fontFamily).replace(u'\'', u' '), QString::fromLatin1(anchor), escaped(text))
      .toUtf8();
}

/// In points; 0 where it cannot be measured.
double widthOf(const PagesRequest& request, const QString& text) {
  const double size = request.fontSize * kMeasuringScale;
  const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='300' height='150'>" +
                         textElement(request, text, 0, size, size, "start") + "</svg>";
  const auto renderer = SvgRenderer::create(svg, false);
  return renderer ? (*renderer)->drawnExtent().width() / kMeasuringScale : 0;
}

QString shortened(const QList<uint>& characters, qsizetype kept) {
  const qsizetype head = (kept + 1) / 2, tail = kept / 2;
  const auto text = [](const QList<uint>& some) {
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(some.constData()), some.size());
  };
  return text(characters.mid(0, head)) + QChar(0x2026) + text(characters.mid(characters.size() - tail));
}

QString fitting(const PagesRequest& request, const QString& text, double room) {
  if (widthOf(request, text) <= room) return text;
  const QList<uint> characters = text.toUcs4();
  qsizetype fits = 0, tooMany = characters.size();
  while (tooMany - fits > 1) {
    const qsizetype middle = (fits + tooMany) / 2;
    (widthOf(request, shortened(characters, middle)) <= room ? fits : tooMany) = middle;
  }
  return shortened(characters, fits);
}

QByteArray lineElements(const PagesRequest& request, const SheetLine& line) {
  const QStringList fields = line.text.split(u'\t').mid(0, 3);
  const auto filled =
      std::count_if(fields.begin(), fields.end(), [](const QString& f) { return !f.isEmpty(); });
  const double room = filled > 1 ? line.rect.width() / double(filled) : line.rect.width();
  const double y = request.paper.height() - line.rect.center().y() + kBaselineShare * request.fontSize;
  QByteArray elements;
  for (qsizetype i = 0; i < fields.size(); ++i) {
    if (fields.at(i).isEmpty()) continue;
    const double x = line.rect.left() + line.rect.width() * 0.5 * double(i);
    elements +=
        textElement(request, fitting(request, fields.at(i), room), x, y, request.fontSize, kAnchors[i]);
  }
  return elements;
}

}  // namespace

Result<QByteArray> sheetLines(const PagesRequest& request) {
  const QSizeF pixels = request.paper / pointsPerPixel;
  QByteArray svg =
      QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2' viewBox='0 0 %3 %4'>")
          .arg(pixels.width(), 0, 'f', 4)
          .arg(pixels.height(), 0, 'f', 4)
          .arg(request.paper.width(), 0, 'f', 4)
          .arg(request.paper.height(), 0, 'f', 4)
          .toLatin1();
  if (request.header) svg += lineElements(request, *request.header);
  if (request.footer) svg += lineElements(request, *request.footer);
  svg += "</svg>";
  const auto renderer = SvgRenderer::create(svg, false);
  if (!renderer) return renderer.error();
  return svgToPdf(**renderer, pixels, {});
}

}  // namespace norvex::engine
