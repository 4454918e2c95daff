#include "metadata/full_date.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <QTimeZone>

#include <memory>

namespace norvex {
namespace {

icu::UnicodeString icuText(const QString& text) {
  return {reinterpret_cast<const UChar*>(text.utf16()), int32_t(text.size())};
}

}  // namespace

QLocale userDateLocale() {
  if (QLocale() != QLocale::system()) return QLocale();
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"})
    if (const QString name = qEnvironmentVariable(variable); !name.isEmpty()) return QLocale(name);
  return QLocale();
}

QString fullDate(const QDateTime& date, const QLocale& locale) {
  if (!date.isValid()) return {};
  const icu::Locale where = icu::Locale::createCanonical(locale.name().toLatin1().constData());
  const std::unique_ptr<icu::DateFormat> format(
      icu::DateFormat::createDateTimeInstance(icu::DateFormat::kFull, icu::DateFormat::kFull, where));
  if (!format) return {};
  format->adoptTimeZone(
      icu::TimeZone::createTimeZone(icuText(QString::fromLatin1(QTimeZone::systemTimeZoneId()))));
  icu::UnicodeString text;
  format->format(UDate(date.toMSecsSinceEpoch()), text);
  return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

}  // namespace norvex
