// A document brings drawings into our EPS, and no programs. HOSTILE is a word that nobody defines: gs stops
// with an error where it runs.
#include "kit/test_main.h"
#include "worker/eps_output/cff_index.h"
#include "worker/eps_output/type1_font.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_font.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/made_type1.h"

using namespace norvex;
using namespace norvex::engine;
using kit::Converted;
using kit::difference;
using kit::drawn;
using kit::onePage;

namespace {

const QByteArray kSquare = "0 0.5 0 rg 120 20 60 60 re f ";

// A page with the square and the text "A" in the font /F, object 5; more objects from 6.
QByteArray pageWithFont(const QByteArray& font, const QList<QByteArray>& more) {
  return onePage(kSquare + "1 0 0 rg BT /F 80 Tf 10 10 Td (A) Tj ET",
                 "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R >> >>",
                 QList<QByteArray>{font} + more);
}

QByteArray type1Page(const kit::MadeType1& font, const QByteArray& glyphInPdf,
                     const char* key = "/FontFile") {
  const kit::Type1Parts parts = kit::madeType1(font);
  const QByteArray lengths = "/Length1 " + QByteArray::number(parts.clear.size()) + " /Length2 " +
                             QByteArray::number(parts.encrypted.size()) + " /Length3 0";
  return pageWithFont(
      "<< /Type /Font /Subtype /Type1 /BaseFont /Square /FirstChar 65 /LastChar 65 /Widths [1000] "
      "/FontDescriptor 6 0 R /Encoding << /Type /Encoding /Differences [65 /" +
          glyphInPdf + "] >> >>",
      {"<< /Type /FontDescriptor /FontName /Square /Flags 4 /FontBBox [0 0 1000 1000] /ItalicAngle 0 /Ascent "
       "800 /Descent 0 /CapHeight 800 /StemV 80 " +
           QByteArray(key) + " 7 0 R >>",
       kit::stream(parts.clear + parts.encrypted, lengths)});
}

// Not compressed, in the form of what zlib compresses.
QByteArray storedInZlib(const QByteArray& bytes) {
  quint32 a = 1;
  quint32 b = 0;
  for (const char c : bytes) {
    a = (a + quint8(c)) % 65521;
    b = (b + a) % 65521;
  }
  const auto length = quint16(bytes.size());
  QByteArray stored("\x78\x01\x01", 3);
  for (const quint16 size : {length, quint16(~length)}) stored += QByteArray(1, char(size)) + char(size >> 8);
  stored += bytes;
  for (const quint32 sum : {b, a}) stored += QByteArray(1, char(sum >> 8)) + char(sum);
  return stored;
}

// The programs in the encrypted parts of the EPS, which are hexadecimal there.
QByteArray hiddenPrograms(const QByteArray& eps) {
  QByteArray all;
  for (qsizetype at = eps.indexOf("currentfile eexec\n"); at >= 0;
       at = eps.indexOf("currentfile eexec\n", at)) {
    at += 18;
    const qsizetype end = eps.indexOf("0000000000000000", at);
    all += eexecDecrypted(QByteArray::fromHex(eps.mid(at, end - at)));
  }
  return all;
}

}  // namespace

