// The arrows between the folders of src/: who may include whom.
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include "kit/test_main.h"

namespace {

const QString kSource = QStringLiteral(NORVEX_SOURCE_DIR "/src");

/// Folder → the folders that its line in the table names.
QMap<QString, QStringList> readTable() {
  QMap<QString, QStringList> table;
  QFile file(kSource + "/folders.txt");
  if (!file.open(QIODevice::ReadOnly)) return table;
  for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
    const QStringList columns = line.split('|');
    if (line.startsWith('#') || columns.size() != 3) continue;
    table.insert(columns[0].trimmed(), columns[1].simplified().split(' ', Qt::SkipEmptyParts));
  }
  return table;
}

const QMap<QString, QStringList>& table() {
  static const QMap<QString, QStringList> read = readTable();
  return read;
}

/// All that `folder` may include: what its line names, and what those may include.
void collect(const QString& folder, QSet<QString>& seen) {
  for (const QString& next : table().value(folder)) {
    if (seen.contains(next)) continue;
    seen.insert(next);
    collect(next, seen);
  }
}

QSet<QString> reach(const QString& folder) {
  QSet<QString> seen;
  collect(folder, seen);
  return seen;
}

QString folderOf(const QString& path) {
  return path.section('/', 0, -2);
}

template <typename Visit>
void forEachInclude(Visit visit) {
  static const QRegularExpression include(QStringLiteral("^\\s*#\\s*include\\s+([<\"])([^>\"]+)[>\"]"));
  QDirIterator it(kSource, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext()) {
    QFile file(it.next());
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QString path = QDir(kSource).relativeFilePath(file.fileName());
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
      const auto match = include.match(line);
      if (match.hasMatch()) visit(path, match.captured(2), match.captured(1) == "\"");
    }
  }
}

bool isWorker(const QString& folder) {
  return folder == "worker" || folder.startsWith("worker/");
}

}  // namespace

class IncludeArrowsTest : public QObject {
  Q_OBJECT
 private slots:
  void everyFolderHasItsLine() {
    QStringList wrong;
    QDirIterator it(kSource, {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
      const QString folder = folderOf(QDir(kSource).relativeFilePath(it.next()));
      if (folder != "programs" && !table().contains(folder)) wrong << folder;
    }
    QVERIFY(table().size() > 20);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void everyFolderIncludesOnlyWhatItMay() {
    QStringList wrong;
    int seen = 0;
    forEachInclude([&](const QString& path, const QString& header, bool own) {
      const QString from = folderOf(path);
      const QString to = folderOf(header);
      if (!own || to.isEmpty() || from == "programs")
        return;  // moc and uic results; programs stand above all
      ++seen;
      if (from != to && !reach(from).contains(to)) wrong << path + " -> " + header;
    });
    QVERIFY(seen > 500);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void noArrowLeadsBack() {
    for (const QString& folder : table().keys()) {
      QVERIFY2(!reach(folder).contains(folder), qPrintable(folder));
      for (const QString& next : table().value(folder)) QVERIFY2(table().contains(next), qPrintable(next));
    }
  }

  void everyArrowIsUsed() {
    QMap<QString, QSet<QString>> used;
    forEachInclude([&](const QString& path, const QString& header, bool own) {
      if (own) used[folderOf(path)].insert(folderOf(header));
    });
    QStringList wrong;
    for (const QString& folder : table().keys())
      for (const QString& next : table().value(folder)) {
        QSet<QString> through = reach(next);
        through.insert(next);
        if (!through.intersects(used.value(folder))) wrong << folder + " -> " + next;
      }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void thePictureProcessSharesOnlyTheProtocolAndPureParsers() {
    const QSet<QString> shared{"base", "base/memory", "protocol", "types", "metadata"};
    for (const QString& folder : table().keys())
      for (const QString& next : reach(folder))
        if (isWorker(folder))
          QVERIFY2(isWorker(next) || shared.contains(next), qPrintable(folder + " -> " + next));
  }

  void enginesAreSeenInThePictureProcessAlone() {
    static const QRegularExpression engine(
        QStringLiteral("^(poppler|librsvg|qpdf/|cairo|libxml|ghostscript/|glib|gio/|tiffio)"));
    QStringList wrong;
    forEachInclude([&](const QString& path, const QString& header, bool) {
      const bool writesTiff = path.startsWith("encoders/") && header.startsWith("tiffio");
      const bool listsRecents = path.startsWith("history/") && header == "glib.h";  // the desktop's list
      if (engine.match(header).hasMatch() && !path.startsWith("worker/") && !writesTiff && !listsRecents)
        wrong << path + " -> " + header;
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void widgetsAreSeenInWindowsAlone() {
    static const QRegularExpression widget(
        QStringLiteral("^(QtWidgets|QWidget|QApplication|QMainWindow|QDialog|QLabel|QAbstractScrollArea|"
                       "QScrollArea|QMessageBox|QMenu)"));
    QStringList wrong;
    forEachInclude([&](const QString& path, const QString& header, bool) {
      const QString room = path.section('/', 0, 0);
      const bool shows = room == "ui" || room == "window" || room == "application";
      if (!shows && room != "programs" && widget.match(header).hasMatch()) wrong << path + " -> " + header;
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }
};

NORVEX_TEST(IncludeArrowsTest)
#include "include_arrows_test.moc"
