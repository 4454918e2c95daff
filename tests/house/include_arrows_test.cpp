// The arrows between the folders of src/: who may include whom.
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include "kit/test_main.h"

namespace {

const QString kSource = QStringLiteral(NORVEX_SOURCE_DIR "/src");

/// Folder (longest match wins) → the folders whose headers its files may include, besides its own.
const QMap<QString, QStringList>& allowed() {
  static const QMap<QString, QStringList> table{
      {"platform", {}},
      {"platform/picture", {"platform", "metadata"}},
      {"platform/qt", {"platform", "platform/picture", "platform/print", "metadata", "display", "encoders", "document"}},
      {"platform/print", {"platform", "platform/picture", "display"}},
      {"metadata", {"platform", "platform/picture"}},
      {"display", {"platform", "platform/picture", "metadata"}},
      {"encoders", {"platform", "platform/picture", "metadata", "display"}},
      {"document", {"platform", "platform/picture", "platform/print", "metadata", "display", "encoders"}},
      {"window",
       {"platform", "platform/picture", "platform/print", "platform/qt", "metadata", "display", "encoders", "document"}},
      {"cli", {"platform", "platform/picture", "platform/print", "metadata", "display", "encoders", "document"}},
      {"worker", {"platform", "metadata", "worker/engine"}},
      {"worker/engine", {"platform", "metadata", "worker"}},
      {"programs", {"platform", "platform/picture", "platform/qt", "window", "document", "cli", "worker", "worker/engine"}},
  };
  return table;
}

QString folderOf(const QString& path) {
  QString best;
  for (auto it = allowed().begin(); it != allowed().end(); ++it)
    if (path.startsWith(it.key() + '/') && it.key().size() > best.size()) best = it.key();
  return best;
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

}  // namespace

class IncludeArrowsTest : public QObject {
  Q_OBJECT
 private slots:
  void everyFolderIncludesOnlyWhatItMay() {
    QStringList wrong;
    int seen = 0;
    forEachInclude([&](const QString& path, const QString& header, bool own) {
      if (!own) return;
      const QString from = folderOf(path);
      const QString to = folderOf(header);
      if (to.isEmpty()) return;  // moc and uic results
      ++seen;
      if (from.isEmpty() || (from != to && !allowed().value(from).contains(to))) wrong << path + " -> " + header;
    });
    QVERIFY(seen > 20);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void enginesAreSeenInTheWorkerAlone() {
    static const QRegularExpression engine(
        QStringLiteral("^(poppler|librsvg|qpdf/|cairo|libxml|ghostscript/|glib|gio/|tiffio)"));
    QStringList wrong;
    forEachInclude([&](const QString& path, const QString& header, bool) {
      const bool writesTiff = path.startsWith("encoders/") && header.startsWith("tiffio");
      if (engine.match(header).hasMatch() && !path.startsWith("worker/") && !writesTiff) wrong << path + " -> " + header;
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void pureFoldersKnowNoWidget() {
    static const QRegularExpression widget(QStringLiteral(
        "^(QtWidgets|QWidget|QApplication|QMainWindow|QDialog|QLabel|QAbstractScrollArea|QScrollArea|QMessageBox|QMenu)"));
    QStringList wrong;
    forEachInclude([&](const QString& path, const QString& header, bool) {
      const bool pure = path.startsWith("metadata/") || path.startsWith("encoders/") || path.startsWith("display/") ||
                        path.startsWith("worker/") || path.startsWith("cli/");
      if (pure && widget.match(header).hasMatch()) wrong << path + " -> " + header;
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void theWorkerSharesOnlyTheProtocolAndPureParsers() {
    static const QSet<QString> shared{"platform/worker_protocol.h", "platform/result.h",          "platform/cancel_token.h",
                                      "platform/bitmap_image_rep.h", "platform/message_channel.h", "platform/sealed_memory.h",
                                      "platform/file_descriptor.h", "platform/picture_needs.h", "platform/affine_transform.h"};
    QStringList wrong;
    forEachInclude([&](const QString& path, const QString& header, bool own) {
      if (!own || !path.startsWith("worker/")) return;
      if (header.startsWith("platform/") && !shared.contains(header)) wrong << path + " -> " + header;
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }
};

NORVEX_TEST(IncludeArrowsTest)
#include "include_arrows_test.moc"
