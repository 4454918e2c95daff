#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <cmath>
#include <numbers>

#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/pdf_file.h"
#include "worker/postscript/eps_engine.h"

using namespace norvex;
using namespace norvex::engine;
using kit::difference;

namespace {

const QByteArray kText = "BT /F 30 Tf 12 44 Td (Gauge) Tj ET";
const QByteArray kQuads = "/QuadPoints [10 75 110 75 10 35 110 35] ";

/// An annotation in the middle of the page, object 6 or later; object 5 is a font.
QByteArray annotation(const QByteArray& subtype, const QByteArray& entries, const QByteArray& flags = "4") {
  return "<< /Type /Annot /Subtype /" + subtype + " /Rect [10 35 110 75] /F " + flags + ' ' + entries + " >>";
}

QByteArray page(const QList<QByteArray>& annotations, const QByteArray& pageEntries = {},
                const QByteArray& contents = kText, const QByteArray& catalogue = {}) {
  QByteArray numbers;
  for (qsizetype i = 0; i < annotations.size(); ++i) numbers += ' ' + QByteArray::number(6 + i) + " 0 R";
  return kit::madePdf(
      QList<QByteArray>{
          "<< /Type /Catalog /Pages 2 0 R " + catalogue + " >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
          "<< /Type /Page /Parent 2 0 R /Contents 4 0 R /MediaBox [0 0 200 100] /Resources << /Font << "
          "/F 5 0 R >> >> /Annots [" +
              numbers + "] " + pageEntries + " >>",
          kit::stream(contents), "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"} +
      annotations);
}

/// On white, `scale` pixels a point, after `toDevice` (picture coordinates).
QImage drawn(DocumentEngine& engine, QSizeF size, const QTransform& toDevice = {}, double scale = 2) {
  RenderRequest request;
  request.pixelSize = (size * scale).toSize();
  request.pictureToDevice = toDevice * QTransform(scale, 0, 0, -scale, 0, size.height() * scale);
  const auto image = kit::imageOf(engine.render(request));
  if (!image) return {};
  QImage onWhite(image->size(), QImage::Format_RGB32);
  onWhite.fill(Qt::white);
  QPainter(&onWhite).drawImage(0, 0, *image);
  return onWhite;
}

struct Opened {
  explicit Opened(const QByteArray& bytes, bool postScript = false) {
    context.scratchFolder = folder.path();
    auto opened = postScript ? openEps(bytes, context) : openPdf(bytes, context);
    if (opened) engine = std::move(*opened);
  }
  QTemporaryDir folder;
  EngineContext context;
  std::unique_ptr<DocumentEngine> engine;
  QSizeF size() { return engine->facts()->pageBounds.first().size(); }
};

QImage screen(const QByteArray& pdf) {
  Opened opened(pdf);
  return opened.engine ? drawn(*opened.engine, opened.size()) : QImage();
}

ComposeRequest whole(const QByteArray& pdf, VectorFormat format) {
  const QSizeF size = Opened(pdf).size();
  ComposeRequest request;
  request.format = format;
  request.rect = QRectF(QPointF(-size.width() / 2, -size.height() / 2), size);
  return request;
}

QByteArray written(const QByteArray& pdf, const ComposeRequest& request) {
  Opened opened(pdf);
  auto result = opened.engine->compose(request);
  return result ? result->bytes : QByteArray();
}

QByteArray written(const QByteArray& pdf, VectorFormat format = VectorFormat::Pdf) {
  return written(pdf, whole(pdf, format));
}

}  // namespace

