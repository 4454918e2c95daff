// `norvex check` of pictures in memory: what is looked at, and how it is told.
#include <QImage>
#include <QJsonObject>
#include <QPainter>

#include "check/check_files.h"
#include "cli/examined_line.h"
#include "kit/test_main.h"
#include "protocol/limits.h"
#include "protocol/shared_errors.h"

using namespace norvex;
using namespace norvex::checkfiles;
using namespace norvex::testdata;

namespace {

const QString kNoPreview = "note: there is no preview (eps.preview.missing)";

class Checking : public ExaminedLine {
 public:
  /// The findings, a line each, without the file's name.
  QStringList found(const QByteArray& bytes, const QString& name = "a.eps") {
    asked.clear();
    setPages(pages);
    const QString file = write(name, bytes);
    code = run({"check", file});
    QStringList lines = QString::fromUtf8(console.output).split('\n', Qt::SkipEmptyParts);
    for (QString& line : lines) line.replace(file + ": ", QString()).replace(file + ":", "line ");
    return lines;
  }
  int pages = 1;
  int code = -1;
};

/// One half black, as the preview of withPreview() is.
QImage halfBlack(const QSize& size, bool left) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter(&image).fillRect(left ? 0 : size.width() / 2, 0, size.width() / 2, size.height(), Qt::black);
  return image;
}

}  // namespace

class CheckTest : public QObject {
  Q_OBJECT
 private slots:
  void aFilePerLineWithItsPlaceAndItsRule() {
    Checking line;
    QCOMPARE(line.found(checkfiles::kEps), QStringList{kNoPreview});
    QCOMPARE(line.code, 0);
    QVERIFY(line.console.messages.isEmpty());
    line.drawn.ink = QRectF(0, 0, 90, 50);
    QCOMPARE(
        line.found(checkfiles::kEps),
        QStringList({"warning: the bounding box 10 10 90 60 cuts the ink off, which reaches 10 pt beyond "
                     "it: 10 10 100 60, at 45 25 (eps.bounding-box.cuts-ink)",
                     kNoPreview}));
    QCOMPARE(line.code, 0);
    QCOMPARE(line.found(eps("0 0 0 1 setcmykcolor\n", "initclip 0 0 0 1 setcmykcolor\n")).at(0).left(15),
             "line 9: warning");
  }

  void jsonHasTheSameFacts() {
    Checking line;
    line.drawn.ink = QRectF(0, 0, 90, 50);
    const QString file = line.write("a.eps", checkfiles::kEps);
    QCOMPARE(line.run({"check", "--json", file}), 0);
    const QJsonArray files = jsonOf(line);
    QCOMPARE(files.size(), 1);
    QCOMPARE(files[0]["file"].toString(), file);
    const QJsonObject one = files[0]["findings"][0].toObject();
    QCOMPARE(one["identifier"].toString(), "eps.bounding-box.cuts-ink");
    QCOMPARE(one["severity"].toString(), "warning");
    QCOMPARE(one["source"].toString(), "EPSF 3.0, the box encloses all marks");
    QCOMPARE(one["mend"].toString(), "repair computes it");
    QCOMPARE(one["rectangle"].toArray(), QJsonArray({0, 0, 90, 50}));
    for (const char* absent : {"page", "line", "object"}) QVERIFY(!one.contains(absent));
    QCOMPARE(line.run({"check", "--json", file, file}), 0);
    QCOMPARE(jsonOf(line).size(), 2);
  }

  void sharpEdgesAreLookedForWhereSomethingIsToBeToldOfThem() {
    Checking line;
    (void)line.found(checkfiles::kEps);
    QCOMPARE(line.dpiOfDrawn().size(), 1);
    QVERIFY(line.dpiOfDrawn().first() != 1440);
    line.drawn.accuracy = 20;  // perhaps there is ink on 40 by 10 points alone
    QCOMPARE(line.found(checkfiles::kEps), QStringList{kNoPreview});
    QCOMPARE(line.dpiOfDrawn().size(), 2);
    QCOMPARE(line.dpiOfDrawn().last(), 1440.0);
    line.drawn.accuracy = 10;
    (void)line.found(checkfiles::kEps);
    QCOMPARE(line.dpiOfDrawn().size(), 1);
  }

