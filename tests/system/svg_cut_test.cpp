// A rectangle cut out of a turned SVG picture, drawn by librsvg, is that rectangle of the whole picture as
// librsvg draws it; the turning is done here on its pixels.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QRegularExpression>
#include <QtConcurrent>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "kit/program.h"
#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/real_files.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

// Mean of the samples, 0 … 1. At other angles than quarter turns librsvg itself draws some things differently
// (gradients whose stops coincide, for one), so that more is let pass there.
constexpr double kLargestDifference = 0.01;
constexpr double kLargestWhenTurned = 0.04;
constexpr double kPixelsPerPoint = 4.0 / 3;
constexpr int kFiner =
    3;  // the whole picture is drawn that many times larger, so that turning its pixels loses nothing

const QList<double> kAngles{0, 90, 33.3, 200};

struct Job {
  QString file;
  double degrees;
};

struct Outcome {
  bool compared = false;
  double difference = 0;
  QString complaint;
};

QImage drawn(const QString& svg, const QString& png, int zoom) {
  run("rsvg-convert",
      {"--unlimited", "--background-color=white", QString("--zoom=%1").arg(zoom), "-o", png, svg}, {}, 60);
  return QImage(png).convertToFormat(QImage::Format_RGB32);
}

QSizeF sizeOf(const QString& file) {
  const QJsonArray all = QJsonDocument::fromJson(kit::norvex({"info", "--json", file}).out).array();
  const QJsonArray rectangle = all.at(0).toObject()["rectangle"].toArray();
  return {rectangle.at(2).toDouble(), rectangle.at(3).toDouble()};
}

QByteArray textOf(const QString& file) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = source.readAll();
  return bytes.startsWith("\x1f\x8b") ? run("gzip", {"-dc"}, bytes).out : bytes;
}

/// What librsvg draws alike at every scale and angle: not its filters, nor its masks when they are turned.
bool isDrawnAlike(const QString& file) {
  const QByteArray text = textOf(file);
  return !text.contains("<filter") && !text.contains("<mask") && !text.contains(":mask") &&
         !text.contains(":filter");
}

/// librsvg by itself takes the box of a shape that is turned for larger than it is.
bool hasGradientsInBoxes(const QString& file) {
  const QByteArray text = textOf(file);
  static const QRegularExpression gradient("<(linear|radial)Gradient[^>]*>");
  auto each = gradient.globalMatch(QString::fromLatin1(text));
  while (each.hasNext())
    if (!each.next().captured().contains("userSpaceOnUse")) return true;
  return false;
}

/// The middle of the turned picture in whole pixels and whole points; points, origin at the lower-left
/// corner, y up.
QRect middleOf(const QSizeF& turned) {
  const auto third = [](double length) { return std::clamp(int(length * 0.65) / 3 * 3, 3, 600); };
  const QSize size(third(turned.width()), third(turned.height()));
  return {QPoint(int((turned.width() - size.width()) / 2), int((turned.height() - size.height()) / 2)), size};
}

