// A file taken out of a widget with the mouse.
#include "ui/picture/drag_source.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMouseEvent>

#include "kit/test_main.h"
#include "ui/picture/dragged_file_data.h"

using namespace norvex;

namespace {

/// Tells what of the mouse arrives at it.
class Seeing final : public QWidget {
 public:
  QStringList seen;

 protected:
  void mousePressEvent(QMouseEvent*) override { seen << QStringLiteral("press"); }
  void mouseMoveEvent(QMouseEvent*) override { seen << QStringLiteral("move"); }
  void mouseReleaseEvent(QMouseEvent*) override { seen << QStringLiteral("release"); }
};

/// A widget from which nothing can be dragged, though it is asked.
struct Source {
  Source() { widget.setMouseTracking(true); }
  Seeing widget;
  int asked = 0;
  DragSource source{widget,
                    [this] {
                      ++asked;
                      return std::optional<DraggedFile>();
                    },
                    nullptr};

  void send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    QMouseEvent event(type, at, at, button, button, keys);
    QCoreApplication::sendEvent(&widget, &event);
  }
  void press(QPoint at, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers keys = Qt::ControlModifier) {
    send(QEvent::MouseButtonPress, at, button, keys);
  }
  void move(QPoint at) { send(QEvent::MouseMove, at, Qt::NoButton, Qt::ControlModifier); }
  void release(QPoint at) { send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::ControlModifier); }
};

}  // namespace

class DragSourceTest : public QObject {
  Q_OBJECT
 private slots:
  void aDragWithoutTheKeyOrWithAnotherButtonIsTheWidgets_data() {
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("keys");
    QTest::newRow("no key") << Qt::LeftButton << Qt::KeyboardModifiers();
    QTest::newRow("another key") << Qt::LeftButton << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("another button") << Qt::MiddleButton << Qt::KeyboardModifiers(Qt::ControlModifier);
  }
  void aDragWithoutTheKeyOrWithAnotherButtonIsTheWidgets() {
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, keys);
    Source s;
    s.press({50, 50}, button, keys);
    s.move({90, 90});
    s.release({90, 90});
    QCOMPARE(s.widget.seen, QStringList({"press", "move", "release"}));
    QCOMPARE(s.asked, 0);
  }

  void theFileIsAskedForOnceWhenThePointerIsFarEnough() {
    Source s;
    const int far = QApplication::startDragDistance();
    s.press({50, 50});
    s.move({50 + far - 1, 50});
    QCOMPARE(s.asked, 0);
    s.move({50 + far - 1, 51});
    QCOMPARE(s.asked, 1);
    QVERIFY2(s.widget.seen.isEmpty(), "the widget saw something of the drag");
    s.move({120, 120});
    QCOMPARE(s.asked, 1);
    QCOMPARE(s.widget.seen, QStringList("move"));
  }

  void aPressThatIsLetGoOnTheSpotIsOver() {
    Source s;
    s.press({50, 50});
    s.release({50, 50});
    QVERIFY(s.widget.seen.isEmpty());
    s.move({90, 90});
    s.release({90, 90});
    QCOMPARE(s.asked, 0);
    QCOMPARE(s.widget.seen, QStringList({"move", "release"}));
  }

  void theFileIsMadeOnceUnderItsNameWhereNobodyElseReads() {
    int made = 0;
    const DraggedFileData data({QStringLiteral("a b.svg"), [&made] {
                                  ++made;
                                  return QByteArray("<svg/>");
                                }});
    QCOMPARE(made, 0);
    const QList<QUrl> urls = data.urls();
    QCOMPARE(urls.size(), 1);
    const QFileInfo info(urls.first().toLocalFile());
    QCOMPARE(info.fileName(), QStringLiteral("a b.svg"));
    QFile file(info.filePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("<svg/>"));
    const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    QVERIFY(!(QFileInfo(info.path()).permissions() & others));
    QCOMPARE(data.data("text/uri-list"), urls.first().toEncoded() + "\r\n");
    QCOMPARE(made, 1);
  }

  void twoFilesOfOneNameDoNotMeet() {
    const auto one = [](const char* bytes) {
      return DraggedFile{QStringLiteral("part.pdf"), [bytes] { return QByteArray(bytes); }};
    };
    const DraggedFileData first(one("1")), second(one("2"));
    QVERIFY(first.urls() != second.urls());
    QVERIFY(QFileInfo::exists(first.urls().value(0).toLocalFile()));
    QVERIFY(QFileInfo::exists(second.urls().value(0).toLocalFile()));
  }

  void withoutBytesThereIsNoFileAndNobodyAsksAgain() {
    int made = 0;
    const DraggedFileData data({QStringLiteral("a.svg"), [&made] {
                                  ++made;
                                  return QByteArray();
                                }});
    QVERIFY(data.urls().isEmpty());
    QVERIFY(data.data("text/uri-list").isEmpty());
    QCOMPARE(made, 1);
    QVERIFY(data.hasFormat("text/uri-list"));
    QVERIFY(!data.hasFormat("text/plain"));
    QVERIFY(data.text().isEmpty());
  }
};

NORVEX_TEST(DragSourceTest)
#include "drag_source_test.moc"
