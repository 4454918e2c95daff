// Documents that reach a limit: the program names it in one sentence, ends with 5, writes nothing and leaves
// nothing behind.
#include <zlib.h>

#include "kit/test_main.h"
#include "kit/watched_program.h"
#include "protocol/limits.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

QByteArray svg(const QByteArray& inside, const QByteArray& attributes = "width='90' height='60'") {
  return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' " + attributes +
         '>' + inside + "</svg>";
}

QByteArray eps(const QByteArray& program) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 90 60\n%%EndComments\n" + program +
         "\nshowpage\n%%EOF\n";
}

QByteArray attributes(int count) {
  QByteArray all;
  for (int i = 0; i < count; ++i) all += " a" + QByteArray::number(i) + "='1'";
  return all;
}

/// Groups that each show the next one.
QByteArray chainOfReferences(int length) {
  QByteArray groups;
  for (int i = 0; i < length; ++i)
    groups +=
        "<g id='g" + QByteArray::number(i) + "'><use xlink:href='#g" + QByteArray::number(i + 1) + "'/></g>";
  return "<defs>" + groups + "<g id='g" + QByteArray::number(length) + "'/></defs><use xlink:href='#g0'/>";
}

/// An entity of so many bytes, used so many times.
QByteArray entities(int bytes, int uses) {
  return "<!DOCTYPE svg [<!ENTITY e '" + QByteArray(bytes, 'x') + "'>]>" +
         svg("<desc>" + QByteArray("&e;").repeated(uses) + "</desc>");
}

/// What `piece` becomes, again and again, as gzip.
QByteArray zipped(int level, int pieces, const std::function<QByteArray(int)>& piece) {
  z_stream stream{};
  constexpr int gzip = MAX_WBITS + 16;
  if (deflateInit2(&stream, level, Z_DEFLATED, gzip, 9, Z_DEFAULT_STRATEGY) != Z_OK) return {};
  QByteArray out, room(1 << 16, '\0');
  for (int i = 0; i <= pieces; ++i) {
    QByteArray in = i < pieces ? piece(i) : QByteArray();
    stream.next_in = reinterpret_cast<Bytef*>(in.data());
    stream.avail_in = uInt(in.size());
    do {
      stream.next_out = reinterpret_cast<Bytef*>(room.data());
      stream.avail_out = uInt(room.size());
      deflate(&stream, i < pieces ? Z_NO_FLUSH : Z_FINISH);
      out.append(room.constData(), room.size() - qsizetype(stream.avail_out));
    } while (stream.avail_out == 0);
  }
  deflateEnd(&stream);
  return out;
}

/// A PDF of so many pages, all of them the same.
QByteArray pagesOf(int count) {
  return "%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n2 0 obj\n<< /Type /Pages /Count " +
         QByteArray::number(count) + " /Kids [" + QByteArray("3 0 R ").repeated(count) +
         "] >>\nendobj\n3 0 obj\n<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] >>\nendobj\ntrailer\n<< "
         "/Size 4 /Root 1 0 R >>\n%%EOF\n";
}

QByteArray stream(const QByteArray& data) {
  return "<< /Length " + QByteArray::number(data.size()) + " >>\nstream\n" + data + "\nendstream";
}

/// A page that shows a letter of the first of so many fonts. The letter of each has a colour of its own and
/// shows that of the next one so many times; that of a single font shows itself.
QByteArray fontsThatShowOthers(int fonts, int times) {
  const auto reference = [](int object) { return QByteArray::number(object) + " 0 R"; };
  QList<QByteArray> objects{
      "<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Count 1 /Kids [3 0 R] >>",
      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 90 60] /Contents 4 0 R /Resources << /Font << /F 5 0 R >> "
      ">> >>",
      stream("BT /F 9 Tf (a) Tj ET")};
  for (int i = 0; i < fonts; ++i) {
    const bool isLast = fonts > 1 && i == fonts - 1;
    objects << "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 9 9] /FontMatrix [.1 0 0 .1 0 0] /FirstChar 97 "
               "/LastChar 97 /Widths [10] /Encoding << /Differences [97 /a] >> /CharProcs << /a " +
                   reference(6 + 2 * i) + " >> /Resources << /Font << /F " +
                   reference(fonts > 1 ? 7 + 2 * i : 5) + " >> >> >>"
            << stream("10 0 d0 1 0 0 rg 0 0 9 9 re f" +
                      (isLast ? QByteArray() : " BT /F 9 Tf (" + QByteArray(times, 'a') + ") Tj ET"));
  }
  QByteArray pdf = "%PDF-1.4\n";
  for (int i = 0; i < objects.size(); ++i)
    pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
  return pdf + "trailer\n<< /Root 1 0 R >>\n%%EOF\n";
}

