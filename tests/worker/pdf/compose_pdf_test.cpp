#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>
#include <numbers>

#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/pdf/pdf_file.h"

using namespace norvex;
using namespace norvex::engine;
using kit::onePage;

namespace {

const QByteArray kResources =
    "/Resources << /Font << /F 5 0 R >> /Shading << /S 6 0 R >> /ExtGState << /H << /ca 0.5 /BM /Multiply >> "
    ">> >>";
const QList<QByteArray> kObjects{
    "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 100 0] /Function << /FunctionType 2 /Domain [0 1] "
    "/C0 [0 1 1] /C1 [1 0 1] /N 1 >> >>"};
// A gradient, text, a line and two half-transparent squares: something of everything, nothing symmetrical.
const QByteArray kPicture =
    "q 20 20 80 60 re W n 1 0 0 1 20 0 cm /S sh Q BT /F 24 Tf 30 40 Td (Gauge) Tj ET 2 w 0 0 1 RG 10 10 m "
    "190 90 l S "
    "/H gs 1 0 0 rg 120 20 40 40 re f 0 1 0 rg 140 40 40 40 re f";

QByteArray picture(const QByteArray& more = {}) {
  return onePage(kPicture, "/MediaBox [0 0 200 100] " + kResources + more, kObjects);
}

ComposeRequest request(const QRectF& rect, double degrees = 0) {
  ComposeRequest result;
  result.rect = rect;
  result.rotate = degrees * std::numbers::pi / 180;
  return result;
}

struct Run {
  int status = -1;
  QByteArray output;
};

Run run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  if (!process.waitForFinished(60000)) return {};
  return {process.exitCode(), process.readAll()};
}

QString written(const QTemporaryDir& folder, const char* name, const QByteArray& bytes) {
  const QString path = folder.filePath(QString::fromLatin1(name));
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return {};
  return path;
}

QImage byMutool(const QTemporaryDir& folder, const QString& pdf) {
  const QString png = folder.filePath("mutool.png");
  run("mutool", {"draw", "-q", "-r", "144", "-c", "rgb", "-o", png, pdf, "1"});
  return QImage(png).convertToFormat(QImage::Format_RGB32);
}

QImage byPoppler(const QTemporaryDir& folder, const QString& pdf) {
  const QString stem = folder.filePath("poppler");
  run("pdftoppm", {"-r", "144", "-png", "-singlefile", pdf, stem});
  return QImage(stem + ".png").convertToFormat(QImage::Format_RGB32);
}

QImage byOurselves(const QByteArray& pdf, QSizeF size, double scale, const QTransform& toDevice = {}) {
  EngineContext context;
  auto engine = openPdf(pdf, context);
  if (!engine) return {};
  RenderRequest wanted;
  wanted.pixelSize = (size * scale).toSize();
  wanted.pictureToDevice = toDevice * QTransform(scale, 0, 0, -scale, 0, size.height() * scale);
  const auto image = kit::imageOf((*engine)->render(wanted));
  if (!image) return {};
  QImage onWhite(image->size(), QImage::Format_RGB32);
  onWhite.fill(Qt::white);
  for (int y = 0; y < image->height(); ++y)
    for (int x = 0; x < image->width(); ++x) {
      const QRgb p = image->pixel(x, y);
      const QRgb* raw = reinterpret_cast<const QRgb*>(image->constScanLine(y)) + x;
      const int rest = 255 - qAlpha(p);
      onWhite.setPixel(x, y, qRgb(qRed(*raw) + rest, qGreen(*raw) + rest, qBlue(*raw) + rest));
    }
  return onWhite;
}

// Mean difference of a channel, 0 … 255; 255 when the sizes differ by more than a pixel.
double difference(const QImage& a, const QImage& b) {
  if (a.isNull() || b.isNull() || std::abs(a.width() - b.width()) > 1 ||
      std::abs(a.height() - b.height()) > 1)
    return 255;
  double sum = 0;
  const int w = std::min(a.width(), b.width());
  const int h = std::min(a.height(), b.height());
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
    }
  return sum / (3.0 * w * h);
}

QRectF boxOf(const QByteArray& pdf) {
  auto file = PdfFile::open(pdf);
  return file ? (*file)->geometry(0).shownBounds() : QRectF();
}

}  // namespace

