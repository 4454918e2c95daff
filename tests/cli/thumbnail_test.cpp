// `norvex thumbnail`.
#include <QDateTime>
#include <QFileInfo>
#include <QImage>

#include "cli/cli_files.h"
#include "kit/test_main.h"
#include "metadata/binary_eps.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

QImage pngAt(const CommandLine& line, const QString& name) {
  return QImage::fromData(line.contents(name), "PNG");
}

}  // namespace

class ThumbnailTest : public QObject {
  Q_OBJECT
 private slots:
  void anEmbeddedPreviewIsShownWithoutRunningThePostScript() {
    CommandLine line;
    QCOMPARE(line.run({"thumbnail", "-s", "64", line.write("a.epsi", kEpsi), line.path("out.png")}), 0);
    QCOMPARE(line.service.openCount(), 0);
    const QImage image = pngAt(line, "out.png");
    QCOMPARE(image.size(), QSize(8, 2));  // never enlarged
    QCOMPARE(qGray(image.pixel(0, 0)), 0);
    QCOMPARE(qGray(image.pixel(0, 1)), 255);
  }

  void withoutAPreviewThePictureIsDrawnAtTheSizeThatIsAskedFor() {
    CommandLine line;
    QCOMPARE(line.run({"thumbnail", "--size", "50", line.write("a.eps", kEps), line.path("out.png")}), 0);
    QCOMPARE(line.service.openCount(), 1);
    QCOMPARE(pngAt(line, "out.png").size(), QSize(38, 50));  // of 30 x 40 points
  }

  void theLongerSideHasFromOnePixelTo2048() {
    CommandLine line;
    const QString file = line.write("a.pdf", kPdf);
    for (const int side : {1, 2048}) {
      QCOMPARE(line.run({"thumbnail", "-s", QString::number(side), file, line.path("out.png"), "--force"}),
               0);
      QCOMPARE(pngAt(line, "out.png").width(), side);
    }
    QCOMPARE(line.run({"thumbnail", "-s", "2049", file, line.path("out.png"), "--force"}), 2);
  }

  void withoutASizeTheLongerSideHasTheUsualOne() {
    CommandLine line;
    QCOMPARE(line.run({"thumbnail", line.write("a.pdf", kPdf), line.path("out.png")}), 0);
    QCOMPARE(pngAt(line, "out.png").size(), QSize(128, 64));
  }

  void pagesLieOnPaperAndDrawingsStayTransparent() {
    MemoryPicture clear;
    clear.paint = [](const RenderRequest& request) {
      QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::transparent);
      return image;
    };
    CommandLine line;
    line.service.setPicture(clear);
    QCOMPARE(line.run({"thumbnail", line.write("a.pdf", kPdf), line.path("pdf.png")}), 0);
    QCOMPARE(pngAt(line, "pdf.png").pixelColor(1, 1), QColor(Qt::white));
    QCOMPARE(line.run({"thumbnail", line.write("a.svg", kSvg), line.path("svg.png")}), 0);
    QCOMPARE(pngAt(line, "svg.png").pixelColor(1, 1).alpha(), 0);
  }

  void theAddressAndTheTimeAreNotedWhereTheyAreAskedFor() {
    CommandLine line;
    const QString file = line.write("a.pdf", kPdf), uri = "file:///home/%C3%A4/" + QString(80, 'x') + ".pdf";
    QCOMPARE(line.run({"thumbnail", "--uri", uri, file, line.path("out.png")}), 0);
    const QImage image = pngAt(line, "out.png");
    QCOMPARE(image.text("Thumb::URI"), uri);
    QCOMPARE(image.text("Thumb::MTime"), QString::number(QFileInfo(file).lastModified().toSecsSinceEpoch()));
    QCOMPARE(line.run({"thumbnail", file, line.path("plain.png")}), 0);
    QVERIFY(pngAt(line, "plain.png").text("Thumb::URI").isEmpty());
  }

  void theFileThatTheDesktopMadeForItIsWrittenOver() {
    CommandLine line;
    const QString made = line.write("out.png", {});
    QCOMPARE(line.run({"thumbnail", line.write("a.pdf", kPdf), made}), 0);
    QVERIFY(!pngAt(line, "out.png").isNull());
  }

  void aFailureLeavesNothingAndIsToldInOneLine() {
    CommandLine line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Render, {ErrorKind::NotParsable, "the program ends too early"});
    });
    const QString file = line.write("a.eps", kEps);
    QCOMPARE(line.run({"thumbnail", file, line.path("out.png")}), 3);
    QCOMPARE(line.console.messages, QString("norvex: %1: the program ends too early\n").arg(file));
    QCOMPARE(line.entries(), QStringList{"a.eps"});
  }

  void aPreviewThatCannotBeReadIsReplacedByADrawing() {
    CommandLine line;
    line.service.setPreview(Error{ErrorKind::NotParsable, "no TIFF"});
    const QByteArray program = binaryEps(kEps, "II*");
    QCOMPARE(line.run({"thumbnail", line.write("a.eps", program), line.path("out.png")}), 0);
    QCOMPARE(line.service.openCount(), 1);
  }

  void theInputItselfIsNeverWrittenOver() {
    CommandLine line;
    const QString file = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"thumbnail", file, file}), 4);
    QCOMPARE(line.contents("a.pdf"), kPdf);
  }

  void standardInputToStandardOutput() {
    CommandLine line;
    line.console.standardInput = kPdf;
    QCOMPARE(line.run({"thumbnail", "-", "-"}), 0);
    QCOMPARE(QImage::fromData(line.console.output, "PNG").size(), QSize(128, 64));
    QVERIFY(line.entries().isEmpty());
  }

  void aPasswordComesFromStandardInputWhereOnlyTheOutputIsStandard() {
    CommandLine line;
    line.console.standardInput = "secret\n";
    const QString file = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"thumbnail", "--password-file", "-", file, "-"}), 0);
    QCOMPARE(line.run({"thumbnail", "--password-file", "-", "-", "-"}), 2);
    QCOMPARE(line.console.messages.count("cannot both come from standard input"), 1);
  }

  void wrongUsage_data() {
    QTest::addColumn<QStringList>("given");
    QTest::newRow("no output") << QStringList{"a.eps"};
    QTest::newRow("two outputs") << QStringList{"a.eps", "b.png", "c.png"};
    QTest::newRow("standard input and a second output") << QStringList{"-", "-", "-"};
    QTest::newRow("no size at all") << QStringList{"-s", "0", "a.eps", "b.png"};
    QTest::newRow("a size beyond all screens") << QStringList{"-s", "100000", "a.eps", "b.png"};
    QTest::newRow("a size that is none") << QStringList{"-s", "large", "a.eps", "b.png"};
  }
  void wrongUsage() {
    QFETCH(QStringList, given);
    CommandLine line;
    QCOMPARE(line.run(QStringList{"thumbnail"} + given), 2);
    QCOMPARE(line.console.messages.count('\n'), 1);
  }
};

NORVEX_TEST(ThumbnailTest)
#include "thumbnail_test.moc"
