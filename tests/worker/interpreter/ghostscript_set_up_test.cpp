#include "worker/interpreter/interpreter_kit.h"

#include <QFile>

#include <iterator>

#include "kit/test_main.h"
#include "worker/postscript/separations.h"

using namespace norvex;
using namespace norvex::engine;
using kit::errorOf, kit::Interpreters;

namespace {

const QByteArray& kDrawing = kit::interpretedDrawing;
const QRectF& kBox = kit::interpretedBox;

constexpr InterpreterOutlook kOutlooks[] = {{}, {.lone = true}, {.pdf = true}};

}  // namespace

/// What an interpreter has, and lacks, before its document.
class GhostscriptSetUpTest : public QObject {
  Q_OBJECT
 private slots:
  void whatItMakesIsWhatGsMakes_data() {
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("a drawing") << kDrawing;
    QTest::newRow("an image") << QByteArray("30 30 scale 2 2 8 [2 0 0 2 0 0] {<00FF80C0>} image showpage\n");
    QTest::newRow("a shading") << QByteArray(
        "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 60 0] /Function << /FunctionType 2 /Domain [0 "
        "1] "
        "/C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> shfill\n");
    QTest::newRow("transfer functions and a spot ink") << QByteArray(
        "{dup mul} settransfer [/Separation (Orange) /DeviceCMYK {0 exch dup 0}] setcolorspace "
        "0.5 setcolor 5 5 30 30 rectfill\n");
    QTest::newRow("a missing font") << QByteArray(
        "/NoSuchFont findfont 9 scalefont setfont 5 5 moveto (words) show\n");
    QTest::newRow("an error behind the page") << kDrawing + "showpage nosuch\n";
    QTest::newRow("marks behind the page") << kDrawing + "showpage 3 3 9 9 rectfill nosuch\n";
    QTest::newRow("binary rubbish behind the page")
        << kDrawing + "showpage\n%%EOF\n" + QByteArray("II*\0\x08\0\0\0\x14\0((<<", 14);
    QTest::newRow("its own operators everywhere")
        << kDrawing + "/<< {} def /mark {} def /exec {} def /stopped {} def /get {} def showpage\n";
    QTest::newRow("two pages") << kDrawing + "showpage 3 3 9 9 rectfill showpage\n";
    QTest::newRow("ended away from the device") << kDrawing + "showpage nulldevice stop\n";
    QTest::newRow("an unfinished string of outlines")
        << kDrawing + "save 1 0 0 setrgbcolor 3 3 moveto 9 9 lineto gsave showpage\n";
    QTest::newRow("distiller parameters of the document")
        << QByteArray("<< /CompressPages false /Optimize true >> setdistillerparams\n") + kDrawing;
  }
  void whatItMakesIsWhatGsMakes() {
    QFETCH(QByteArray, program);
    EngineContext alone;
    const QTemporaryDir scratch;
    alone.scratchFolder = scratch.path();
    const auto started = distill(program, kBox, alone);
    QVERIFY2(started.ok(), qPrintable(errorOf(started).message));
    // Each program by one of them costs less than by all.
    static size_t turn = 0;
    Interpreters interpreters(kOutlooks[turn++ % std::size(kOutlooks)]);
    const auto forked = distill(program, kBox, interpreters.context());
    QVERIFY2(forked.ok(), qPrintable(errorOf(forked).message));
    QVERIFY(interpreters.context().interpreters >= 0);
    QCOMPARE(forked->pdf, started->pdf);
    QCOMPARE(forked->warnings, started->warnings);
  }

  /// Ghostscript takes operators away that no program may use, and the last of its files does it.
  void withoutPdfNothingIsThereThatOtherwiseIsNot() {
    Interpreters without, with({.pdf = true});
    const QByteArray program = "systemdict { pop = } forall userdict { pop = } forall\n";
    const QList<QByteArray> names = without.saidBy(program).split('\n');
    const QList<QByteArray> all = with.saidBy(program).split('\n');
    QVERIFY(names.size() > 500 && names.contains("showpage") && names.contains("pdfmark"));
    for (const QByteArray& name : names) QVERIFY2(all.contains(name), name.constData());
  }

  /// Fonts are gone through in the order of numbers that names get as they come.
  void namesComeInTheSameOrderWithoutPdf() {
    const QByteArray program =
        "/d 4000 dict def 70001 1 70200 { 8 string cvs cvn d exch 0 put } for\n"
        "[ /zcaron /Aring /moveto /findfont /eacute ] { d exch 1 put } forall d { pop = } forall\n";
    Interpreters without({.lone = true}), with({.pdf = true, .lone = true});
    const QByteArray order = without.saidBy(program);
    QVERIFY(order.count('\n') == 205 && !order.startsWith("70001\n70002\n"));
    QCOMPARE(order, with.saidBy(program));
  }

