// Files that were cut off are told from whole ones.
#include "metadata/eps_completeness.h"

#include <QtEndian>

#include <limits>

#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

const QString kCutOff = QStringLiteral("the file seems cut off: its PostScript stops before its end");

const QByteArray kHeader("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n%%EndComments\n");

/// A file as generators write them.
const QByteArray kWhole =
    kHeader +
    "%%BeginProlog\n/w { 0 0 moveto lineto stroke } def\n%%EndProlog\n%%Page: 1 1\nsave\ngsave\n"
    "9 9 w\n1 0 0 setrgbcolor\n5 7 w\ngrestore\nrestore\nshowpage\n%%Trailer\n%%EOF\n";

QByteArray binary(const QByteArray& tiff, const QByteArray& postScript) {
  QByteArray header(30, '\0');
  const auto put = [&](qsizetype at, qsizetype value) {
    qToLittleEndian(quint32(value), header.data() + at);
  };
  header.replace(0, 4, "\xC5\xD0\xD3\xC6");
  put(4, 30 + tiff.size());
  put(8, postScript.size());
  put(20, 30);
  put(24, tiff.size());
  return header + tiff + postScript;
}

}  // namespace

class EpsCompletenessTest : public QObject {
  Q_OBJECT
 private slots:
  void wholeFilesPass_data() {
    QTest::addColumn<QByteArray>("source");
    const auto row = [](const char* name, const QByteArray& source) { QTest::newRow(name) << source; };
    row("as it should be", kWhole);
    row("nothing", {});
    row("header alone", kHeader);
    row("no end mark", kHeader + "%%EndProlog\nsave 0 0 moveto restore\nshowpage\n");
    row("end of transmission behind it", kHeader + "%%EndProlog\nshowpage\r\n\x04");
    row("a prolog by hand, and no end",
        kHeader + "%%EndProlog\n0 0 moveto 9 9 lineto fill\n1 setgray 1 8 moveto (EPS) show\n");
    row("its last line is a comment", kHeader + "%%EndProlog\nsave\nrestore\n\n% showpage\n");
    row("by hand, without an end of line", kHeader + "newpath 0 0 moveto 9 9 lineto stroke");
    row("by hand, with a procedure", kHeader + "/d { moveto } def gsave 0 0 d grestore 9 9 lineto stroke\n");
    row("by hand, with a dictionary", kHeader + "9 dict begin 0 0 moveto 9 9 lineto end stroke\n");
    row("by hand, with a saved memory", kHeader + "save 0 0 moveto 9 9 lineto restore stroke\n");
    row("by hand, with states that are all restored",
        kHeader + "gsave 0 0 moveto 9 9 lineto grestoreall stroke\n");
    row("a set-up in the header and no end",
        "%!PS-Adobe-2.0 EPSF-2.0\n%%BoundingBox: 0 0 9 9\n%%Pages: 0\n%%BeginSetup\n"
        "%%EndSetup\n%%EndComments\n/in { 0 exch moveto 9 9 lineto stroke } def\nsolid\n3 in\n");
    row("drawing program's own names", kHeader + "%%Page: 1 1\n(text) col0 sh gr\n$F2psEnd\nrs\n");
    row("private data behind the end mark", kWhole + "%AI9_PrivateDataBegin\n%abc\n%AI9_PrivateDataEnd\n");
    row("binary data", kHeader + "gsave image\n{{{\xFF\x80 gsave");
    row("carriage returns", QByteArray(kWhole).replace('\n', '\r'));
    row("binary header", binary("II*", kWhole));
    row("binary header without preview", binary({}, kWhole));
    row("byte-order mark before the header", "\xEF\xBB\xBF" + binary("II*", kWhole));
  }
  void wholeFilesPass() {
    QFETCH(QByteArray, source);
    QCOMPARE(epsMissingParts(source), QStringList());
  }