QByteArray bomb() {
  return zipped(Z_BEST_COMPRESSION, 8, [](int) { return QByteArray(1 << 20, ' '); });
}

/// More than may be inflated, and not so well compressed that it is suspicious before.
QByteArray largeDocument() {
  const int pieces = int(limits::maximumInflatedBytes >> 20) + 1;
  return zipped(Z_BEST_SPEED, pieces, [](int number) {
    QByteArray piece;
    for (int i = 0; i < 1024; ++i)
      piece += QByteArray::number(quint32(number * 1024 + i) * 2654435761u, 16) + QByteArray(1016, ' ');
    return number == 0 ? "<svg>" + piece : piece;
  });
}

}  // namespace

class LimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void aReachedLimitIsNamed_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const char* what, const char* name, const QByteArray& document,
                        const QStringList& options, const char* sentence) {
      QTest::newRow(what) << name << document << options << sentence;
    };
    const QStringList pdf{"--format", "pdf"}, png{"--format", "png"};
    const int deep = limits::maximumXmlDepth;
    row("nested elements", "a.svg", svg(QByteArray("<g>").repeated(deep) + QByteArray("</g>").repeated(deep)),
        pdf, "the elements of the document nest more than 512 deep");
    row("nested references", "a.svg", svg(chainOfReferences(limits::maximumDrawingDepth + 1)), pdf,
        "the references of the document nest more than 1000 deep");
    row("elements", "a.svg", svg(QByteArray("<g/>").repeated(limits::maximumXmlElements)), pdf,
        "the document has more than 1000000 elements");
    row("attributes", "a.svg", svg("<g" + attributes(limits::maximumXmlAttributes + 1) + "/>"), pdf,
        "an element of the document has more than 65535 attributes");
    row("uses of entities", "a.svg", entities(1, limits::maximumEntityUses + 1), pdf,
        "the document uses entities more than 200000 times");
    row("expanded entities", "a.svg", entities(100'000, 700), pdf,
        "the entities of the document expand to more than 64 MiB");
    row("nested selectors", "a.svg",
        svg("<style>" + QByteArray(":not(").repeated(limits::maximumSelectorDepth + 1) + "a" +
            QByteArray(")").repeated(limits::maximumSelectorDepth + 1) + "{}</style>"),
        pdf, "the selectors of the document's style sheets nest more than 500 deep");
    row("matrices of filters", "a.svg", svg("<filter id='f'><feConvolveMatrix order='500'/></filter>"), pdf,
        "the document has a filter with a matrix of more than 400 numbers");
    row("text sizes", "a.svg", svg("<text y='9' font-size='1e30'>a</text>"), pdf,
        "the document has text of more than 1000000 units in size");
    row("measures", "a.svg", svg("", "width='1e9' height='60'"), pdf,
        "the picture is wider or higher than 10000000 points");
    row("how much is inflated", "a.svgz", largeDocument(), pdf,
        "the compressed data holds more than 256 MiB");
    row("a bomb", "a.svgz", bomb(), pdf, "the compressed data grows to more than 1000 times its size");
    row("pixels", "a.svg", svg("", "width='9600' height='9600'"), png + QStringList{"--dpi", "144"},
        "the picture would have more pixels than it is allowed");
    row("a side", "a.svg", svg("", "width='96000' height='1'"), png + QStringList{"--dpi", "96"},
        "the image would have a side of more than 65535 pixels");
    row("pages", "a.pdf", pagesOf(limits::maximumPages + 1), png, "the document has more than 100000 pages");
    row("glyphs that show themselves", "a.pdf", fontsThatShowOthers(1, 1), png,
        "the glyphs of the document's fonts nest more than 16 deep");
    row("glyphs that show many others", "a.pdf", fontsThatShowOthers(limits::maximumGlyphLevels / 2, 100),
        png, "the glyphs of the document's fonts");
    row("temporary files", "a.eps",
        eps(QByteArray::number(limits::maximumScratchFiles + 100) +
            " { null (w) .tempfile closefile pop } repeat {} loop"),
        pdf, "the picture needs more temporary files than it is allowed");
    row("time", "a.eps", eps("{} loop"), pdf + QStringList{"--timeout", "1"},
        "the picture was not ready within 1 seconds");
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // they take more than that themselves
    row("memory", "a.eps", eps("{ 60000 array pop 65535 string } loop"), pdf + QStringList{"--memory", "64"},
        "memory");
#endif
  }
  void aReachedLimitIsNamed() {
    QFETCH(QString, name);
    QFETCH(QByteArray, document);
    QFETCH(QStringList, options);
    QFETCH(QString, sentence);
    const QString path = write(name, document);
    WatchedProgram program;
    const Ran ran = program.run(QStringList{"convert", path, "--to", program.output()} + options);
    check(ran, program, sentence);
  }

  void aCheckLooksAtTheFirstPages() {
    const auto told = [&](int pages) {
      WatchedProgram program;
      return program.run({"check", write("a.pdf", pagesOf(pages))}).out;
    };
    const QByteArray sentence = "only the first 100 pages were looked at";
    QVERIFY(!told(limits::maximumExaminedPages).contains(sentence));
    QVERIFY(told(limits::maximumExaminedPages + 1).contains(sentence));
  }

  void aFileThatIsTooLargeIsNotRead() {
    QFile file(write("a.pdf", "%PDF-1.4"));
    QVERIFY(file.open(QIODevice::ReadWrite) &&
            file.resize(limits::maximumDocumentBytes + 1));  // holds nothing
    for (const char* command : {"info", "convert"}) {
      WatchedProgram program;
      QStringList arguments{command, file.fileName()};
      if (arguments.first() == "convert")
        arguments << "--to" << program.output() << "--format"
                  << "png";
      check(program.run(arguments), program, "it is larger than 512 MiB");
    }
  }

  void aPreviewThatIsTooLargeIsNotShown() {
    const QString path = write(
        "a.epsi", eps("").replace("%%EndComments\n",
                                  "%%EndComments\n%%BeginPreview: 65536 65536 8 1\n% FF\n%%EndPreview\n"));
    WatchedProgram program;
    check(program.run({"preview", path, "-o", program.output("a.png")}), program,
          "the embedded preview is too large");
  }

  void paperHasAnEnd() {
    const QString path = write("a.svg", svg("", "width='4000000' height='4000000'"));
    WatchedProgram program;
    check(program.run({"print", path, "-o", program.output("a.pdf")}), program,
          "the picture would take more than 2000 sheets of paper");
  }

  void everyCommandKeepsToItsTime_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("convert") << QStringList{"convert", "FILE", "-o", "OUT.png"};
    QTest::newRow("print") << QStringList{"print", "FILE", "-o", "OUT.pdf"};
  }
  void everyCommandKeepsToItsTime() {
    QFETCH(QStringList, arguments);
    WatchedProgram program;
    arguments.replaceInStrings("FILE", write("a.eps", eps("{} loop")));
    arguments.replaceInStrings("OUT", program.output("out"));
    check(program.run(arguments + QStringList{"--timeout", "1"}), program,
          "the picture was not ready within 1 seconds");
  }

  void factsAreToldQuicklyOrNotAtAll() {
    const QString path = write("a.svg", svg("", attributes(500'000)));
    WatchedProgram program;
    const Ran ran = program.run({"info", path});
    QCOMPARE(ran.exitCode, 5);
    QVERIFY(isOneSentence(ran.err));
    QVERIFY(ran.err.contains("an element of the document has more than 65535 attributes"));
  }

 private:
  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write the test's file");
    return file.fileName();
  }

  static void check(const Ran& ran, const WatchedProgram& program, const QString& sentence) {
    QVERIFY2(!ran.crashed, ran.err);
    QVERIFY2(isOneSentence(ran.err), ran.err);
    QVERIFY2(ran.err.contains(sentence.toUtf8()), ran.err);
    QCOMPARE(ran.exitCode, 5);
    QCOMPARE(entriesOf(program.output()), QStringList());
    QVERIFY(eventually([&] { return program.descendants().isEmpty() && program.litter().isEmpty(); }));
  }

  QTemporaryDir folder_;
};

NORVEX_TEST(LimitsTest)
#include "limits_test.moc"