  void pdfIsReadWhereItIsExpected() {
    Interpreters interpreters({.pdf = true});
    EngineContext& context = interpreters.context();
    const auto pdf = distill(kDrawing, kBox, context);
    QVERIFY(pdf.ok());
    const auto inks = inksOfPdf(pdf->pdf, kBox.size(), {Examination::Inks, 0, 72, true}, context);
    QVERIFY2(inks.ok(), qPrintable(inks ? QString() : inks.error().message));
    QVERIFY(context.interpreters >= 0);
  }

  void withFilesThatDoNotFitGhostscriptGsIsStarted() {
    const QTemporaryDir folder;
    const std::string program = folder.path().toStdString() + "/norvex-postscript";
    QVERIFY(QFile::copy(NORVEX_BUILD_DIR "/norvex-postscript", QString::fromStdString(program)));
    QVERIFY(QDir(folder.path()).mkdir("without-pdf"));
    for (const char* name : {"pdf_ops.ps", "pdf_base.ps", "pdf_main.ps"}) {
      QFile file(folder.path() + "/without-pdf/" + name);
      QVERIFY(file.open(QIODevice::WriteOnly) && file.write("% of another version\n") > 0);
    }
    Interpreters interpreters({}, program);
    const auto distilled = distill(kDrawing, kBox, interpreters.context());
    QVERIFY2(distilled.ok(), qPrintable(errorOf(distilled).message));
    QCOMPARE(interpreters.context().interpreters, -1);
  }

  void librariesOfWindowsAndPrintersAreNotLoaded() {
    Interpreters interpreters;
    QVERIFY(interpreters.stillWork());
    QFile maps(QStringLiteral("/proc/%1/maps").arg(interpreters.program().pid()));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QByteArray loaded = maps.readAll();
    QVERIFY(loaded.contains("/libgs.so") && loaded.contains("/stand-ins/libcups.so"));
    for (const char* library : {"libgnutls", "libkrb5", "libdbus", "libsystemd", "libxcb", "libwebp"})
      QVERIFY2(!loaded.contains(library), library);
    QVERIFY(interpreters.saidBy("/x11 finddevice setdevice").contains("Error"));
    QVERIFY(interpreters.saidBy("/cups finddevice setdevice showpage").contains("Error"));
    QVERIFY(interpreters.saidBy("/tiffg4 finddevice setdevice showpage").contains("Error"));
  }

  void itsPlatesAreThoseOfGs_data() {
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("process inks") << kDrawing;
    QTest::newRow("a spot ink that overprints") << kDrawing +
                                                       "true setoverprint [/Separation (Gold) /DeviceCMYK {0 "
                                                       "exch dup 0}] setcolorspace 0.5 setcolor\n"
                                                       "10 5 30 30 rectfill showpage\n";
    QTest::newRow("two pages") << kDrawing + "showpage 3 3 9 9 rectfill showpage\n";
    QTest::newRow("an error behind the page") << kDrawing + "showpage nosuch\n";
  }
  void itsPlatesAreThoseOfGs() {
    QFETCH(QByteArray, program);
    Interpreters interpreters({.pdf = true});
    EngineContext& context = interpreters.context();
    const ExamineRequest request{Examination::Inks, 0, 100, true};
    const auto forked = inksOfProgram(program, kBox, request, context);
    QVERIFY2(forked.ok(), qPrintable(forked ? QString() : forked.error().message));
    QVERIFY(context.interpreters >= 0);
    const auto pdf = distill(program, kBox, context);
    QVERIFY(pdf.ok());
    const auto forkedPdf = inksOfPdf(pdf->pdf, kBox.size(), request, context);
    QVERIFY2(forkedPdf.ok(), qPrintable(forkedPdf ? QString() : forkedPdf.error().message));
    QVERIFY(context.interpreters >= 0);
    context.interpreters = -1;
    const auto started = inksOfProgram(program, kBox, request, context);
    const auto startedPdf = inksOfPdf(pdf->pdf, kBox.size(), request, context);
    QVERIFY(started.ok() && startedPdf.ok());
    QVERIFY(forked->bytes == started->bytes);
    QVERIFY(forkedPdf->bytes == startedPdf->bytes);
    QCOMPARE(forked->report.warnings, started->report.warnings);
  }
};

NORVEX_TEST(GhostscriptSetUpTest)
#include "ghostscript_set_up_test.moc"
