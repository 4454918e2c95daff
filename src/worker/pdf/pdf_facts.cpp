#include "worker/pdf/pdf_facts.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>
#include <cstdlib>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

std::optional<QString> textOf(QPDFObjectHandle value) {
  if (!value.isString()) return std::nullopt;
  QString text = QString::fromStdString(value.getUTF8Value()).left(limits::maximumInformationLength);
  while (text.endsWith(QChar(0))) text.chop(1);
  return text;
}

void readInformation(QPDFObjectHandle information, PictureFacts& facts) {
  if (!information.isDictionary()) return;
  for (const char* name : {"Title", "Author", "Subject", "Creator", "Producer"})
    if (const auto text = textOf(information.getKey(std::string("/") + name)))
      facts.attributes.insert(QString::fromLatin1(name), *text);
  if (const auto text = textOf(information.getKey("/CreationDate"))) facts.creationDate = parsePdfDate(*text);
}

}  // namespace

Result<PictureFacts> pdfFacts(PdfFile& file) {
  return guarded([&]() -> Result<PictureFacts> {
    PictureFacts facts;
    facts.pageCount = file.pageCount();
    const int told = std::min(facts.pageCount, limits::maximumPageBoxes);
    for (int page = 0; page < told; ++page) facts.pageBounds.append(file.geometry(page).shownBounds());
    readInformation(file.qpdf().getTrailer().getKey("/Info"), facts);
    facts.warnings = file.warnings();
    return facts;
  });
}

std::optional<QDateTime> parsePdfDate(const QString& text) {
  static const QRegularExpression form(
      QStringLiteral("^\\s*(?:D:)?(\\d{4})(?:(\\d\\d)(?:(\\d\\d)(?:(\\d\\d)(?:(\\d\\d)(\\d\\d)?)?)?)?)?"
                     "\\s*(?:(Z)|([+-])(\\d\\d)(?:'?(\\d\\d)'?)?)?"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const auto number = [&](int group, int otherwise) {
    return match.capturedLength(group) > 0 ? match.captured(group).toInt() : otherwise;
  };
  const QDate date(number(1, 0), number(2, 1), number(3, 1));
  const QTime time(number(4, 0), number(5, 0), std::min(number(6, 0), 59));
  const int offset = (number(9, 0) * 60 + number(10, 0)) * 60 * (match.captured(8) == u"-" ? -1 : 1);
  if (!date.isValid() || !time.isValid() || std::abs(offset) > 14 * 3600) return std::nullopt;
  if (offset == 0) return QDateTime(date, time, Qt::UTC);
  return QDateTime(date, time, Qt::OffsetFromUTC, offset);
}

QString pdfDate(const QDateTime& date) {
  const int offset = date.offsetFromUtc() / 60;
  const QString stamp = QStringLiteral("D:") + date.toString(QStringLiteral("yyyyMMddHHmmss"));
  if (offset == 0) return stamp + u'Z';
  return stamp + QStringLiteral("%1%2'%3'")
                     .arg(QLatin1Char(offset < 0 ? '-' : '+'))
                     .arg(std::abs(offset) / 60, 2, 10, QLatin1Char('0'))
                     .arg(std::abs(offset) % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace norvex::engine
