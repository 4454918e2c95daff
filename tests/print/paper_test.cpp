// Papers by name and by size.
#include "print/paper.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <optional>
#include <utility>

#include "kit/test_main.h"

using namespace norvex;

class PaperTest : public QObject {
  Q_OBJECT
 private slots:
  void commonPapersAreThoseOfThePrintService() {
    QVERIFY(commonPapers().size() > 10);
    for (const Paper& paper : commonPapers()) {
      const pwg_media_t* media = pwgMediaForPPD(paper.name.toLatin1().constData());
      QVERIFY2(media, qPrintable(paper.name));
      QCOMPARE(paper.keyword, QString::fromLatin1(media->pwg));
      QCOMPARE(paper.size, QSizeF(media->width, media->length) * 72 / 2540);
    }
  }

  void aSizeWithinHalfAMillimetreIsThatOfThePaper() {
    const QSizeF a4 = paperNamed("A4")->size, half = QSizeF(0.5, 0.5) * 72 / 25.4, more = half * 1.4;
    for (const QSizeF& size : {a4, a4 + half, a4 - half, (a4 + half).transposed()})
      QCOMPARE(paperOfSize(size).name, QString("A4"));
    for (const QSizeF& size : {a4 + more, a4 - more, QSizeF(a4.width(), a4.height() + more.height())})
      QVERIFY(paperOfSize(size).name != "A4");
  }

  void otherPapersOfTheServiceAreFoundByTheirKeywords() {
    const std::optional<Paper> paper = paperNamed(QStringLiteral("ISO_A7_74x105mm"));
    QVERIFY(paper);
    QCOMPARE(paper->keyword, QStringLiteral("iso_a7_74x105mm"));
    QCOMPARE(paper->size, QSizeF(7400, 10500) * 72 / 2540);
    QVERIFY(!paperNamed(QStringLiteral("no_such_paper")));
    QVERIFY(!paperNamed(QStringLiteral("A77")));
  }

  void thePaperIsThatOfTheCountryWhetherItsLocaleIsInstalledOrNot_data() {
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("paper");
    for (const char* a4 : {"de_DE.UTF-8", "ja_JP.UTF-8", "fr_FR.UTF-8", "en_GB.UTF-8", "C.UTF-8"})
      QTest::newRow(a4) << QByteArray(a4) << QString("A4");
    for (const char* letter : {"en_US.UTF-8", "fr_CA.UTF-8", "es_MX.UTF-8"})
      QTest::newRow(letter) << QByteArray(letter) << QString("Letter");
  }
  void thePaperIsThatOfTheCountryWhetherItsLocaleIsInstalledOrNot() {
    QFETCH(QByteArray, locale);
    QFETCH(QString, paper);
    const char* const variables[] = {"LC_ALL", "LC_PAPER", "LANG"};
    QList<std::pair<const char*, std::optional<QByteArray>>> before;
    for (const char* variable : variables) {
      before.emplace_back(
          variable, qEnvironmentVariableIsSet(variable) ? std::optional(qgetenv(variable)) : std::nullopt);
      qunsetenv(variable);
    }
    QStringList found;
    for (const char* variable : variables) {
      qputenv(variable, locale);
      found << localePaper().name;
      qunsetenv(variable);
    }
    for (const auto& [variable, value] : before)
      if (value) qputenv(variable, *value);
    QCOMPARE(found, QStringList(3, paper));
  }
};

NORVEX_TEST(PaperTest)
#include "paper_test.moc"
