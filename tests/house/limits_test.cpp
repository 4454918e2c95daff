// The limits: none of them stands there without a test that names it.
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "kit/test_main.h"

namespace {

const QString kRoot = QStringLiteral(NORVEX_SOURCE_DIR "/");

QString textOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList constants() {
  static const QRegularExpression constant(QStringLiteral("^inline constexpr [\\w:]+(?: \\w+)? (\\w+) ="),
                                           QRegularExpression::MultilineOption);
  QStringList names;
  for (auto match = constant.globalMatch(textOf(kRoot + "src/protocol/limits.h")); match.hasNext();)
    names << match.next().captured(1);
  return names;
}

/// The constants that the sources below a folder name.
QSet<QString> namedBelow(const QString& folder) {
  static const QRegularExpression named(QStringLiteral("\\blimits::(\\w+)"));
  QSet<QString> names;
  QDirIterator it(kRoot + folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext())
    for (auto match = named.globalMatch(textOf(it.next())); match.hasNext();)
      names << match.next().captured(1);
  return names;
}

}  // namespace

class LimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void everyLimitIsReachedByATestThatNamesIt() {
    const QSet<QString> tested = namedBelow(QStringLiteral("tests"));
    QVERIFY(constants().size() > 80);
    QStringList wrong;
    for (const QString& name : constants())
      if (!tested.contains(name)) wrong << name;
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }
};

NORVEX_TEST(LimitsTest)
#include "limits_test.moc"
