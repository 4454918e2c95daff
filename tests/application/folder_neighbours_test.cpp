// The pictures beside a picture.
#include <QFile>
#include <QTemporaryDir>

#include "application/folder_neighbours.h"
#include "kit/test_main.h"

using namespace norvex;

class FolderNeighboursTest : public QObject {
  Q_OBJECT
 private slots:
  void picturesFollowEachOtherAsPeopleOrderThem() {
    const QTemporaryDir folder;
    for (const char* name : {"fig10.eps", "Fig2.pdf", "fig1.svg", "notes.txt", "fig3.png"}) {
      QFile file(folder.filePath(QLatin1String(name)));
      QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const auto from = [&](const char* name, int step) {
      return neighbourOf(QUrl::fromLocalFile(folder.filePath(QLatin1String(name))), step).fileName();
    };
    QCOMPARE(from("fig1.svg", 1), QString("Fig2.pdf"));
    QCOMPARE(from("Fig2.pdf", 1), QString("fig10.eps"));  // neither the text nor the pixels between
    QCOMPARE(from("fig10.eps", -1), QString("Fig2.pdf"));
    QCOMPARE(from("fig10.eps", 1), QString());
    QCOMPARE(from("fig1.svg", -1), QString());
  }

  void aPictureWithAnotherNameHasNeighboursToo() {
    const QTemporaryDir folder;
    for (const char* name : {"a.eps", "b", "c.eps"}) {
      QFile file(folder.filePath(QLatin1String(name)));
      QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(neighbourOf(QUrl::fromLocalFile(folder.filePath("b")), 1).fileName(), QString("c.eps"));
  }

  void whatIsGoneHasNone() {
    QVERIFY(neighbourOf(QUrl::fromLocalFile("/nowhere/at/all/a.eps"), 1).isEmpty());
    QVERIFY(neighbourOf(QUrl("https://example.org/a.eps"), 1).isEmpty());
  }
};

NORVEX_TEST(FolderNeighboursTest)
#include "folder_neighbours_test.moc"
