// What a run is told of a document's reader: the password, the layers.
#include <QJsonObject>

#include "cli/cli_files.h"
#include "kit/test_main.h"
#include "protocol/page_inks.h"
#include "protocol/page_text.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

const QByteArray kOpened("%PDF-1.4\n%opened\n%%EOF\n");

/// PDFs want the password "geheim"; what they are made into is kOpened.
void protect(CommandLine& line) {
  line.service.setChoose([](const QByteArray&, const ReaderChoices& choices) -> Result<PictureBytes> {
    if (!choices.password.isEmpty() && choices.password != u"geheim")
      return Error{ErrorKind::Encrypted, QStringLiteral("the password is wrong")};
    BytesReply report;
    if (!choices.password.isEmpty()) report.warnings << QStringLiteral("it is protected no more");
    return PictureBytes{kOpened, report};
  });
  line.service.setPrepare([](MemoryPictureProcess& process) {
    if (process.bytes() != kOpened)
      process.fail(PictureCall::Facts, {ErrorKind::Encrypted, "the document is protected with a password"});
  });
}

/// With the layers "Grid", "2" and "Grid".
void layer(CommandLine& line) {
  MemoryPicture picture;
  picture.facts.layers = {{"Grid", true}, {"2", false}, {"Grid", false}};
  line.service.setPicture(picture);
  line.service.setChoose([&line](const QByteArray& pdf, const ReaderChoices& choices) {
    MemoryPicture switched;
    switched.facts.layers = choices.layers;
    line.service.setPicture(switched);
    return PictureBytes{pdf, {}};
  });
}

}  // namespace

