// Sizes and forms that every source keeps.
#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include "kit/test_main.h"

namespace {

QStringList files(const QString& folder, const QStringList& patterns) {
  QStringList all;
  QDirIterator it(QStringLiteral(NORVEX_SOURCE_DIR "/") + folder, patterns, QDir::Files,
                  QDirIterator::Subdirectories);
  while (it.hasNext()) all << it.next();
  all.sort();
  return all;
}

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class SourcesTest : public QObject {
  Q_OBJECT
 private slots:
  void noSourceIsLongerThanItsRoom() {
    QStringList wrong;
    const QStringList all = files("src", {"*.h", "*.cpp"}) + files("tests", {"*.h", "*.cpp"});
    QVERIFY(all.size() > 20);
    for (const QString& path : all)
      if (contents(path).count('\n') > 600) wrong << path;
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void everyHeaderIsGuarded() {
    QStringList wrong;
    for (const QString& path : files("src", {"*.h"}))
      if (!contents(path).contains("#pragma once")) wrong << path;
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void everyScriptIsExecutable() {
    for (const char* script : {"run", "test", ".ci/run", "scripts/install-packages"})
      QVERIFY2(QFileInfo(QStringLiteral(NORVEX_SOURCE_DIR "/") + script).isExecutable(), script);
  }
};

NORVEX_TEST(SourcesTest)
#include "sources_test.moc"
