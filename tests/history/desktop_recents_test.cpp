#include "history/desktop_recents.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "kit/test_main.h"

using namespace norvex;

namespace {

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write test data");
}

/// As another program has left it, with one file of its own.
const QByteArray kList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\" xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\" "
    "xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
    "  <bookmark href=\"file:///theirs.txt\" added=\"2026-01-01T00:00:00Z\" "
    "modified=\"2026-01-01T00:00:00Z\" "
    "visited=\"2026-01-01T00:00:00Z\">\n    <info><metadata owner=\"http://freedesktop.org\">\n"
    "      <mime:mime-type type=\"text/plain\"/>\n      <bookmark:applications>\n"
    "        <bookmark:application name=\"Editor\" exec=\"&apos;editor %u&apos;\" "
    "modified=\"2026-01-01T00:00:00Z\" count=\"3\"/>\n      </bookmark:applications>\n    "
    "</metadata></info>\n"
    "  </bookmark>\n</xbel>\n";

}  // namespace

class DesktopRecentsTest : public QObject {
  Q_OBJECT

  std::unique_ptr<QTemporaryDir> folder_;
  QString list() const { return folder_->filePath("data/recently-used.xbel"); }

 private slots:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(folder_->path()).mkdir("data"));
  }

  void aFileIsAddedWithItsKindAndThisProgram() {
    addToDesktopRecents(list(), "/tmp/ä b.eps", "image/x-eps");
    const QByteArray text = bytesOf(list());
    QVERIFY(text.contains("href=\"file:///tmp/%C3%A4%20b.eps\""));
    QVERIFY(text.contains("type=\"image/x-eps\""));
    QVERIFY(text.contains("name=\"Norvex\" exec=\"&apos;norvex %u&apos;\""));
    QCOMPARE(QFile(list()).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
  }

  void whatOthersHaveListedStays() {
    write(list(), kList);
    addToDesktopRecents(list(), "/a.eps", "image/x-eps");
    addToDesktopRecents(list(), "/theirs.txt", "text/plain");
    QVERIFY(bytesOf(list()).contains("name=\"Editor\""));
    clearFromDesktopRecents(list());
    const QByteArray text = bytesOf(list());
    QVERIFY(text.contains("file:///theirs.txt") && text.contains("name=\"Editor\""));
    QVERIFY(!text.contains("Norvex") && !text.contains("a.eps"));
  }

  void aListThatCannotBeReadIsLeftAsItIs() {
    write(list(), "<xbel> no list");
    addToDesktopRecents(list(), "/a.eps", "image/x-eps");
    clearFromDesktopRecents(list());
    QCOMPARE(bytesOf(list()), QByteArray("<xbel> no list"));
  }

  void theListStandsWithTheDataOfTheUser() {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    const bool wasSet = qEnvironmentVariableIsSet("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/my data");
    QCOMPARE(desktopRecentsFile(), QString("/my data/recently-used.xbel"));
    qputenv("XDG_DATA_HOME", "relative");
    QCOMPARE(desktopRecentsFile(), QDir::homePath() + "/.local/share/recently-used.xbel");
    qunsetenv("XDG_DATA_HOME");
    QCOMPARE(desktopRecentsFile(), QDir::homePath() + "/.local/share/recently-used.xbel");
    if (wasSet) qputenv("XDG_DATA_HOME", before);
  }

  void aListWithoutFilesOfOursIsNotWrittenAnew() {
    write(list(), kList);
    clearFromDesktopRecents(list());
    QCOMPARE(bytesOf(list()), kList);
  }

  void clearingMakesNoList() {
    clearFromDesktopRecents(list());
    QVERIFY(!QFile::exists(list()));
  }
};

NORVEX_TEST(DesktopRecentsTest)
#include "desktop_recents_test.moc"
