// Plates, beside those that Ghostscript's other separating device writes of the same files.
#include "worker/postscript/separations.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "protocol/page_inks.h"
#include "worker/kit/illustrator_artwork.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"
#include "worker/postscript/eps_engine.h"
#include "worker/postscript/ink_alternates.h"
#include "worker/postscript/separated_pages.h"
#include "worker/tiff/tiff_preview.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// A page of 60 × 40 points.
QByteArray eps(const QByteArray& drawing) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 60 40\n%%EndComments\n" + drawing +
         "\nshowpage\n%%EOF\n";
}

const QByteArray kProcess =
    "1 0.25 0 0.1 setcmykcolor 2 3 20.5 11.25 rectfill 0.3 setgray 30 20 15 12 rectfill\n"
    "0.2 0.4 0.6 setrgbcolor 5 30 moveto 25 38 lineto 28 25 lineto fill\n";
const QByteArray kSpot =
    "[/Separation (Gold Foil) /DeviceCMYK {dup 0.2 mul exch dup 0.4 mul exch 0.9 mul 0}] setcolorspace\n"
    "0.6 setcolor 5 5 30 20 rectfill 1 setcolor 40 5 10 10 rectfill\n";
const QByteArray kOverprinting =
    kSpot +
    "true setoverprint 0 0.7 0 0 setcmykcolor 10 10 40 20 rectfill\n"
    "[/Separation (Blue) /DeviceCMYK {dup 0}] setcolorspace 0.5 setcolor 0 0 20 20 "
    "rectfill\n";
const QByteArray kDeviceN =
    "[/DeviceN [/Cyan (Orange) (Gold Foil)] /DeviceCMYK {pop pop 0 0 0}] setcolorspace\n"
    "0.3 0.8 0.25 setcolor 5 5 40 30 rectfill 0 0 0 1 setcmykcolor 0 0 9 9 rectfill\n";

/// An overprinting spot tint over process colour, and a name that is UTF-8.
QByteArray pdf() {
  return kit::onePage(
      "0.5 0 1 0 k 0 0 30 40 re f /G gs /S cs 0.75 scn 10 10 40 20 re f",
      "/MediaBox [0 0 60 40] /Resources << /ColorSpace << /S [/Separation /Gr#C3#BCn /DeviceCMYK << "
      "/FunctionType 2 /Domain [0 1] /C0 [0 0 0 0] /C1 [1 0 0.8 0.2] /N 1 >>] >> /ExtGState << /G << "
      "/Type /ExtGState /OP true /op true /OPM 1 >> >> >>");
}

class Opened {
 public:
  Opened(PictureKind kind, const QByteArray& bytes) {
    context_.scratchFolder = folder_.path();
    context_.limits.seconds = 60;
    auto engine = kind == PictureKind::Eps ? openEps(bytes, context_)
                                           : withInks(openPdf(bytes, context_), bytes, context_);
    if (engine) engine_ = std::move(*engine);
  }
  DocumentEngine& engine() { return *engine_; }
  EngineContext& context() { return context_; }
  Result<PageInks> inks(double dpi = 72, bool overprint = true, int page = 0,
                        const std::optional<QRectF>& part = {}) {
    const Result<EngineBytes> answer = engine_->examine({Examination::Inks, page, dpi, overprint, part});
    if (!answer) return answer.error();
    warnings = answer->report.warnings;
    return decodePageInks(answer->bytes);
  }
  QStringList warnings;

 private:
  QTemporaryDir folder_;
  EngineContext context_;
  std::unique_ptr<DocumentEngine> engine_;
};

/// The plates by name, as amounts of ink, as the other device has them.
QMap<QString, QByteArray> platesOfGs(const QByteArray& document, double dpi, bool overprint) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("document"));
  if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size()) return {};
  file.close();
  QProcess gs;
  gs.start("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=tiffsep",
                  QStringLiteral("-r%1").arg(dpi), overprint ? "-dOverprint=/enable" : "-dOverprint=/disable",
                  "-o", folder.filePath("p.tif"), file.fileName()});
  if (!gs.waitForFinished(60000) || gs.exitCode() != 0) return {};
  QMap<QString, QByteArray> plates;
  for (const QString& name : QDir(folder.path()).entryList({"p(*).tif"})) {
    QFile plate(folder.filePath(name));
    if (!plate.open(QIODevice::ReadOnly)) return {};
    const auto samples = decodeTiff(plate.readAll(), PictureLimits());
    if (!samples) return {};
    QByteArray inked = samples->data;
    for (char& sample : inked) sample = char(255 - uchar(sample));
    // It writes letters beyond ASCII as addresses on the web have them.
    const QByteArray ink = QByteArray::fromPercentEncoding(name.mid(2, name.size() - 7).toUtf8());
    plates.insert(QString::fromUtf8(ink), inked);
  }
  return plates;
}

