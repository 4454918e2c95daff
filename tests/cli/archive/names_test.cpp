// The names that a run goes through: lists, trees, patterns, places.
#include <fcntl.h>
#include <sys/fsuid.h>
#include <sys/socket.h>
#include <sys/sysmacros.h>
#include <sys/un.h>

#include <cstring>
#include <thread>

#include "cli/archive/archive_files.h"
#include "cli/archive/names/list_source.h"
#include "cli/archive/names/name_filter.h"
#include "cli/archive/names/tree_source.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

qsizetype countOf(const QList<QByteArray>& lines, const char* text) {
  return std::count_if(lines.begin(), lines.end(),
                       [&](const QByteArray& line) { return line.contains(text); });
}

/// What a source tells, one line each: "path > place", or "path: reason" with a ! for a failure.
QList<QByteArray> told(NameSource& source) {
  QList<QByteArray> all;
  while (const auto listed = source.next()) {
    if (const auto* name = std::get_if<ListedName>(&*listed))
      all << name->path + " > " + name->below;
    else if (const auto* over = std::get_if<PassedOver>(&*listed))
      all << over->path + (over->isFailure ? "!: " : ": ") + over->reason.toUtf8();
  }
  return all;
}

/// A list that holds these bytes.
FileDescriptor listOf(const QByteArray& bytes) {
  int ends[2];
  if (::pipe(ends) != 0) qFatal("no pipe");
  const FileDescriptor in(ends[1]);
  std::thread writer([&] { (void)!::write(in.get(), bytes.constData(), size_t(bytes.size())); });
  if (bytes.size() > 60'000) qFatal("a pipe holds less");
  writer.join();
  return FileDescriptor(ends[0]);
}

QList<QByteArray> namesIn(const QByteArray& bytes, char separator = '\n', const QByteArray& base = {}) {
  ListSource source(listOf(bytes), separator, base, CancelToken());
  return told(source);
}

QList<QByteArray> treeOf(const Archive& archive, const NameFilter& filter, const QByteArray& results = {}) {
  TreeSource source(archive.at("in"), filter, results, CancelToken());
  QList<QByteArray> all = told(source);
  for (QByteArray& line : all) line.replace(archive.at("in"), "in");
  std::sort(all.begin(), all.end());
  return all;
}

}  // namespace

class NamesTest : public QObject {
  Q_OBJECT
 private slots:
  void aListHoldsANameALine() {
    QCOMPARE(namesIn("a.svg\nd/b.svg\n\nlast"),
             QList<QByteArray>({"a.svg > a.svg", "d/b.svg > b.svg", "last > last"}));
    QCOMPARE(namesIn(""), QList<QByteArray>());
    QCOMPARE(namesIn("\n\n"), QList<QByteArray>());
  }

  void namesMayBeAnyBytesAndHoldLineFeedsBetweenNuls() {
    QCOMPARE(namesIn("bad\xFF\xC3.svg\n"), QList<QByteArray>({"bad\xFF\xC3.svg > bad\xFF\xC3.svg"}));
    QCOMPARE(namesIn(QByteArray("a\nb.svg\0c\0", 10), '\0'),
             QList<QByteArray>({"a\nb.svg > a\nb.svg", "c > c"}));
    QCOMPARE(namesIn(QByteArray("a\0b\n", 4)),
             QList<QByteArray>({QByteArray("a\0b!: a file name holds no NUL (--null)", 39)}));
  }

  void whatIsLongerThanAPathIsAFailureAndTheNextNameIsNotLost() {
    const QByteArray tooLong(5000, 'x');
    const QByteArray head(100, 'x');
    const QByteArray failure = head + "!: the name is longer than a path can be";
    QCOMPARE(namesIn(tooLong + "\nb\n"), QList<QByteArray>({failure, "b > b"}));
    QCOMPARE(namesIn("a\n" + tooLong), QList<QByteArray>({"a > a", failure}));
    QCOMPARE(namesIn(QByteArray(4096, 'y') + "\n").size(), 1);
    QVERIFY(!namesIn(QByteArray(4096, 'y') + "\n").first().contains("longer"));
  }