/// The rectangle of the whole picture, turned about its middle.
QImage turnedPart(const QImage& whole, const QSizeF& picture, const QSizeF& turned, const QRect& rect,
                  double degrees) {
  const double scale = kPixelsPerPoint * kFiner;
  QImage part((QSizeF(rect.size()) * scale).toSize(), QImage::Format_RGB32);
  part.fill(Qt::white);
  QPainter painter(&part);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const double top = turned.height() - rect.y() - rect.height();
  painter.translate((turned.width() / 2 - rect.x()) * scale, (turned.height() / 2 - top) * scale);
  painter.rotate(-degrees);
  // Its pixels as they are: a size that is no whole number of them leaves the last ones partly blank.
  painter.drawImage(QPointF(-picture.width() / 2 * scale, -picture.height() / 2 * scale), whole);
  painter.end();
  return part.scaled(part.size() / kFiner, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

Outcome outcomeOf(const Job& job) {
  const QTemporaryDir folder;
  const QSizeF picture = sizeOf(job.file);
  if (picture.width() < 20 || picture.height() < 20 || std::max(picture.width(), picture.height()) > 2000)
    return {};
  const double t = job.degrees * M_PI / 180, c = std::abs(std::cos(t)), s = std::abs(std::sin(t));
  const QSizeF turned(picture.width() * c + picture.height() * s, picture.width() * s + picture.height() * c);
  const QRect rect = middleOf(turned);
  const QString cut = folder.filePath("cut.svg");
  const Ran ran = kit::norvex(
      {"convert", job.file, "-o", cut, "--quiet", "--rotate", QString::number(job.degrees), "--crop",
       QString("%1,%2,%3,%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height())});
  if (ran.exitCode != 0) return {false, 0, QString::fromUtf8(ran.err).trimmed()};
  const QImage whole = drawn(job.file, folder.filePath("whole.png"), kFiner);
  // Where width or height is not said, rsvg-convert draws no more than the ink.
  const QSizeF expected = picture * kPixelsPerPoint * kFiner;
  if (whole.isNull() || std::abs(whole.width() - expected.width()) > 1 ||
      std::abs(whole.height() - expected.height()) > 1)
    return {};
  const QImage part = drawn(cut, folder.filePath("cut.png"), 1);
  const QImage right = turnedPart(whole, picture, turned, rect, job.degrees);
  if (part.size() != right.size())
    return {true, 1,
            QString("drawn as %1 x %2 instead of %3 x %4")
                .arg(part.width())
                .arg(part.height())
                .arg(right.width())
                .arg(right.height())};
  const double difference = outside::difference(part, right);
  const double most = std::fmod(job.degrees, 90) == 0 ? kLargestDifference : kLargestWhenTurned;
  return {true, difference,
          difference > most ? QString("difference %1").arg(difference, 0, 'f', 4) : QString()};
}

}  // namespace

class SvgCutTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    if (QStandardPaths::findExecutable("rsvg-convert").isEmpty()) QSKIP("rsvg-convert is not installed");
  }

  void aCutSampleIsThatPartOfTheTurnedPicture() { QCOMPARE(check({kit::sample("lighthouse.svg")}), 1); }

  /// Four files; NORVEX_CUT_FILES=20 asks for twenty. Files that librsvg itself draws differently by scale or
  /// angle are passed over, and so are those that cannot be shown.
  void cutRealFilesAreThatPartOfTheTurnedPicture() {
    if (kit::corpusFolder().isEmpty())
      QSKIP("there is no folder of real files here (NORVEX_CORPUS names one)");
    const int wanted =
        qEnvironmentVariableIsSet("NORVEX_CUT_FILES") ? qEnvironmentVariableIntValue("NORVEX_CUT_FILES") : 4;
    const QStringList all = real::filesOf({"svg", "svgz"});
    QStringList files;
    // Spread over all of them: each step takes the first usable file behind its place.
    for (int i = 0; i < wanted; ++i)
      for (qsizetype at = i * all.size() / wanted; at < (i + 1) * all.size() / wanted; ++at) {
        const QSizeF size = isDrawnAlike(all[at]) ? sizeOf(all[at]) : QSizeF();
        if (size.width() < 20 || size.height() < 20 || std::max(size.width(), size.height()) > 2000) continue;
        files << all[at];
        break;
      }
    QVERIFY(!files.isEmpty());
    QVERIFY(check(files) > 0);
  }

  void anotherRectangleOrAngleIsFoundOut() {
    // That the comparison can fail at all.
    const QString file = kit::sample("lighthouse.svg");
    const QTemporaryDir folder;
    const QSizeF picture = sizeOf(file);
    const QRect rect = middleOf(picture);
    const QImage whole = drawn(file, folder.filePath("whole.png"), kFiner);
    const QImage right = turnedPart(whole, picture, picture, rect, 0);
    QVERIFY(outside::difference(right, turnedPart(whole, picture, picture, rect.translated(3, 0), 0)) >
            kLargestDifference);
    QVERIFY(outside::difference(right, turnedPart(whole, picture, picture, rect, 2)) > kLargestDifference);
    QVERIFY(outside::difference(right, turnedPart(whole, picture, picture, rect.translated(12, 0), 0)) >
            kLargestWhenTurned);
    QVERIFY(outside::difference(right, turnedPart(whole, picture, picture, rect, 10)) > kLargestWhenTurned);
    QVERIFY(outside::difference(right, right.mirrored(true, false)) > kLargestWhenTurned);
  }

 private:
  /// How many files were compared, as if each had been at every angle.
  static int check(const QStringList& files) {
    QList<Job> jobs;
    for (const QString& file : files)
      for (const double degrees : kAngles)
        if (std::fmod(degrees, 90) == 0 || !hasGradientsInBoxes(file)) jobs << Job{file, degrees};
    const QList<Outcome> outcomes = QtConcurrent::blockingMapped(jobs, &outcomeOf);
    QStringList complaints;
    int compared = 0;
    double largest = 0, sum = 0;
    for (qsizetype i = 0; i < jobs.size(); ++i) {
      compared += outcomes[i].compared ? 1 : 0;
      largest = std::max(largest, outcomes[i].difference);
      sum += outcomes[i].difference;
      if (!outcomes[i].complaint.isEmpty())
        complaints << QString("%1 at %2: %3")
                          .arg(QFileInfo(jobs[i].file).fileName())
                          .arg(jobs[i].degrees)
                          .arg(outcomes[i].complaint);
    }
    std::printf("%d of %d compared, mean difference %.4f, largest %.4f\n", compared, int(jobs.size()),
                sum / std::max(1, compared), largest);
    std::fflush(stdout);
    if (!complaints.isEmpty()) QTest::qFail(qPrintable(complaints.join("\n")), __FILE__, __LINE__);
    return (compared + int(kAngles.size()) - 1) / int(kAngles.size());
  }
};

NORVEX_TEST(SvgCutTest)
#include "svg_cut_test.moc"
