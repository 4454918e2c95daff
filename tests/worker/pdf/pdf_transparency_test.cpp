// What of a PDF is transparent, and that it is not any more.
#include "worker/pdf/pdf_transparency.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <memory>

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

struct Read {
  explicit Read(const QByteArray& pdf) : bytes(pdf) {
    qpdf.processMemoryFile("made", bytes.constData(), size_t(bytes.size()));
  }
  const QByteArray bytes;  // read from as long as it is used
  QPDF qpdf;
};

QByteArray withState(const QByteArray& state) {
  return kit::onePage("/S gs", "/MediaBox [0 0 9 9] /Resources << /ExtGState << /S 5 0 R >> >>",
                      {"<< /Type /ExtGState /LW 2 " + state + " >>", kit::stream("", "/Subtype /Form")});
}

QByteArray withImage(const QByteArray& entries) {
  return kit::onePage("/I Do", "/MediaBox [0 0 9 9] /Resources << /XObject << /I 5 0 R >> >>",
                      {kit::stream("a", "/Subtype /Image /Width 1 /Height 1 " + entries), kit::stream("b")});
}

}  // namespace

class PdfTransparencyTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsTransparentIsFoundAndRemoved_data() {
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<bool>("uses");
    QTest::newRow("nothing") << withState("") << false;
    QTest::newRow("filled in full") << withState("/ca 1 /CA 1.0") << false;
    QTest::newRow("filled in part") << withState("/ca 0.99") << true;
    QTest::newRow("stroked in part") << withState("/CA 0") << true;
    QTest::newRow("a word for it") << withState("/ca /Half") << false;
    QTest::newRow("usual blending") << withState("/BM /Normal") << false;
    QTest::newRow("its older name") << withState("/BM /Compatible") << false;
    QTest::newRow("blending") << withState("/BM /Multiply") << true;
    QTest::newRow("the first of several") << withState("/BM [/Normal /Multiply]") << false;
    QTest::newRow("the first of several blends") << withState("/BM [/Screen /Normal]") << true;
    QTest::newRow("none of several") << withState("/BM []") << false;
    QTest::newRow("no mask") << withState("/SMask /None") << false;
    QTest::newRow("a mask") << withState("/SMask << /S /Alpha /G 6 0 R >>") << true;
    QTest::newRow("an image") << withImage("") << false;
    QTest::newRow("an image with a mask") << withImage("/SMask 6 0 R") << true;
    QTest::newRow("an image with a mask in its data") << withImage("/SMaskInData 1") << true;
    QTest::newRow("a mask of no image")
        << QByteArray(withImage("/SMask 6 0 R")).replace("/Image", "/Other") << false;
  }
  void whatIsTransparentIsFoundAndRemoved() {
    QFETCH(QByteArray, pdf);
    Read read(pdf);
    QTEST(usesTransparency(read.qpdf), "uses");
    removeTransparency(read.qpdf);
    QVERIFY(!usesTransparency(read.qpdf));
  }

  void whatHasNothingToDoWithItStays() {
    Read read(withState("/ca 0.5 /CA 0.5 /BM /Screen /AIS true /SMask << /S /Alpha /G 6 0 R >>"));
    read.qpdf.getObjectByID(3, 0).replaceKey("/Group", QPDFObjectHandle::parse("<< /S /Transparency >>"));
    removeTransparency(read.qpdf);
    QPDFObjectHandle state = read.qpdf.getObjectByID(5, 0);
    QCOMPARE(QByteArray::fromStdString(state.unparse()), "5 0 R");
    QCOMPARE(state.getKeys(), (std::set<std::string>{"/LW", "/Type"}));
    QVERIFY(!read.qpdf.getObjectByID(3, 0).hasKey("/Group"));
    QVERIFY(read.qpdf.getObjectByID(3, 0).hasKey("/Resources"));
  }
};

NORVEX_TEST(PdfTransparencyTest)
#include "pdf_transparency_test.moc"
