// `norvex info`, for people and as JSON.
#include <QColorSpace>
#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/cli_files.h"
#include "cli/info_report.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

QString hashOf(const QByteArray& bytes) {
  return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

}  // namespace

class InfoTest : public QObject {
  Q_OBJECT
 private slots:
  void anEpsAsJson() {
    CommandLine line;
    const QString file = line.write("a.eps", kEps);
    QCOMPARE(line.run({"info", "--json", file}), 0);
    const QJsonArray all = jsonOf(line);
    QCOMPARE(all.size(), 1);
    const QJsonObject object = all[0].toObject();
    QCOMPARE(object["file"].toString(), file);
    QCOMPARE(object["kind"].toString(), "EPS");
    QCOMPARE(object["type"].toString(), "com.adobe.encapsulated-postscript");
    QCOMPARE(object["rectangle"].toArray(), QJsonArray({0, 0, 30, 40}));
    QCOMPARE(object["rectangleTitle"].toString(), "Bounds");
    QCOMPARE(object["hiResBoundingBox"].toArray(), QJsonArray({0, 0.5, 29.5, 40}));
    QCOMPARE(object["pages"].toInt(), 1);
    QCOMPARE(object["warnings"].toArray(), QJsonArray());
    QVERIFY(!object.contains("error"));
    QVERIFY(!object.contains("viewBox"));
    const QJsonObject header = object["header"].toObject();
    QCOMPARE(header["Title"].toString(), "(My picture)");
    QCOMPARE(header["EncodingNumber"].toInteger(), 4);
    QCOMPARE(header["Copyright"], QJsonValue(""));
    QCOMPARE(line.service.openCount(), 0);
    QVERIFY(line.console.messages.isEmpty());
  }

  void theHighResolutionBoxIsToldByItsCorners() {
    CommandLine line;
    QCOMPARE(line.run({"info", line.write("a.eps",
                                          "%!PS\n%%BoundingBox: 10 20 40 60\n%%HiResBoundingBox: 10.5 20.5 "
                                          "39.5 59.5\n%%EndComments\n")}),
             0);
    QVERIFY2(line.console.output.contains("HiResBoundingBox:      10.5 20.5 39.5 59.5\n"),
             line.console.output);
    QVERIFY2(line.console.output.contains("Bounds:                10 20 30 40\n"), line.console.output);
  }

  void whatASourceInNoEncodingSaysIsAGuess() {
    CommandLine line;
    const QString file =
        line.write("a.eps", QByteArray(kEps).replace("hand", "Ren\x8E") + "(\xFF\x80\xFD\xA0\xFF) pop\n");
    QCOMPARE(line.run({"info", "--json", file}), 0);
    const QJsonObject object = jsonOf(line)[0].toObject();
    QCOMPARE(object["header"].toObject().keys(), QStringList({"Encoding", "EncodingNumber"}));
    QCOMPARE(object["guessedHeader"].toObject(),
             QJsonObject({{"Encoding", "macintosh"}, {"Title", "(My picture)"}, {"Creator", "René"}}));
    QCOMPARE(line.run({"info", file}), 0);
    QVERIFY(line.console.output.contains("Creator?:              René (a guess: read as macintosh)\n"));
    QCOMPARE(line.run({"info", "--json", line.write("b.eps", kEps)}), 0);
    QVERIFY(!jsonOf(line)[0].toObject().contains("guessedHeader"));
  }

  void controlCharactersAreEscapedInJson() {
    CommandLine line;
    const QByteArray title = "a\x1B[31m\x7F\xC2\x80\xC2\x9F\xC2\xA0ü";
    const QString file = line.write("a.eps", QByteArray(kEps).replace("(My picture)", title));
    QCOMPARE(line.run({"info", "--json", file}), 0);
    QCOMPARE(jsonOf(line).at(0)["header"]["Title"].toString(), QString::fromUtf8(title));
    QVERIFY2(line.console.output.contains("a\\u001b[31m\\u007f\\u0080\\u009f\xC2\xA0ü"), line.console.output);
  }