  void whatFillsEveryPageSaysNothingOfItsBox() {
    Checking line;
    line.drawn.area = QRectF(-100, -100, 300, 300);
    line.drawn.ink = QRectF(-99, -100, 299, 300);
    QCOMPARE(line.found(checkfiles::kEps), QStringList{kNoPreview});
    QCOMPARE(line.dpiOfDrawn().size(), 1);
    line.drawn.ink = QRectF(-98, -100, 298, 300);
    QVERIFY(line.found(checkfiles::kEps).at(0).endsWith("(eps.bounding-box.cuts-ink)"));
  }

  void aPreviewOfAnotherPictureIsTold() {
    Checking line;
    bool left = true;
    line.paint = [&left](const RenderRequest& request) { return halfBlack(request.pixelSize, left); };
    QVERIFY(line.found(withPreview(checkfiles::kEps, true)).isEmpty());
    QCOMPARE(line.painted.last().pixelSize, QSize(256, 160));
    QCOMPARE(line.painted.last().pictureToDevice, QTransform(3.2, 0, 0, -3.2, 0, 160));
    left = false;
    const QStringList found = line.found(withPreview(checkfiles::kEps, true));
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.at(0).startsWith("warning: the preview shows another picture than the program draws"),
             qPrintable(found.at(0)));
  }

  void aProgramThatStopsIsAFindingAndAProcessThatDiesIsNone() {
    Checking line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Examine, {ErrorKind::NotParsable, QStringLiteral("it stops")});
    });
    QCOMPARE(line.found(checkfiles::kEps), QStringList({"error: it stops (eps.program.fails)", kNoPreview}));
    QCOMPARE(line.code, 1);
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Examine, {ErrorKind::Died, QStringLiteral("it died")});
    });
    QCOMPARE(line.found(checkfiles::kEps), QStringList{kNoPreview});
    QCOMPARE(line.code, 3);
    QVERIFY(line.console.messages.contains("it died"));
  }

  void theSameOfSeveralPagesIsToldOfTheFirst() {
    Checking line;
    line.pages = 4;
    PageContents seeThrough = line.page;
    seeThrough.transparency = QRectF(10, 20, 30, 40);
    line.contentsOfPage[1] = line.contentsOfPage[3] = seeThrough;
    PageContents outside = line.page;
    outside.outside = Measured{5, QRectF(-5, 0, 10, 10)};
    line.contentsOfPage[2] = outside;
    QCOMPARE(line.found(testdata::kPdf, "a.pdf"),
             QStringList({"note: page 2: there is transparency, at 25 40 (transparency.used)",
                          "note: page 3: something is drawn up to 5.00 pt outside the page, at 0 5 "
                          "(page.outside)"}));
    QCOMPARE(line.asked.size(), 4);
    line.pages = 1;
    line.contentsOfPage[0] = seeThrough;
    QCOMPARE(line.found(testdata::kPdf, "a.pdf"),
             QStringList{"note: there is transparency, at 25 40 (transparency.used)"});
    PageContents twice = seeThrough;  // both of one page are told
    twice.spotInks = {"Gold", "Gold"};
    line.contentsOfPage[0] = twice;
    QCOMPARE(line.found(testdata::kPdf, "a.pdf").size(), 3);
  }

  void aHundredPagesAreLookedAt() {
    Checking line;
    line.pages = limits::maximumExaminedPages;
    QVERIFY(line.found(testdata::kPdf, "a.pdf").isEmpty());
    QCOMPARE(line.asked.size(), 100);
    ++line.pages;
    QCOMPARE(line.found(testdata::kPdf, "a.pdf"),
             QStringList{"note: only the first 100 pages were looked at (page.unread)"});
    QCOMPARE(line.asked.size(), 100);
  }

  void damageIsToldOnceWhereverItShows() {
    const QString damaged = QString("error: %1 (pdf.damaged)").arg(damagedFile());
    Checking line;
    line.pages = 2;
    line.contentsOfPage[1] = line.page;
    line.contentsOfPage[1].remarks = {damagedFile()};
    QCOMPARE(line.found(testdata::kPdf, "a.pdf"), QStringList{damaged});
    QCOMPARE(line.code, 1);
    line.contentsOfPage.clear();
    line.warnings = {damagedFile()};
    QCOMPARE(line.found(testdata::kPdf, "a.pdf"), QStringList{damaged});
    line.warnings = {"another"};
    QVERIFY(line.found(testdata::kPdf, "a.pdf").isEmpty());
    QCOMPARE(line.code, 0);
  }
};

NORVEX_TEST(CheckTest)
#include "check_test.moc"
