// The figures of README beside other programs: those that were measured.
#include <QFile>
#include <QRegularExpression>

#include "kit/test_main.h"

namespace {

QString textOf(const QString& path) {
  QFile file(QStringLiteral(NORVEX_SOURCE_DIR "/") + path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The cells of each row of the tables in that text.
QList<QStringList> rowsOf(const QString& text) {
  QList<QStringList> rows;
  for (const QString& line : text.split('\n'))
    if (line.startsWith("| ") && line.endsWith(" |")) rows << line.mid(2).chopped(2).split(" | ");
  return rows;
}

}  // namespace

class ComparisonTest : public QObject {
  Q_OBJECT
 private slots:
  void everyFigureStandsInTheMeasurement() {
    const QString measured = textOf("docs/performance.md");
    QStringList known;
    for (const QStringList& row : rowsOf(measured.section("<!-- written by scripts/bench -->", 1)))
      if (row.size() > 4) known << QStringList{row[0] + ": " + row[1], row[2], row[3], row[4]}.join(" | ");
    QVERIFY(known.size() > 20);
    const QString section = textOf("README.md").section("## Beside other programs", 1).section("\n## ", 0, 0);
    const QList<QStringList> told = rowsOf(section).mid(1);
    QVERIFY(told.size() > 10);
    QStringList wrong;
    for (const QStringList& row : told)
      if (!known.contains(row.join(" | "))) wrong << row.join(" | ");
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    const QString day = QRegularExpression("Measured on (\\S+):").match(measured).captured(1);
    QVERIFY(!day.isEmpty() && section.contains("on " + day));
  }

  /// A table of victories would be none of the measurement.
  void whatIsSlowerIsToldToo() {
    const QString section = textOf("README.md").section("## Beside other programs", 1).section("\n## ", 0, 0);
    int slower = 0;
    for (const QStringList& row : rowsOf(section).mid(1))
      if (row.size() == 4 && row[2].section(' ', 0, 0).toInt() > row[3].section(' ', 0, 0).toInt()) ++slower;
    QVERIFY(slower >= 2);
  }
};

NORVEX_TEST(ComparisonTest)
#include "comparison_test.moc"
