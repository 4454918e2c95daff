// What `norvex convert` is told to do, read from its arguments: the values at the ends of their ranges, and
// where each file goes.
#include "cli/convert_plan.h"

#include "base/latin1_text.h"
#include "cli/cli_files.h"
#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

ReadPlan planOf(const QStringList& arguments) {
  const ReadArguments read = readArguments(QStringList{"convert"} + arguments);
  return read.complaint.isEmpty() ? readConvertPlan(read.arguments) : ReadPlan{{}, read.complaint};
}

/// Of `a.eps` to `format`, with `more`.
ReadPlan planWith(const QString& format, const QStringList& more) {
  return planOf(QStringList{"a.eps", "-o", "b." + format} + more);
}

}  // namespace

class ConvertPlanTest : public QObject {
  Q_OBJECT
 private slots:
  void theEndsOfARangeBelongToIt_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QStringList>("refused");
    const auto row = [](const char* option, const QString& format, const QStringList& taken,
                        const QStringList& refused) { QTest::newRow(option) << format << taken << refused; };
    row("--dpi", "png", {"1", "9600", "72.5"}, {"0.99", "9600.5"});
    row("--rotate", "png", {"-36000", "36000", "0.5"}, {"-36001", "36001"});
    row("--page", "png", {"1", "10000000"}, {"0", "10000001"});
    row("--quality", "jpg", {"1", "100"}, {"0", "101"});
    row("--jobs", "png", {"1", "256"}, {"0", "257"});
    row("--timeout", "png", {"1", "10000000"}, {"0", "10000001"});
    row("--memory", "png", {"64", "1048576"}, {"63", "1048577"});
    row("--crop", "png", {"1e7,-1e7,1e7,1e-3"}, {"1.1e7,0,1,1", "0,0,1,1.1e7", "0,0,0,1", "0,0,1,0"});
    row("--background", "png", {"#ff8000", "#f80", "red"}, {"#ff80000", "#ff8000ff", "reddish"});
  }
  void theEndsOfARangeBelongToIt() {
    QFETCH(QString, format);
    QFETCH(QStringList, taken);
    QFETCH(QStringList, refused);
    const QString option = QTest::currentDataTag();
    for (const QString& value : taken) QCOMPARE(planWith(format, {option, value}).complaint, QString());
    for (const QString& value : refused)
      QVERIFY2(planWith(format, {option, value}).complaint.startsWith(option + " is "), qPrintable(value));
  }

  void theLimitsAreThoseOfEachPicture() {
    const ConvertPlan plan = planWith("png", {"--timeout", "7", "--memory", "100", "--jobs", "3"}).plan;
    QCOMPARE(plan.options.limits.seconds, 7);
    QCOMPARE(plan.options.limits.memoryMiB, 100);
    QCOMPARE(plan.jobs, 3);
    const ConvertPlan usual = planWith("png", {}).plan;
    QCOMPARE(usual.options.limits.seconds, PictureLimits().seconds);
    QCOMPARE(usual.options.dpi, 72.0);
    QVERIFY(!usual.options.quality && !usual.options.page && !usual.options.crop && !usual.pages);
    QVERIFY(!usual.force && !usual.json && !usual.quiet);
  }

  void onlyPixelsHaveABackground() {
    for (const FormatRow& row : formatTable) {
      if (!isWritten(row)) continue;
      const QString name = latin1(row.name);
      const QString complaint =
          planOf({"a.eps", "-o", "b", "--format", name, "--background", "red"}).complaint;
      const QString told =
          QStringLiteral("--background goes with the raster formats: %1 keeps unpainted what is unpainted")
              .arg(name);
      QCOMPARE(complaint, isRaster(row.id) ? QString() : told);
    }
  }

  void textGoesWithBothSortsOfSvg() {
    for (const char* format : {"svg", "svgz"}) {
      const ReadPlan read = planWith(format, {"--text"});
      QCOMPARE(read.complaint, QString());
      QVERIFY(read.plan.options.keepText);
    }
    QVERIFY(planWith("pdf", {"--keep-actions"}).plan.options.keepActions);
  }

  void eachFileKeepsItsNameInTheFolder() {
    const ReadPlan read = planOf({"x/a.b.eps", "-", "x/.eps", "y/c", "--to", "out", "--format", "svgz"});
    QCOMPARE(read.complaint, QString());
    QStringList outputs;
    for (const ConvertTask& task : read.plan.tasks) outputs << task.output;
    QCOMPARE(outputs, (QStringList{"out/a.b.svgz", "out/picture.svgz", "out/.eps.svgz", "out/c.svgz"}));
  }
};

NORVEX_TEST(ConvertPlanTest)
#include "convert_plan_test.moc"