  void listedFilesKeepTheirFoldersBelowTheBase() {
    QCOMPARE(namesIn("/a/b/c.svg\n/a/./d//e.svg\n", '\n', "/a"),
             QList<QByteArray>({"/a/b/c.svg > b/c.svg", "/a/./d//e.svg > d/e.svg"}));
    QCOMPARE(namesIn("/b/c\n", '\n', "/a"),
             QList<QByteArray>({"/b/c!: it does not lie below the folder of --base"}));
    QCOMPARE(countOf(namesIn("/a/../c\n/ab/c\n", '\n', "/a"), "does not lie"), 2);
    QCOMPARE(namesIn("d/c\n./e\n", '\n', "."), QList<QByteArray>({"d/c > d/c", "./e > e"}));
    QCOMPARE(countOf(namesIn("../c\n/c\n", '\n', "."), "does not lie"), 2);
  }

  void aListThatIsStillWrittenIsReadAsItComesAndEndsWhenTheRunIsCancelled() {
    int ends[2];
    QVERIFY(::pipe(ends) == 0);
    const FileDescriptor in(ends[1]);
    const CancelToken cancel;
    ListSource source(FileDescriptor{ends[0]}, '\n', {}, cancel);
    QVERIFY(source.wouldWait());
    QCOMPARE(::write(in.get(), "a\nb", 3), 3);
    QVERIFY(!source.wouldWait());
    QCOMPARE(std::get<ListedName>(*source.next()).path, "a");
    std::thread later([&] { cancel.cancel(); });
    QVERIFY(!source.next());  // "b" may be the begin of a longer name
    later.join();
  }

  void aListThatCannotBeReadToItsEndIsAFailure() {
    const Archive archive;
    auto opened = openList(archive.at(""));  // a folder can be opened, and not be read
    QVERIFY(opened.ok());
    ListSource source(std::move(*opened), '\n', {}, CancelToken(), "list");
    QCOMPARE(told(source), QList<QByteArray>({"list!: the list cannot be read to its end (Is a directory)"}));
  }

  void aPipeThatNobodyHasOpenedYetIsWaitedFor() {
    const Archive archive;
    const QByteArray pipe = archive.at("pipe");
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    auto opened = openList(pipe);
    QVERIFY(opened.ok());
    ListSource source(std::move(*opened), '\n', {}, CancelToken());
    QVERIFY(source.wouldWait());
    std::thread writer([&] {
      const FileDescriptor in(::open(pipe.constData(), O_WRONLY));
      (void)!::write(in.get(), "a\nb\n", 4);
    });
    QCOMPARE(told(source), QList<QByteArray>({"a > a", "b > b"}));
    writer.join();
  }

  void aPipeThatNobodyOpensEndsWhenTheRunIsCancelled() {
    const Archive archive;
    QCOMPARE(::mkfifo(archive.at("pipe").constData(), 0600), 0);
    auto opened = openList(archive.at("pipe"));
    QVERIFY(opened.ok());
    const CancelToken cancel;
    ListSource source(std::move(*opened), '\n', {}, cancel);
    std::thread later([&] { cancel.cancel(); });
    QVERIFY(!source.next());
    later.join();
  }

  void aTreeGivesItsPicturesWithTheirPlaces() {
    Archive archive;
    for (const char* name :
         {"in/a.svg", "in/deep/er/b.EPS", "in/c.txt", "in/d.ai", "in/.hidden.pdf", "in/svg"})
      archive.put(name);
    QCOMPARE(treeOf(archive, {}), QList<QByteArray>({"in/.hidden.pdf > .hidden.pdf", "in/a.svg > a.svg",
                                                     "in/d.ai > d.ai", "in/deep/er/b.EPS > deep/er/b.EPS"}));
  }

