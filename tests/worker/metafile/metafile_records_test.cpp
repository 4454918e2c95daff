#include "worker/metafile/metafile_records.h"

#include "kit/test_main.h"
#include "worker/kit/made_metafile.h"

using namespace norvex;
using namespace norvex::engine;

class MetafileRecordsTest : public QObject {
  Q_OBJECT
 private slots:
  void wordsAreReadInOrder() {
    const QByteArray bytes = kit::words({0xFFFE, 0x1234, 0x5678}) + "abc_" + kit::words({7});
    MetafileWords words(bytes);
    QCOMPARE(words.signedWord(), -2);
    QCOMPARE(words.doubleWord(), 0x56781234U);
    QCOMPARE(words.text(3), "abc");
    QCOMPARE(int(words.unsignedWord()), 7);
    QVERIFY(!words.isShort());
    QCOMPARE(int(words.unsignedWord()), 0);
    QVERIFY(words.isShort());
  }

  void aTextThatIsCutShortIsWhatIsLeft() {
    MetafileWords words("__abc");
    words.unsignedWord();
    QCOMPARE(words.text(4), "abc");
    QVERIFY(words.isShort());
    QVERIFY(words.rest().isEmpty());
  }

  void aMetafileIsKnownByItsHeader() {
    const auto isOne = [](int type, int headerWords) {
      return isMetafile(kit::words({type, headerWords, 0x300, 0, 0, 0, 0, 0, 0}));
    };
    QVERIFY(isOne(1, 9));
    QVERIFY(isOne(2, 9));
    QVERIFY(!isOne(3, 9));
    QVERIFY(!isOne(0, 9));
    QVERIFY(!isOne(1, 8));
    QVERIFY(!isMetafile(kit::words({1, 9, 0x300, 0, 0, 0, 0, 0})));
  }

  // Corners in any order.
  void aFrameHasASize() {
    const QByteArray bytes = kit::words({0xCDD7, 0x9AC6, 0, 140, 130, 100, 110, 20, 0, 0, 0}) +
                             kit::madeMetafile(kit::metafileRecord(0x1E, {}), false);
    const auto metafile = readMetafile(bytes);
    QVERIFY(metafile.ok());
    QCOMPARE(metafile->frame, QRect(100, 110, 40, 20));
    QCOMPARE(metafile->unitsPerInch, 20);
    QCOMPARE(metafile->records.size(), 1);
  }
};

NORVEX_TEST(MetafileRecordsTest)
#include "metafile_records_test.moc"