QMap<QString, QByteArray> platesOf(const PageInks& page) {
  QMap<QString, QByteArray> plates;
  for (qsizetype i = 0; i < page.inks.size(); ++i)
    plates.insert(page.inks[i].name,
                  QByteArray(reinterpret_cast<const char*>(page.plate(i)), page.plateBytes()));
  return plates;
}

QString errorOf(const Result<PageInks>& page) {
  return page ? QString() : page.error().message;
}

const Ink* inkNamed(const PageInks& page, const char* name) {
  const auto found = std::find_if(page.inks.begin(), page.inks.end(),
                                  [&](const Ink& ink) { return ink.name == QString::fromUtf8(name); });
  return found == page.inks.end() ? nullptr : &*found;
}

}  // namespace

class SeparationsTest : public QObject {
  Q_OBJECT
 private slots:
  /// Files of old versions of Illustrator, which name the program that draws them and do not bring it.
  void spotColoursOfTheStopsOfAGradientAreInks() {
    const QByteArray square =
        "10 10 m 60 10 L 60 60 L 10 60 L 10 10 L Bb 1 (G) 10 35 0 50 1 0 0 1 0 0 Bg f 0 BB";
    const auto inksOf = [&](const QByteArray& stops) {
      Opened file(PictureKind::Eps, kit::artwork(square, "(G) 0 2 Bd [ " + stops + " BD"));
      const Result<PageInks> page = file.inks();
      QMap<QString, double> amounts;
      if (page)
        for (const Ink& ink : page->inks) amounts.insert(ink.name, ink.amount);
      return amounts;
    };
    const QByteArray warm = "0 0.8 0.4 0 (Warm) 0 3 50 100 %_Bs\n",
                     cold = "1 0.1 0 0 (Cold) 0.5 3 50 0 %_Bs\n";
    const QMap<QString, double> tints = inksOf(warm + "0 0.8 0.4 0 (Warm) 0.5 3 50 0 %_Bs\n");
    QVERIFY(tints.value("Warm") > 0.1);
    QCOMPARE(tints.value("Magenta"), 0.0);
    const QMap<QString, double> two = inksOf(warm + cold);
    QVERIFY(two.value("Warm") > 1.5 * two.value("Cold") && two.value("Cold") > 0.05);
    QCOMPARE(two.value("Cyan") + two.value("Magenta"), 0.0);
    const QMap<QString, double> mixed = inksOf(warm + "0 0 1 0 1 50 0 %_Bs\n");
    QVERIFY(mixed.value("Warm") > 0.05 && mixed.value("Yellow") > 0.05);
    QCOMPARE(mixed.value("Magenta"), 0.0);
    const QMap<QString, double> all = inksOf("0 0.8 0.4 0 ([Registration]) 0 3 50 100 %_Bs\n0 0 50 0 %_Bs\n");
    QVERIFY(all.value("Magenta") > 0.05);
  }