  void patternsChooseFilesAndLeaveFoldersOut() {
    Archive archive;
    for (const char* name : {"in/a.svg", "in/b.txt", "in/old/a.svg", "in/new/a.svg", "in/new/x/a.svg"})
      archive.put(name);
    QCOMPARE(
        treeOf(archive, {{"*.txt", "new/*"}, {}}),
        QList<QByteArray>({"in/b.txt > b.txt", "in/new/a.svg > new/a.svg", "in/new/x/a.svg > new/x/a.svg"}));
    QCOMPARE(treeOf(archive, {{}, {"old", "new/x"}}),
             QList<QByteArray>({"in/a.svg > a.svg", "in/new/a.svg > new/a.svg"}));
    QCOMPARE(treeOf(archive, {{"*"}, {"*.svg"}}), QList<QByteArray>({"in/b.txt > b.txt"}));
  }

  void nothingIsFollowedOutOfATree() {
    Archive archive;
    archive.put("in/a.svg");
    archive.put("outside/secret.svg");
    QCOMPARE(::symlink(archive.at("outside").constData(), archive.at("in/out").constData()), 0);
    QCOMPARE(::symlink(archive.at("outside/secret.svg").constData(), archive.at("in/l.svg").constData()), 0);
    QCOMPARE(::symlink("..", archive.at("in/loop").constData()), 0);
    QCOMPARE(::symlink("self.svg", archive.at("in/self.svg").constData()), 0);
    QCOMPARE(::mkfifo(archive.at("in/pipe.svg").constData(), 0600), 0);
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{AF_UNIX, {}};
    QVERIFY(QDir::setCurrent(archive.path("in")));
    std::strcpy(address.sun_path, "s.svg");
    QCOMPARE(::bind(socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    QVERIFY(QDir::setCurrent("/"));
    QCOMPARE(treeOf(archive, {}),
             QList<QByteArray>({"in/a.svg > a.svg", "in/l.svg: it is a link, which is not followed",
                                "in/loop: it is a link, which is not followed",
                                "in/out: it is a link, which is not followed",
                                "in/pipe.svg: it is a pipe, not an ordinary file",
                                "in/s.svg: it is a socket, not an ordinary file",
                                "in/self.svg: it is a link, which is not followed"}));
  }

  void devicesArePassedOver() {
    Archive archive;
    archive.put("in/a.svg");
    if (::mknod(archive.at("in/d.svg").constData(), S_IFCHR | 0600, makedev(1, 3)) != 0)
      QSKIP("devices cannot be made here");
    QVERIFY(treeOf(archive, {}).contains("in/d.svg: it is a device, not an ordinary file"));
  }

  void aFolderThatCannotBeReadIsAFailureAndTheOthersAreRead() {
    Archive archive;
    archive.put("in/a.svg");
    TreeSource missing(archive.at("nowhere"), {}, {}, CancelToken());
    QVERIFY(told(missing).first().contains("!: the folder cannot be read"));
    TreeSource file(archive.at("in/a.svg"), {}, {}, CancelToken());
    QVERIFY(told(file).first().contains("!: the folder cannot be read"));
    archive.put("in/closed/b.svg");
    ::chmod(archive.at("in/closed").constData(), 0);
    // Root may read everything: as long as it is somebody else, it may not.
    ::chmod(archive.at("").constData(), 0755);
    const bool isRoot = ::geteuid() == 0;
    if (isRoot) ::setfsuid(65534);
    const QList<QByteArray> found = treeOf(archive, {});
    if (isRoot) ::setfsuid(0);
    ::chmod(archive.at("in/closed").constData(), 0700);
    QCOMPARE(found, QList<QByteArray>(
                        {"in/a.svg > a.svg", "in/closed!: the folder cannot be read (Permission denied)"}));
  }

  void theFolderOfTheResultsIsNotInput() {
    Archive archive;
    archive.put("in/a.svg");
    archive.put("in/out/b.svg");
    QCOMPARE(treeOf(archive, {}, archive.at("in/out")),
             QList<QByteArray>({"in/a.svg > a.svg", "in/out: it is the folder of the results"}));
  }
};

NORVEX_TEST(NamesTest)
#include "names_test.moc"
