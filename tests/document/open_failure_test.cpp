// How files that could not be opened are told.
#include "document/open_failure.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

QList<OpenFailure> failuresOf(int count) {
  QList<OpenFailure> failures;
  for (int i = 1; i <= count; ++i)
    failures << OpenFailure{QUrl::fromLocalFile(QStringLiteral("/folder/%1.eps").arg(i)),
                            QStringLiteral("Reason %1.").arg(i), QStringLiteral("detail")};
  return failures;
}

}  // namespace

class OpenFailureTest : public QObject {
  Q_OBJECT
 private slots:
  void oneFileIsToldByItsNameAndItsReason() {
    const Alert alert = alertAbout(failuresOf(1));
    QCOMPARE(alert.messageText, QString::fromUtf8("“1.eps” could not be opened."));
    QCOMPARE(alert.informativeText, "Reason 1.");
    QCOMPARE(alert.details, QString());
  }

  void anAddressThatIsNoFileIsToldAsAWhole() {
    const Alert alert = alertAbout({{QUrl("https://example.org/a.eps"), "Reason.", {}}});
    QCOMPARE(alert.messageText, QString::fromUtf8("“https://example.org/a.eps” could not be opened."));
  }

  void asManyAsAreReadAtAGlanceAreAllTold() {
    for (const int count : {2, 6}) {
      const Alert alert = alertAbout(failuresOf(count));
      QCOMPARE(alert.messageText, QStringLiteral("%1 files could not be opened.").arg(count));
      const QStringList lines = alert.informativeText.split('\n');
      QCOMPARE(lines.size(), count);
      QCOMPARE(lines.first(), "1.eps: Reason 1.");
      QCOMPARE(lines.last(), QStringLiteral("%1.eps: Reason %1.").arg(count));
      QCOMPARE(alert.details, QString());
    }
  }

  void ofMoreTheFirstSixAreToldAndAllOfThemAreDetails() {
    const Alert alert = alertAbout(failuresOf(7));
    QCOMPARE(alert.messageText, "7 files could not be opened.");
    QVERIFY2(alert.informativeText.endsWith(QString::fromUtf8("\n6.eps: Reason 6.\n…")),
             qPrintable(alert.informativeText));
    QVERIFY2(alert.details.startsWith("1.eps: Reason 1.\n") && alert.details.endsWith("\n7.eps: Reason 7."),
             qPrintable(alert.details));
  }
};

NORVEX_TEST(OpenFailureTest)
#include "open_failure_test.moc"
