// Dates as people read them: full date style and full time style.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace norvex {

/// The locale in which the user wants dates: the application's when it has chosen one, otherwise what the
/// environment says of times (LC_ALL, LC_TIME, LANG), which may differ from the language of its texts.
[[nodiscard]] QLocale userDateLocale();

/// For instance "Monday, February 3, 2014 at 9:07:05 AM Central European Standard Time": weekday, day, month
/// name, year, time and the name of the time zone, in the order and words of `locale` and in the user's time
/// zone. Empty for an invalid date. Thread-safe.
[[nodiscard]] QString fullDate(const QDateTime& date, const QLocale& locale = userDateLocale());

}  // namespace norvex
