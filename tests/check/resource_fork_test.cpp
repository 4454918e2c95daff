// Pictures in the resource forks of Macintosh files.
#include "check/resource_fork.h"

#include "check/check_files.h"
#include "check/eps_file_rules.h"
#include "kit/test_main.h"

using namespace norvex;

class ResourceForkTest : public QObject {
  Q_OBJECT
 private slots:
  void aPictureHasASize() { QCOMPARE(pictureInResources(checkfiles::pictureFork()), QSize(120, 90)); }

  void withoutAPictureThereIsNone() {
    QVERIFY(!pictureInResources({}));
    QVERIFY(!pictureInResources(QByteArray(200, 0)));
    QVERIFY(!pictureInResources(checkfiles::pictureFork().replace("PICT", "icns")));
  }

  void forksThatAreCutOffHaveNone() {
    const QByteArray fork = checkfiles::pictureFork();
    for (qsizetype length = 0; length < fork.size() - 6; ++length)
      QVERIFY(!pictureInResources(QByteArrayView(fork).first(length)));
  }

  void theCheckTellsIt() {
    const Findings findings = epsFileFindings(checkfiles::macBinaryWithPicture(
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\nshowpage\n%%EOF\n"));
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.first().sentence,
             QStringLiteral("the file is wrapped as MacBinary, with a Macintosh picture "
                            "(PICT) of 120 × 90 points as its preview"));
  }
};

NORVEX_TEST(ResourceForkTest)
#include "resource_fork_test.moc"