class AnnotationDrawingsTest : public QObject {
  Q_OBJECT
 private slots:
  void everyKindIsWrittenAsItIsShown_data() {
    QTest::addColumn<QByteArray>("drawing");
    const auto row = [](const char* subtype, const QByteArray& entries) {
      QTest::newRow(subtype) << annotation(subtype, entries);
    };
    row("Highlight", kQuads + "/C [1 1 0]");
    row("Underline", kQuads + "/C [1 0 0]");
    row("StrikeOut", kQuads + "/C [1 0 0]");
    row("Squiggly", kQuads + "/C [1 0 0]");
    row("Square", "/C [1 0 0] /IC [0 1 0] /CA 0.5");
    row("Circle", "/C [1 0 0] /IC [0 1 0]");
    row("Line", "/L [15 40 100 70] /C [0 0 1] /LE [/OpenArrow /Circle] /BS << /W 3 >>");
    row("Ink", "/InkList [[12 40 60 70 100 50]] /C [0 0 1] /BS << /W 3 >>");
    row("Polygon", "/Vertices [12 40 60 70 100 50] /C [0 0 1] /IC [1 0 0]");
    row("PolyLine", "/Vertices [12 40 60 70 100 50] /C [0 0 1] /BS << /W 3 >>");
    row("FreeText", "/Contents (Hello) /DA (/Helv 20 Tf 1 0 0 rg)");
    row("Stamp", "/Name /Draft");
    row("Text", "/Name /Note /C [1 1 0]");
    row("Widget", "/FT /Tx /T (a) /V (Field) /DA (/Helv 20 Tf 0 g) /MK << /BG [0.8 0.8 1] >>");
  }
  void everyKindIsWrittenAsItIsShown() {
    QFETCH(QByteArray, drawing);
    const QByteArray form = "/AcroForm << /Fields [] /DR << /Font << /Helv 5 0 R >> >> >>";
    const QImage without = screen(page({}));
    for (const char* entries : {"", "/Rotate 90", "/CropBox [5 5 150 90] /Rotate 270", "/UserUnit 1.5"}) {
      const QByteArray pdf = page({drawing}, entries, kText, form);
      const QImage shown = screen(pdf);
      if (*entries == '\0') QVERIFY(difference(without, shown) > 0.1);
      QVERIFY2(difference(shown, screen(written(pdf))) < 0.1, entries);
    }
    const QByteArray pdf = page({drawing}, "/Rotate 90", kText, form);
    Opened eps(written(pdf, VectorFormat::Eps), true);
    QVERIFY(eps.engine);
    const double off = difference(screen(pdf), drawn(*eps.engine, eps.size()));
    QVERIFY2(off < 1, qPrintable(QString::number(off)));
  }

  void aTurnedPartShowsThem() {
    const QByteArray pdf = page({annotation("Line", "/L [15 40 100 70] /C [0 0 1] /BS << /W 5 >>"),
                                 annotation("Highlight", kQuads + "/C [1 1 0]")},
                                "/CropBox [5 5 150 90]");
    ComposeRequest request;
    request.rect = QRectF(-60, -30, 100, 70);
    request.rotate = std::numbers::pi / 6;
    const double c = std::cos(request.rotate);
    const double s = std::sin(request.rotate);
    const QTransform toRect = QTransform::fromTranslate(-72.5, -42.5) * QTransform(c, s, -s, c, 0, 0) *
                              QTransform::fromTranslate(60, 30);
    Opened original(pdf);
    const QImage expected = drawn(*original.engine, request.rect.size(), toRect);
    Opened part(written(pdf, request));
    QVERIFY(part.engine);
    const double off = difference(expected, drawn(*part.engine, request.rect.size()));
    QVERIFY2(off < 0.5, qPrintable(QString::number(off)));
  }

  void textBelowAHighlightStaysReadable() {
    const QByteArray pdf =
        page({annotation("Highlight", kQuads + "/C [1 1 0]")}, {}, "0 0 1 rg 20 45 40 20 re f");
    const QImage image = screen(written(pdf));
    QCOMPARE(image.pixel(80, 90), qRgb(0, 0, 0));       // yellow times blue
    QCOMPARE(image.pixel(180, 90), qRgb(255, 255, 0));  // yellow times paper
    const QImage onTop = screen(
        written(page({annotation("Square", "/C [1 0 0] /IC [0 1 0]")}, {}, "0 0 1 rg 20 45 40 20 re f")));
    QCOMPARE(onTop.pixel(80, 90), qRgb(0, 255, 0));
  }

