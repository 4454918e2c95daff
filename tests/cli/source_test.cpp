// `norvex source` and `norvex preview`.
#include <QImage>

#include "cli/cli_files.h"
#include "kit/test_main.h"
#include "metadata/binary_eps.h"
#include "metadata/header_dictionary.h"
#include "metadata/text_encoding.h"

using namespace norvex;
using namespace norvex::testdata;

class SourceTest : public QObject {
  Q_OBJECT
 private slots:
  void anEpsIsWrittenAsItStands() {
    CommandLine line;
    QCOMPARE(line.run({"source", line.write("a.eps", kEps)}), 0);
    QCOMPARE(line.console.output, kEps);
    QCOMPARE(line.service.openCount(), 0);
  }

  void everyEncodingComesOutAsUtf8() {
    CommandLine line;
    const QString text = QString::fromLatin1(kEps) + QString::fromUtf8("% 日本語テスト\n");
    for (const qint64 number : {encoding::Utf8, encoding::Utf16, encoding::EucJp, encoding::ShiftJis}) {
      QCOMPARE(line.run({"source", line.write("a.eps", encodeText(text, number).value())}), 0);
      QCOMPARE(QString::fromUtf8(line.console.output), text);
    }
  }

  void anSvgIsWrittenIndented() {
    MemoryPicture picture;
    picture.facts.encodingNumber = 4;
    picture.svg = [](const SvgRequest& request) {
      return QByteArray(request.pretty ? "<svg>\n  <g/>\n</svg>\n" : "cut");
    };
    CommandLine line;
    line.service.setPicture(picture);
    QCOMPARE(line.run({"source", line.write("a.svg", kSvg)}), 0);
    QCOMPARE(line.console.output, QByteArray("<svg>\n  <g/>\n</svg>\n"));
  }

