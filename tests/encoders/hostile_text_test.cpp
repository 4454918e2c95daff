// Text of strangers in every field of every kind of picture: whatever it says, nothing of it is run by who
// draws the PostScript that it was written into.
#include <QRandomGenerator>

#include "encoders/comment_value.h"
#include "encoders/eps_header_rewriter.h"
#include "encoders/picture_encoder.h"
#include "kit/program.h"
#include "kit/test_main.h"
#include "metadata/dos_eps_header.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "picture/web_image_rep.h"

using namespace norvex;

namespace {

constexpr int kValues = 1000;  // for each kind and output

const QByteArray kGenerated =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 8 2\n%%Title: x\n%%Creator: x\n%%CreationDate: x\n%%For: x\n"
    "%%EndComments\n0 0 moveto showpage\n";

/// What a text is put together from.
const QStringList& pieces() {
  static const QStringList all = [] {
    QStringList list{"\n",
                     "\r",
                     "\r\n",
                     "\v",
                     "\f",
                     "\t",
                     QChar(0x85),
                     QChar(0x2028),
                     QChar(0x2029),
                     QChar(0),
                     QChar(0x1B),
                     QChar(0x9B),
                     QChar(0x7F),
                     QChar(0xD800),
                     QChar(0x202E),
                     "(RAN) = flush ",
                     "quit ",
                     ") ",
                     "( ",
                     "} ",
                     "{ ",
                     "<< ",
                     "%",
                     "%%",
                     "%%EndComments",
                     "%%EndComments ",
                     "%%Title: ",
                     "%%Creator: ",
                     "%%For: ",
                     "%%BeginPreview: 1 1 1 1",
                     "%%EndPreview",
                     "%%BoundingBox: 0 0 1 1 ",
                     "%%EOF",
                     "%%Copyright: ",
                     "%!PS",
                     "a",
                     "ü 日本 ",
                     "\\",
                     "\\n",
                     "<",
                     "currentfile closefile "};
    return list;
  }();
  return all;
}

class Texts {
 public:
  QString next() {
    QString text;
    for (int count = random_.bounded(1, 9); count > 0; --count)
      text += pieces()[random_.bounded(int(pieces().size()))];
    return text;
  }

 private:
  QRandomGenerator random_{20260304};
};

enum class Output { Eps, Preview, Interchange };

QByteArray produced(PictureEncoder& encoder, Output output) {
  if (output == Output::Eps) return encoder.postScriptData();
  return output == Output::Preview ? encoder.postScriptDataWithPreview() : encoder.epsiData();
}

/// The lines that an interpreter runs: it ends comments at form feeds too.
QByteArrayList runLines(const QByteArray& program) {
  QByteArrayList lines;
  for (const QByteArray& line : QByteArray(program).replace('\r', '\n').replace('\f', '\n').split('\n'))
    if (!line.isEmpty() && !line.startsWith('%')) lines << line;
  return lines;
}

/// What Ghostscript says when it runs the programs one after the other.
QByteArray saidBy(const QByteArray& programs) {
  const kit::Ran ran = kit::run("gs", {"-dSAFER", "-dBATCH", "-dNOPAUSE", "-q", "-sDEVICE=nullpage", "-"},
                                programs + "\n(READ TO THE END) = flush\n");
  return ran.out + ran.err;
}

}  // namespace

class HostileTextTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsRunIsNoticed() {
    QCOMPARE(saidBy("%%Title: a\n(RAN) = flush"), QByteArray("RAN\nREAD TO THE END\n"));
  }

  void nothingOfItIsRun_data() {
    QTest::addColumn<PictureKind>("kind");
    QTest::addColumn<Output>("output");
    QTest::addColumn<bool>("cut");
    const QList<std::pair<const char*, PictureKind>> kinds{
        {"EPS", PictureKind::Eps}, {"PDF", PictureKind::Pdf}, {"SVG", PictureKind::Svg}};
    const QList<std::pair<const char*, Output>> outputs{
        {"EPS", Output::Eps}, {"with preview", Output::Preview}, {"EPSI", Output::Interchange}};
    for (const auto& [kindName, kind] : kinds)
      for (const auto& [outputName, output] : outputs)
        for (const bool cut : {false, true})
          if (cut || kind != PictureKind::Eps)  // a whole EPS is its own program
            QTest::addRow("%s as %s, %s", kindName, outputName, cut ? "cut" : "whole")
                << kind << output << cut;
  }
  void nothingOfItIsRun() {
    QFETCH(PictureKind, kind);
    QFETCH(Output, output);
    QFETCH(bool, cut);
    Texts texts;
    QByteArray programs;
    for (int i = 0; i < kValues; ++i) {
      EncoderSurroundings surroundings = surroundingsOf(texts);
      if (cut) surroundings.region = PictureRegion{QRectF(-2, -1, 4, 2), 0};
      PictureEncoder encoder(picture(kind, texts), surroundings);
      const QByteArray bytes = produced(encoder, output);
      QVERIFY(!bytes.isEmpty());
      const QByteArray program = postScriptOf(bytes).toByteArray();
      QCOMPARE(runLines(program), QByteArrayList{"0 0 moveto showpage"});
      if (output == Output::Interchange) QVERIFY(program.contains("\n%%EndComments\n%%BeginPreview: "));
      programs += program;
    }
    QCOMPARE(saidBy(programs), QByteArray("READ TO THE END\n"));
  }

  void nothingOfACopyrightIsRun() {
    Texts texts;
    QByteArray programs;
    for (int i = 0; i < kValues; ++i) {
      const HeaderDictionary header{{header::Title, texts.next()}, {header::Copyright, texts.next()}};
      const QByteArray program =
          rewriteEpsHeader(kGenerated, header, {texts.next(), texts.next(), texts.next()});
      QCOMPARE(runLines(program), QByteArrayList{"0 0 moveto showpage"});
      programs += program;
    }
    QCOMPARE(saidBy(programs), QByteArray("READ TO THE END\n"));
  }

  void nothingElseOfAValueChanges() {
    Texts texts;
    for (int i = 0; i < kValues; ++i) {
      const QString text = texts.next();
      const QString value = commentValue(text);
      QString kept;
      for (const QChar c : text)
        if (c.category() != QChar::Other_Control && c != QChar(0x2028) && c != QChar(0x2029)) kept += c;
      QCOMPARE(QString(value).remove(u' '), QString(kept).remove(u' '));
      QCOMPARE(commentValue(kept), kept);
    }
  }

 private:
  EncoderSurroundings surroundingsOf(Texts& texts) {
    EncoderSurroundings surroundings;
    surroundings.service = &service_;
    surroundings.userFullName = texts.next();
    surroundings.now = QDateTime(QDate(2026, 3, 4), QTime(5, 6), Qt::UTC);
    return surroundings;
  }

  std::shared_ptr<NSImageRep> picture(PictureKind kind, Texts& texts) {
    MemoryPicture memory;
    memory.facts.pageBounds = {QRectF(0, 0, 8, 2)};
    memory.facts.title = texts.next();
    memory.facts.description = texts.next();
    for (const char* key : {"Title", "Creator", "Author", "Subject", "Producer"})
      memory.facts.attributes.insert(QLatin1String(key), texts.next());
    memory.compose = [](const ComposeRequest&) { return kGenerated; };
    service_.setPicture(memory);
    if (kind == PictureKind::Pdf) return *NSPDFImageRep::imageRepWithData(service_, "%PDF-source");
    if (kind == PictureKind::Svg) return *ZyWebImageRep::imageRepWithData(service_, "<svg/>");
    QString source = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 8 2\n";
    for (const char* key : {"Title", "Creator", "CreationDate", "For", "Copyright", "Routing"})
      source += QStringLiteral("%%%1: %2\n").arg(QLatin1String(key), texts.next());
    return *NSEPSImageRep::imageRepWithData(service_, source.toUtf8());
  }

  MemoryPictureService service_;
};

NORVEX_TEST(HostileTextTest)
#include "hostile_text_test.moc"