  void aFileThatWasCutIsTold_data() {
    QTest::addColumn<QByteArray>("source");
    const auto upTo = [](const char* text) { return kWhole.first(kWhole.indexOf(text)); };
    QTest::newRow("in the prolog") << upTo(" lineto stroke");
    QTest::newRow("in the body") << upTo("setrgbcolor");
    QTest::newRow("between two lines") << upTo("1 0 0");
    QTest::newRow("unstructured, in a procedure") << kHeader + "/d { 0 0 moveto";
    QTest::newRow("unstructured, in a saved state") << kHeader + "gsave 0 0 moveto 9 9 lineto\nstr";
    QTest::newRow("unstructured, in a saved memory") << kHeader + "save 0 0 moveto 9 9 lineto\nstr";
    QTest::newRow("unstructured, in a dictionary") << kHeader + "9 dict begin 0 0 moveto 9 9 lineto\nstr";
    QTest::newRow("a prolog that is begun by its comment, between two lines")
        << kHeader + "%%BeginProlog\n%%EndProlog\n0 0 9 9 rectfill\n";
    QTest::newRow("a prolog, in a line") << kHeader + "%%EndProlog\n0 0 moveto 9 9 lin";
    QTest::newRow("a prolog, in a path") << kHeader + "%%EndProlog\n0 0 moveto 9 9 lineto\n";
    QTest::newRow("a prolog, in numbers") << kHeader + "%%EndProlog\n0 0 moveto 9 9 lineto\n1.5\n";
    QTest::newRow("a set-up, in a line") << kHeader + "%%BeginSetup\n%%EndSetup\n0 0 moveto 9 9 lin";
    QTest::newRow("in an interchange preview") << kHeader + "%%BeginPreview: 8 2 1 2\n%FF\n";
    QTest::newRow("in private data") << kWhole + "%AI9_PrivateDataBegin\n%abc";
    QTest::newRow("cut before it became binary") << binary("II*", upTo("setrgbcolor"));
  }
  void aFileThatWasCutIsTold() {
    QFETCH(QByteArray, source);
    QCOMPARE(epsMissingParts(source), QStringList{kCutOff});
  }

  /// Behind a page's begin there are words that may be the last ones.
  void wordsThatEndPrograms_data() {
    QTest::addColumn<QByteArray>("word");
    for (const char* word : {"showpage", "end", "restore", "grestore", "grestoreall", "pdfmark", "quit",
                             "stop", "cleartomark", "rs", "gr", "pop"})
      QTest::newRow(word) << QByteArray(word);
  }
  void wordsThatEndPrograms() {
    QFETCH(QByteArray, word);
    const QByteArray page = kHeader + "%%Page: 1 1\n9 9 rectfill\n";
    QCOMPARE(epsMissingParts(page), QStringList{kCutOff});
    QCOMPARE(epsMissingParts(page + word), QStringList());
  }

  /// They draw nothing by themselves.
  void wordsThatBeginSomething_data() {
    QTest::addColumn<QByteArray>("word");
    for (const char* word : {"moveto", "lineto", "curveto", "rmoveto", "rlineto", "rcurveto", "closepath",
                             "newpath", "arc", "arcn", "arcto"})
      QTest::newRow(word) << QByteArray(word);
  }
  void wordsThatBeginSomething() {
    QFETCH(QByteArray, word);
    const QByteArray drawing = kHeader + "%%EndProlog\n0 0 9 9 rectfill\n";
    QCOMPARE(epsMissingParts(drawing), QStringList());
    QCOMPARE(epsMissingParts(drawing + word + "\n"), QStringList{kCutOff});
  }

  void sectionsBehindTheEndAreCounted() {
    const QByteArray whole = binary(QByteArray(100, 'x'), kWhole);
    QCOMPARE(epsMissingParts(whole.chopped(1)),
             QStringList{QString("the file is cut off: 1 of the %1 bytes of its PostScript are missing")
                             .arg(kWhole.size())});
    const QStringList both = epsMissingParts(whole.first(90));
    QCOMPARE(both.size(), 2);
    QCOMPARE(
        both[0],
        QString("the file is cut off: %1 of the %1 bytes of its PostScript are missing").arg(kWhole.size()));
    QCOMPARE(both[1], QString("the file is cut off: 40 of the 100 bytes of its preview are missing"));
  }

