// Dates in full style.
#include "metadata/full_date.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

const QDateTime kDate(QDate(2014, 2, 3), QTime(9, 7, 5), Qt::UTC);

/// English, with every kind of blank as a plain one: which one stands before AM differs between versions of
/// the data.
QString englishDate() {
  QString text = fullDate(kDate, QLocale(QLocale::English, QLocale::UnitedStates));
  return text.replace(QChar(0x202F), QLatin1Char(' '));
}

/// Sets the user's time zone for one test.
class TimeZone {
 public:
  explicit TimeZone(const char* name) : before_(qgetenv("TZ")) { set(name); }
  ~TimeZone() { set(before_.constData()); }

 private:
  static void set(const char* name) {
    qputenv("TZ", name);
    tzset();
  }
  QByteArray before_;
};

}  // namespace

class FullDateTest : public QObject {
  Q_OBJECT
 private slots:
  void weekdayMonthTimeAndZoneInEnglish() {
    const TimeZone utc("UTC");
    QCOMPARE(englishDate(), "Monday, February 3, 2014 at 9:07:05 AM Coordinated Universal Time");
  }

  void otherLocalesSayItInTheirWords() {
    const TimeZone utc("UTC");
    const QString german = fullDate(kDate, QLocale(QLocale::German, QLocale::Germany));
    QVERIFY2(german.contains("Montag") && german.contains("Februar") && german.contains("09:07:05"),
             qPrintable(german));
    const QString japanese = fullDate(kDate, QLocale(QLocale::Japanese, QLocale::Japan));
    QVERIFY2(japanese.contains(QString::fromUtf8("2014年2月3日月曜日")), qPrintable(japanese));
  }

  void theTimeIsTheUsers() {
    const TimeZone berlin("Europe/Berlin");
    QCOMPARE(englishDate(), "Monday, February 3, 2014 at 10:07:05 AM Central European Standard Time");
  }

  void theCLocaleHasADateToo() {
    const TimeZone utc("UTC");
    QVERIFY(fullDate(kDate, QLocale::c()).contains("Monday"));
  }

  void theEnvironmentSaysHowDatesAreWritten() {
    const QByteArray all = qgetenv("LC_ALL");
    const QByteArray time = qgetenv("LC_TIME");
    qunsetenv("LC_ALL");
    qputenv("LC_TIME", "de_DE.UTF-8");
    QLocale::setDefault(QLocale::system());
    const QLocale found = userDateLocale();
    QLocale::setDefault(QLocale::c());
    const QLocale chosen = userDateLocale();
    qputenv("LC_TIME", time);
    if (!all.isEmpty()) qputenv("LC_ALL", all);
    QCOMPARE(found.language(), QLocale::German);
    QCOMPARE(chosen, QLocale::c());
  }

  void anInvalidDateIsTheEmptyText() { QCOMPARE(fullDate(QDateTime(), QLocale::c()), ""); }
};

NORVEX_TEST(FullDateTest)
#include "full_date_test.moc"