  void theyStayVectors() {
    const QByteArray result = written(
        page({annotation("FreeText", "/Contents (Hello) /DA (/Helv 20 Tf 1 0 0 rg)"),
              annotation("Highlight", kQuads + "/C [1 1 0]"), annotation("Line", "/L [15 40 100 70]")}));
    auto file = PdfFile::open(result);
    QVERIFY(file.ok());
    bool fonts = false;
    for (QPDFObjectHandle object : (*file)->qpdf().getAllObjects()) {
      QPDFObjectHandle dictionary = object.isStream() ? object.getDict() : object;
      if (!dictionary.isDictionary()) continue;
      QVERIFY(!dictionary.getKey("/Subtype").isNameAndEquals("/Image"));
      for (const char* key : {"/FontFile", "/FontFile2", "/FontFile3"})
        fonts = fonts || dictionary.hasKey(key);
    }
    QVERIFY(fonts);
  }

  void thinLinesStayThin() {
    const QByteArray pdf = page({annotation("Square", "/C [0 0 0] /BS << /W 0.1 >>")}, {}, "");
    Opened shown(pdf);
    Opened result(written(pdf));
    const QImage expected = drawn(*shown.engine, shown.size(), {}, 20);
    const QImage got = drawn(*result.engine, result.size(), {}, 20);
    QVERIFY(difference(expected, got) < 0.05);
  }

  // Red, then green with an appearance of its own, then blue: each covers a part of the one before.
  void theOrderStays() {
    const QByteArray pdf = kit::onePage(
        "", "/MediaBox [0 0 200 100] /Annots [5 0 R 6 0 R 7 0 R]",
        {"<< /Type /Annot /Subtype /Square /F 4 /Rect [10 10 60 90] /C [1 0 0] /IC [1 0 0] >>",
         "<< /Type /Annot /Subtype /Square /F 4 /Rect [40 10 100 90] /AP << /N 8 0 R >> >>",
         "<< /Type /Annot /Subtype /Square /F 4 /Rect [80 10 140 90] /C [0 0 1] /IC [0 0 1] >>",
         kit::stream("0 1 0 rg 0 0 60 80 re f", "/Type /XObject /Subtype /Form /BBox [0 0 60 80]")});
    const QImage image = screen(written(pdf));
    QCOMPARE(image.pixel(40, 100), qRgb(255, 0, 0));
    QCOMPARE(image.pixel(100, 100), qRgb(0, 255, 0));
    QCOMPARE(image.pixel(180, 100), qRgb(0, 0, 255));
  }

  void whatIsNotShownIsNotWritten_data() {
    QTest::addColumn<QByteArray>("drawing");
    const QByteArray red = "/C [1 0 0] /IC [1 0 0] ";
    QTest::newRow("hidden") << annotation("Square", red, "2");
    QTest::newRow("not viewed") << annotation("Square", red, "32");
    QTest::newRow("link") << annotation("Link", "/C [1 0 0] /Border [0 0 9]");
    QTest::newRow("link with an appearance") << annotation("Link", "/AP << /N 7 0 R >>");
    QTest::newRow("pop-up") << annotation("Popup", red + "/Open true");
    QTest::newRow("layer that is off") << annotation("Square", red + "/OC 8 0 R");
    QTest::newRow("layer that is off, with an appearance")
        << annotation("Square", "/OC 8 0 R /AP << /N 7 0 R >>");
    QTest::newRow("unset check box") << annotation("Widget",
                                                   "/FT /Btn /AS /Off /AP << /N << /On 7 0 R >> >>");
  }
  void whatIsNotShownIsNotWritten() {
    QFETCH(QByteArray, drawing);
    const QByteArray pdf = kit::madePdf(
        {"<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [8 0 R] /D << /OFF [8 0 R] >> >> >>",
         "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
         "<< /Type /Page /Parent 2 0 R /Contents 4 0 R /MediaBox [0 0 200 100] /Annots [6 0 R] >>",
         kit::stream("0 0 1 rg 0 0 20 20 re f"), "null", drawing,
         kit::stream("1 0 0 rg 0 0 100 40 re f", "/Type /XObject /Subtype /Form /BBox [0 0 100 40]"),
         "<< /Type /OCG /Name (hidden) >>"});
    const QImage nothing = screen(kit::onePage("0 0 1 rg 0 0 20 20 re f"));
    QCOMPARE(screen(pdf), nothing);
    QCOMPARE(screen(written(pdf)), nothing);
  }