  void aPdfHasNone() {
    CommandLine line;
    const QString file = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"source", file}), 1);
    QCOMPARE(line.console.messages, QString("norvex: %1: a PDF has no source text\n").arg(file));
    QVERIFY(line.console.output.isEmpty());
  }

  void undecodableTextIsNotWrittenInPart() {
    CommandLine line;
    const QString file = line.write("a.eps", kEps + "\xFF\x80");
    QCOMPARE(line.run({"source", file}), 3);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: the text is in no encoding that is known\n").arg(file));
    QVERIFY(line.console.output.isEmpty());
  }

  void aFailingPictureProcessIsTold() {
    CommandLine line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Svg, {ErrorKind::Died, "the picture process ended"});
    });
    const QString file = line.write("a.svg", kSvg);
    QCOMPARE(line.run({"source", file}), 3);
    QCOMPARE(line.console.messages, QString("norvex: %1: the picture process ended\n").arg(file));
  }

  void aTerminalIsNotCommanded() {
    CommandLine line;
    line.console.terminal = true;
    QCOMPARE(line.run({"source", line.write("a.eps", "%!PS-Adobe-3.0 EPSF-3.0\n\x1B[31m\n")}), 0);
    QCOMPARE(line.console.output, QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n\\x1b[31m\n"));
  }

  void thePreviewIsWrittenAsGreyPng() {
    CommandLine line;
    const QString file = line.write("a.epsi", kEpsi);
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png")}), 0);
    const QImage image = QImage::fromData(line.contents("out.png"), "PNG");
    QCOMPARE(image.size(), QSize(8, 2));
    QVERIFY(image.isGrayscale());
    QCOMPARE(image.pixel(3, 0), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(3, 1), qRgb(255, 255, 255));
  }

  void aPreviewNeverOverwritesItsInput() {
    CommandLine line;
    const QString file = line.write("a.epsi", kEpsi);
    QCOMPARE(line.run({"preview", file, "-o", file, "--force"}), 4);
    QCOMPARE(line.contents("a.epsi"), kEpsi);
  }

  void thePreviewGoesToStandardOutput() {
    CommandLine line;
    const QString file = line.write("a.epsi", kEpsi);
    QCOMPARE(line.run({"preview", file, "--output", "-"}), 0);
    QCOMPARE(QImage::fromData(line.console.output, "PNG").size(), QSize(8, 2));
    line.console.terminal = true;
    QCOMPARE(line.run({"preview", file, "-o", "-"}), 4);
    QVERIFY(line.console.output.isEmpty());
  }

  void thePreviewIsBoundedLikeOtherPictures() {
    CommandLine line;
    NSBitmapImageRep rep;
    rep.pixelsWide = rep.pixelsHigh = rep.bytesPerRow = 1;
    rep.data = "x";
    line.service.setPreview(rep);
    const QString file = line.write("a.eps", testdata::binaryEps(kEps, "II*"));
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png"), "--timeout", "7", "--memory", "99"}), 0);
    QCOMPARE(line.service.previewLimits().seconds, 7);
    QCOMPARE(line.service.previewLimits().memoryMiB, 99);
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png"), "--timeout", "0"}), 2);
  }

  void aPreviewThatReachesALimitEndsWithFive() {
    CommandLine line;
    line.service.setPreview(Error{ErrorKind::Limit, "there is not enough memory for the picture"});
    const QString file = line.write("a.eps", testdata::binaryEps(kEps, "II*"));
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png")}), 5);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: there is not enough memory for the picture\n").arg(file));
    QCOMPARE(line.entries(), QStringList{"a.eps"});
  }

  void aFileIsNotOverwrittenUnlessForced() {
    CommandLine line;
    const QString file = line.write("a.epsi", kEpsi);
    const QString out = line.write("out.png", "old");
    QCOMPARE(line.run({"preview", file, "-o", out}), 4);
    QCOMPARE(line.contents("out.png"), QByteArray("old"));
    QCOMPARE(line.console.messages,
             QString("norvex: %1: %2 exists already (--force overwrites it)\n").arg(file, out));
    QCOMPARE(line.run({"preview", file, "-o", out, "--force"}), 0);
    QVERIFY(line.contents("out.png").startsWith("\x89PNG"));
    QCOMPARE(line.entries(), QStringList({"a.epsi", "out.png"}));
  }

  void whyAPreviewIsNotShownIsTold() {
    CommandLine line;
    const auto told = [&](const QByteArray& bytes) {
      const QString file = line.write("a.eps", bytes);
      (void)line.run({"preview", file, "-o", line.path("out.png")});
      return line.console.messages.sliced(QString("norvex: %1: ").arg(file).size()).trimmed();
    };
    QCOMPARE(told(QByteArray(kEpsi).replace("8 2 1 2", "8 2 3 2")), "the embedded preview is malformed");
    QCOMPARE(told(QByteArray(kEpsi).replace("8 2 1 2", "65536 65536 8 2")),
             "the embedded preview is too large");
    QVERIFY(!line.entries().contains("out.png"));
  }

  void aPreviewOfSamplesThatCannotBeShownIsTold() {
    CommandLine line;
    NSBitmapImageRep deep;
    deep.pixelsWide = deep.pixelsHigh = 1;
    deep.bitsPerSample = deep.bitsPerPixel = 16;
    deep.bytesPerRow = 2;
    deep.data = "xx";
    line.service.setPreview(deep);
    const QString file = line.write("a.eps", testdata::binaryEps(kEps, "II*"));
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png")}), 3);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: the preview's samples cannot be written as PNG\n").arg(file));
    QCOMPARE(line.entries(), QStringList{"a.eps"});
  }

  void coloursOfAPreviewStayColours() {
    CommandLine line;
    NSBitmapImageRep red;
    red.pixelsWide = red.pixelsHigh = 1;
    red.samplesPerPixel = red.bytesPerRow = 3;
    red.bitsPerPixel = 24;
    red.colorSpaceName = NSCalibratedRGBColorSpace;
    red.data = QByteArray("\xFF\0\0", 3);
    line.service.setPreview(red);
    const QString file = line.write("a.eps", testdata::binaryEps(kEps, "II*"));
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png")}), 0);
    QCOMPARE(QImage::fromData(line.contents("out.png")).pixelColor(0, 0), QColor(Qt::red));
  }

  void aMetafileIsDrawnByTheService() {
    CommandLine line;
    QByteArray binary("\xC5\xD0\xD3\xC6", 4);
    for (const quint32 value : {38u, quint32(kEps.size()), 30u, 8u, 0u, 0u})
      for (int shift = 0; shift < 32; shift += 8) binary.append(char(value >> shift));
    const QString file = line.write("a.eps", binary + "\xFF\xFFmetafile" + kEps);
    NSBitmapImageRep rep;
    rep.pixelsWide = rep.pixelsHigh = rep.bytesPerRow = 1;
    rep.colorSpaceName = NSCalibratedWhiteColorSpace;
    rep.data = "x";
    line.service.setPreview(rep);
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png")}), 0);
    QVERIFY(line.contents("out.png").startsWith("\x89PNG"));
    line.service.setPreview(Error{ErrorKind::NotParsable, "the embedded Windows metafile is damaged"});
    QCOMPARE(line.run({"preview", file, "-o", line.path("again.png")}), 3);
    QVERIFY(line.console.messages.contains("the embedded Windows metafile is damaged"));
  }

  void aPreviewIsFoundInASourceOfNoEncoding() {
    CommandLine line;
    const QString file = line.write("a.epsi", kEpsi + "(\xFF\x80\xFD\xA0\xFF) pop\n");
    QCOMPARE(line.run({"preview", file, "-o", line.path("out.png")}), 0);
    QVERIFY(line.contents("out.png").startsWith("\x89PNG"));
  }

  void aFileWithoutPreviewEndsWithOneAndWritesNothing() {
    CommandLine line;
    for (const QString& file :
         {line.write("a.eps", kEps), line.write("a.pdf", kPdf), line.write("a.svg", kSvg)}) {
      QCOMPARE(line.run({"preview", file, "-o", line.path("out.png")}), 1);
      QCOMPARE(line.console.messages, QString("norvex: %1: there is no embedded preview\n").arg(file));
    }
    QVERIFY(!line.entries().contains("out.png"));
    QCOMPARE(line.service.openCount(), 0);
  }
};

NORVEX_TEST(SourceTest)
#include "source_test.moc"
