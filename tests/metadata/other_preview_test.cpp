// Previews outside of the header dictionary, and why one is not shown.
#include "metadata/other_preview.h"

#include "metadata/dos_eps_header.h"

#include "kit/test_main.h"
#include "metadata/binary_eps.h"

using namespace norvex;

namespace {

const QByteArray kProgram("%!PS\n%%EndComments\nshowpage\n");

QByteArray withMetafile(const QByteArray& program) {
  QByteArray bytes = testdata::binaryEps(program) + "metafile";
  return bytes.replace(12, 8,
                       testdata::littleEndian(quint32(30 + program.size())) + testdata::littleEndian(8));
}

}  // namespace

class OtherPreviewTest : public QObject {
  Q_OBJECT
 private slots:
  void aFileWithoutPreviewHasNone() {
    for (const QByteArray& source : {QByteArray(), kProgram, testdata::binaryEps(kProgram)}) {
      const auto preview = otherPreview(source);
      QVERIFY(preview);
      QVERIFY(!*preview);
    }
  }
  void aMetafileIsLeftToThoseWhoDrawIt() {
    const auto preview = otherPreview(withMetafile(kProgram));
    QVERIFY(preview);
    QVERIFY(!*preview);
    QCOMPARE(metafileOf(withMetafile(kProgram)), "metafile");
    QVERIFY(metafileOf(testdata::binaryEps(kProgram)).isEmpty());
    QVERIFY(metafileOf(kProgram).isEmpty());
  }

  void aPreviewMayBeginAFile() {
    const auto preview = otherPreview("%%BeginPreview: 8 1 1 1\n%FF\n%%EndPreview\n");
    QVERIFY(preview && *preview);
    QCOMPARE((*preview)->pixelsWide, 8);
  }

  void whyItIsNotShown_data() {
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("a metafile outside")
        << testdata::binaryEps(kProgram).replace(12, 8,
                                                 testdata::littleEndian(5000) + testdata::littleEndian(8))
        << "the embedded preview lies outside of the file";
    QTest::newRow("outside") << testdata::dosHeader(30, 4, 5000, 10) + kProgram
                             << "the embedded preview lies outside of the file";
    QTest::newRow("malformed") << kProgram + "%%BeginPreview: 8 x\n%FF\n"
                               << "the embedded preview is malformed";
    QTest::newRow("depth") << kProgram + "%%BeginPreview: 8 2 3 2\n%FF\n"
                           << "the embedded preview is malformed";
    QTest::newRow("too large") << kProgram + "%%BeginPreview: 65536 65536 8 1\n%FF\n"
                               << "the embedded preview is too large";
  }
  void whyItIsNotShown() {
    QFETCH(QByteArray, source);
    QFETCH(QString, sentence);
    const auto preview = otherPreview(source);
    QVERIFY(!preview);
    QCOMPARE(preview.error().message, sentence);
  }
  void anInterchangePreviewWithinABinaryFileIsFound() {
    const auto preview =
        otherPreview(testdata::binaryEps(kProgram + "%%BeginPreview: 8 1 1 1\n%0F\n%%EndPreview\n"));
    QVERIFY(preview);
    QVERIFY(*preview);
    QCOMPARE((*preview)->data, QByteArray("\xF0"));
  }
};

NORVEX_TEST(OtherPreviewTest)
#include "other_preview_test.moc"
