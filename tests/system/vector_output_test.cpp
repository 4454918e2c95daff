// A rectangle of a turned picture, handed out as vectors, is the rectangle that the screen shows, says every
// other program that draws it; and it still is vectors, in the source's own colours and fonts.
//
// Screen and output come from different programs with different smoothing, fonts and colour conversions, so
// they are compared after four by four pixels were averaged: how much they differ in the mean, and whether
// dark and light lie in the same places (correlation), which is what a rectangle that is shifted, turned or
// mirrored fails. Small pictures are drawn enlarged: of a line that is thinner than a pixel, each program
// makes something else.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtConcurrent>

#include <cmath>
#include <cstdio>

#include "kit/program.h"
#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/real_files.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

constexpr double kLargestDifference = 0.04;   // mean of the samples, 0 … 1
constexpr double kSmallestCorrelation = 0.9;  // of the brightness
constexpr double kLargestInkDifference =
    0.15;                        // inks have no one look: each program converts them in its own way
constexpr double kPlain = 0.01;  // standard deviation below which a picture has no places to compare

const QString kPictures = QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/pdf/");

struct Job {
  QString file;
  double degrees;
};

constexpr int kPixels = 900;  // the longer side has about so many

/// Pixels a point that a rectangle is drawn with.
int scaleFor(const QSize& points) {
  return std::clamp(kPixels / std::max(points.width(), points.height()), 1, 8);
}

struct Outcome {
  bool drawn = false;  ///< the screen shows it; otherwise there is nothing to compare
  QStringList complaints;
  double difference = 0, correlation = 1;  // the worst
};

QImage averaged(const QImage& image) {
  return image
      .scaled(std::max(1, image.width() / 4), std::max(1, image.height() / 4), Qt::IgnoreAspectRatio,
              Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_RGB32);
}

/// Of the brightness; 1 when either picture is plain.
double correlation(const QImage& one, const QImage& other) {
  double n = 0, a = 0, b = 0, aa = 0, bb = 0, ab = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x, ++n) {
      const double p = qGray(one.pixel(x, y)) / 255.0, q = qGray(other.pixel(x, y)) / 255.0;
      a += p, b += q, aa += p * p, bb += q * q, ab += p * q;
    }
  const double va = aa / n - a / n * a / n, vb = bb / n - b / n * b / n;
  if (va < kPlain * kPlain || vb < kPlain * kPlain) return 1;
  return (ab / n - a / n * b / n) / std::sqrt(va * vb);
}

QImage drawnBy(const QString& program, const QString& path, int scale, const QString& folder) {
  const QString png = folder + u'/' + program + ".png", dpi = QString::number(72 * scale);
  if (program == "pdftocairo") run(program, {"-png", "-r", dpi, "-singlefile", path, png.chopped(4)}, {}, 60);
  if (program == "mutool") run(program, {"draw", "-q", "-r", dpi, "-o", png, path, "1"}, {}, 60);
  if (program == "gs")
    run(program,
        {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=png16m", "-r" + dpi,
         "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4", "-o", png, path},
        {}, 60);
  return QImage(png).convertToFormat(QImage::Format_RGB32);
}

/// Adds what is wrong with `drawn` beside the picture of it that is right.
void compare(Outcome& outcome, const QImage& right, const QString& program, const QImage& drawn,
             double mostDifferent) {
  if (drawn.isNull() || std::abs(drawn.width() - right.width()) > 1 ||
      std::abs(drawn.height() - right.height()) > 1) {
    outcome.complaints << QString("%1 draws %2 x %3 instead of %4 x %5")
                              .arg(program)
                              .arg(drawn.width())
                              .arg(drawn.height())
                              .arg(right.width())
                              .arg(right.height());
    return;
  }
  const QImage small = averaged(right), other = averaged(drawn.copy(right.rect()));
  const double different = outside::difference(small, other), alike = correlation(small, other);
  outcome.difference = std::max(outcome.difference, different);
  outcome.correlation = std::min(outcome.correlation, alike);
  if (different > mostDifferent || alike < kSmallestCorrelation)
    outcome.complaints << QString("%1: difference %2, correlation %3")
                              .arg(program)
                              .arg(different, 0, 'f', 3)
                              .arg(alike, 0, 'f', 3);
}

