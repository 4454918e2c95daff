#include "worker/pdf/pdf_file.h"

#include "kit/test_main.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;
using kit::onePage;

namespace {

const QByteArray kSquare = "0 0.5 0 rg 20 20 60 60 re f";

// Encrypted with a password that nobody knows, as `filters` say.
QByteArray encrypted(const QByteArray& filters) {
  const auto random = [](int count, char c) { return '<' + QByteArray(count, c).toHex() + '>'; };
  return onePage(
      kSquare, "/MediaBox [0 0 200 100]",
      {"<< /Filter /Standard /V 5 /R 6 /Length 256 /P -4 /O " + random(48, 'o') + " /U " + random(48, 'u') +
       " /OE " + random(32, 'e') + " /UE " + random(32, 'f') + " /Perms " + random(16, 'p') +
       " /CF << /StdCF << /AuthEvent /EFOpen /CFM /AESV3 /Length 32 >> >> /EFF /StdCF " + filters + " >>"},
      "/Encrypt 5 0 R /ID [<00> <00>]");
}

// Green where the square is.
QRgb drawnSquare(const QByteArray& pdf) {
  const QImage image = kit::drawn(pdf);
  return image.isNull() ? 0 : image.pixel(100, 100);
}

}  // namespace

class PdfFileTest : public QObject {
  Q_OBJECT
 private slots:
  void aPasswordForAttachedFilesAloneIsNotAskedFor() {
    for (const QByteArray& filters : {QByteArray("/StmF /Identity /StrF /Identity"), QByteArray()}) {
      const QByteArray pdf = encrypted(filters);
      QVERIFY(PdfFile::open(pdf));
      kit::Converted converted(pdf);
      QVERIFY(!converted.eps().isEmpty());
      const QImage image = converted.byGhostscript();
      QVERIFY(!image.isNull());
      QVERIFY(qAbs(qGreen(image.pixel(100, 100)) - 128) <= 1);
    }
  }

  void aPasswordForTheDrawingIsAskedFor() {
    for (const char* filters : {"/StmF /StdCF /StrF /StdCF", "/StmF /StdCF", "/StrF /StdCF"}) {
      const auto file = PdfFile::open(encrypted(filters));
      QVERIFY(!file);
      QCOMPARE(file.error().kind, ErrorKind::Encrypted);
    }
  }

  void aFileWithoutATrailerIsOpened_data() {
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("damaged") << QByteArray("trailer\n<< /Root 1 0 R /ID [<90\xff\xfeI\x9e@> ] /Si");
    QTest::newRow("cut off") << QByteArray("xref\n0 5\n0000000000 65535 f \n0000000015 0");
  }
  void aFileWithoutATrailerIsOpened() {
    QFETCH(QByteArray, end);
    QByteArray pdf = onePage(kSquare);
    pdf.truncate(pdf.indexOf("xref\n"));
    pdf += end;
    const auto file = PdfFile::open(pdf);
    QVERIFY2(file, qPrintable(file ? QString() : file.error().message));
    QCOMPARE((*file)->pageCount(), 1);
    QVERIFY(!(*file)->warnings().isEmpty());
    QCOMPARE(drawnSquare(pdf), qRgb(0, 128, 0));
  }

  void withoutACatalogueItIsNoPdf() {
    QByteArray pdf = onePage(kSquare);
    pdf.truncate(pdf.indexOf("xref\n"));
    const auto file = PdfFile::open(pdf.replace("/Catalog", "/Cataloh"));
    QVERIFY(!file);
    QCOMPARE(file.error().kind, ErrorKind::NotParsable);
  }
};

NORVEX_TEST(PdfFileTest)
#include "pdf_file_test.moc"