  void writingThatTurnsIsMadeVisible() {
    for (const char16_t c : {u'\u061C', u'\u200E', u'\u200F', u'\u202A', u'\u202E', u'\u2066', u'\u2069'})
      QCOMPARE(visible(QString(QChar(c))), QStringLiteral("\\u{%1}").arg(uint(c), 4, 16, QLatin1Char('0')));
    QCOMPARE(visible("\x1B\x7F\u009B\n"), QStringLiteral("\\x1b\\x7f\\x9b\\x0a"));
  }

  void aPdfAsTextAndAsJson() {
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(1, 2, 300, 400.5)};
    picture.facts.pageCount = 7;
    picture.facts.attributes = {{"Title", "t"}};
    picture.facts.warnings = {"something is odd"};
    picture.facts.fonts = {"A", "B"};
    picture.facts.colorSpaces = {"DeviceCMYK", "Gold"};
    picture.facts.layers = {{"back", true}, {"front", false}};
    CommandLine line;
    line.service.setPicture(picture);
    const QString file = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"info", file}), 0);
    QCOMPARE(QString::fromUtf8(line.console.output),
             file +
                 "\n  Kind:                  PDF (com.adobe.pdf)\n  Title:                 t\n"
                 "  Bounds:                1 2 300 400.5\n  Pages:                 7\n"
                 "  Fonts:                 A, B\n  ColorSpaces:           DeviceCMYK, Gold\n"
                 "  Layer 1:               back (on)\n  Layer 2:               front (off)\n"
                 "  Warning:               something is odd\n");
    QCOMPARE(line.run({"info", file, "--json"}), 0);
    const QJsonObject object = jsonOf(line)[0].toObject();
    QCOMPARE(object["fonts"].toArray(), QJsonArray({"A", "B"}));
    QCOMPARE(object["colorSpaces"].toArray(), QJsonArray({"DeviceCMYK", "Gold"}));
    QCOMPARE(object["layers"].toArray(), QJsonArray({QJsonObject{{"name", "back"}, {"shown", true}},
                                                     QJsonObject{{"name", "front"}, {"shown", false}}}));
    QCOMPARE(object["kind"].toString(), "PDF");
    QCOMPARE(object["rectangle"].toArray(), QJsonArray({1, 2, 300, 400.5}));
    QCOMPARE(object["rectangleTitle"].toString(), "Bounds");
    QCOMPARE(object["pages"].toInt(), 7);
    QCOMPARE(object["warnings"].toArray(), QJsonArray({"something is odd"}));
    QCOMPARE(object["header"]["Encoding"], QJsonValue(""));
    QVERIFY(line.console.output.contains("\"EncodingNumber\": 9223372036854775807"));
    QCOMPARE(line.service.openedKinds(), QList<PictureKind>(2, PictureKind::Pdf));
  }

  void anSvgAsJson() {
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 75, 150)};
    picture.facts.viewBox = QRectF(0, 0, 100, 200);
    picture.facts.fixedRatioX = false;
    picture.facts.encodingName = "utf-8";
    picture.facts.encodingNumber = 4;
    CommandLine line;
    line.service.setPicture(picture);
    QCOMPARE(line.run({"info", "--json", line.write("a.svg", kSvg)}), 0);
    const QJsonObject object = jsonOf(line)[0].toObject();
    QCOMPARE(object["kind"].toString(), "SVG");
    QCOMPARE(object["rectangle"].toArray(), QJsonArray({0, 0, 75, 150}));
    QCOMPARE(object["rectangleTitle"].toString(), "ViewBox");
    QCOMPARE(object["viewBox"].toArray(), QJsonArray({0, 0, 100, 200}));
    QCOMPARE(object["header"]["ColorSpace"].toString(), QColorSpace(QColorSpace::SRgb).description());
    QCOMPARE(object["header"]["ZyWebViewFixedRatioX"], QJsonValue(false));
  }

  void platesOfASeparatedPictureAreTold() {
    CommandLine line;
    const QString file = line.write(
        "a.eps", QByteArray(kEps).replace("%%EndComments",
                                          "%%PlateFile: (Cyan) EPS Local c.eps\n%%PlateFile: (Gold) "
                                          "EPS #000900 70\n%%EndComments"));
    QCOMPARE(line.run({"info", "--json", file}), 0);
    const QJsonArray plates = jsonOf(line)[0].toObject()["plates"].toArray();
    QCOMPARE(plates.size(), 2);
    QCOMPARE(plates[0], QJsonValue(QJsonObject{{"ink", "Cyan"}, {"file", "c.eps"}}));
    QCOMPARE(plates[1], QJsonValue(QJsonObject{{"ink", "Gold"}, {"offset", 900}, {"length", 70}}));
    CommandLine text;
    QCOMPARE(
        text.run({"info", text.write("a.eps",
                                     "%!PS-Adobe-2.0 EPSF-1.2\n%%BoundingBox: 0 0 9 9\n%%CyanPlate: c.eps\n"
                                     "%%EndComments\n")}),
        0);
    QVERIFY(text.console.output.contains("Cyan (c.eps)"));
    QCOMPARE(line.run({"info", file}), 0);
    QVERIFY2(line.console.output.contains(
                 "  Plates:                Cyan (c.eps), Gold (70 bytes within this file)\n"),
             line.console.output);
  }

  void aPreviewIsToldByItsLayoutAndHash() {
    CommandLine line;
    QCOMPARE(line.run({"info", "--json", line.write("a.epsi", kEpsi)}), 0);
    const QJsonObject preview = jsonOf(line)[0].toObject()["header"].toObject()["Preview"].toObject();
    QCOMPARE(preview["width"].toInt(), 8);
    QCOMPARE(preview["height"].toInt(), 2);
    QCOMPARE(preview["bitsPerSample"].toInt(), 1);
    QCOMPARE(preview["samplesPerPixel"].toInt(), 1);
    QCOMPARE(preview["sha256"].toString(), hashOf(QByteArray("\x00\xFF", 2)));
  }

  void theHashLeavesThePaddingOut() {
    NSBitmapImageRep rep;
    rep.pixelsWide = 4;
    rep.pixelsHigh = 2;
    rep.bitsPerSample = rep.bitsPerPixel = 4;
    rep.bytesPerRow = 3;
    rep.data = "abXcdY";
    QCOMPARE(sampleHash(rep), hashOf("abcd"));
    rep.data.chop(1);
    QCOMPARE(sampleHash(rep), hashOf(""));
  }

  void aTiffPreviewComesFromTheService() {
    CommandLine line;
    NSBitmapImageRep rep;
    rep.pixelsWide = rep.pixelsHigh = rep.bytesPerRow = 1;
    rep.data = "x";
    line.service.setPreview(rep);
    QByteArray binary("\xC5\xD0\xD3\xC6", 4);
    for (const quint32 value : {30u, quint32(kEps.size()), 0u, 0u, 30u + quint32(kEps.size()), 3u})
      for (int shift = 0; shift < 32; shift += 8) binary.append(char(value >> shift));
    const QString file = line.write("b.eps", binary + "\xFF\xFF" + kEps + "II*");
    QCOMPARE(line.run({"info", "--json", file}), 0);
    QCOMPARE(jsonOf(line).at(0)["header"]["Preview"]["sha256"].toString(), hashOf("x"));
    QCOMPARE(line.service.previewCount(), 1);

    line.service.setPreview(Error{ErrorKind::NotParsable, "the TIFF is broken"});
    QCOMPARE(line.run({"info", "--json", file}), 0);
    QVERIFY(!jsonOf(line).at(0)["header"].toObject().contains("Preview"));
    QCOMPARE(jsonOf(line).at(0)["warnings"].toArray(), QJsonArray({"the TIFF is broken"}));
  }

  void aPreviewThatIsAMetafileIsTold() {
    CommandLine line;
    NSBitmapImageRep drawn;
    drawn.pixelsWide = drawn.bytesPerRow = 3;
    drawn.pixelsHigh = 2;
    drawn.data = QByteArray(6, 'x');
    line.service.setPreview(drawn);
    const QByteArray metafile("a metafile");
    QByteArray binary("\xC5\xD0\xD3\xC6", 4);
    const auto behind = 30u + quint32(kEps.size());
    for (const quint32 value : {30u, quint32(kEps.size()), behind, quint32(metafile.size()), 0u, 0u})
      for (int shift = 0; shift < 32; shift += 8) binary.append(char(value >> shift));
    const QString file = line.write("b.eps", binary + "\xFF\xFF" + kEps + metafile);
    QCOMPARE(line.run({"info", "--json", file}), 0);
    QCOMPARE(jsonOf(line).at(0)["warnings"].toArray(),
             QJsonArray({"the embedded preview is a Windows metafile of 10 bytes, drawn with 3 × 2 pixels"}));
  }

  void anIllustratorFileIsPostScriptOrPdf() {
    CommandLine line;
    const QString ps = line.write("a.ai", kEps);
    const QString pdf = line.write("b.ai", kPdf);
    QCOMPARE(line.run({"info", "--json", ps, pdf}), 0);
    const QJsonArray all = jsonOf(line);
    QCOMPARE(all[0]["kind"].toString(), "Illustrator");
    QCOMPARE(all[1]["kind"].toString(), "Illustrator");
    QCOMPARE(all[0]["header"]["Title"].toString(), "(My picture)");
    QCOMPARE(all[1]["header"]["EncodingNumber"].toInteger(), 9223372036854775807LL);
    QCOMPARE(line.service.openedKinds(), QList<PictureKind>{PictureKind::Pdf});
  }

  void theOutputKeepsTheOrderOfTheFiles() {
    CommandLine line;
    QStringList files;
    for (int i = 0; i < 200; ++i)
      files << line.write(QString::number(i) + ".eps", kEps + QByteArray((200 - i) * 500, ' '));
    QCOMPARE(line.run(QStringList{"info", "--json"} + files), 0);
    const QJsonArray all = jsonOf(line);
    QCOMPARE(all.size(), files.size());
    for (int i = 0; i < files.size(); ++i) QCOMPARE(all[i]["file"].toString(), files[i]);
  }

  void onePlainLineForEveryFailure() {
    CommandLine line;
    const QString good = line.write("good.eps", kEps);
    const QString text = line.write("text.txt", "hello");
    const QString two = line.write("two.eps", "%!");
    const QString one = line.write("one.eps", "\xC5\xD0");
    const QString none = line.write("none.eps", "");
    const QString folder = QFileInfo(good).path();
    const QString missing = line.path("missing.eps");
    QCOMPARE(line.run({"info", folder, missing, none, two, one, text, good}), 1);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: it is a folder\n"
                     "norvex: %2: No such file or directory\n"
                     "norvex: %3: the file is empty\n"
                     "norvex: %4: the PostScript header states no usable bounding box\n"
                     "norvex: %5: this is not Encapsulated PostScript: it does not begin with %! and states "
                     "no bounding box\n"
                     "norvex: %6: this is not an EPS, Illustrator, PDF or SVG picture\n")
                 .arg(folder, missing, none, two, one, text));
    QVERIFY(line.console.output.contains("(My picture)"));
  }

  void whatCouldBeHadStandsBesideTheError() {
    CommandLine line;
    const QString file = line.write("a.eps", "%!PS-Adobe-3.0 EPSF-3.0\n%%Title: t\n%%EndComments\n");
    QCOMPARE(line.run({"info", "--json", file, line.path("missing.eps")}), 3);
    const QJsonArray all = jsonOf(line);
    QCOMPARE(all[0]["header"]["Title"].toString(), "t");
    QCOMPARE(all[0]["error"].toString(), "the PostScript header states no usable bounding box");
    QVERIFY(!all[0].toObject().contains("rectangle"));
    QCOMPARE(all[1]["error"].toString(), "No such file or directory");
    QVERIFY(!all[1].toObject().contains("kind"));
    QCOMPARE(all[1]["header"].toObject(), QJsonObject());
  }

  void aPdfWithAPasswordAndAnSvgThatIsNoXml() {
    CommandLine line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::Encrypted, "the document is protected with a password"});
    });
    const QString pdf = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"info", pdf}), 3);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: the document is protected with a password\n").arg(pdf));
    QCOMPARE(line.console.output, QByteArray());

    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "the document is not XML"});
    });
    const QString svg = line.write("a.svg", "not XML");
    QCOMPARE(line.run({"info", "--json", svg}), 3);
    QCOMPARE(line.console.messages, QString("norvex: %1: the document is not XML\n").arg(svg));
    QCOMPARE(jsonOf(line).at(0)["kind"].toString(), "SVG");
    QCOMPARE(jsonOf(line).at(0)["header"].toObject().keys(), QStringList{"ColorSpace"});
  }

  void theExitCodeSaysWhatWentWrong() {
    CommandLine line;
    const QString pdf = line.write("a.pdf", kPdf);
    const auto codeFor = [&](ErrorKind kind) {
      line.service.setPrepare([=](MemoryPictureProcess& process) {
        process.fail(PictureCall::Facts, {kind, "no"});
      });
      return line.run({"info", pdf});
    };
    QCOMPARE(codeFor(ErrorKind::TimedOut), 5);
    QCOMPARE(codeFor(ErrorKind::Limit), 5);
    QCOMPARE(codeFor(ErrorKind::NoSandbox), 6);
    QCOMPARE(codeFor(ErrorKind::Died), 3);
    QCOMPARE(codeFor(ErrorKind::Cancelled), 130);
  }

  void standardInputIsReadOnce() {
    CommandLine line;
    line.console.standardInput = kEps;
    QCOMPARE(line.run({"info", "--json", "-"}), 0);
    QCOMPARE(jsonOf(line).at(0)["file"].toString(), "-");
    QCOMPARE(jsonOf(line).at(0)["kind"].toString(), "EPS");
    QCOMPARE(line.run({"info", "-", "-"}), 2);
    line.console.standardInput.clear();
    QCOMPARE(line.run({"info", "-"}), 3);
    QCOMPARE(line.console.messages, QString("norvex: -: the file is empty\n"));
  }

  void textCannotCommandTheTerminal() {
    CommandLine line;
    const QString file = line.write("a.eps", "%!PS-Adobe-3.0 EPSF-3.0\n%%Title: \x1B]0;x\x07" +
                                                 QByteArray("\xC2\x9B") + "31m\n%%BoundingBox: 0 0 1 1\n");
    QCOMPARE(line.run({"info", file}), 0);
    QVERIFY(!line.console.output.contains('\x1B') && !line.console.output.contains('\x07'));
    QVERIFY(line.console.output.contains("\\x1b]0;x\\x07\\x9b31m"));
    (void)line.run({"info", "no\nsuch\x1B[31mfile"});
    QCOMPARE(line.console.messages, QString("norvex: no\\x0asuch\\x1b[31mfile: No such file or directory\n"));
  }

  void aFullDiskIsTold() {
    CommandLine line;
    line.console.full = true;
    QCOMPARE(line.run({"info", line.write("a.eps", kEps)}), 4);
    QCOMPARE(line.console.messages, QString("norvex: -: standard output cannot be written\n"));
  }
};

NORVEX_TEST(InfoTest)
#include "info_test.moc"
