#include "metadata/eps_program.h"

#include "kit/test_main.h"
#include "metadata/text_encoding.h"

using namespace norvex;

class EpsProgramTest : public QObject {
  Q_OBJECT
 private slots:
  void aUtf16SourceBecomesUtf8() {
    const QString program = QStringLiteral("%!PS-Adobe-3.0 EPSF-3.0\n%%Title: Größe\n");
    const QByteArray bigEndian = *encodeText(program, encoding::Utf16);
    QCOMPARE(bigEndian.left(2).toHex(), QByteArray("feff"));
    QCOMPARE(epsProgram(bigEndian), program.toUtf8());
    QByteArray littleEndian = bigEndian;
    for (qsizetype i = 0; i + 1 < littleEndian.size(); i += 2)
      std::swap(littleEndian[i], littleEndian[i + 1]);
    QCOMPARE(epsProgram(littleEndian), program.toUtf8());
  }
  void aUtf8MarkIsLeftOut() { QCOMPARE(epsProgram("\xEF\xBB\xBF%!PS\n"), QByteArray("%!PS\n")); }
  void bytesOfNoEncodingStay() {
    QCOMPARE(epsProgram("%!PS\n\xFF\xFE\x80"), QByteArray("%!PS\n\xFF\xFE\x80"));
  }
  void whatAPrinterIsToldAroundItIsLeftOut() {
    const QByteArray change("\x1B%-12345X");
    const QByteArray program("%!PS-Adobe-3.0\n%%BoundingBox: 0 0 1 1\nshowpage\n");
    const QByteArray before = change + "@PJL JOB\r\n@PJL ENTER LANGUAGE = POSTSCRIPT\r\n";
    QCOMPARE(epsProgram(before + program + change + "@PJL EOJ\r\n" + change), program);
    QCOMPARE(epsProgram(before + program), program);
    QCOMPARE(epsProgram(before), before);
  }
  void aMarkAloneHoldsNoProgram() { QVERIFY(epsProgram("\xFE\xFF").isEmpty()); }
};

NORVEX_TEST(EpsProgramTest)
#include "eps_program_test.moc"
