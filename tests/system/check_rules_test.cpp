// `norvex check` from outside: each rule over a file that breaks it and one that keeps it.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTemporaryDir>

#include "base/latin1_text.h"
#include "check/check_files.h"
#include "check/rule_table.h"
#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::checkfiles;

namespace {

const QString kNorvex = QStringLiteral(NORVEX_BUILD_DIR "/norvex");

const QByteArray kProfile(
    "[limits]\ncolour-dpi = 150\ngrey-dpi = 150\nline-art-dpi = 150\nthinnest-line = 0.25\nsmallest-text = "
    "5\n"
    "total-ink = 300\nrgb = false\ncolour-spaces = [\"DeviceGray\", \"DeviceRGB\", \"DeviceCMYK\", "
    "\"Separation\"]\ncolumns-mm = [40, 70.6]\ncolumn-tolerance-mm = 1\n");

bool write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QSet<QString> identifiersOf(const QJsonObject& file) {
  QSet<QString> all;
  for (const QJsonValue& one : file["findings"].toArray()) all << one["identifier"].toString();
  return all;
}

}  // namespace

class CheckRulesTest : public QObject {
  Q_OBJECT
 private slots:
  /// One run over all of them, as a gate in a build would.
  void aFileThatBreaksARuleIsToldAndOneThatKeepsItIsNot() {
    const QTemporaryDir folder;
    const QList<RuleFile> files = epsFiles() + pdfFiles() + svgFiles();
    QStringList arguments{"check", "--json", "--profile", folder.filePath("all.toml"), "--jobs", "2"};
    QVERIFY(write(folder.filePath("all.toml"), kProfile));
    for (qsizetype i = 0; i < files.size(); ++i) {
      const QString broken = folder.filePath(QStringLiteral("%1-broken.%2").arg(i).arg(files[i].extension));
      const QString kept = folder.filePath(QStringLiteral("%1-kept.%2").arg(i).arg(files[i].extension));
      QVERIFY(write(broken, files[i].broken) && write(kept, files[i].kept));
      arguments << broken << kept;
    }
    const kit::Ran ran = kit::run(kNorvex, arguments, {}, 300);
    QCOMPARE(ran.exitCode, 1);
    QVERIFY2(ran.err.isEmpty(), ran.err.constData());
    const QJsonArray all = QJsonDocument::fromJson(ran.out).array();
    QCOMPARE(all.size(), 2 * files.size());
    QStringList wrong;
    for (qsizetype i = 0; i < files.size(); ++i) {
      const QString name = files[i].rule;
      if (!identifiersOf(all[2 * i].toObject()).contains(name))
        wrong << name + QStringLiteral(" (%1) is not found").arg(i);
      if (identifiersOf(all[2 * i + 1].toObject()).contains(name))
        wrong << name + QStringLiteral(" (%1) is found falsely").arg(i);
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  /// The encrypted ones are made by qpdf; what is never reached in so small a file is tested beside its
  /// limit.
  void everyRuleHasItsFiles() {
    QSet<QString> tested{"security.encrypted", "security.restricted", "page.unread"};
    for (const RuleFile& file : epsFiles() + pdfFiles() + svgFiles()) tested << file.rule;
    QStringList untested;
    for (const RuleRow& row : ruleTable)
      if (const QString name = latin1(row.identifier); !tested.contains(name)) untested << name;
    QVERIFY2(untested.isEmpty(), qPrintable(untested.join('\n')));
  }

  void encryptionAndPermissionsAreTold() {
    const QTemporaryDir folder;
    const QString plain = folder.filePath("plain.pdf"), locked = folder.filePath("locked.pdf");
    QVERIFY(write(plain, page("0 0 10 10 re f")));
    QCOMPARE(
        kit::run("qpdf", {"--encrypt", "", "owner", "256", "--print=none", "--", plain, locked}).exitCode, 0);
    const auto found = [](const QString& file) {
      const kit::Ran ran = kit::run(kNorvex, {"check", "--json", file});
      return identifiersOf(QJsonDocument::fromJson(ran.out).array()[0].toObject());
    };
    QVERIFY(found(locked).contains("security.encrypted"));
    QVERIFY(found(locked).contains("security.restricted"));
    QVERIFY(!found(plain).contains("security.encrypted"));
    QVERIFY(!found(plain).contains("security.restricted"));
  }

  void theExitCodeIsAGate() {
    const QTemporaryDir folder;
    const QString good = folder.filePath("good.eps"), bad = folder.filePath("bad.eps");
    QVERIFY(write(good, kEps) && write(bad, eps("%%BoundingBox: 10 10 90 60\n", "")));
    const auto code = [](const QStringList& arguments) {
      return kit::run(kNorvex, QStringList{"check"} + arguments).exitCode;
    };
    QCOMPARE(code({good}), 0);
    QCOMPARE(code({bad}), 1);
    QCOMPARE(code({good, bad}), 1);
    QCOMPARE(code({folder.filePath("nowhere.eps")}), 3);
    QCOMPARE(code({"--profile", "nowhere", good}), 2);
    QCOMPARE(code({"--profile", "print", good}), 0);
    QVERIFY(write(folder.filePath("endless.eps"), eps(kDraw, "{ } loop\n")));
    QCOMPARE(code({"--timeout", "1", folder.filePath("endless.eps")}), 5);
  }

  void aFindingIsOneLineForPeople() {
    const QTemporaryDir folder;
    const QString file = folder.filePath("a.eps");
    QVERIFY(write(file, changed(withPreview(kHalfEps, true), " EPSF-3.0", "")));
    const kit::Ran ran = kit::run(kNorvex, {"check", file});
    QCOMPARE(QString::fromUtf8(ran.out), file +
                                             ":1: warning: the first line \"%!PS-Adobe-3.0\" does not say "
                                             "%!PS-Adobe-3.0 EPSF-3.0 (eps.header.not-epsf)\n");
  }
};

NORVEX_TEST(CheckRulesTest)
#include "check_rules_test.moc"