class ComposePdfTest : public QObject {
  Q_OBJECT
 private slots:
  void thePageIsTheRectangle_data() {
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("whole") << QSizeF(200, 100);
    QTest::newRow("fractions") << QSizeF(12.3456, 78.9);
    QTest::newRow("less than a point") << QSizeF(0.25, 0.5);
    QTest::newRow("larger than the picture") << QSizeF(1000, 2000);
  }
  void thePageIsTheRectangle() {
    QFETCH(QSizeF, size);
    for (const double degrees : {0.0, 30.0}) {
      const auto pdf = composePdf(picture(), request(QRectF(QPointF(-20, -30), size), degrees));
      QVERIFY(pdf.ok());
      const QRectF box = boxOf(*pdf);
      QCOMPARE(box.topLeft(), QPointF(0, 0));
      QVERIFY(std::abs(box.width() - size.width()) <= 0.01 && std::abs(box.height() - size.height()) <= 0.01);
    }
  }

  void otherProgramsAcceptIt() {
    QTemporaryDir folder;
    const auto pdf = composePdf(picture(), request(QRectF(-50, -25, 120, 60), 30));
    QVERIFY(pdf.ok());
    const QString path = written(folder, "composed.pdf", *pdf);
    const Run check = run("qpdf", {"--check", path});
    QVERIFY2(check.status == 0, check.output.constData());
    QVERIFY(run("pdffonts", {path}).output.contains("Helvetica"));  // text is still text
    QVERIFY(!run("pdfimages", {"-list", path}).output.contains("image "));
    QVERIFY(run("pdfinfo", {path}).output.contains("Pages:           1"));
  }

  // The composed page, drawn by three programs, against the turned whole page drawn by this one. Text and
  // lines are smoothed differently by each program; a picture that is off by a pixel, or lost a part, differs
  // by more than 5 in the mean.
  void itLooksLikeTheTurnedPage_data() {
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("whole, upright") << 0.0 << QRectF(-100, -50, 200, 100);
    QTest::newRow("part, 30 degrees") << 30.0 << QRectF(-60, -40, 110, 90);
    QTest::newRow("part, a quarter") << 90.0 << QRectF(-45, -90, 80, 150);
    QTest::newRow("part, 200.5 degrees") << 200.5 << QRectF(-80.5, -30.25, 120, 70);
  }
  void itLooksLikeTheTurnedPage() {
    QFETCH(double, degrees);
    QFETCH(QRectF, rect);
    QTemporaryDir folder;
    const auto pdf = composePdf(picture(), request(rect, degrees));
    QVERIFY(pdf.ok());
    const QString path = written(folder, "composed.pdf", *pdf);
    const double angle = degrees * std::numbers::pi / 180;
    const QTransform toRect =
        QTransform::fromTranslate(-100, -50) *
        QTransform(std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0) *
        QTransform::fromTranslate(-rect.x(), -rect.y());
    const QImage expected = byOurselves(picture(), rect.size(), 2, toRect);
    QVERIFY(difference(expected, byOurselves(*pdf, rect.size(), 2)) < 0.5);
    QVERIFY2(difference(expected, byPoppler(folder, path)) < 3,
             qPrintable(QString::number(difference(expected, byPoppler(folder, path)))));
    QVERIFY2(difference(expected, byMutool(folder, path)) < 5,
             qPrintable(QString::number(difference(expected, byMutool(folder, path)))));
  }

  void turnedCroppedAndEnlargedPagesComeOutAsShown_data() {
    QTest::addColumn<QByteArray>("page");
    for (const char* page : {"/Rotate 90", "/Rotate 180", "/Rotate 270", "/CropBox [10 20 150 90]",
                             "/CropBox [10 20 150 90] /Rotate 90", "/UserUnit 1.5 /Rotate 270"})
      QTest::newRow(page) << QByteArray(page);
  }
  void turnedCroppedAndEnlargedPagesComeOutAsShown() {
    QFETCH(QByteArray, page);
    const QSizeF size = boxOf(picture(page)).size();
    const QRectF rect(QPointF(-size.width() / 2, -size.height() / 2), size);
    const auto pdf = composePdf(picture(page), request(rect));
    QVERIFY(pdf.ok());
    QVERIFY(difference(byOurselves(picture(page), size, 2), byOurselves(*pdf, size, 2)) < 0.5);
  }

  void thePageGroupStays() {
    const QByteArray group = "/Group << /S /Transparency /CS /DeviceCMYK /I true /K false >>";
    const auto pdf = composePdf(picture(group), request(QRectF(-100, -50, 200, 100)));
    QVERIFY(pdf.ok());
    auto file = PdfFile::open(*pdf);
    QVERIFY(file.ok());
    QPDFObjectHandle kept = (*file)->page(0).getKey("/Group");
    QVERIFY(kept.isDictionary());
    QCOMPARE(kept.getKey("/CS").getName(), std::string("/DeviceCMYK"));
  }

  void contentsInPiecesAreJoined() {
    const QByteArray page = "/MediaBox [0 0 200 100] /Contents [5 0 R 6 0 R]";
    const QByteArray pdf = onePage("", page, {kit::stream("1 0 0 rg 0 0 100"), kit::stream("100 re f")});
    const auto composed = composePdf(pdf, request(QRectF(-100, -50, 200, 100)));
    QVERIFY(composed.ok());
    QCOMPARE(byOurselves(*composed, {200, 100}, 1).pixel(50, 50), qRgb(255, 0, 0));
  }

