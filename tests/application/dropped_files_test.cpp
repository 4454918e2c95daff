#include "application/dropped_files.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QWidget>

#include "kit/test_main.h"
#include "ui/style/drop_mark.h"

using namespace norvex;

namespace {

const QUrl kFile = QUrl::fromLocalFile("/tmp/a.eps");

struct Target {
  Target() {
    window.resize(300, 200);
    window.show();
    target.watch(&window);
    data.setUrls({kFile});
  }
  bool enter() {
    QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(&window, &event);
    return event.isAccepted();
  }
  bool drop() {
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(&window, &event);
    return event.isAccepted();
  }
  void leave() {
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(&window, &event);
  }
  [[nodiscard]] QList<DropMark*> marks() const { return window.findChildren<DropMark*>(); }

  QWidget window;
  FileDropTarget target;
  QMimeData data;
};

}  // namespace

class DroppedFilesTest : public QObject {
  Q_OBJECT
 private slots:
  void onlyLocalFilesAreTaken() {
    Target t;
    t.data.setUrls({kFile, QUrl("https://example.org/a.eps")});
    QCOMPARE(filesIn(&t.data), QList<QUrl>{kFile});
    t.data.setUrls({QUrl("https://example.org/a.eps")});
    QVERIFY(!t.enter());
    QVERIFY(t.marks().isEmpty());
    QCOMPARE(filesIn(nullptr), QList<QUrl>());
  }

  void theWindowIsMarkedWhileFilesAreOverIt() {
    Target t;
    QVERIFY(t.enter());
    QCOMPARE(t.marks().size(), 1);
    const DropMark& mark = *t.marks().constFirst();
    QVERIFY(mark.isVisible());
    QCOMPARE(mark.geometry(), t.window.rect());
    t.window.resize(320, 240);
    QCOMPARE(mark.size(), QSize(320, 240));
    t.leave();
    QVERIFY(t.marks().isEmpty());
  }

  void theMarkIsSeenAndLeavesTheMiddleToBeSeen() {
    Target t;
    t.window.setStyleSheet("background: white");
    const QImage before = t.window.grab().toImage();
    QVERIFY(t.enter());
    const QImage marked = t.window.grab().toImage();
    const QColor highlight = t.window.palette().color(QPalette::Highlight);
    for (const QPoint edge : {QPoint(1, 100), QPoint(298, 100), QPoint(150, 1), QPoint(150, 198)})
      QCOMPARE(marked.pixelColor(edge), highlight);
    QVERIFY(marked.pixelColor(150, 100) != before.pixelColor(150, 100));
    QVERIFY(marked.pixelColor(150, 100).lightnessF() > 0.8);
  }

  void aDropTakesTheMarkAwayAndTellsTheFiles() {
    Target t;
    QSignalSpy dropped(&t.target, &FileDropTarget::filesDropped);
    QVERIFY(t.enter());
    QVERIFY(t.enter());  // without having left
    QCOMPARE(t.marks().size(), 1);
    QVERIFY(t.drop());
    QVERIFY(t.marks().isEmpty());
    QCOMPARE(dropped.size(), 1);
    QCOMPARE(dropped.at(0).at(0).value<QList<QUrl>>(), QList<QUrl>{kFile});
  }

  void theMarkTakesNeitherMouseNorDrag() {
    Target t;
    QWidget below(&t.window);
    below.setGeometry(0, 0, 100, 100);
    below.show();
    QVERIFY(t.enter());
    QCOMPARE(t.window.childAt(50, 50), &below);
    QVERIFY(!t.marks().constFirst()->acceptDrops());
  }

  void aWindowMayCloseWithFilesOverIt() {
    FileDropTarget target;
    QMimeData data;
    data.setUrls({kFile});
    {
      QWidget window;
      target.watch(&window);
      QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(&window, &enter);
    }
    Target other;
    other.target.watch(&other.window);
    QVERIFY(other.enter());
    QCOMPARE(other.marks().size(), 1);
  }
};

NORVEX_TEST(DroppedFilesTest)
#include "dropped_files_test.moc"
