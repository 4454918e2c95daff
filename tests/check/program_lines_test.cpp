// A program cut into its lines, and the part that each belongs to.
#include "check/program_lines.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

QList<int> numbersOf(const QList<ProgramLine>& lines) {
  QList<int> numbers;
  for (const ProgramLine& line : lines) numbers << line.number;
  return numbers;
}

QList<LinePart> partsOf(const QList<ProgramLine>& lines) {
  QList<LinePart> parts;
  for (const ProgramLine& line : lines) parts << line.part;
  return parts;
}

}  // namespace

class ProgramLinesTest : public QObject {
  Q_OBJECT
 private slots:
  void everyEndOfALineIsOne() {
    const QList<ProgramLine> lines = programLines("a\nb\rc\r\n\nd");
    QCOMPARE(numbersOf(lines), QList<int>({1, 2, 3, 4, 5}));
    const QList<LineEnd> ends{LineEnd::Lf, LineEnd::Cr, LineEnd::CrLf, LineEnd::Lf, LineEnd::None};
    const QByteArrayList texts{"a", "b", "c", "", "d"};
    for (qsizetype i = 0; i < lines.size(); ++i) {
      QCOMPARE(lines[i].end, ends[i]);
      QCOMPARE(lines[i].text, texts[i]);
    }
    QCOMPARE(lines.last().start, 8);
  }

  void countedDataAreOneLineAndTheNextHasTheNumberThatEditorsShow() {
    const QList<ProgramLine> lines = programLines(
        "%!PS\n%%EndComments\nimage\n%%BeginData: 6 Binary Bytes\na\nb\nc\n%%EndData\nshowpage\n");
    QCOMPARE(numbersOf(lines), QList<int>({1, 2, 3, 4, 5, 8, 9}));
    QCOMPARE(lines[4].text, "a\nb\nc\n");
    QCOMPARE(partsOf(lines),
             QList<LinePart>({LinePart::Header, LinePart::Header, LinePart::Program, LinePart::Program,
                              LinePart::Data, LinePart::Program, LinePart::Program}));
  }

  void binaryDataAreCountedToo() {
    const QList<ProgramLine> lines =
        programLines("%!PS\n%%EndComments\n%%BeginBinary: 4\na\nb\n%%EndBinary\n");
    QCOMPARE(numbersOf(lines), QList<int>({1, 2, 3, 4, 6}));
    QCOMPARE(lines[3].part, LinePart::Data);
  }

  void dataWithAWrongCountEndWhereThatIsTold() {
    for (const char* count : {"3", "5", "999"}) {
      const QByteArray program = QByteArray("%!PS\n%%BeginData: ") + count +
                                 " Hex Bytes\n%00\r\n%FF\r\n%%EndData\n%%EndComments\n9 9 moveto\n";
      using enum LinePart;
      QCOMPARE(partsOf(programLines(program)),
               QList<LinePart>({Header, Header, Data, Header, Header, Program}));
    }
    // Without an end the count is all that there is.
    QCOMPARE(programLines("%!PS\n%%BeginBinary: 4\na\nb\nshowpage\n").at(2).text, QByteArray("a\nb\n"));
  }

  void whatStandsInAnotherDocumentIsOfThat() {
    using enum LinePart;
    const QList<ProgramLine> lines = programLines(
        "%!PS\n%%EndComments\n%%BeginPreview: 8 1 1 1\n%FF\n%%EndPreview\n%%BeginDocument: a\n%!PS\n"
        "%%EndDocument\nshowpage\n");
    QCOMPARE(partsOf(lines), QList<LinePart>({Header, Header, Program, Preview, Preview, Program, Embedded,
                                              Program, Program}));
  }

  void aResourceThatCameWithItsOwnEndEndsNothing() {
    using enum LinePart;
    const QByteArray font = "%!PS-Adobe-3.0 Resource-Font\n%%EndComments\n12 dict\n%%EOF\n";
    const QByteArray program = "%!PS\n%%EndComments\n" + font + "%%EndProlog\nshowpage\n";
    const QList<ProgramLine> lines = programLines(program);
    QCOMPARE(partsOf(lines),
             QList<LinePart>({Header, Header, Embedded, Embedded, Embedded, Embedded, Program, Program}));
    QCOMPARE(documentLines(lines).size(), lines.size());
    // Behind which nothing is drawn any more, it is the document's.
    const QByteArray second = "%!PS\nshowpage\n%%EOF\n" + font + "%%Trailer\n";
    QCOMPARE(documentLines(programLines(second)).size(), 7);
  }
};

NORVEX_TEST(ProgramLinesTest)
#include "program_lines_test.moc"
