// Papers by name and by size.
#include "print/paper.h"

#include <cups/cups.h>
#include <cups/pwg.h>

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

  void otherPapersOfTheServiceAreFoundByTheirKeywords() {
    const std::optional<Paper> paper = paperNamed(QStringLiteral("ISO_A7_74x105mm"));
    QVERIFY(paper);
    QCOMPARE(paper->keyword, QStringLiteral("iso_a7_74x105mm"));
    QCOMPARE(paper->size, QSizeF(7400, 10500) * 72 / 2540);
    QVERIFY(!paperNamed(QStringLiteral("no_such_paper")));
    QVERIFY(!paperNamed(QStringLiteral("A77")));
  }
};

NORVEX_TEST(PaperTest)
#include "paper_test.moc"