  void platesWithinTheFileAreCounted() {
    const auto separated = [](const QByteArray& cyan, const QByteArray& black) {
      return "%!PS-Adobe-3.0 EPSF-3.0\n%%PlateFile: (Cyan) EPS #" + cyan + "\n%%PlateFile: (Black) EPS #" +
             black + "\n%%PlateFile: (Gold) EPS Local gold.eps\n" + kWhole.sliced(kWhole.indexOf('\n') + 1);
    };
    const auto told = [](const char* missing, const char* length) {
      return QStringList{
          QString("the file is cut off: %1 of the %2 bytes of its plates are missing").arg(missing, length)};
    };
    const QByteArray file = separated("900 100", "1000 100").leftJustified(900, '\n') + QByteArray(200, ' ');
    QCOMPARE(epsMissingParts(file), QStringList());
    QCOMPARE(epsMissingParts(file.chopped(30)), told("30", "200"));
    QCOMPARE(epsMissingParts(file.chopped(130)), told("130", "200"));
    QCOMPARE(epsMissingParts(binary("II*", file)), QStringList());
    const QByteArray most = QByteArray::number(std::numeric_limits<qint64>::max());
    QCOMPARE(epsMissingParts(separated(most + " " + most, "1 1")), QStringList());  // no number of bytes
    QCOMPARE(epsMissingParts(separated(most + " 7", "1 1")), told("7", "8"));
  }

  void theLargestNumbersDoNotOverflow() {
    QByteArray source = binary("II*", kWhole);
    source.replace(4, 8, QByteArray(8, '\xFF'));
    QCOMPARE(
        epsMissingParts(source),
        QStringList{"the file is cut off: 4294967295 of the 4294967295 bytes of its PostScript are missing"});
  }

  void everyCutOfAnythingEndsWithoutHarm() {
    const QByteArray whole = binary(QByteArray(20, 'x'), kWhole);
    for (qsizetype size = 0; size < whole.size(); ++size) {
      const QStringList parts = epsMissingParts(whole.first(size));
      QVERIFY(size <= 30 || !parts.isEmpty());
      QVERIFY(epsMissingParts(kWhole.first(std::min(size, kWhole.size()))).size() <= 1);
    }
  }

  /// Each line is looked at once from its end: looking through all that is in front of it took hours.
  void aMillionCommentsAtTheEndAreLookedAtOnce() {
    const QByteArray comments = QByteArray("%\n").repeated(1'000'000);
    QVERIFY(epsMissingParts(kHeader + "%%EndProlog\nshowpage\n" + comments).isEmpty());
    QVERIFY(!epsMissingParts(kHeader + "%%EndProlog\n0 0 moveto\n" + comments).isEmpty());
  }

  void realFilesAreWhole() {
    if (kit::corpusFolder().isEmpty()) QSKIP("there is no folder of real files here");
    QStringList told;
    int cuts = 0, noticed = 0;
    for (const char* kind : {"eps_text", "eps_binary", "epsi", "ai_ps"}) {
      for (const QString& path : kit::corpusFiles(kind)) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        if (!epsMissingParts(bytes).isEmpty()) told << path;
        for (const double part : {0.2, 0.5, 0.9}) {
          ++cuts;
          noticed += epsMissingParts(bytes.first(qsizetype(part * double(bytes.size())))).isEmpty() ? 0 : 1;
        }
      }
    }
    QCOMPARE(told.join(", "), QString());
    QVERIFY2(noticed > cuts * 8 / 10, qPrintable(QString("%1 of %2").arg(noticed).arg(cuts)));
  }
};

NORVEX_TEST(EpsCompletenessTest)
#include "eps_completeness_test.moc"
