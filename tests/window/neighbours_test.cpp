// From a picture to the next one of its folder, in the same place.
#include <QAction>
#include <QPointer>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>

#include "application/document_application.h"
#include "application/open_panel.h"
#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "window/about_box.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// Three pictures in a folder, of which the first is open.
class Folder {
 public:
  Folder() {
    application_.setAlertPresenter(&alerts_);
    for (const char* name : {"a.eps", "b.eps", "c.eps"}) {
      QFile file(files_.filePath(QLatin1String(name)));
      if (!file.open(QIODevice::WriteOnly) || file.write(epsBytes()) < 0) qFatal("cannot write test data");
    }
    application_.start({QUrl::fromLocalFile(files_.filePath("a.eps"))});
    if (!shows("a.eps")) qFatal("nothing was opened");
  }
  /// The only window is of that file, and its picture is there.
  bool shows(const QString& name) {
    return QTest::qWaitFor(
        [&] {
          const QList<Document*> open = application_.documents().documents();
          return open.size() == 1 && open.first()->fileURL().fileName() == name && window()->isVisible() &&
                 controller().pictureView();
        },
        20000);
  }
  [[nodiscard]] qsizetype count() { return application_.documents().documents().size(); }
  bool settled() {
    QTest::qWait(300);
    return QTest::qWaitFor([this] { return !application_.documents().isReading(); }, 20000);
  }
  bool opens(const QString& name) {
    const qsizetype before = count();
    application_.documents().openDocuments({QUrl::fromLocalFile(files_.filePath(name))});
    return QTest::qWaitFor([&] { return count() == before + 1; }, 20000);
  }
  bool link(const QString& from, const QString& name) {
    return QFile::link(files_.filePath(from), files_.filePath(name));
  }
  void close(int number) {
    static_cast<MainWindowController*>(application_.documents().documents().at(number)->windowController())
        ->window()
        ->close();
  }
  [[nodiscard]] MainWindowController& controller() {
    return *static_cast<MainWindowController*>(
        application_.documents().documents().constFirst()->windowController());
  }
  [[nodiscard]] QMainWindow* window() { return controller().window(); }
  void press(const QString& name) { window()->findChild<QAction*>(name)->trigger(); }
  bool goOn(const QString& to) {
    press("nextPictureAction");
    return shows(to);
  }

 private:
  QTemporaryDir files_;
  const bool remembersThere_ = qputenv("XDG_STATE_HOME", files_.path().toUtf8());
  MemoryPictureService service_;
  RecordingAlerts alerts_;
  ApplicationEvents events_;
  DocumentApplication application_{events_, service_, [] { return std::make_unique<MainWindowController>(); },
                                   [](QObject*) {}};
};

}  // namespace

class NeighboursTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void aZoomThatFollowsTheWindowGoesAlong_data() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("fit");
    QTest::newRow("whole") << "fitAction" << int(KeptFit::Whole);
    QTest::newRow("width") << "fitWidthAction" << int(KeptFit::Width);
  }
  void aZoomThatFollowsTheWindowGoesAlong() {
    QFETCH(QString, action);
    QFETCH(int, fit);
    Folder f;
    f.controller().zoomingScrollView()->zoomTo(8);
    f.window()->resize(640, 560);
    f.press(action);
    for (const char* next : {"b.eps", "c.eps"}) {
      QVERIFY(f.goOn(QLatin1String(next)));
      QCOMPARE(int(f.controller().pictureView()->fit), fit);
      QVERIFY(f.controller().zoomFactor() > 2);
      QCOMPARE(f.window()->width(), 640);
    }
  }

  void aZoomThatWasChosenForOnePictureDoesNot() {
    Folder f;
    f.press("fitAction");
    f.controller().zoomingScrollView()->zoomTo(2);
    QVERIFY(f.goOn("b.eps"));
    QVERIFY(*f.controller().pictureView() == PictureView());
  }

  void aNeighbourThatIsOpenComesToTheFrontAndNothingGoes() {
    Folder f;
    QVERIFY(f.opens("b.eps"));
    f.press("nextPictureAction");
    QVERIFY(f.settled());
    QCOMPARE(f.count(), 2);
    f.close(1);
    QTRY_COMPARE(f.count(), 1);
    QVERIFY(f.opens("b.eps"));  // for itself, and not in the place of the first
    QVERIFY(f.settled());
    QCOMPARE(f.count(), 2);
  }

  void aNeighbourThatIsOpenByAnotherNameComesToTheFrontAndNothingGoes() {
    Folder f;
    QVERIFY(f.opens("c.eps"));
    QVERIFY(f.link("c.eps", "aa.eps"));
    f.press("nextPictureAction");
    QVERIFY(f.settled());
    QCOMPARE(f.count(), 2);
    f.close(1);
    QTRY_COMPARE(f.count(), 1);
    QVERIFY(f.opens("aa.eps"));  // for itself, and not in the place of the first
    QVERIFY(f.settled());
    QCOMPARE(f.count(), 2);
  }

  void whatIsAskedInTheOtherWindowGoesWithIt_data() {
    QTest::addColumn<bool>("files");
    QTest::newRow("what the program is") << false;
    QTest::newRow("files to open") << true;
  }
  void whatIsAskedInTheOtherWindowGoesWithIt() {
    QFETCH(bool, files);
    Folder f;
    QTimer::singleShot(20000, f.window(), [] {
      if (QWidget* const left = QApplication::activeModalWidget()) left->close();
    });
    f.press("nextPictureAction");
    QCOMPARE(f.count(), 1);
    const QPointer<QMainWindow> other = f.window();
    if (files)
      QVERIFY(runOpenPanel(other, {}).isEmpty());
    else
      showAboutBox(*other);
    QVERIFY(!other);
    QVERIFY(f.shows("b.eps"));
  }

  void itStandsWhereTheOtherStood() {
    Folder f;
    f.window()->move(150, 130);
    const QPoint place = f.window()->geometry().topLeft();
    for (const char* next : {"b.eps", "c.eps"}) {
      QVERIFY(f.goOn(QLatin1String(next)));
      QTRY_COMPARE(f.window()->geometry().topLeft(), place);
    }
  }

  void aWindowThatIsLargerThanTheOtherStaysOnTheScreen() {
    Folder f;
    const QRect screen = f.window()->screen()->availableGeometry();
    f.window()->move(screen.right() - 100, screen.bottom() - 80);
    QVERIFY(f.goOn("b.eps"));
    QTRY_VERIFY(screen.contains(f.window()->geometry()));
  }

  void aFullScreenGoesOn() {
    Folder f;
    f.press("fullScreenAction");
    QTRY_VERIFY(f.window()->isFullScreen());
    QVERIFY(f.goOn("b.eps"));
    QTRY_VERIFY(f.window()->isFullScreen());
    f.press("fullScreenAction");
    QTRY_VERIFY(!f.window()->isFullScreen());
  }
};

NORVEX_TEST(NeighboursTest)
#include "neighbours_test.moc"