  void aPageWithoutContentsIsAnEmptyPage() {
    const QByteArray pdf =
        kit::madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 10 10] >>"});
    const auto composed = composePdf(pdf, request(QRectF(-5, -5, 10, 10)));
    QVERIFY2(composed.ok(), composed ? "" : qPrintable(composed.error().message));
    QCOMPARE(boxOf(*composed), QRectF(0, 0, 10, 10));
  }

  void appearancesOfAnnotationsAreDrawn() {
    const QByteArray page = "/MediaBox [0 0 200 100] /Annots [5 0 R]";
    const QByteArray pdf =
        onePage("", page,
                {"<< /Type /Annot /Subtype /Stamp /F 4 /Rect [10 10 50 50] /AP << /N 6 0 R >> >>",
                 kit::stream("0 0 1 rg 0 0 40 40 re f", "/Type /XObject /Subtype /Form /BBox [0 0 40 40]")});
    const auto composed = composePdf(pdf, request(QRectF(-100, -50, 200, 100)));
    QVERIFY(composed.ok());
    QCOMPARE(byOurselves(*composed, {200, 100}, 1).pixel(30, 70), qRgb(0, 0, 255));
  }

  void layersThatAreOffStayOff() {
    const QByteArray page = "/MediaBox [0 0 200 100] /Resources << /Properties << /L 5 0 R >> >>";
    const QByteArray pdf = kit::madePdf(
        {"<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [5 0 R] /D << /OFF [5 0 R] >> >> >>",
         "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
         "<< /Type /Page /Parent 2 0 R /Contents 4 0 R " + page + " >>",
         kit::stream("/OC /L BDC 1 0 0 rg 0 0 200 100 re f EMC 0 0 1 rg 0 0 50 100 re f"),
         "<< /Type /OCG /Name (hidden) >>"});
    const auto composed = composePdf(pdf, request(QRectF(-100, -50, 200, 100)));
    QVERIFY(composed.ok());
    const QImage image = byOurselves(*composed, {200, 100}, 1);
    QCOMPARE(image.pixel(25, 50), qRgb(0, 0, 255));
    QCOMPARE(image.pixel(150, 50), qRgb(255, 255, 255));
  }

  void theSameRequestGivesTheSameBytes() {
    const auto first = composePdf(picture(), request(QRectF(-10, -10, 20, 20), 45));
    const auto second = composePdf(picture(), request(QRectF(-10, -10, 20, 20), 45));
    QVERIFY(first.ok() && second.ok());
    QCOMPARE(*first, *second);
  }

  void otherPagesAndTheirThingsAreLeftBehind() {
    const QByteArray pdf =
        kit::madePdf({"<< /Type /Catalog /Pages 2 0 R /Outlines 6 0 R >>",
                      "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 /MediaBox [0 0 9 9] >>",
                      "<< /Type /Page /Parent 2 0 R /Contents 5 0 R >>", "<< /Type /Page /Parent 2 0 R >>",
                      kit::stream(QByteArray(9000, ' ')), "<< /Type /Outlines /Secret (left behind) >>",
                      "<< /Title (old title) >>"},
                     "/Info 7 0 R");
    ComposeRequest second = request(QRectF(-4.5, -4.5, 9, 9));
    second.page = 1;
    const auto composed = composePdf(pdf, second);
    QVERIFY(composed.ok());
    QVERIFY(composed->size() < 2000);
    QVERIFY(!composed->contains("left behind") && !composed->contains("old title"));
  }

  void requestsThatCannotBeMetAreTold() {
    const auto kindOf = [](const ComposeRequest& wanted) {
      const auto pdf = composePdf(picture(), wanted);
      return pdf ? std::optional<ErrorKind>() : pdf.error().kind;
    };
    QCOMPARE(kindOf(request(QRectF(0, 0, 0, 10))), ErrorKind::Protocol);
    QCOMPARE(kindOf(request(QRectF(0, 0, 10, -1))), ErrorKind::Protocol);
    QCOMPARE(kindOf(request(QRectF(0, 0, qInf(), 10))), ErrorKind::Protocol);
    QCOMPARE(kindOf(request(QRectF(qQNaN(), 0, 10, 10))), ErrorKind::Protocol);
    ComposeRequest missing = request(QRectF(0, 0, 10, 10));
    missing.page = 1;
    QCOMPARE(kindOf(missing), ErrorKind::Unsupported);
  }
};

NORVEX_TEST(ComposePdfTest)
#include "compose_pdf_test.moc"