/// Whether the document paints with inks instead of light.
bool hasInks(const QString& pdf) {
  static const QRegularExpression inks(
      QStringLiteral("/(DeviceCMYK|Separation|DeviceN)\\b|[0-9.]+( [0-9.]+){3} [kK]\\b"));
  return QString::fromLatin1(run("qpdf", {"--qdf", "--object-streams=disable", pdf, "-"}).out).contains(inks);
}

/// The rectangle of the source's first page, turned and cut by mutool itself.
QImage cutByMutool(const QString& pdf, const QRect& rect, double degrees, int scale, const QString& folder) {
  const QString png = folder + "/source.png";
  run("mutool",
      {"draw", "-q", "-r", QString::number(72 * scale), "-R", QString::number(-degrees), "-o", png, pdf, "1"},
      {}, 60);
  const QImage all = QImage(png).convertToFormat(QImage::Format_RGB32);
  return all.copy(rect.x() * scale, all.height() - (rect.y() + rect.height()) * scale, rect.width() * scale,
                  rect.height() * scale);
}

QJsonObject infoOf(const QString& path) {
  return QJsonDocument::fromJson(kit::norvex({"info", "--json", path}).out).array().at(0).toObject();
}

QSizeF sizeOf(const QString& file) {
  const QJsonArray rectangle = infoOf(file)["rectangle"].toArray();
  return {rectangle.at(2).toDouble(), rectangle.at(3).toDouble()};
}

/// The middle of the turned view, whole points; at most 900 on a side.
QRect middleOf(const QSizeF& size, double degrees) {
  const double t = degrees * M_PI / 180, c = std::abs(std::cos(t)), s = std::abs(std::sin(t));
  const QSizeF view(size.width() * c + size.height() * s, size.width() * s + size.height() * c);
  const QSize wanted(std::clamp(int(view.width() * 0.6), 8, 900),
                     std::clamp(int(view.height() * 0.7), 8, 900));
  return {QPoint(int((view.width() - wanted.width()) / 2), int((view.height() - wanted.height()) / 2)),
          wanted};
}

/// The page's box as pdfinfo tells it; x, y, right, top.
QList<double> pageBox(const QString& pdf) {
  static const QRegularExpression form(QStringLiteral("MediaBox: +(\\S+) +(\\S+) +(\\S+) +(\\S+)"));
  const auto match = form.match(QString::fromUtf8(run("pdfinfo", {"-box", pdf}).out));
  QList<double> box;
  for (int i = 1; match.hasMatch() && i <= 4; ++i) box << match.captured(i).toDouble();
  return box;
}

/// How often running the program paints an image or a mask; -1 when it does not run.
int imagesPaintedBy(const QString& postScript) {
  const QTemporaryDir folder;
  QFile prolog(folder.filePath("prolog.ps"));
  if (!prolog.open(QIODevice::WriteOnly)) return -1;
  for (const char* name : {"image", "imagemask", "colorimage"})
    prolog.write(QByteArray("userdict /NAME {(\\nPAINTS\\n) print systemdict /NAME get exec} put\n")
                     .replace("NAME", name));
  prolog.close();
  const Ran ran = outside::run("gs",
                               {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=nullpage",
                                prolog.fileName(), postScript},
                               {}, 60);
  return ran.exitCode == 0 && !ran.out.contains("Error:") ? int(ran.out.count("\nPAINTS\n")) : -1;
}

QSet<QString> fontsOf(const QString& pdf) {
  static const QRegularExpression tag(QStringLiteral("^[A-Z]{6}\\+"));
  QSet<QString> fonts;
  const QList<QByteArray> lines = run("pdffonts", {"-f", "1", "-l", "1", pdf}).out.split('\n');
  for (const QByteArray& line : lines.mid(2))
    if (!line.trimmed().isEmpty()) fonts << QString::fromUtf8(line.left(36)).trimmed().remove(tag);
  return fonts;
}

