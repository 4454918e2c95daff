// What a file is, by content first and name second.
#include "types/type_identification.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

const QString kEps = "com.adobe.encapsulated-postscript";
const QString kEpsi = "com.Tembrolix.epsi";
const QString kIllustrator = "com.adobe.illustrator.ai-image";
const QString kPdf = "com.adobe.pdf";
const QString kSvg = "public.svg-image";
const QString kSvgz = "com.Tembrolix.svgz";

const QByteArray kEpsText("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 1 1\n%%EndComments\n");
const QByteArray kLanguage("\x1B%-12345X@PJL\n");
const QByteArray kPreview("%%BeginPreview: 8 1 1 1\n%FF\n%%EndPreview\n");

QByteArray wide(const QByteArray& text, bool little) {
  QByteArray bytes;
  for (const char c : text) bytes.append(little ? c : '\0').append(little ? '\0' : c);
  return bytes;
}

}  // namespace

class TypeIdentificationTest : public QObject {
  Q_OBJECT
 private slots:
  void contentDecides_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("identifier");
    QTest::newRow("eps") << kEpsText << kEps;
    QTest::newRow("eps of old") << QByteArray("%!PS-Adobe-2.0 EPSF-1.2\r%%Title: x\r") << kEps;
    QTest::newRow("eps behind control-D") << "\x04" + kEpsText << kEps;
    QTest::newRow("eps behind a mark") << "\xEF\xBB\xBF" + kEpsText << kEps;
    QTest::newRow("eps behind blank lines") << "\r\n\n" + kEpsText << kEps;
    QTest::newRow("eps behind what fills a record") << QByteArray(3, '\0') + kEpsText << kEps;
    QTest::newRow("eps behind as many blanks as are passed over") << QByteArray(64, ' ') + kEpsText << kEps;
    QTest::newRow("eps behind one more") << QByteArray(65, ' ') + kEpsText << "public.data";
    QTest::newRow("eps behind a printer's language, far down")
        << "\x1B%-12345X@PJL\n" + QByteArray(50'000, ' ') + kEpsText << kEps;
    QTest::newRow("postscript that begins with the last bytes that are looked at")
        << kLanguage.leftJustified(64 * 1024 - 2, ' ') + "%!PS-Adobe-3.0\n"
        << "com.adobe.postscript";
    QTest::newRow("postscript that begins a byte behind")
        << kLanguage.leftJustified(64 * 1024 - 1, ' ') + kEpsText << "public.data";
    QTest::newRow("eps in UTF-16BE") << "\xFE\xFF" + wide(kEpsText, false) << kEps;
    QTest::newRow("eps in UTF-16LE") << "\xFF\xFE" + wide(kEpsText, true) << kEps;
    QTest::newRow("binary eps") << QByteArray("\xC5\xD0\xD3\xC6") + QByteArray(30, '\0') << kEps;
    QTest::newRow("epsi") << kEpsText + kPreview << kEpsi;
    QTest::newRow("a preview of a picture inside") << kEpsText + "gsave\n" + kEpsText + kPreview << kEps;
    QTest::newRow("epsi in lines that end with CR")
        << QByteArray(kEpsText + kPreview).replace('\n', '\r') << kEpsi;
    QTest::newRow("postscript") << QByteArray("%!PS-Adobe-3.0\nshowpage\n") << "com.adobe.postscript";
    QTest::newRow("postscript with a title about eps")
        << QByteArray("%!PS-Adobe-3.0\n%%Title: EPSF-3.0\n") << "com.adobe.postscript";
    QTest::newRow("postscript with a title about illustrator")
        << QByteArray("%!PS-Adobe-3.0\r%%Creator: x\r%%Title: Adobe Illustrator\r") << "com.adobe.postscript";
    QTest::newRow("illustrator's postscript")
        << QByteArray("%!PS-Adobe-3.0 \r\n%%Creator: Adobe Illustrator(TM) 3.2\r\n") << kIllustrator;
    QTest::newRow("eps by illustrator")
        << QByteArray("%!PS-Adobe-3.1 EPSF-3.0\r%%Creator: Adobe Illustrator(R) 17\r") << kEps;
    QTest::newRow("pdf") << QByteArray("%PDF-1.4\n") << kPdf;
    QTest::newRow("pdf behind junk") << QByteArray(1024, 'x') + "%PDF-1.7\n" << kPdf;
    QTest::newRow("illustrator's pdf") << QByteArray("%PDF-1.5\n<</AIPrivateData1 7 0 R>>") << kIllustrator;
    QTest::newRow("svg") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>") << kSvg;
    QTest::newRow("xml") << QByteArray("<?xml version='1.0'?><html></html>") << "public.xml";
    QTest::newRow("png") << QByteArray("\x89PNG\r\n\x1A\n") << "public.png";
    QTest::newRow("jpeg") << QByteArray("\xFF\xD8\xFF\xE0") << "public.jpeg";
    QTest::newRow("gif") << QByteArray("GIF89a") << "com.compuserve.gif";
    QTest::newRow("tiff") << QByteArray("II*\0", 4) << "public.tiff";
    QTest::newRow("gzip without any name") << QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\0\0\0", 12) << kSvgz;
    QTest::newRow("text") << QByteArray("hello") << "public.data";
    QTest::newRow("two bytes") << QByteArray("%!") << "com.adobe.postscript";
    QTest::newRow("one byte") << QByteArray("%") << "public.data";
    QTest::newRow("nothing") << QByteArray() << "public.data";
  }
  void contentDecides() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, identifier);
    QCOMPARE(identifyType(bytes, QString()).identifier(), identifier);
  }

  void pdfTooFarInIsNoPdf() {
    QCOMPARE(identifyType(QByteArray(1025, 'x') + "%PDF-1.7\n", QString()).identifier(), "public.data");
  }

  void contentWinsOverTheName_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("identifier");
    QTest::newRow("pdf named eps") << QByteArray("%PDF-1.4\n") << "a.eps" << kPdf;
    QTest::newRow("eps named pdf") << kEpsText << "a.pdf" << kEps;
    QTest::newRow("eps named svg") << kEpsText << "a.svg" << kEps;
    QTest::newRow("epsi named eps") << kEpsText + kPreview << "a.eps" << kEpsi;
    QTest::newRow("svg named pdf") << QByteArray("<svg/>") << "a.pdf" << kSvg;
    QTest::newRow("svg named ai") << QByteArray("<svg/>") << "a.ai" << kSvg;
    QTest::newRow("png named eps") << QByteArray("\x89PNG\r\n\x1A\n") << "a.eps"
                                   << "public.png";
  }
  void contentWinsOverTheName() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(QString, identifier);
    QCOMPARE(identifyType(bytes, name).identifier(), identifier);
  }

  void theNameDecidesWhatContentLeavesOpen_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("identifier");
    QTest::newRow("ai that is eps") << kEpsText << "/a/b.AI" << kIllustrator;
    QTest::newRow("ai that is pdf") << QByteArray("%PDF-1.5\n") << "b.ai" << kIllustrator;
    QTest::newRow("ai that is binary")
        << QByteArray("\xC5\xD0\xD3\xC6") + QByteArray(30, '\0') << "b.ai" << kIllustrator;
    QTest::newRow("pdf that illustrator wrote") << QByteArray("%PDF-1.5\n/AIPrivateData1") << "b.pdf" << kPdf;
    QTest::newRow("epsi without preview") << kEpsText << "b.epsi" << kEpsi;
    QTest::newRow("eps that does not say so") << QByteArray("%!PS-Adobe-3.0\n") << "b.eps" << kEps;
    QTest::newRow("ps") << QByteArray("%!PS-Adobe-3.0\n") << "b.ps"
                        << "com.adobe.postscript";
    QTest::newRow("svgz") << QByteArray("\x1F\x8B\x08") << "b.svgz" << kSvgz;
    QTest::newRow("svg.gz") << QByteArray("\x1F\x8B\x08") << "b.svg.gz" << kSvgz;
    QTest::newRow("gzip named svg") << QByteArray("\x1F\x8B\x08") << "b.svg" << kSvgz;
    QTest::newRow("other gzip") << QByteArray("\x1F\x8B\x08") << "b.tar.gz"
                                << "org.gnu.gnu-zip-archive";
    QTest::newRow("gzip that keeps no name")
        << QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\x03.svg\0", 15) << "b.bin"
        << "org.gnu.gnu-zip-archive";
    QTest::newRow("gzip of an svg") << QByteArray(
                                           "\x1F\x8B\x08\x08\0\0\0\0\0\x03"
                                           "a.svg\0",
                                           16)
                                    << "b.bin" << kSvgz;
    QTest::newRow("gzip of an svg, with something before its name")
        << QByteArray("\x1F\x8B\x08\x0C\0\0\0\0\0\x03\x02\0xxa.svg\0", 20) << "b.bin" << kSvgz;
    QTest::newRow("gzip of an svg, with something before a name that is its extension")
        << QByteArray("\x1F\x8B\x08\x0C\0\0\0\0\0\x03\x02\0xx.svg\0", 19) << "b.bin" << kSvgz;
    QTest::newRow("gzip of an svg whose name is its extension")
        << QByteArray("\x1F\x8B\x08\x08\0\0\0\0\0\x03.svg\0", 15) << "b.bin" << kSvgz;
    QTest::newRow("gzip of an svg that is told to be text") << QByteArray(
                                                                   "\x1F\x8B\x08\x09\0\0\0\0\0\x03"
                                                                   "a.svg\0",
                                                                   16)
                                                            << "b.bin" << kSvgz;
    QTest::newRow("text named so") << QByteArray("hello") << "b.txt"
                                   << "public.plain-text";
    QTest::newRow("half the magic of binary eps") << QByteArray("\xC5\xD0\0\0", 4) << "b.eps" << kEps;
    QTest::newRow("broken svg") << QByteArray("not XML at all") << "b.svg" << kSvg;
    QTest::newRow("broken pdf") << QByteArray("not PDF at all") << "b.pdf" << kPdf;
    QTest::newRow("empty eps") << QByteArray() << "b.eps" << kEps;
  }
  void theNameDecidesWhatContentLeavesOpen() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(QString, identifier);
    QCOMPARE(identifyType(bytes, name).identifier(), identifier);
  }

  void svgIsKnownByItsRoot_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray declaration("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n");
    QTest::newRow("declaration") << declaration + "<svg>";
    QTest::newRow("prefix") << QByteArray("<svg:svg xmlns:svg='x'>");
    QTest::newRow("comments") << declaration + "<!-- <html> --><!----> \n<svg>";
    QTest::newRow("doctype") << declaration +
                                    "<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" \"a>b.dtd\">\n<svg>";
    QTest::newRow("internal subset")
        << declaration + "<!DOCTYPE svg [<!ENTITY ns \"]><html>\"> <!-- ]> --> ]>\n<svg x='&ns;'>";
    QTest::newRow("an empty comment in the internal subset")
        << declaration + "<!DOCTYPE svg [<!---->]>\n<svg>";
    QTest::newRow("an empty document type") << QByteArray("<!DOCTYPE>\n<svg>");
    QTest::newRow("instructions in the internal subset")
        << declaration + "<!DOCTYPE svg [<?a ]> ?><?b ]> ?>]>\n<svg>";
    QTest::newRow("instruction") << QByteArray("<?xml-stylesheet href='a?b>'?><svg/>");
    QTest::newRow("mark") << QByteArray("\xEF\xBB\xBF<svg>");
    QTest::newRow("UTF-16BE") << "\xFE\xFF" + wide("<svg/>", false);
    QTest::newRow("UTF-16LE") << "\xFF\xFE" + wide("<?xml version='1.0'?><svg/>", true);
    QTest::newRow("UTF-16BE without mark") << wide("<svg/>", false);
    QTest::newRow("UTF-16LE without mark") << wide("<svg/>", true);
    QTest::newRow("far down") << "<!--" + QByteArray(100000, 'x') + "--><svg>";
  }
  void svgIsKnownByItsRoot() {
    QFETCH(QByteArray, bytes);
    QCOMPARE(identifyType(bytes, QString()).identifier(), kSvg);
  }

  void markupThatNeverReachesARoot() {
    for (const char* bytes :
         {"<", "<!--", "<!-- svg", "<?xml", "<!DOCTYPE svg [", "<!DOCTYPE svg \"", "<svg", "  "})
      QCOMPARE(identifyType(QByteArray(bytes), QString()).identifier(), "public.data");
  }

  void whatLiesBehindTheBytesIsNotRead() {
    const QByteArray all =
        "\xEF\xBB\xBF"
        "%!PS-Adobe-3.0 EPSF-3.0\n";
    const QByteArrayView cut = QByteArrayView(all).first(all.indexOf("SF-3.0"));
    QCOMPARE(identifyType(cut, QString()).identifier(), "com.adobe.postscript");
  }

  void everyCutIsReadWithoutHarm() {
    const QByteArray all = "\x1F\x8B\x08\x0C" + QByteArray(6, '\0') + "\xFF\xFF" + "name";
    for (qsizetype length = 0; length <= all.size(); ++length)
      QVERIFY(!identifyType(all.first(length), "x.gz").identifier().isEmpty());
    for (qsizetype length = 0; length <= kEpsText.size(); ++length)
      QVERIFY(!identifyType("\xFE\xFF" + kEpsText.first(length), "x").identifier().isEmpty());
  }
};

NORVEX_TEST(TypeIdentificationTest)
#include "type_identification_test.moc"
