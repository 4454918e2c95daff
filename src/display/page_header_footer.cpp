#include "display/page_header_footer.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace norvex {

PageLine defaultPageLine() {
  QFont font(QStringLiteral("sans-serif"));
  font.setStyleHint(QFont::SansSerif);
  font.setPointSizeF(9);
  return {QStringLiteral("\t\t"), font};
}

std::optional<PageLine> pageHeader(const QString& title, const QDateTime& now, const QLocale& locale) {
  if (title.isNull()) return std::nullopt;
  PageLine line = defaultPageLine();
  line.text = QStringLiteral("\t\t") + fullDate(now, locale);
  return line;
}

std::optional<PageLine> pageFooter(const QString& title) {
  if (title.isNull()) return std::nullopt;
  PageLine line = defaultPageLine();
  line.text = title + QStringLiteral("\t\t");
  return line;
}

void drawPageLine(QPainter& painter, const QRectF& rect, const PageLine& line) {
  constexpr Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
  const QStringList fields = line.text.split(u'\t');
  const auto filled =
      std::count_if(fields.begin(), fields.end(), [](const QString& f) { return !f.isEmpty(); });
  const double room = filled > 1 ? rect.width() / double(filled) : rect.width();
  painter.save();
  painter.setFont(line.font);
  const QFontMetricsF metrics(line.font, painter.device());
  for (qsizetype i = 0; i < fields.size() && i < 3; ++i)
    painter.drawText(rect, int(alignments[i] | Qt::AlignVCenter) | Qt::TextSingleLine,
                     metrics.elidedText(fields.at(i), Qt::ElideMiddle, room));
  painter.restore();
}

}  // namespace norvex
