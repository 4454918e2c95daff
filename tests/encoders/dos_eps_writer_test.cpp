#include "encoders/dos_eps_writer.h"

#include "kit/test_main.h"

using namespace norvex;

class DosEpsWriterTest : public QObject {
  Q_OBJECT
 private slots:
  void theHeaderOf1000BytesOfTiffAnd5000OfPostScript() {
    const QByteArray file = dosEpsFile(QByteArray(1000, 'T'), QByteArray(5000, 'P'));
    QCOMPARE(file.size(), 6030);
    QCOMPARE(
        file.left(30).toHex(' ').toUpper(),
        QByteArray(
            "C5 D0 D3 C6 06 04 00 00 88 13 00 00 00 00 00 00 00 00 00 00 1E 00 00 00 E8 03 00 00 FF FF"));
    QCOMPARE(file.mid(30, 1000), QByteArray(1000, 'T'));
    QCOMPARE(file.mid(1030), QByteArray(5000, 'P'));
  }
  void withoutPostScriptTheSectionIsEmpty() {
    const QByteArray file = dosEpsFile("II*", {});
    QCOMPARE(file.size(), 33);
    QCOMPARE(file.mid(8, 4), QByteArray(4, '\0'));
  }
};

NORVEX_TEST(DosEpsWriterTest)
#include "dos_eps_writer_test.moc"
