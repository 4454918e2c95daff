// What encoders are told of the world around them where nobody says anything else.
#include "encoders/encoder_surroundings.h"

#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"

using namespace norvex;

class EncoderSurroundingsTest : public QObject {
  Q_OBJECT
 private slots:
  void theTimeIsTheOneThatTheEnvironmentGives() {
    NullPictureService service;
    const QByteArray before = qgetenv("SOURCE_DATE_EPOCH");
    const bool wasSet = qEnvironmentVariableIsSet("SOURCE_DATE_EPOCH");
    qputenv("SOURCE_DATE_EPOCH", "86400");
    const QDateTime given = usualSurroundings(service).now;
    qputenv("SOURCE_DATE_EPOCH", "soon");
    const QDateTime start = QDateTime::currentDateTime(), current = usualSurroundings(service).now;
    if (wasSet)
      qputenv("SOURCE_DATE_EPOCH", before);
    else
      qunsetenv("SOURCE_DATE_EPOCH");
    QCOMPARE(given, QDateTime(QDate(1970, 1, 2), QTime(0, 0), Qt::UTC));
    QVERIFY(current >= start && current <= QDateTime::currentDateTime());
  }

  void itIsThisProgramOfThisUserOnAScreenOfSRgb() {
    NullPictureService service;
    const EncoderSurroundings usual = usualSurroundings(service);
    QCOMPARE(usual.service, &service);
    QCOMPARE(usual.applicationName, "Norvex");
    QCOMPARE(usual.applicationVersion, NORVEX_VERSION);
    QCOMPARE(usual.userFullName, NSFullUserName());
    QVERIFY(!usual.userFullName.isEmpty());
    QVERIFY(usual.iccProfile.mid(36, 4) == "acsp" && usual.iccProfile.contains("RGB "));
    QVERIFY(usual.defaultDepthLimit == NSWindowDepth());
    QVERIFY(!usual.region && !usual.quality);
    QCOMPARE(usual.raster.dpi, 72.0);
  }

  void aSampleHasNoMoreBitsThanAScreenShows() {
    QVERIFY(NSBestDepth(10, 30) == (NSWindowDepth{10, 30}));
    QVERIFY(NSBestDepth(8, 16) == (NSWindowDepth{8, 16}));
    QVERIFY(NSBestDepth(5, 32) == (NSWindowDepth{5, 15}));
  }
};

NORVEX_TEST(EncoderSurroundingsTest)
#include "encoder_surroundings_test.moc"
