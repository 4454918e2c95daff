#include "cli/files/json_output.h"

#include "base/file_name.h"
#include "picture/told_error.h"

namespace norvex {
namespace {

/// `written`: JSON as the library writes it, in which C0 is escaped, and of the rest lone surrogates alone.
QByteArray fitForEverybody(const QByteArray& written) {
  constexpr char kReplacement[] = "\xEF\xBF\xBD";
  QByteArray escaped;
  escaped.reserve(written.size());
  const auto append = [&](uchar unit) { escaped += "\\u00" + QByteArray::number(unit, 16); };
  for (qsizetype i = 0; i < written.size(); ++i) {
    const auto byte = uchar(written[i]);
    const auto next = uchar(i + 1 < written.size() ? written[i + 1] : 0);
    const bool isSurrogate =
        byte == '\\' && next == 'u' && i + 2 < written.size() && (written[i + 2] | 0x20) == 'd';
    if (isSurrogate) {
      escaped += kReplacement;
      i += 5;
    } else if (byte == '\\') {
      escaped += written.mid(i++, 2);
    } else if (byte == 0x7F) {
      append(byte);
    } else if (byte == 0xC2 && next >= 0x80 && next < 0xA0) {  // U+0080 to U+009F in UTF-8
      append(next);
      ++i;
    } else {
      escaped += written[i];
    }
  }
  return escaped;
}

}  // namespace

QByteArray jsonOutput(const QJsonDocument& document) {
  return fitForEverybody(document.toJson(QJsonDocument::Indented));
}

QByteArray jsonLine(const QJsonObject& object) {
  return fitForEverybody(QJsonDocument(object).toJson(QJsonDocument::Compact)) + '\n';
}

void insertName(QJsonObject& object, const QString& key, const QString& name) {
  const QByteArray bytes = fileNameBytes(name);
  object.insert(key, QString::fromUtf8(bytes));
  if (name.toUtf8() != bytes)
    object.insert(key + QStringLiteral("Bytes"), QString::fromLatin1(bytes.toBase64()));
}

QJsonArray jsonArray(const QRectF& rect) {
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

void insertError(QJsonObject& object, const Error& error) {
  const ToldError told = toldError(error);
  object.insert(QStringLiteral("error"), told.sentence);
  if (!told.details.isEmpty()) object.insert(QStringLiteral("details"), told.details);
}

}  // namespace norvex