class ReaderTest : public QObject {
  Q_OBJECT
 private slots:
  void thePasswordIsTheFirstLineOfItsFile_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("alone") << QByteArray("geheim");
    QTest::newRow("a line") << QByteArray("geheim\n");
    QTest::newRow("from elsewhere") << QByteArray("geheim\r\nanything\n");
  }
  void thePasswordIsTheFirstLineOfItsFile() {
    QFETCH(QByteArray, file);
    CommandLine line;
    protect(line);
    const QString pdf = line.write("a.pdf", kPdf), password = line.write("word", file);
    QCOMPARE(line.run({"info", pdf}), 3);
    QCOMPARE(line.run({"info", "--password-file", password, pdf}), 0);
    QVERIFY(line.console.output.contains("Bounds"));
  }

  void thePasswordMayComeFromStandardInput() {
    CommandLine line;
    protect(line);
    line.console.standardInput = "geheim\n";
    const QString pdf = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"info", "--password-file", "-", pdf}), 0);
    QCOMPARE(line.run({"info", "--password-file", "-", "-"}), 2);
    QVERIFY(line.console.messages.contains("cannot both come from standard input"));
  }

  void anArchiveTakesItFromAFile() {
    CommandLine line;
    QCOMPARE(line.run({"convert", "--recursive", line.path("."), "--to", line.path("out"), "--format", "png",
                       "--password-file", "-"}),
             2);
    QVERIFY2(line.console.messages.contains("comes from a file"), qPrintable(line.console.messages));
  }

  void everyCommandThatReadsDocumentsTakesOne() {
    CommandLine line;
    protect(line);
    const QString pdf = line.write("a.pdf", kPdf), password = line.write("word", "geheim");
    const QStringList with{"--password-file", password};
    QCOMPARE(line.run(QStringList{"convert", pdf, "-o", line.path("a.png")} + with), 0);
    QCOMPARE(line.run(QStringList{"thumbnail", pdf, line.path("b.png")} + with), 0);
    QCOMPARE(line.run(QStringList{"convert", pdf, "-o", line.path("c.png")}), 3);
    QVERIFY(!line.entries().contains("c.png"));
  }

  void aWrongPasswordIsToldAsSuchAndNeverRepeated() {
    CommandLine line;
    protect(line);
    const QString pdf = line.write("a.pdf", kPdf), password = line.write("word", "hunter2");
    for (const QStringList& run :
         {QStringList{"info", pdf}, QStringList{"convert", pdf, "-o", line.path("a.png")},
          QStringList{"check", pdf}, QStringList{"thumbnail", pdf, line.path("a.png")}}) {
      QCOMPARE(line.run(run + QStringList{"--password-file", password}), 3);
      QVERIFY2(line.console.messages.contains("the password is wrong"), qPrintable(line.console.messages));
      QVERIFY(!line.console.messages.contains("hunter2") && !line.console.output.contains("hunter2"));
    }
  }

  void lostProtectionIsTold() {
    CommandLine line;
    protect(line);
    const QString pdf = line.write("a.pdf", kPdf), password = line.write("word", "geheim");
    QCOMPARE(
        line.run({"convert", pdf, "-o", line.path("a.pdf2"), "--format", "pdf", "--password-file", password}),
        0);
    QVERIFY(line.console.messages.contains("it is protected no more"));
  }

  void everyCommandThatWritesSomethingTellsLostProtection() {
    CommandLine line;
    protect(line);
    MemoryPicture picture;
    picture.examine = [](const ExamineRequest& request) {
      if (request.what == Examination::Text) return encodePageText({});
      PageInks page;
      page.pixels = QSize(1, 1);
      page.dpi = 72;
      for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"}) page.inks << Ink{name, false, {}, 0, 0};
      page.plates = QByteArray(4, '\0');
      return encodePageInks(page);
    };
    line.service.setPicture(picture);
    const QString pdf = line.write("a.pdf", kPdf), password = line.write("word", "geheim");
    for (const QStringList& run :
         {QStringList{"print", pdf, "-o", line.path("b.pdf")}, QStringList{"text", pdf},
          QStringList{"inks", pdf}, QStringList{"thumbnail", pdf, line.path("b.png")}}) {
      const int code = line.run(run + QStringList{"--password-file", password});
      QVERIFY(code == 0 || run.first() == "print");  // the service in memory composes no pages
      QVERIFY2(line.console.messages.contains("it is protected no more"),
               qPrintable(run.first() + ": " + line.console.messages));
    }
    QCOMPARE(line.run({"inks", "--json", pdf, "--password-file", password}), 0);
    const QJsonObject told = jsonOf(line).at(0).toObject();
    QCOMPARE(told["warnings"].toArray(), QJsonArray{"it is protected no more"});
  }

  void anUnreadablePasswordIsNoPassword() {
    CommandLine line;
    const QString pdf = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"info", pdf, "--password-file", line.path("missing")}), 2);
    QCOMPARE(line.run({"info", pdf, "--password-file", line.write("empty", "\nnext line\n")}), 2);
    QVERIFY(line.console.messages.contains("its first line is empty"));
    QCOMPARE(line.run({"info", pdf, "--password-file", line.write("long", QByteArray(2000, 'x'))}), 2);
    QVERIFY(line.console.messages.contains("too long"));
    QCOMPARE(line.service.openCount(), 0);
  }

  void theWordsOfAPageAreWritten() {
    CommandLine line;
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 9, 9), QRectF(0, 0, 9, 9)};
    picture.facts.pageCount = 2;
    picture.examine = [](const ExamineRequest& request) {
      PageText page;
      page.text = QStringLiteral("page %1\u001b[31m").arg(request.page + 1);
      page.places.resize(page.text.size());
      return request.what == Examination::Text ? encodePageText(page) : QByteArray();
    };
    line.service.setPicture(picture);
    const QString pdf = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"text", pdf}), 0);
    QCOMPARE(line.console.output, QByteArray("page 1\x1b[31m\n"));
    QCOMPARE(line.run({"text", pdf, "--page", "2"}), 0);
    QVERIFY(line.console.output.startsWith("page 2"));
    QCOMPARE(line.run({"text", pdf, "--page", "3"}), 3);
    line.console.terminal = true;
    QCOMPARE(line.run({"text", pdf}), 0);
    QVERIFY(!line.console.output.contains('\x1b'));
  }

  void infoListsLayers() {
    CommandLine line;
    layer(line);
    const QString pdf = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"info", pdf}), 0);
    QVERIFY2(line.console.output.contains("Grid (on)") && line.console.output.contains("2 (off)"),
             line.console.output.constData());
    QCOMPARE(line.run({"info", "--json", pdf}), 0);
    const QJsonArray layers = jsonOf(line).at(0)["layers"].toArray();
    QCOMPARE(layers.size(), 3);
    QCOMPARE(layers[0]["name"].toString(), "Grid");
    QCOMPARE(layers[0]["shown"].toBool(), true);
    QCOMPARE(layers[1]["shown"].toBool(), false);
  }

  void layersAreSwitchedByNameOrNumber_data() {
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QList<bool>>("shown");
    QTest::newRow("a name, twice there") << "Grid=off" << QList<bool>{false, false, false};
    QTest::newRow("a number") << "3=on" << QList<bool>{true, false, true};
    QTest::newRow("a name before a number") << "2=on" << QList<bool>{true, true, false};
    QTest::newRow("several") << "1=off, 2=on" << QList<bool>{false, true, false};
  }
  void layersAreSwitchedByNameOrNumber() {
    QFETCH(QString, asked);
    CommandLine line;
    layer(line);
    QCOMPARE(line.run({"convert", line.write("a.pdf", kPdf), "-o", line.path("a.png"), "--layers", asked}),
             0);
    QList<bool> shown;
    for (const PictureLayer& one : line.service.choices().constLast().layers) shown << one.shown;
    QTEST(shown, "shown");
  }

  void layersThatAreNotThereAreToldBeforeAnythingIsWritten() {
    CommandLine line;
    layer(line);
    const QString pdf = line.write("a.pdf", kPdf), png = line.path("a.png");
    QCOMPARE(line.run({"convert", pdf, "-o", png, "--layers", "Frame=on"}), 3);
    QVERIFY(line.console.messages.contains("there is no layer Frame"));
    QCOMPARE(line.run({"convert", line.write("a.svg", kSvg), "-o", png, "--layers", "Frame=on"}), 3);
    QVERIFY(line.console.messages.contains("the document has no layers"));
    for (const char* wrong : {"Frame", "Frame=maybe", "=on", "", "Frame=on,"})
      QCOMPARE(line.run({"convert", pdf, "-o", png, "--layers", wrong}), 2);
    QVERIFY(!line.entries().contains("a.png"));
  }

  void aLayerThatTheDocumentLocksIsTold() {
    CommandLine line;
    layer(line);
    line.service.setChoose([](const QByteArray& pdf, const ReaderChoices&) { return PictureBytes{pdf, {}}; });
    QCOMPARE(line.run({"convert", line.write("a.pdf", kPdf), "-o", line.path("a.png"), "--layers", "2=on"}),
             3);
    QVERIFY(line.console.messages.contains("does not let its layer 2 be switched"));
  }
};

NORVEX_TEST(ReaderTest)
#include "reader_test.moc"
