// Sizes and forms that every source keeps.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

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

/// What is written by hand at the root of the tree.
QStringList rootFiles() {
  QStringList all;
  const QDir root(QStringLiteral(NORVEX_SOURCE_DIR));
  const QStringList named{"run", "test", "*.md", "CMake*", ".clang-*", ".git?*"};
  for (const QFileInfo& file : root.entryInfoList(named, QDir::Files | QDir::Hidden)) all << file.filePath();
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

  /// What a window does stands in an object a command; its controller only hands on.
  void theWindowControllerStaysShort() {
    const QByteArray header =
        contents(QStringLiteral(NORVEX_SOURCE_DIR "/src/window/main_window_controller.h"));
    QVERIFY(header.contains("WindowCommands commands_"));
    QVERIFY2(header.count('\n') <= 160, QByteArray::number(header.count('\n')).constData());
  }

  /// Who went away meanwhile, and what a sanitizer cannot see, is told there once.
  void workGoesToOtherThreadsAndBackThroughOneDoor() {
    static const QRegularExpression beside(
        QStringLiteral("QtConcurrent\\b|QFutureWatcher|QThread::create|[Tt]hreads?(\\(\\)|_)\\.start\\(|"
                       "\\bpool\\.start\\(|invokeMethod\\((qApp|application)|\\.then\\(qApp"));
    QStringList users, wrong;
    for (const QString& path : files("src", {"*.h", "*.cpp"})) {
      const QString text = QString::fromUtf8(contents(path));
      if (text.contains(QStringLiteral("workInBackground("))) users << path;
      if (text.contains(beside) && !path.contains(QStringLiteral("/base/background_"))) wrong << path;
    }
    QVERIFY2(users.size() > 10, "looked for in the wrong place");
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  /// Two types of one name in one namespace are one to the linker, and either may get what is the other's.
  void noTwoTypesHaveOneName() {
    static const QRegularExpression known(
        QStringLiteral(
            "^namespace (?<space>[\\w:]+) \\{|^(?:class|struct|enum class|enum) (?<type>\\w+)(?= )[^;{]*\\{"),
        QRegularExpression::MultilineOption);
    QHash<QString, QString> homes;
    QStringList wrong;
    for (const QString& path : files("src", {"*.h"})) {
      const QString text = QString::fromUtf8(contents(path));
      QString space;
      for (auto match = known.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        if (found.hasCaptured(u"space")) space = found.captured(u"space");
        if (!found.hasCaptured(u"type")) continue;
        QString& home = homes[space + QStringLiteral("::") + found.captured(u"type")];
        if (!home.isEmpty()) wrong << path + QStringLiteral(" and ") + home;
        home = path;
      }
    }
    QVERIFY2(homes.size() > 400, "looked for in the wrong place");
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void everyHeaderIsGuarded() {
    QStringList wrong;
    for (const QString& path : files("src", {"*.h"}))
      if (!contents(path).contains("#pragma once")) wrong << path;
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  /// What is written down must hold on every machine and for every reader.
  void nothingNamesThePlaceWhereItWasWrittenOrAListThatOnlyItsAuthorSees() {
    const QByteArray here = QByteArray(NORVEX_SOURCE_DIR) + '/';
    static const QRegularExpression numbered(QStringLiteral("\\w #[0-9]{1,4}\\b"));
    QStringList wrong;
    const QStringList all = files("src", {"*.h", "*.cpp", "*.txt"}) +
                            files("tests", {"*.h", "*.cpp", "*.txt"}) + files("scripts", {"*"}) +
                            files("cmake", {"*"}) + files("docs", {"*.md"}) + files(".ci", {"*"}) +
                            rootFiles();
    for (const QString& path : all) {
      const QByteArray text = contents(path);
      if (text.contains(here) || numbered.match(QString::fromUtf8(text)).hasMatch()) wrong << path;
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void everyScriptIsExecutable() {
    for (const char* script : {"run", "test", ".ci/run", "scripts/install-packages", "scripts/check-format",
                               "scripts/check-headers", "scripts/check-tidy", "scripts/draw-folders",
                               "scripts/damage-files", "scripts/bench"})
      QVERIFY2(QFileInfo(QStringLiteral(NORVEX_SOURCE_DIR "/") + script).isExecutable(), script);
  }
};

NORVEX_TEST(SourcesTest)
#include "sources_test.moc"
