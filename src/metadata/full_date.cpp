#include "metadata/full_date.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <QByteArray>
#include <QTimeZone>

#include <memory>

namespace norvex {
namespace {

icu::UnicodeString icuText(const QString& text) {
  return {reinterpret_cast<const UChar*>(text.utf16()), int32_t(text.size())};
}

/// Making one takes longer than all else that is told of a file.
struct MadeFormat {
  QString localeName;
  QByteArray zone;
  std::unique_ptr<icu::DateFormat> format;  ///< null: there is none
};

MadeFormat makeFormat(const QString& localeName, const QByteArray& zone) {
  const icu::Locale where = icu::Locale::createCanonical(localeName.toLatin1().constData());
  MadeFormat made{localeName, zone,
                  std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateTimeInstance(
                      icu::DateFormat::kFull, icu::DateFormat::kFull, where))};
  if (made.format)
    made.format->adoptTimeZone(icu::TimeZone::createTimeZone(icuText(QString::fromLatin1(zone))));
  return made;
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
  thread_local MadeFormat made;  // a format is no thread-safe thing
  const QByteArray zone = QTimeZone::systemTimeZoneId();
  if (!made.format || made.localeName != locale.name() || made.zone != zone)
    made = makeFormat(locale.name(), zone);
  if (!made.format) return {};
  icu::UnicodeString text;
  made.format->format(UDate(date.toMSecsSinceEpoch()), text);
  return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

}  // namespace norvex
