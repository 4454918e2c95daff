#include "cli/json_output.h"

#include "picture/told_error.h"

namespace norvex {
namespace {

/// `written`: JSON in which C0 alone is escaped.
QByteArray withoutControls(const QByteArray& written) {
  QByteArray escaped;
  escaped.reserve(written.size());
  const auto append = [&](uchar unit) { escaped += "\\u00" + QByteArray::number(unit, 16); };
  for (qsizetype i = 0; i < written.size(); ++i) {
    const auto byte = uchar(written[i]);
    const auto next = uchar(i + 1 < written.size() ? written[i + 1] : 0);
    if (byte == 0x7F) {
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
  return withoutControls(document.toJson(QJsonDocument::Indented));
}

QByteArray jsonLine(const QJsonObject& object) {
  return withoutControls(QJsonDocument(object).toJson(QJsonDocument::Compact)) + '\n';
}

void insertError(QJsonObject& object, const Error& error) {
  const ToldError told = toldError(error);
  object.insert(QStringLiteral("error"), told.sentence);
  if (!told.details.isEmpty()) object.insert(QStringLiteral("details"), told.details);
}

}  // namespace norvex