  void platesAreThoseOfTheOtherDevice_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("inks");
    const auto row = [](const char* name, const QByteArray& drawing, int inks) {
      QTest::newRow(name) << int(PictureKind::Eps) << eps(drawing) << inks;
    };
    row("process colours", kProcess, 4);
    row("a spot ink and its tint", kSpot, 5);
    row("overprinting", kOverprinting, 6);
    row("several inks in a colour space", kDeviceN, 6);
    row("all inks", "[/Separation /All /DeviceGray {1 exch sub}] setcolorspace 0.5 setcolor 3 3 9 9 rectfill",
        4);
    row("nothing", "", 4);
    QTest::newRow("a PDF") << int(PictureKind::Pdf) << pdf() << 5;
  }
  void platesAreThoseOfTheOtherDevice() {
    QFETCH(int, kind);
    QFETCH(QByteArray, document);
    QFETCH(int, inks);
    Opened opened(PictureKind(kind), document);
    for (const double dpi : {72.0, 150.0})
      for (const bool overprint : {true, false}) {
        const Result<PageInks> page = opened.inks(dpi, overprint);
        QVERIFY2(page.ok(), qPrintable(errorOf(page)));
        QCOMPARE(page->dpi, dpi);
        QCOMPARE(page->overprint, overprint);
        QCOMPARE(page->inks.size(), inks);
        const QMap<QString, QByteArray> theirs = platesOfGs(document, dpi, overprint);
        QCOMPARE(platesOf(*page).keys(), theirs.keys());
        QVERIFY(platesOf(*page) == theirs);
      }
  }

  void aPartHasThePixelsOfTheWhole_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("program") << int(PictureKind::Eps) << eps(kProcess + kOverprinting);
    QTest::newRow("several inks in a colour space") << int(PictureKind::Eps) << eps(kDeviceN);
    QTest::newRow("PDF") << int(PictureKind::Pdf) << pdf();
    QTest::newRow("turned page") << int(PictureKind::Pdf)
                                 << kit::onePage("1 0 0.5 0 k 15 25 9 14 re f 0 0 0 1 k 52 30 10 9 re f",
                                                 "/MediaBox [0 0 100 100] /CropBox [10 20 70 60] /Rotate 90");
  }
  void aPartHasThePixelsOfTheWhole() {
    QFETCH(int, kind);
    QFETCH(QByteArray, document);
    Opened opened(PictureKind(kind), document);
    for (const double scale : {1.0, 3.5}) {
      const QRect cut(qRound(6 * scale), qRound(4 * scale), qRound(22 * scale), qRound(17 * scale));
      const Result<PageInks> whole = opened.inks(72 * scale);
      QVERIFY2(whole.ok(), qPrintable(errorOf(whole)));
      // The cut counts from the lower edge.
      const Result<PageInks> part =
          opened.inks(72 * scale, true, 0,
                      QRectF(cut.x() / scale, cut.y() / scale, cut.width() / scale, cut.height() / scale));
      QVERIFY2(part.ok(), qPrintable(errorOf(part)));
      QCOMPARE(part->pixels, cut.size());
      const int top = whole->pixels.height() - cut.y() - cut.height();
      int seen = 0;
      for (qsizetype i = 0; i < whole->inks.size(); ++i) {
        const QByteArray same = platesOf(*part).value(whole->inks[i].name);
        for (int y = 0; y < cut.height(); ++y)
          for (int x = 0; x < cut.width(); ++x) {
            const int wanted = whole->plate(i)[(y + top) * whole->pixels.width() + x + cut.x()];
            const int found = same.isEmpty() ? 0 : uchar(same[y * cut.width() + x]);
            seen += wanted != 0;
            QVERIFY2(wanted == found, qPrintable(QStringLiteral("%1 at %2,%3: %4, not %5")
                                                     .arg(whole->inks[i].name)
                                                     .arg(x)
                                                     .arg(y)
                                                     .arg(found)
                                                     .arg(wanted)));
          }
      }
      QVERIFY(seen > 0);
    }
  }

  void aPartOfALargePageHasRoomWhereTheWholeHasNone() {
    Opened opened(PictureKind::Pdf, pdf());
    const Result<PageInks> whole = opened.inks(9600);
    QVERIFY(!whole.ok());
    QCOMPARE(whole.error().kind, ErrorKind::Limit);
    const Result<PageInks> part = opened.inks(9600, true, 0, QRectF(12, 12, 0.75, 0.75));
    QVERIFY2(part.ok(), qPrintable(errorOf(part)));
    QCOMPARE(part->pixels, QSize(100, 100));
    const Result<PageInks> empty = opened.inks(72, true, 0, QRectF(12, 12, 0, 4));
    QVERIFY(!empty.ok());
    QCOMPARE(empty.error().kind, ErrorKind::Protocol);
  }

  void anInkThatSharesItsColourSpaceHasItsOwnColour() {
    const QByteArray document = kit::onePage(
        "/S cs 0.3 0.8 0.25 scn 5 5 40 30 re f",
        "/MediaBox [0 0 60 40] /Resources << /ColorSpace << /S [/DeviceN [/Cyan /Orange /Gold#20Foil] "
        "/DeviceCMYK 5 0 R] >> >>",
        {kit::stream("{ 0.8 mul exch 0.6 mul exch 0 }",
                     "/FunctionType 4 /Domain [0 1 0 1 0 1] /Range [0 1 0 1 0 1 0 1]")});
    Opened opened(PictureKind::Pdf, document);
    const Result<PageInks> page = opened.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    QVERIFY(inkNamed(*page, "Orange") && inkNamed(*page, "Gold Foil"));
    QVERIFY(inkNamed(*page, "Orange")->alternate == (ProcessInks{0, 153, 0, 0}));
    QVERIFY(inkNamed(*page, "Gold Foil")->alternate == (ProcessInks{0, 0, 204, 0}));
  }

  void anInkOfAProgramThatSharesItsColourSpaceHasItsOwnColourAsWell() {
    Opened opened(
        PictureKind::Eps,
        eps("[/DeviceN [(Orange) (Gold Foil)] /DeviceCMYK {0.8 mul exch 0.6 mul exch 0 3 1 roll 0}] "
            "setcolorspace 0.8 0.25 setcolor 5 5 40 30 rectfill"));
    const Result<PageInks> page = opened.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    QVERIFY(inkNamed(*page, "Orange") && inkNamed(*page, "Gold Foil"));
    QVERIFY(inkNamed(*page, "Orange")->alternate == (ProcessInks{0, 153, 0, 0}));
    QVERIFY(inkNamed(*page, "Gold Foil")->alternate == (ProcessInks{0, 0, 204, 0}));
  }

  void aColourSpaceOfOneInkIsBelievedFirst() {
    const QByteArray document = kit::onePage(
        "/S cs 0.3 0.8 scn 5 5 40 30 re f",
        "/MediaBox [0 0 60 40] /Resources << /ColorSpace << /S [/DeviceN [/Orange /Gold] /DeviceCMYK 5 0 R "
        "<< /Colorants << /Gold [/Separation /Gold /DeviceCMYK << /FunctionType 2 /Domain [0 1] /C0 [0 0 0 "
        "0] "
        "/C1 [0 0.2 1 0.4] /N 1 >>] >> >>] >> >>",
        {kit::stream("{ pop pop 0 0 0 1 }", "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1 0 1]")});
    const auto alternates = inkAlternates(document);
    QVERIFY(alternates.value("Gold") == (ProcessInks{0, 51, 255, 102}));
    QVERIFY(alternates.value("Orange") == (ProcessInks{0, 0, 0, 255}));
  }

  void inksAreLookedForInSoManyObjectsAndSpaces() {
    const auto space = [](const QByteArray& name) {
      return "[/Separation /" + name +
             " /DeviceGray << /FunctionType 2 /Domain [0 1] /C0 [1] /C1 [0] /N 1 >>]";
    };
    const auto found = [](const QList<QByteArray>& objects) {
      return inkAlternates(kit::onePage("", "/MediaBox [0 0 9 9]", objects)).size();
    };
    // Objects 0 to 4 are there before.
    const QList<QByteArray> most(limits::maximumInkObjects - 6, "0");
    QCOMPARE(found(most + QList<QByteArray>{space("Last")}), 1);
    QCOMPARE(found(most + QList<QByteArray>{"0", space("Beyond")}), 0);
    const auto nested = [&](int levels) {
      return QByteArray("[").repeated(levels) + space("Deep") + QByteArray("]").repeated(levels);
    };
    QCOMPARE(found({nested(limits::maximumInkDepth)}), 1);
    QCOMPARE(found({nested(limits::maximumInkDepth + 1)}), 0);
    QByteArray spaces;
    for (int i = 0; i <= limits::maximumInkSpaces; ++i) spaces += space("S" + QByteArray::number(i)) + ' ';
    QCOMPARE(found({'[' + spaces + ']'}), limits::maximumInkSpaces);
  }

  void aDamagedDocumentTellsOfNoInks() {
    QVERIFY(inkAlternates("%PDF-1.7 and nothing else").isEmpty());
    QVERIFY(inkAlternates(kit::onePage("",
                                       "/MediaBox [0 0 9 9] /Resources << /ColorSpace << /S [/DeviceN [/A] "
                                       "/DeviceCMYK] /T [/Separation /B 7 0 R 8 0 R] >> >>"))
                .isEmpty());
  }

  void overprintingIsSimulatedOnlyWhenItIsAskedFor() {
    Opened opened(PictureKind::Eps, eps(kOverprinting));
    const Result<PageInks> with = opened.inks(72, true), without = opened.inks(72, false);
    QVERIFY(with.ok() && without.ok());
    // Beneath the magenta the gold stays, or it is knocked out.
    QVERIFY(inkNamed(*with, "Gold Foil")->coverage > inkNamed(*without, "Gold Foil")->coverage + 0.05);
    QCOMPARE(inkNamed(*with, "Magenta")->coverage > 0, true);
  }

  void aSpotInkHasItsNameItsTintAndWhatStandsForIt() {
    Opened opened(PictureKind::Eps, eps(kSpot));
    const Result<PageInks> page = opened.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    QCOMPARE(page->pixels, QSize(60, 40));
    const Ink& gold = page->inks.at(4);
    QCOMPARE(gold.name, "Gold Foil");
    QVERIFY(gold.isSpot);
    QVERIFY(gold.alternate == (ProcessInks{51, 102, 230, 0}));
    QCOMPARE(gold.coverage, (600.0 + 100) / 2400);
    QCOMPARE(int(page->plate(4)[30 * 60 + 10]), 153);  // 60 %
    QCOMPARE(int(page->plate(4)[30 * 60 + 45]), 255);
    QCOMPARE(int(page->plate(4)[0]), 0);
    QVERIFY(std::abs(gold.amount - (600 * 0.6 + 100) / 2400) < 1.0e-9);
    for (int process = 0; process < 4; ++process) QCOMPARE(page->inks[process].coverage, 0.0);
  }

  void aNameOfAPdfIsUtf8() {
    Opened opened(PictureKind::Pdf, pdf());
    const Result<PageInks> page = opened.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    const Ink* green = inkNamed(*page, "Grün");
    QVERIFY(green != nullptr);
    QVERIFY(green->alternate == (ProcessInks{255, 0, 204, 51}));
  }

  void aPdfIsSeparatedAsItIsShown() {
    const QByteArray document = kit::onePage("0 0 0 1 k 10 20 30 10 re f",
                                             "/MediaBox [0 0 100 100] /CropBox [10 20 40 30] /Rotate 90");
    Opened opened(PictureKind::Pdf, document);
    const Result<PageInks> page = opened.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    QCOMPARE(page->pixels, QSize(10, 30));
    QCOMPARE(inkNamed(*page, "Black")->coverage, 1.0);
  }

  void aPdfWithErrorsIsSeparatedAndSaysSo() {
    Opened whole(PictureKind::Pdf, pdf());
    QVERIFY(whole.inks().ok());
    QCOMPARE(whole.warnings, QStringList());
    Opened damaged(PictureKind::Pdf,
                   kit::onePage("0 0 0 1 k 0 0 9 9 re f /Missing Do Q", "/MediaBox [0 0 60 40]"));
    const Result<PageInks> page = damaged.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    QVERIFY(inkNamed(*page, "Black")->coverage > 0);
    QCOMPARE(damaged.warnings,
             QStringList("the page has errors, and something may be missing on its plates"));
  }

  void everyPageOfAPdfHasItsOwnPlates() {
    const QByteArray document =
        kit::madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>",
                      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 20 10] /Contents 5 0 R >>",
                      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 30 10] /Contents 6 0 R >>",
                      kit::stream("1 0 0 0 k 0 0 20 10 re f"), kit::stream("0 1 0 0 k 0 0 15 10 re f")});
    Opened opened(PictureKind::Pdf, document);
    const Result<PageInks> second = opened.inks(72, true, 1);
    QVERIFY2(second.ok(), qPrintable(errorOf(second)));
    QCOMPARE(second->pixels, QSize(30, 10));
    QCOMPARE(second->inks[0].coverage, 0.0);
    QCOMPARE(second->inks[1].coverage, 0.5);
    const Result<PageInks> third = opened.inks(72, true, 2);
    QVERIFY(!third);
    QCOMPARE(third.error().kind, ErrorKind::Unsupported);
  }

  void onlyTheFirstPageOfAProgramCounts() {
    Opened opened(PictureKind::Eps, eps("1 0 0 0 setcmykcolor 0 0 60 40 rectfill showpage\n"
                                        "0 1 0 0 setcmykcolor 0 0 60 40 rectfill"));
    const Result<PageInks> page = opened.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    QCOMPARE(page->inks[0].coverage, 1.0);
    QCOMPARE(page->inks[1].coverage, 0.0);
  }

  void platesBehindAPictureInItsFileAreNotSeparated() {
    // The picture paints nothing; a plate behind it, which begins where its comment says, is all cyan.
    const QByteArray header =
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 60 40\n%%PlateFile: (Cyan) EPS #000200 99\n"
        "%%EndComments\n0 1 0 0 setcmykcolor 0 0 60 40 rectfill\n";
    const QByteArray picture = header.leftJustified(200, '\n');
    Opened opened(PictureKind::Eps,
                  picture + eps("1 0 0 0 setcmykcolor 0 0 60 40 rectfill") + eps("nosuchoperator"));
    const Result<PageInks> page = opened.inks();
    QVERIFY2(page.ok(), qPrintable(errorOf(page)));
    QCOMPARE(page->inks[0].coverage, 0.0);
    QCOMPARE(page->inks[1].coverage, 1.0);
  }

  void aProgramCannotChangeItsPage() {
    Opened opened(
        PictureKind::Eps,
        eps("<< /PageSize [500 500] /HWResolution [10 10] >> setpagedevice initgraphics\n" + kProcess));
    Opened plain(PictureKind::Eps, eps(kProcess));
    const Result<PageInks> page = opened.inks(), expected = plain.inks();
    QVERIFY(page.ok() && expected.ok());
    QCOMPARE(page->pixels, QSize(60, 40));
    QVERIFY(page->plates == expected->plates);
  }

  void aProgramThatStopsIsAnError() {
    Opened opened(PictureKind::Eps, eps(kProcess + "nosuchoperator"));
    const Result<PageInks> page = opened.inks();
    QVERIFY(!page);
    QCOMPARE(page.error().kind, ErrorKind::NotParsable);
    QVERIFY(page.error().message.contains("undefined"));
  }

  void asManyPixelsAsAPlateMayHave() {
    const QByteArray document = kit::onePage("1 0 0 0 k 0 0 9 9 re f", "/MediaBox [0 0 4000 4000]");
    Opened opened(PictureKind::Pdf, document);
    QVERIFY(opened.inks(72).ok());
    QCOMPARE(errorOf(opened.inks(72.9)),
             "at 72.9 dpi a plate has 16.5 million pixels, and at most 16 million can be handled");
    QCOMPARE(errorOf(opened.inks(144)),
             "at 144 dpi a plate has 64 million pixels, and at most 16 million can be handled");
  }

  void tooManyPixelsAreALimit() {
    Opened ofProgram(PictureKind::Eps, eps(kProcess)), ofPdf(PictureKind::Pdf, pdf());
    for (Opened* opened : {&ofProgram, &ofPdf}) {
      const Result<PageInks> page = opened->inks(20000);
      QVERIFY(!page);
      QCOMPARE(page.error().kind, ErrorKind::Limit);
    }
  }

  void theLimitOfPixelsIsExact() {
    Opened opened(PictureKind::Eps, eps(kProcess));
    const Result<PageInks> most = opened.inks(7200, true, 0, QRectF(0, 0, 40, 40));  // 100 pixels a point
    QVERIFY(most);
    QCOMPARE(most->pixels, QSize(4000, 4000));
    const Result<PageInks> more = opened.inks(7200, true, 0, QRectF(0, 0, 40, 40.01));
    QVERIFY(!more);
    QCOMPARE(more.error().message,
             "at 7200 dpi a plate has 16.1 million pixels, and at most 16 million can be handled");
  }

  void theOtherCallsGoToThePages() {
    Opened opened(PictureKind::Pdf, pdf());
    DocumentEngine& engine = opened.engine();
    QCOMPARE(engine.facts()->pageBounds.first(), QRectF(0, 0, 60, 40));
    RenderRequest request;
    request.pixelSize = QSize(6, 4);
    request.pictureToDevice = AffineTransform(0.1, 0, 0, -0.1, 0, 4);
    QVERIFY(engine.render(request).ok());
    QVERIFY(engine.pdf(PdfRequest()).ok());
    QVERIFY(engine.examine({Examination::Contents, 0}).ok());
  }
};

NORVEX_TEST(SeparationsTest)
#include "separations_test.moc"
