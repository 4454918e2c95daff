// Sheets of paper from a picture, as other programs see them.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

#include "kit/program.h"
#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/compose_pages.h"
#include "worker/pdf/pdf_file.h"

using namespace norvex;
using namespace norvex::engine;
using kit::onePage;
using kit::run;

namespace {

/// Left half red, right half blue, a word in the middle; the page's box does not begin at the origin.
QByteArray picture() {
  return onePage(
      "1 0 0 rg 50 50 100 100 re f 0 0 1 rg 150 50 100 100 re f BT /F 12 Tf 60 90 Td (Inside) Tj ET",
      "/MediaBox [50 50 250 150] /Resources << /Font << /F 5 0 R >> >>",
      {"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"});
}

PagesRequest twoSheets() {
  PagesRequest request;
  request.paper = QSizeF(300, 400);
  request.title = "A job";
  request.sheets = {{QRectF(0, 0, 100, 100), QRectF(10, 20, 100, 100)},
                    {QRectF(100, 0, 100, 100), QRectF(10, 20, 200, 200)}};
  return request;
}

}  // namespace

class ComposePagesTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;

  QString written(const QByteArray& pdf) {
    const QString path = folder_.filePath("out.pdf");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size()) return {};
    return path;
  }
  /// One pixel a point, the first row at the sheet's upper edge.
  QImage drawn(const QString& path, int page) {
    const QString number = QString::number(page);
    run("pdftocairo",
        {"-png", "-singlefile", "-r", "72", "-f", number, "-l", number, path, folder_.filePath("page")});
    return QImage(folder_.filePath("page.png"));
  }

 private slots:
  void everySheetShowsItsPartInItsPlace() {
    const Result<QByteArray> pdf = composePages(picture(), twoSheets());
    QVERIFY2(pdf.ok(), pdf.ok() ? "" : qPrintable(pdf.error().message));
    const QString path = written(*pdf);
    QCOMPARE(run("qpdf", {"--check", path}).exitCode, 0);
    const QByteArray facts = run("pdfinfo", {path}).out;
    QVERIFY(facts.contains("Pages:           2\n"));
    QVERIFY(facts.contains("Page size:       300 x 400 pts\n"));
    QVERIFY(facts.contains("Title:           A job\n"));
    const QImage first = drawn(path, 1), second = drawn(path, 2);
    QCOMPARE(first.size(), QSize(300, 400));
    QCOMPARE(first.pixelColor(105, 400 - 115), QColor(Qt::red));
    QCOMPARE(first.pixelColor(115, 400 - 100), QColor(Qt::white));
    QCOMPARE(second.pixelColor(15, 400 - 25), QColor(Qt::blue));
    QCOMPARE(second.pixelColor(205, 400 - 215), QColor(Qt::blue));
    QCOMPARE(second.pixelColor(215, 400 - 100), QColor(Qt::white));
  }

  void thePictureIsInTheFileOnceAndStaysVectorsAndText() {
    const QString path = written(*composePages(picture(), twoSheets()));
    QCOMPARE(run("pdfimages", {"-list", path}).out.count('\n'), 2);  // the table's head alone
    QVERIFY(run("pdftotext", {path, "-"}).out.contains("Inside"));
    const QByteArray plain = run("qpdf", {"--qdf", "--object-streams=disable", path, "-"}).out;
    QCOMPARE(plain.count("(Inside) Tj"), 1);
  }

  void headerAndFooterAreText() {
    PagesRequest request = twoSheets();
    request.fontFamily = "sans-serif";
    request.header =
        SheetLine{QString::fromUtf8("\t\tFriday, 3 M\xC3\xA4rz & <co>"), QRectF(20, 370, 260, 12)};
    request.footer = SheetLine{"file:///tmp/My Pictures/a.eps\t\t", QRectF(20, 10, 260, 12)};
    const Result<QByteArray> pdf = composePages(picture(), request);
    QVERIFY2(pdf.ok(), pdf.ok() ? "" : qPrintable(pdf.error().message));
    const QString path = written(*pdf);
    QCOMPARE(run("qpdf", {"--check", path}).exitCode, 0);
    const QString text = QString::fromUtf8(run("pdftotext", {"-layout", path, "-"}).out);
    QCOMPARE(text.count(QString::fromUtf8("Friday, 3 M\xC3\xA4rz & <co>")), 2);
    QCOMPARE(text.count("file:///tmp/My Pictures/a.eps"), 2);
    QCOMPARE(run("pdfimages", {"-list", path}).out.count('\n'), 2);
    // The header ends at the right, the footer begins at the left.
    const QImage page = drawn(path, 1);
    const auto dark = [&](const QRect& rect) {
      for (int y = rect.top(); y <= rect.bottom(); ++y)
        for (int x = rect.left(); x <= rect.right(); ++x)
          if (qGray(page.pixel(x, y)) < 160) return true;
      return false;
    };
    QVERIFY(dark({265, 18, 16, 12}) && !dark({0, 18, 100, 12}) && !dark({282, 0, 18, 40}));
    QVERIFY(dark({18, 378, 16, 12}) && !dark({200, 378, 100, 12}));
  }

  void aLineHasThreeFieldsAndNothingThatXmlCannotHold() {
    PagesRequest request = twoSheets();
    request.sheets = request.sheets.mid(0, 1);
    request.picture = false;
    request.fontFamily = QStringLiteral("Somebody's & <sans>, sans-serif");
    request.header = SheetLine{QString("one") + QChar(0x01) + QChar(0x1f) + "two" + QChar(0xfffe) +
                                   QChar(0xffff) + "three\tmiddle\tend\tbeyond",
                               QRectF(20, 370, 260, 12)};
    const Result<QByteArray> pdf = composePages({}, request);
    QVERIFY2(pdf.ok(), pdf.ok() ? "" : qPrintable(pdf.error().message));
    const QByteArray text = run("pdftotext", {"-layout", written(*pdf), "-"}).out.simplified();
    QCOMPARE(text, "one two three middle end");
  }

  void aLineStandsInTheMiddleOfItsRoom() {
    PagesRequest request = twoSheets();
    request.fontFamily = "sans-serif";
    request.fontSize = 40;
    request.picture = false;
    request.header = SheetLine{"H\t\t", QRectF(20, 300, 260, 60)};
    const QImage page = drawn(written(*composePages({}, request)), 1);
    int first = page.height(), last = 0;
    for (int y = 0; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x)
        if (qGray(page.pixel(x, y)) < 128) first = std::min(first, y), last = y;
    QVERIFY2(std::abs((first + last) / 2.0 - (400 - 330)) < 3,
             qPrintable(QString("%1 to %2").arg(first).arg(last)));
  }

  void aLongLineIsShortenedInItsMiddle() {
    PagesRequest request = twoSheets();
    request.fontFamily = "sans-serif";
    request.footer =
        SheetLine{"file:///begin/" + QString(200, 'x') + "/end.eps\t\t", QRectF(20, 10, 260, 12)};
    const QString path = written(*composePages(picture(), request));
    const QString text = QString::fromUtf8(run("pdftotext", {"-layout", path, "-"}).out);
    QVERIFY2(text.contains("file:///begin/x") && text.contains("x/end.eps") && text.contains(QChar(0x2026)),
             qPrintable(text));
    // As much of its beginning as of its end.
    const QString line = text.mid(text.indexOf("file:///begin/")).section(u'\n', 0, 0);
    const QString head = line.section(QChar(0x2026), 0, 0), tail = line.section(QChar(0x2026), 1);
    QVERIFY2(std::abs(head.trimmed().size() - tail.trimmed().size()) <= 1, qPrintable(line));
    const QImage page = drawn(path, 1);
    for (int y = 375; y < 395; ++y)
      for (int x = 282; x < 300; ++x) QVERIFY(qGray(page.pixel(x, y)) > 200);
  }

  void withoutAPictureTheSheetsAreBlank() {
    PagesRequest request = twoSheets();
    request.picture = false;
    const Result<QByteArray> pdf = composePages({}, request);
    QVERIFY(pdf.ok());
    const QString path = written(*pdf);
    QVERIFY(run("pdfinfo", {path}).out.contains("Pages:           2\n"));
    const QImage page = drawn(path, 2);
    QCOMPARE(page.pixelColor(50, 300), QColor(Qt::white));
  }

  void anUnusableRequestIsRefused() {
    PagesRequest request = twoSheets();
    request.sheets.clear();
    QVERIFY(!composePages(picture(), request).ok());
    QVERIFY(!composePages("%PDF-1.4 nonsense", twoSheets()).ok());
    request = twoSheets();
    request.paper = QSizeF(0, 100);
    QVERIFY(!composePages(picture(), request).ok());
  }

  void theSameSheetsAreTheSameBytes() {
    QCOMPARE(*composePages(picture(), twoSheets()), *composePages(picture(), twoSheets()));
  }
};

NORVEX_TEST(ComposePagesTest)
#include "compose_pages_test.moc"
