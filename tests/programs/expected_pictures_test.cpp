#include "programs/expected_pictures.h"

#include <QStringList>

#include "base/latin1_text.h"
#include "cli/arguments/command_table.h"
#include "cli/arguments/conversion_use.h"
#include "kit/test_main.h"
#include "worker/engine_parts_table.h"

using namespace norvex;

class ExpectedPicturesTest : public QObject {
  Q_OBJECT
 private slots:
  void commandsAndNamesLetExpect_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<uint>("needs");
    const uint drawing = NeedSvgDrawing, pdf = drawing | NeedSvgPdf, parts = pdf | NeedSvgParts;
    QTest::newRow("window") << QStringList{} << uint(allPictureNeeds);
    QTest::newRow("window with an SVG") << QStringList{"a.svg"} << parts;
    QTest::newRow("window with a PDF") << QStringList{"a.pdf"} << uint(NeedPages);
    QTest::newRow("window with an EPS") << QStringList{"a.eps"} << uint(NeedPages);
    QTest::newRow("window with several") << QStringList{"a.eps", "b.svg"} << (NeedPages | parts);
    QTest::newRow("window with a file of no such name") << QStringList{"a"} << uint(allPictureNeeds);
    QTest::newRow("print") << QStringList{"print", "a.svg", "-o", "a.pdf"} << uint(allPictureNeeds);
    QTest::newRow("SVG to PNG") << QStringList{"convert", "a.svg", "-o", "a.png"} << drawing;
    QTest::newRow("letter case") << QStringList{"convert", "A.SVGZ", "-o", "A.PNG"} << drawing;
    QTest::newRow("format wins") << QStringList{"convert", "--format", "png", "a.svg", "-o", "a.pdf"}
                                 << drawing;
    QTest::newRow("format with =") << QStringList{"convert", "--format=jpeg", "a.svg", "--to=x"} << drawing;
    QTest::newRow("SVG to PDF") << QStringList{"convert", "a.svg", "-o", "a.pdf"} << pdf;
    QTest::newRow("turned") << QStringList{"convert", "a.svg", "--rotate", "9", "-o", "a.pdf"} << parts;
    QTest::newRow("cut") << QStringList{"convert", "a.svg", "--crop=0,0,1,1", "-o", "a.pdf"} << parts;
    QTest::newRow("SVG to EPS") << QStringList{"convert", "a.svg", "--output=a.eps"} << parts;
    QTest::newRow("PDF") << QStringList{"convert", "a.pdf", "-o", "a.png"} << uint(NeedPages);
    QTest::newRow("mixed") << QStringList{"convert", "a.pdf", "b.svg", "--format", "gif", "--to", "x"}
                           << (NeedPages | drawing);
    QTest::newRow("EPS") << QStringList{"convert", "a.eps", "-o", "a.pdf"} << 0u;
    QTest::newRow("no name") << QStringList{"convert", "-", "-o", "-", "--format", "pdf"} << 0u;
    QTest::newRow("a format is no file") << QStringList{"convert", "a", "--format", "pdf", "--to", "x"} << 0u;
    QTest::newRow("option without its value") << QStringList{"convert", "a.svg", "-o"} << parts;
    QTest::newRow("value of an option that says nothing")
        << QStringList{"convert", "--background", "a.svg", "b.pdf", "-o", "b.png"} << uint(NeedPages);
    QTest::newRow("letter with its value") << QStringList{"convert", "a.svg", "-oa.pdf"} << pdf;
    QTest::newRow("letters together") << QStringList{"convert", "a.svg", "-fqo", "a.png"} << drawing;
    QTest::newRow("no value behind =") << QStringList{"convert", "a.svg", "--output="} << parts;
    QTest::newRow("format that is only opened")
        << QStringList{"convert", "a.svg", "--format", "ai", "--to", "x"} << parts;
    QTest::newRow("info") << QStringList{"info", "--json", "a.svg"} << uint(NeedFacts);
    QTest::newRow("info of several") << QStringList{"info", "a.eps", "b.pdf", "c.ai"} << uint(NeedFacts);
    QTest::newRow("source") << QStringList{"source", "a.svg"} << drawing;
    QTest::newRow("preview") << QStringList{"preview", "a.eps"} << 0u;
  }
  void commandsAndNamesLetExpect() {
    QFETCH(QStringList, arguments);
    QFETCH(uint, needs);
    QCOMPARE(uint(expected(arguments).needs), needs);
  }

  void aRunOverAnArchiveIsNoSinglePicture() {
    const QStringList one{"convert", "a.svg", "--to", "x", "--format", "png"};
    QVERIFY(expected(one).single);
    QVERIFY(!expected(one + QStringList{"--files-from", "list"}).single);
    QVERIFY(!expected(one + QStringList{"--json-lines"}).single);
  }

  void aFormatIsExpectedAsItIsConverted() {
    for (const FormatRow& row : formatTable) {
      if (!isWritten(row)) continue;
      const QStringList arguments{"convert", "a.svg", "--to", "x", "--format", QString(latin1(row.name))};
      QCOMPARE(expected(arguments).needs, svgNeeds(useOfConversion(row.id, true)));
    }
    QCOMPARE(useOfConversion(PictureFormat::Png, false), PictureUse::Drawing);
    QCOMPARE(useOfConversion(PictureFormat::Pdf, false), PictureUse::Everything);
    QCOMPARE(useOfConversion({}, true), PictureUse::Everything);
  }

  void everyOptionOfTheTableIsRead() {
    for (const OptionRow& row : optionTable) {
      if (!(row.commands & only(Command::Convert))) continue;
      const QString name = "--" + latin1(row.name);
      QStringList arguments{"convert", name};
      if (!row.value.empty()) arguments << "a.pdf";
      arguments << "b.svg";  // the only file
      const uint needs = expected(arguments).needs;
      QVERIFY2((needs & NeedSvgDrawing) && !(needs & NeedPages), qPrintable(name));
    }
  }

  void lightCommandsAreKnown() {
    for (const char* first :
         {"info", "source", "preview", "convert", "thumbnail", "--version", "--help", "--completion"})
      QVERIFY2(asksForLightCommand(first), first);
    for (const char* first :
         {"", "print", "a.eps", "convret", "--", "--platform=xcb", "--json", "-h", "--dbus-service"})
      QVERIFY2(!asksForLightCommand(first), first);
  }

  void aCommandForOneFileMakesNothingReadyForOthers_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("lone");
    QTest::newRow("EPS") << QStringList{"convert", "a.eps", "-o", "a.pdf"} << true;
    QTest::newRow("info") << QStringList{"info", "a.pdf"} << true;
    QTest::newRow("standard input") << QStringList{"convert", "-", "-o", "a.pdf"} << true;
    QTest::newRow("two") << QStringList{"info", "a.eps", "b.eps"} << false;
    QTest::newRow("archive") << QStringList{"convert", "a", "--recursive", "--to", "b"} << false;
    QTest::newRow("no file") << QStringList{"info"} << false;
    QTest::newRow("window") << QStringList{"a.eps"} << false;
  }
  void aCommandForOneFileMakesNothingReadyForOthers() {
    QFETCH(QStringList, arguments);
    QFETCH(bool, lone);
    QCOMPARE(asked(expectLonePicture, arguments), lone);
  }

  void theOnlyPictureOfARunIsKnown_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("single");
    QTest::newRow("SVG") << QStringList{"convert", "a.svg", "-o", "a.png"} << true;
    QTest::newRow("compressed") << QStringList{"convert", "--force", "a.SVGZ",
                                               "--to",    "b.svg",   "--format=eps"}
                                << true;
    QTest::newRow("PDF") << QStringList{"convert", "--dpi", "300", "a.pdf", "-o", "a.png"} << true;
    QTest::newRow("two") << QStringList{"convert", "a.svg", "b.svg", "--to", "c", "--format", "png"} << false;
    QTest::newRow("PostScript") << QStringList{"convert", "a.eps", "-o", "a.pdf"} << false;
    QTest::newRow("may be PostScript") << QStringList{"convert", "a.ai", "-o", "a.pdf"} << false;
    QTest::newRow("standard input") << QStringList{"convert", "-", "-o", "a.svg"} << false;
    QTest::newRow("other limits") << QStringList{"convert", "--memory", "99", "a.svg", "-o", "a.png"}
                                  << false;
    QTest::newRow("other time") << QStringList{"convert", "--timeout=9", "a.svg", "-o", "a.png"} << false;
    QTest::newRow("standard input and a file") << QStringList{"convert", "-", "a.svg", "--to", "b"} << false;
    QTest::newRow("names like options")
        << QStringList{"convert", "a.svg", "--to", "b", "--", "-c.svg"} << false;
    QTest::newRow("a name like an option") << QStringList{"convert", "--to", "b", "--", "--dpi.svg"} << true;
    QTest::newRow("no file") << QStringList{"convert", "-o", "a.svg"} << false;
    QTest::newRow("window") << QStringList{"a.svg"} << false;
    QTest::newRow("info") << QStringList{"info", "a.svg"} << true;
    QTest::newRow("info of two") << QStringList{"info", "a.svg", "b.svg"} << false;
    QTest::newRow("info with other limits") << QStringList{"info", "--memory=99", "a.svg"} << false;
    QTest::newRow("source") << QStringList{"source", "a.svg"} << false;
  }
  void theOnlyPictureOfARunIsKnown() {
    QFETCH(QStringList, arguments);
    QFETCH(bool, single);
    QCOMPARE(expected(arguments).single, single);
  }

  void postScriptIsExpected_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("postScript");
    QTest::newRow("EPS") << QStringList{"convert", "a.eps", "-o", "a.pdf"} << true;
    QTest::newRow("letter case") << QStringList{"convert", "A.EPS", "-o", "a.pdf"} << true;
    QTest::newRow("EPSI behind others") << QStringList{"convert", "a.svg", "b.epsi", "--to", "x"} << true;
    QTest::newRow("a window") << QStringList{"a.eps"} << true;
    QTest::newRow("print") << QStringList{"print", "a.eps", "-o", "a.pdf"} << true;
    QTest::newRow("a thumbnail") << QStringList{"thumbnail", "-s", "64", "a.eps", "a.png"} << true;
    QTest::newRow("inks") << QStringList{"inks", "a.eps"} << true;
    QTest::newRow("inks of a PDF") << QStringList{"inks", "a.pdf"} << false;
    QTest::newRow("an SVG has no inks") << QStringList{"inks", "a.svg"} << false;
    QTest::newRow("EPS comes out") << QStringList{"convert", "a.svg", "-o", "a.eps"} << false;
    QTest::newRow("EPS comes out, long") << QStringList{"convert", "a.svg", "--output=a.eps"} << false;
    QTest::newRow("no picture is drawn") << QStringList{"info", "a.eps"} << false;
    QTest::newRow("the embedded picture") << QStringList{"preview", "a.eps", "-o", "a.png"} << false;
    QTest::newRow("Illustrator is PDF mostly") << QStringList{"convert", "a.ai", "-o", "a.pdf"} << false;
    QTest::newRow("a folder") << QStringList{"convert", "a.eps/b.svg", "-o", "a.pdf"} << false;
    QTest::newRow("nothing") << QStringList{} << false;
  }
  void postScriptIsExpected() {
    QFETCH(QStringList, arguments);
    QFETCH(bool, postScript);
    QCOMPARE(asked(expectPostScript, arguments), postScript);
  }

  void inksOfPdfAreExpected_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("pdfInks");
    QTest::newRow("PDF") << QStringList{"inks", "a.pdf"} << true;
    QTest::newRow("Illustrator is PDF mostly") << QStringList{"inks", "--json", "a.ai"} << true;
    QTest::newRow("one of several") << QStringList{"inks", "a.eps", "b.pdf"} << true;
    QTest::newRow("EPS") << QStringList{"inks", "a.eps"} << false;
    QTest::newRow("an SVG has no inks") << QStringList{"inks", "a.svg"} << false;
    QTest::newRow("another command") << QStringList{"convert", "a.pdf", "-o", "a.eps"} << false;
    QTest::newRow("a window") << QStringList{"a.pdf"} << false;
  }
  void inksOfPdfAreExpected() {
    QFETCH(QStringList, arguments);
    QFETCH(bool, pdfInks);
    QCOMPARE(asked(expectPdfInks, arguments), pdfInks);
  }

  void everyNeedHasAPart() {
    for (const PictureNeeds needs :
         {PictureNeeds(NeedFacts), PictureNeeds(NeedSvgDrawing), svgNeeds(PictureUse::WholePdf),
          svgNeeds(PictureUse::Everything), PictureNeeds(NeedPages), allPictureNeeds})
      QCOMPARE(needs & ~engineParts[enginePartFor(needs)].offers, 0u);
    QCOMPARE(engineParts[enginePartFor(NeedFacts)].name, "facts");
    QCOMPARE(engineParts[enginePartFor(NeedSvgDrawing)].name, "svg");
    QCOMPARE(engineParts[enginePartFor(NeedPages)].name, "pages");
  }

 private:
  template <typename Answer>
  static Answer asked(Answer (*guess)(int, const char* const*), const QStringList& arguments) {
    QByteArrayList bytes{"norvex"};
    for (const QString& argument : arguments) bytes << argument.toUtf8();
    std::vector<const char*> pointers;
    for (const QByteArray& argument : bytes) pointers.push_back(argument.constData());
    return guess(int(pointers.size()), pointers.data());
  }
  static ExpectedPictures expected(const QStringList& arguments) {
    return asked(expectedPictures, arguments);
  }
};

NORVEX_TEST(ExpectedPicturesTest)
#include "expected_pictures_test.moc"
