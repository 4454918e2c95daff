// The folder of results is another one than when the run began: nothing that was there is lost.
#include <cstdio>

#include "cli/archive/archive_files.h"
#include "cli/archive/output_names.h"
#include "cli/archive/state/file_stamp.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

class ResultsFolderTest : public QObject {
  Q_OBJECT
 private slots:
  void aResultInAFolderThatTookThePlaceOfOursIsTakenBack() {
    Archive archive;
    archive.put("in/a.svg");
    archive.service.setPrepare([&](MemoryPictureProcess&) {
      ::rename(archive.at("out").constData(), archive.at("gone").constData());
      archive.put("out/other.txt", "another's");
    });
    QCOMPARE(archive.convertTree({}), 4);
    QVERIFY2(archive.console.messages.contains("another one is in its place"),
             qPrintable(archive.console.messages));
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"other.txt"}));
    QCOMPARE(archive.filesBelow("gone"), QList<QByteArray>());
  }

  void whatWasInThatFolderBeforeIsNotTakenForAResult() {
    Archive archive;
    Arguments arguments;
    arguments.values.insert(Option::Folder, archive.folder("out"));
    const auto names = OutputNames::of(arguments);
    QVERIFY(names.has_value());
    archive.put("other/a.svg", "another's");
    const qint64 written = markOf(archive.at("other/a.svg"))->changed;
    qint64 since = fileClock();
    while (since <= written) since = fileClock();
    QCOMPARE(::rename(archive.at("out").constData(), archive.at("gone").constData()), 0);
    QCOMPARE(::rename(archive.at("other").constData(), archive.at("out").constData()), 0);
    archive.put("out/b.svg");
    names->takeBack(archive.at("out/a.svg"), since);
    names->takeBack(archive.at("out/b.svg"), since);
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"a.svg"}));
  }

  void aFileThatChangesIsNotDoneAgainInAnotherFolder() {
    Archive archive;
    archive.put("in/a.svg", svg("old"));
    archive.put("other/a.svg", "another's");
    archive.service.setPrepare([&](MemoryPictureProcess&) {
      ::rename(archive.at("out").constData(), archive.at("gone").constData());
      ::rename(archive.at("other").constData(), archive.at("out").constData());
      archive.put("in/a.svg", svg("newer"));
    });
    QCOMPARE(archive.convertTree({}), 4);
    QCOMPARE(archive.bytesAt("out/a.svg"), QByteArray("another's"));
  }
};

NORVEX_TEST(ResultsFolderTest)
#include "results_folder_test.moc"