  void unknownFlagsHideNothing() {  // "invisible" is about kinds that nobody knows
    const QByteArray pdf = page({annotation("Square", "/C [1 0 0] /IC [1 0 0]", "1")});
    QCOMPARE(screen(written(pdf)), screen(pdf));
    QCOMPARE(screen(pdf).pixel(100, 100), qRgb(255, 0, 0));
  }

  void fieldsAreDrawnAnewWhereTheFileAsksForIt() {
    const QByteArray field =
        "<< /Type /Annot /Subtype /Widget /FT /Tx /T (a) /V (New) /F 4 /Rect [10 35 110 75] /DA (/Helv 20 Tf "
        "0 g) "
        "/AP << /N 7 0 R >> >>";
    const QByteArray old =
        kit::stream("1 0 0 rg 0 0 100 40 re f", "/Type /XObject /Subtype /Form /BBox [0 0 100 40]");
    for (const char* wanted : {"true", "false"}) {
      const QByteArray pdf = kit::madePdf(
          {QByteArray("<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [6 0 R] /NeedAppearances ") +
               wanted + " /DR << /Font << /Helv 5 0 R >> >> >> >>",
           "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
           "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots [6 0 R] >>", "null",
           "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>", field, old});
      const QImage shown = screen(pdf);
      QVERIFY(difference(screen(page({}, {}, "")), shown) > 0.5);
      QVERIFY(difference(shown, screen(written(pdf))) < 0.1);
    }
  }

  void fieldsTakeWhatTheirParentsSay() {
    const QByteArray pdf =
        kit::madePdf({"<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [7 0 R] /DR << /Font << /Helv 5 0 "
                      "R >> >> >> >>",
                      "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots [6 0 R] >>", "null",
                      "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
                      "<< /Type /Annot /Subtype /Widget /F 4 /Rect [10 35 110 75] /P 3 0 R /Parent 7 0 R >>",
                      "<< /FT /Tx /T (a) /V (Parent) /DA (/Helv 20 Tf 0 g) /Kids [6 0 R] >>"});
    const QImage shown = screen(pdf);
    QVERIFY(difference(screen(page({}, {}, "")), shown) > 0.5);
    QVERIFY(difference(shown, screen(written(pdf))) < 0.1);
  }

  // An appearance of the file's own is copied, never drawn again: its operators are there word for word.
  void appearancesOfTheFileAreCopied() {
    const QByteArray pdf =
        kit::onePage("", "/MediaBox [0 0 200 100] /Annots [5 0 R]",
                     {"<< /Type /Annot /Subtype /Square /F 4 /Rect [10 10 50 50] /AP << /N 6 0 R >> >>",
                      kit::stream("% the file's own\n0 0 1 rg 0 0 40 40 re f",
                                  "/Type /XObject /Subtype /Form /BBox [0 0 40 40]")});
    auto file = PdfFile::open(written(pdf));
    QVERIFY(file.ok());
    int own = 0;
    int streams = 0;
    for (QPDFObjectHandle object : (*file)->qpdf().getAllObjects()) {
      if (!object.isStream()) continue;
      ++streams;
      const auto data = object.getStreamData(qpdf_dl_generalized);
      own += QByteArray(reinterpret_cast<const char*>(data->getBuffer()), qsizetype(data->getSize()))
                 .contains("the file's own");
    }
    QCOMPARE(own, 1);
    QCOMPARE(streams, 3);  // the new page, the old page, the appearance
  }

  void damagedAnnotationsAreHarmless() {
    for (const char* annotations :
         {"[null 7 (x) << >>]", "<< >>", "[<< /Subtype /Square >>]",
          "[<< /Subtype /Line /Rect [0 0 1e30 1] /L [1 2] >> << /Subtype /Ink /InkList 3 >>]",
          "[<< /Subtype /Widget /Parent 3 0 R >>]", "[3 0 R]"}) {
      const QByteArray pdf = kit::onePage("1 0 0 rg 0 0 200 100 re f",
                                          QByteArray("/MediaBox [0 0 200 100] /Annots ") + annotations);
      QVERIFY2(difference(screen(pdf), screen(written(pdf))) < 0.1, annotations);
    }
  }
};

NORVEX_TEST(AnnotationDrawingsTest)
#include "annotation_drawings_test.moc"