Outcome outcomeOf(const Job& job) {
  Outcome outcome;
  const QTemporaryDir folder;
  const QRect rect = middleOf(sizeOf(job.file), job.degrees);
  const int scale = scaleFor(rect.size());
  const QString crop =
      QString("%1,%2,%3,%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
  const auto converted = [&](const QString& name, const QStringList& more = {}) {
    const Ran ran =
        kit::norvex(QStringList{"convert", job.file, "-o", folder.filePath(name), "--quiet", "--rotate",
                                QString::number(job.degrees), "--crop", crop, "--timeout", "40"} +
                    more);
    if (ran.exitCode != 0 && outcome.drawn)
      outcome.complaints << name + ": " + QString::fromUtf8(ran.err).trimmed();
    return ran.exitCode == 0 && !ran.crashed;
  };
  if (!converted("screen.png", {"--background", "white", "--dpi", QString::number(72 * scale)}))
    return outcome;
  outcome.drawn = true;
  const QImage screen = QImage(folder.filePath("screen.png")).convertToFormat(QImage::Format_RGB32);
  if (screen.size() != rect.size() * scale)
    outcome.complaints << QString("the screen's picture is %1 x %2").arg(screen.width()).arg(screen.height());
  double mostDifferent = kLargestDifference;
  if (converted("out.pdf")) {
    const QString pdf = folder.filePath("out.pdf");
    outcome.complaints += outside::complaintOf("qpdf", {"--check", pdf});
    const QList<double> box = pageBox(pdf), wanted{0, 0, double(rect.width()), double(rect.height())};
    for (int i = 0; i < 4; ++i)
      if (box.size() != 4 || std::abs(box[i] - wanted[i]) > 0.01)
        outcome.complaints << "the page's box is not the rectangle";
    const bool inks = hasInks(pdf);
    if (inks) mostDifferent = kLargestInkDifference;
    compare(outcome, screen, "pdftocairo", drawnBy("pdftocairo", pdf, scale, folder.path()),
            kLargestDifference);
    const bool beside = inks && job.file.endsWith(".pdf");
    compare(outcome, beside ? cutByMutool(job.file, rect, job.degrees, scale, folder.path()) : screen,
            "mutool", drawnBy("mutool", pdf, scale, folder.path()),
            beside ? kLargestDifference : mostDifferent);
  }
  if (converted("out.eps"))
    compare(outcome, screen, "gs", drawnBy("gs", folder.filePath("out.eps"), scale, folder.path()),
            mostDifferent);
  outcome.complaints.removeAll(QString());
  return outcome;
}

const QList<double> kAngles{0, 90, 33.3};

}  // namespace

class VectorOutputTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    for (const char* program : {"pdftocairo", "mutool", "gs", "qpdf", "pdfinfo", "pdffonts"})
      if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
        QSKIP(qPrintable(QLatin1String(program) + QString(" is not installed")));
  }

  void samplesAreHandedOutAsTheyAreShown() {
    QStringList files;
    for (const char* name :
         {"lighthouse.svg", "lighthouse.eps", "lighthouse.pdf", "lighthouse-preview.eps", "lighthouse-cs.ai"})
      files << kit::sample(name);
    // Not shading.pdf: a gradient between two inks of like brightness has as many looks as programs draw it.
    for (const char* name : {"paths.pdf", "spot.pdf", "cmyk_text.pdf", "image_cmyk.pdf", "transparent.pdf"})
      files << kPictures + name;
    const int drawn = check("samples", files);
    QCOMPARE(drawn, files.size() * kAngles.size());
  }

  /// Two files of each kind; NORVEX_VECTOR_FILES=10 asks for ten. Files that cannot be shown are passed over.
  void realFilesAreHandedOutAsTheyAreShown_data() {
    QTest::addColumn<QString>("kind");
    for (const char* kind :
         {"eps_text", "eps_binary", "epsi", "ai_ps", "ai_pdf", "pdf", "svg", "svgz", "edge", "found"})
      QTest::newRow(kind) << QString(kind);
  }
  void realFilesAreHandedOutAsTheyAreShown() {
    if (kit::corpusFolder().isEmpty())
      QSKIP("there is no folder of real files here (NORVEX_CORPUS names one)");
    QFETCH(QString, kind);
    const int wanted = qEnvironmentVariableIsSet("NORVEX_VECTOR_FILES")
                           ? qEnvironmentVariableIntValue("NORVEX_VECTOR_FILES")
                           : 2;
    const QStringList all = real::files(kind);
    QStringList files;
    for (qsizetype i = 0; i < std::min<qsizetype>(wanted, all.size()); ++i)
      files << all[i * all.size() / std::min<qsizetype>(wanted, all.size())];
    check(kind, files);
  }

  void coloursStayWhatTheyAre_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("pattern");
    QTest::newRow("text and paths in CMYK")
        << kPictures + "cmyk_text.pdf" << QByteArray("[0-9.]+( [0-9.]+){3} k\\b");
    QTest::newRow("an image in CMYK") << kPictures + "image_cmyk.pdf" << QByteArray("/DeviceCMYK");
    QTest::newRow("a spot colour") << kPictures + "spot.pdf" << QByteArray("/Separation");
  }
  void coloursStayWhatTheyAre() {
    QFETCH(QString, file);
    QFETCH(QByteArray, pattern);
    const QTemporaryDir folder;
    for (const double degrees : kAngles) {
      const QString pdf = folder.filePath(QString("%1.pdf").arg(degrees));
      QCOMPARE(kit::norvex({"convert", file, "-o", pdf, "--rotate", QString::number(degrees), "--crop",
                            "10,10,60,60"})
                   .exitCode,
               0);
      const QString text =
          QString::fromLatin1(run("qpdf", {"--qdf", "--object-streams=disable", pdf, "-"}).out);
      QVERIFY(text.contains(QRegularExpression(QString::fromLatin1(pattern))));
      QVERIFY(!text.contains(QRegularExpression(QStringLiteral("[0-9.]+( [0-9.]+){2} (rg|RG)\\b"))));
    }
  }

  void aStrokeOfAnSvgIsNeverTooThinForItsPdf() {
    const QTemporaryDir folder;
    // Points, from what is no thicker than a grain of toner is wide. cairo leaves out what is thinner.
    const QList<double> widths{0.013, 0.02, 0.04, 0.049, 0.051, 0.1, 0.3, 1, 20};
    QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' width='100pt' height='100pt' viewBox='0 0 100 100'>";
    for (const double width : widths)
      svg += "<path fill='none' stroke='red' d='M10 10C90 20 10 80 90 90' stroke-width='" +
             QByteArray::number(width) + "'/>";
    QFile source(folder.filePath("a.svg"));
    QVERIFY(source.open(QIODevice::WriteOnly));
    source.write(svg + "</svg>");
    source.close();
    QCOMPARE(kit::norvex({"convert", source.fileName(), "-o", folder.filePath("a.pdf")}).exitCode, 0);
    const QString pdf = QString::fromLatin1(
        run("qpdf", {"--qdf", "--object-streams=disable", folder.filePath("a.pdf"), "-"}).out);
    static const QRegularExpression stroke(QStringLiteral("\\bc\\s+S\\b"));
    QCOMPARE(pdf.count(stroke), widths.size());
  }

  void postScriptInCmykStaysSo() {
    const QTemporaryDir folder;
    QFile source(folder.filePath("a.eps"));
    QVERIFY(source.open(QIODevice::WriteOnly));
    source.write(
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 90 60\n%%EndComments\n0.1 0.7 0.2 0.05 setcmykcolor 10 "
        "10 40 30 rectfill\n%%EOF\n");
    source.close();
    for (const char* name : {"b.pdf", "b.eps"})
      QCOMPARE(kit::norvex({"convert", source.fileName(), "-o", folder.filePath(name), "--rotate", "33.3",
                            "--crop", "5,5,60,60"})
                   .exitCode,
               0);
    const QByteArray pdf =
        run("qpdf", {"--qdf", "--object-streams=disable", folder.filePath("b.pdf"), "-"}).out;
    static const QRegularExpression ink(
        QStringLiteral("0?\\.1[0-9]* 0?\\.(7|69)[0-9]* 0?\\.(2|19)[0-9]* 0?\\.0(5|49)[0-9]* k\\b"));
    QVERIFY(QString::fromLatin1(pdf).contains(ink));
    // What Ghostscript finds on the way back are the same four inks.
    const Ran inks =
        run("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=pdfwrite",
                   "-dCompressPages=false", "-o", folder.filePath("c.pdf"), folder.filePath("b.eps")});
    QCOMPARE(inks.exitCode, 0);
    QVERIFY(QString::fromLatin1(
                run("qpdf", {"--qdf", "--object-streams=disable", folder.filePath("c.pdf"), "-"}).out)
                .contains(ink));
  }

  void anOpaquePictureHasNoMoreImagesAsEps_data() {
    QTest::addColumn<QString>("file");
    // Not shading.pdf: a gradient between two inks of like brightness has as many looks as programs draw it.
    for (const char* name : {"paths.pdf", "spot.pdf", "cmyk_text.pdf"})
      QTest::newRow(name) << kPictures + name;
    QTest::newRow("lighthouse.eps") << kit::sample("lighthouse.eps");
    int taken = 0;
    for (const QString& file : real::files("eps_text"))
      if (taken < 10 && imagesPaintedBy(file) == 0 && ++taken)
        QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
  }
  void anOpaquePictureHasNoMoreImagesAsEps() {
    QFETCH(QString, file);
    if (!file.endsWith(".pdf")) QCOMPARE(imagesPaintedBy(file), 0);
    const QTemporaryDir folder;
    for (const double degrees : kAngles) {
      const QRect rect = middleOf(sizeOf(file), degrees);
      const QString eps = folder.filePath(QString("%1.eps").arg(degrees));
      const Ran ran = kit::norvex(
          {"convert", file, "-o", eps, "--rotate", QString::number(degrees), "--crop",
           QString("%1,%2,%3,%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height())});
      if (ran.exitCode == 3) QSKIP("cannot be shown");
      QVERIFY2(ran.exitCode == 0, ran.err);
      QCOMPARE(imagesPaintedBy(eps), 0);
    }
  }

  void aPictureThatIsAnImageIsFoundOut() {
    // That the counting above can fail at all.
    const QTemporaryDir folder;
    QCOMPARE(kit::norvex({"convert", kPictures + "image_cmyk.pdf", "-o", folder.filePath("a.eps")}).exitCode,
             0);
    QVERIFY(imagesPaintedBy(folder.filePath("a.eps")) > 0);
  }

  void fontsSurvive_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("lighthouse.pdf") << kit::sample("lighthouse.pdf");
    QTest::newRow("cmyk_text.pdf") << kPictures + "cmyk_text.pdf";
    const QStringList all = real::filesOf({"pdf"});
    for (qsizetype i = 0; i < all.size(); i += std::max<qsizetype>(1, all.size() / 10))
      QTest::newRow(qPrintable(QFileInfo(all[i]).fileName())) << all[i];
  }
  void fontsSurvive() {
    QFETCH(QString, file);
    const QTemporaryDir folder;
    const QString pdf = folder.filePath("a.pdf");
    if (kit::norvex({"convert", file, "-o", pdf, "--rotate", "33.3", "--page", "1"}).exitCode != 0)
      QSKIP("cannot be shown");
    const QSet<QString> before = fontsOf(file), after = fontsOf(pdf);
    // Those of forms and notes come in addition: they are not on the page itself until it is placed.
    QVERIFY2((before - after).isEmpty(),
             qPrintable(QStringList((before - after).values()).join(", ") + " went"));
  }

 private:
  /// How many were drawn; fails when one of them has a complaint.
  int check(const QString& kind, const QStringList& files) {
    QList<Job> jobs;
    for (const QString& file : files)
      for (const double degrees : kAngles) jobs << Job{file, degrees};
    const QList<Outcome> outcomes = QtConcurrent::blockingMapped(jobs, &outcomeOf);
    QStringList complaints;
    int drawn = 0;
    double difference = 0, correlation = 1;
    for (qsizetype i = 0; i < jobs.size(); ++i) {
      drawn += outcomes[i].drawn ? 1 : 0;
      difference = std::max(difference, outcomes[i].difference);
      correlation = std::min(correlation, outcomes[i].correlation);
      for (const QString& complaint : outcomes[i].complaints)
        complaints << QString("%1 at %2: %3")
                          .arg(QFileInfo(jobs[i].file).fileName())
                          .arg(jobs[i].degrees)
                          .arg(complaint);
    }
    std::printf("%s: %d of %d drawn, largest difference %.4f, smallest correlation %.3f\n", qPrintable(kind),
                drawn, int(jobs.size()), difference, correlation);
    std::fflush(stdout);
    if (!complaints.isEmpty()) QTest::qFail(qPrintable(complaints.join("\n")), __FILE__, __LINE__);
    return drawn;
  }
};

NORVEX_TEST(VectorOutputTest)
#include "vector_output_test.moc"
