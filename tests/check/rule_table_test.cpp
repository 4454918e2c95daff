// The table of rules, and the page that shows it.
#include "check/rule_table.h"

#include <QFile>
#include <QSet>

#include "base/latin1_text.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

QString word(Severity severity) {
  return severity == Severity::Error ? "error" : severity == Severity::Warning ? "warning" : "note";
}

QString row(const RuleRow& rule) {
  return QStringLiteral("| `%1` | %2 | %3 | %4 | %5 |")
      .arg(latin1(rule.identifier), word(rule.severity), latin1(rule.title), latin1(rule.source),
           latin1(rule.mend));
}

}  // namespace

class RuleTableTest : public QObject {
  Q_OBJECT
 private slots:
  void identifiersAreOneOfAKind() {
    QSet<QString> seen;
    for (const RuleRow& rule : ruleTable) {
      QVERIFY2(!seen.contains(latin1(rule.identifier)), rule.identifier.data());
      seen << latin1(rule.identifier);
      QCOMPARE(ruleNamed(rule.identifier), &rule);
    }
    QCOMPARE(ruleNamed("eps.no-such-rule"), nullptr);
  }

  /// Where it differs the test prints what the page should hold.
  void thePageShowsTheTable() {
    QFile file(NORVEX_SOURCE_DIR "/docs/check.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList shown;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
      if (line.startsWith("| `")) shown << line;
    QStringList table;
    for (const RuleRow& rule : ruleTable) table << row(rule);
    QVERIFY2(shown == table, qPrintable("docs/check.md should hold:\n" + table.join('\n')));
  }
};

NORVEX_TEST(RuleTableTest)
#include "rule_table_test.moc"