class EpsSurprisesTest : public QObject {
  Q_OBJECT
 private slots:
  void embeddedType1FontsDrawAsBefore() {
    const QByteArray pdf = type1Page({}, "A");
    Converted converted(pdf);
    QVERIFY(hiddenPrograms(converted.eps()).contains("/A "));
    QVERIFY(converted.report().warnings.isEmpty());
    const QImage image = converted.byGhostscript();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixel(100, 100), qRgb(255, 0, 0));  // within the letter
    QVERIFY(difference(image, drawn(pdf)) < 1);
  }

  void type1FontsBringNoPrograms_data() {
    QTest::addColumn<QByteArray>("inClear");
    QTest::addColumn<QByteArray>("inPrivate");
    QTest::addColumn<QString>("key");
    QTest::newRow("clear text") << QByteArray("HOSTILE\n") << QByteArray() << "/FontFile";
    QTest::newRow("encrypted") << QByteArray() << QByteArray("HOSTILE\n") << "/FontFile";
    QTest::newRow("a procedure") << QByteArray("/Metrics {HOSTILE} def\n")
                                 << QByteArray("/OtherSubrs [{HOSTILE} {HOSTILE} {HOSTILE} {HOSTILE}] def\n")
                                 << "/FontFile";
    QTest::newRow("as another kind") << QByteArray("HOSTILE\n") << QByteArray() << "/FontFile3";
  }
  void type1FontsBringNoPrograms() {
    QFETCH(QByteArray, inClear);
    QFETCH(QByteArray, inPrivate);
    QFETCH(QString, key);
    Converted converted(type1Page({"Square", inClear, inPrivate, "A"}, "A", key.toLatin1().constData()));
    QVERIFY(!converted.eps().contains("HOSTILE"));
    QVERIFY(!hiddenPrograms(converted.eps()).contains("HOSTILE"));
    const QImage image = converted.byGhostscript();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixel(100, 100), qRgb(255, 0, 0));
  }

  void fontsThatAreNoFontsAreLeftOutAndTold() {
    const QByteArray program =
        "%!PS-AdobeFont-1.0: Square\nHOSTILE\ncurrentfile eexec\n" + QByteArray(600, 'x');
    Converted converted(pageWithFont(
        "<< /Type /Font /Subtype /Type1 /BaseFont /Square /FirstChar 65 /LastChar 65 /Widths [1000] "
        "/FontDescriptor 6 0 R >>",
        {"<< /Type /FontDescriptor /FontName /Square /Flags 32 /FontBBox [0 0 1000 1000] /FontFile 7 0 R >>",
         kit::stream(program, "/Length1 60 /Length2 600 /Length3 0")}));
    QVERIFY(!converted.eps().contains("HOSTILE"));
    QCOMPARE(converted.report().warnings,
             QStringList{"the font Square cannot be taken over; another stands in for it"});
    QVERIFY(!converted.byGhostscript().isNull());
  }

  void namesOfGlyphsAndFontsBringNoPrograms() {
    const QByteArray hostile = "A#20HOSTILE#20/B";
    Converted glyph(type1Page({}, hostile));
    QVERIFY(!glyph.eps().isEmpty());
    QVERIFY(!glyph.byGhostscript().isNull());
    Converted font(pageWithFont(
        "<< /Type /Font /Subtype /TrueType /BaseFont /A#20HOSTILE /FirstChar 65 /LastChar 65 "
        "/Widths [1000] /FontDescriptor 6 0 R /Encoding << /Differences [65 /" +
            hostile + "] >> >>",
        {"<< /Type /FontDescriptor /FontName /A#20HOSTILE#0aHOSTILE /Flags 32 /FontBBox [0 0 1000 "
         "1000] >>"}));
    QVERIFY(!font.eps().isEmpty());
    QVERIFY(!font.byGhostscript().isNull());
  }

  void textsOfCffFontsAreMadePlain() {
    const auto list = [](const QList<QByteArray>& items) {
      QByteArray text = QByteArray(1, '\0') + char(items.size()) + '\1' + '\1';
      QByteArray data;
      for (const QByteArray& item : items) {
        data += item;
        text += char(data.size() + 1);
      }
      return text + data;
    };
    const QByteArray opening("\1\0\4\1", 4);
    const QByteArray rest = list({"dictionary"});
    const QByteArray cff =
        opening + list({"Na(me"}) + rest + list({"a HOSTILE", ") HOSTILE ("}) + "end of it";
    const auto plain = withPlainTexts(cff);
    QVERIFY(plain);
    QCOMPARE(*plain, opening + list({"Na_me"}) + rest + list({"a_HOSTILE", "__HOSTILE__"}) + "end of it");
    QVERIFY(!withPlainTexts(cff.left(20)));
    QVERIFY(!withPlainTexts({}));
  }

  void aNoticeKeepsItsBlanksUnlessItNamesAGlyph_data() {
    QTest::addColumn<int>("glyphName");
    QTest::addColumn<QByteArray>("notice");
    QTest::newRow("a text alone") << 392 << QByteArray("By A _B_, 2014");
    QTest::newRow("a glyph's name, too") << 391 << QByteArray("By_A__B_,_2014");
  }
  void aNoticeKeepsItsBlanksUnlessItNamesAGlyph() {
    QFETCH(int, glyphName);
    QFETCH(QByteArray, notice);
    using kit::bigEndian, kit::cffIndex;
    const QByteArray head = QByteArray("\1\0\4\1", 4) + cffIndex({"Name"});
    const auto dict = [](qsizetype charset, qsizetype outlines) {
      return cffIndex({'\x1c' + bigEndian(391, 2) + '\1' + '\x1d' + bigEndian(quint32(charset), 4) + '\x0f' +
                       '\x1d' + bigEndian(quint32(outlines), 4) + '\x11'});
    };
    const QByteArray texts = cffIndex({"By A (B), 2014", "gl yph"}), none = cffIndex({});
    const qsizetype charset = head.size() + dict(0, 0).size() + texts.size() + none.size();
    const QByteArray names = QByteArray(1, '\0') + bigEndian(quint32(glyphName), 2);
    const QByteArray cff =
        head + dict(charset, charset + names.size()) + texts + none + names + cffIndex({"\x0e", "\x0e"});
    const auto plain = withPlainTexts(cff);
    QVERIFY(plain);
    QCOMPARE(plain->size(), cff.size());
    QVERIFY2(plain->contains(notice + "gl_yph"), plain->constData() + head.size());
  }

  void postScriptOfTheDocumentIsLeftOutAndTold() {
    for (const QByteArray& kind : {QByteArray("/Subtype /PS"), QByteArray("/Subtype /PS /Level1 6 0 R")}) {
      const QByteArray pdf = onePage(
          kSquare + "/P Do " + kSquare, "/MediaBox [0 0 200 100] /Resources << /XObject << /P 5 0 R >> >>",
          {kit::stream("HOSTILE", "/Type /XObject " + kind), kit::stream("HOSTILE")});
      Converted converted(pdf);
      QVERIFY(!converted.eps().isEmpty());
      QVERIFY(!converted.eps().contains("HOSTILE"));
      QVERIFY(difference(converted.byGhostscript(), drawn(pdf)) < 1);
      QCOMPARE(converted.report().warnings,
               QStringList{"PostScript programs that the document holds were left out"});
    }
  }

  void postScriptInAFormIsLeftOutAndTold() {
    const QByteArray pdf =
        onePage(kSquare + "/G Do", "/MediaBox [0 0 200 100] /Resources << /XObject << /G 5 0 R >> >>",
                {kit::stream("/P Do",
                             "/Type /XObject /Subtype /Form /BBox [0 0 200 100] "
                             "/Resources << /XObject << /P 6 0 R >> >>"),
                 kit::stream("HOSTILE", "/Type /XObject /Subtype /PS"),
                 kit::stream("HOSTILE", "/Type /XObject /Subtype /Form /Subtype2 /PS /PS 6 0 R")});
    Converted converted(pdf);
    QVERIFY(!converted.eps().contains("HOSTILE"));
    QCOMPARE(converted.report().warnings.size(), 1);
  }

  // Long strings are broken into lines, one of which may begin with anything.
  void shownTextThatBeginsLikeACommentStaysText() {
    for (const char* comment :
         {"%%EOF", "%!PS", "%%BeginResource: font", "%%Title: x", "%%BeginData: 9 Lines"}) {
      QByteArray contents = "BT /F 2 Tf 2 2 Td ";
      for (int length = 40; length < 75; ++length)
        contents += "0 2.5 Td (" + QByteArray(length, 'A') + "\\n" + comment + "\\n) Tj ";
      const QByteArray pdf = onePage(
          contents + "ET " + kSquare,
          "/MediaBox [0 0 200 100] /Resources << /Font << /F << /Type /Font /Subtype /Type1 /BaseFont "
          "/Helvetica >> >> >>");
      Converted converted(pdf);
      const double away = difference(converted.byGhostscript(), drawn(pdf));
      QVERIFY2(away < 6, qPrintable(QString("%1: %2").arg(comment).arg(away)));
      const QList<QByteArray> lines = converted.eps().split('\n');
      QCOMPARE(lines.count("%%EOF"), 1);
      QCOMPARE(std::count_if(lines.begin(), lines.end(),
                             [&](const QByteArray& line) {
                               return line.startsWith(comment) && !line.startsWith("%%EOF") &&
                                      !line.startsWith("%!PS-Adobe") && line != "%%Title: Untitled";
                             }),
               0);
    }
  }

  // Every line of the image's digits begins with "%%EOF".
  void imageDataThatLooksLikeACommentStaysData() {
    quint32 group = 0;
    for (const char digit : QByteArray("%%EOF")) group = group * 85 + quint32(digit - '!');
    QByteArray samples(1, '\0');  // the header is seven bytes long, and groups have four
    while (samples.size() < 60 * 40 * 3)
      for (int shift = 24; shift >= 0; shift -= 8) samples += char(group >> shift);
    samples.truncate(60 * 40 * 3);
    const QByteArray pdf = onePage(
        "q 160 0 0 80 20 10 cm /I Do Q", "/MediaBox [0 0 200 100] /Resources << /XObject << /I 5 0 R >> >>",
        {kit::stream(storedInZlib(samples),
                     "/Type /XObject /Subtype /Image /Width 60 /Height 40 /BitsPerComponent 8 "
                     "/ColorSpace /DeviceRGB /Filter /FlateDecode")});
    Converted converted(pdf);
    QVERIFY(converted.eps().count("\n %%EOF%%EOF") > 50);
    QVERIFY(difference(converted.byGhostscript(), drawn(pdf)) < 3);
  }
};

NORVEX_TEST(EpsSurprisesTest)
#include "eps_surprises_test.moc"
