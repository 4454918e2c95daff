// Where the pointer is, how large the selection is, and the picture alone on the screen.
#include <QAction>
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include "kit/test_main.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/place/window_frames.h"
#include "window/viewing/pointer_readout.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

struct Shown {
  explicit Shown(bool svg = false)
      : c(svg ? fixture.loaded("<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'/>", "a.svg",
                               "public.svg-image")
              : fixture.loadedEps()) {
    QLocale::setDefault(QLocale::c());
    c.window()->show();
  }
  /// A point of the view, its centre being (0, 0).
  void pointAt(const QPointF& point) {
    const QPointF at = c.viewWidget()->fromView(point);
    QMouseEvent move(QEvent::MouseMove, at, c.viewWidget()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(c.viewWidget(), &move);
  }
  [[nodiscard]] Qt::ToolButtonStyle copyButtonStyle() const {
    return qobject_cast<QToolButton*>(c.toolbar->widgetForAction(c.copyToolbarItem))->toolButtonStyle();
  }
  [[nodiscard]] QToolButton* field() const { return c.findChild<PointerReadout*>()->field(); }
  [[nodiscard]] QString readout() const { return field()->text(); }

  WindowFixture fixture;
  MainWindowController& c;
};

}  // namespace

class ViewingTest : public QObject {
  Q_OBJECT
 private slots:
  void thePointersPlaceIsToldInPictureCoordinates() {
    Shown f;
    QCOMPARE(f.readout(), QString::fromUtf8("200 × 100 pt"));
    f.pointAt({0, 0});
    QCOMPARE(f.readout(), QString("100, 50 pt"));
    f.pointAt({-40, 20});
    QCOMPARE(f.readout(), QString("60, 70 pt"));
    f.c.rotateChange(90);
    f.pointAt({-20, 60});  // the picture point (60, -20) from the centre
    QCOMPARE(f.readout(), QString("160, 70 pt"));
    f.pointAt({-60, 0});  // beside the picture
    QCOMPARE(f.readout(), QString::fromUtf8("200 × 100 pt"));
  }

  void anSvgIsCountedFromItsTop() {
    Shown f(true);
    if (!f.c.dialKnobClockwise()) QSKIP("this picture does not count from its top");
    f.pointAt({-40, 20});
    QCOMPARE(f.readout(), QString("60, 30 pt"));
  }

  void aClickChangesTheUnitWhichIsRemembered() {
    Shown f;
    f.pointAt({-28, 22});  // (72, 72)
    QStringList shown;
    for (int i = 0; i < 4; ++i) {
      f.field()->click();
      shown << f.readout();
    }
    QCOMPARE(shown, (QStringList{"25.4, 25.4 mm", "1, 1 in", "6, 6 pc", "72, 72 pt"}));
    f.field()->click();
    QFile stored(f.fixture.folder.filePath("norvex/windows.ini"));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    QVERIFY(stored.readAll().contains("unit=mm"));
  }

  void theSelectionCarriesItsSize() {
    Shown f;
    f.c.view()->selectBounds();
    f.c.view()->resizeSelection({-100, -40});
    const QImage with = f.c.viewWidget()->grab().toImage();
    f.field()->click();  // written in another unit
    const QImage other = f.c.viewWidget()->grab().toImage();
    QVERIFY(with != other);
    f.c.view()->clearSelectRect();
    QVERIFY(f.c.viewWidget()->grab().toImage() != other);
  }

  void fullScreenShowsThePictureAlone() {
    Shown f;
    auto* action = f.c.window()->findChild<QAction*>("fullScreenAction");
    action->trigger();
    QTRY_VERIFY(f.c.window()->isFullScreen());
    QTRY_COMPARE(f.c.viewWidget()->size(), f.c.window()->size());
    QVERIFY(!f.c.toolbar->isVisible() && !f.c.scrollArea()->horizontalBar()->isVisible());
    QVERIFY(action->isChecked());
    // The menus' keys are still there.
    QTest::keyClick(f.c.window(), Qt::Key_A, Qt::ControlModifier);
    QTRY_VERIFY(f.c.view()->selectRect().width() > 0);
    QTest::keyClick(f.c.window(), Qt::Key_Escape);  // is for the selection first
    QTRY_COMPARE(f.c.view()->selectRect().width(), 0.0);
    QVERIFY(f.c.window()->isFullScreen());
    QTest::keyClick(f.c.window(), Qt::Key_Escape);
    QTRY_VERIFY(!f.c.window()->isFullScreen());
    QVERIFY(f.c.toolbar->isVisible() && f.c.scrollArea()->horizontalBar()->isVisible());
    QVERIFY(f.c.menuBar->height() > 0);
  }

  void escapeLeavesTheFullScreenWhereDeselectHasOtherKeys() {
    Shown f;
    auto* deselect = f.c.window()->findChild<QAction*>("deselectAction");
    f.c.window()->findChild<QAction*>("fullScreenAction")->trigger();
    QTRY_VERIFY(f.c.window()->isFullScreen());
    QTRY_COMPARE(f.c.viewWidget()->size(), f.c.window()->size());
    f.c.view()->selectBounds();
    QVERIFY(deselect->isEnabled());
    deselect->setShortcut(Qt::CTRL | Qt::Key_D);
    QTest::keyClick(f.c.window(), Qt::Key_Escape);
    QTRY_VERIFY(!f.c.window()->isFullScreen());
    QVERIFY(f.c.view()->selectRect().width() > 0);
  }

  void aFileThatChangesIsShownAgainWhereItWas() {
    Shown f;
    f.c.rotateChange(30);
    f.c.zoomingScrollView()->zoomTo(2.0);
    f.c.view()->selectBounds();
    f.c.view()->resizeSelection({-80, -60});
    const QRectF selected = f.c.view()->selectRect();
    f.fixture.write(epsBytes().replace("A picture", "Another"), "a.eps");
    f.c.fileDidChangeOnDisk();
    QTRY_COMPARE(f.c.titleForm()->cellAtIndex(0)->text(), QString("Another"));
    QVERIFY(f.c.messageBar()->message().isEmpty());
    QCOMPARE(f.c.rotateField()->text(), QString("30.0000"));
    QCOMPARE(f.c.zoomFactor(), 2.0);
    QCOMPARE(f.c.view()->selectRect(), selected);
    f.c.reload();  // which the user asked for: it starts over
    QTRY_COMPARE(f.c.zoomFactor(), 1.0);
    QCOMPARE(f.c.view()->rotate(), 0.0);
  }

  void aFileThatChangesKeepsItsWindowAndAZoomThatFollowsIt() {
    Shown f;
    f.c.zoomingScrollView()->zoomTo(8.0);
    f.c.window()->resize(612, 518);
    f.c.window()->findChild<QAction*>("fitAction")->trigger();
    const QSize size = f.c.window()->size();
    const double zoom = f.c.zoomFactor();
    QVERIFY(zoom > 2);
    QList<QSize> sizes;
    QObject::connect(&f.c, &MainWindowController::documentShown, &f.c,
                     [&] { sizes << f.c.window()->size(); });
    f.fixture.write(epsBytes().replace("A picture", "Another"), "a.eps");
    f.c.fileDidChangeOnDisk();
    QTRY_COMPARE(sizes, QList<QSize>{size});
    QCOMPARE(f.c.window()->size(), size);
    QCOMPARE(f.c.zoomFactor(), zoom);
    QVERIFY(f.c.pictureView()->fit == KeptFit::Whole);
  }

  void reloadingByItselfIsAChoice() {
    Shown f;
    f.c.window()->findChild<QAction*>("reloadByItselfAction")->trigger();
    f.fixture.write(epsBytes().replace("A picture", "Another"), "a.eps");
    f.c.fileDidChangeOnDisk();
    QCOMPARE(f.c.messageBar()->message(), QString("The file has changed on disk."));
    QCOMPARE(f.c.titleForm()->cellAtIndex(0)->text(), QString("A picture"));
  }

  void aWindowThatNobodySeesWaitsToBeAsked() {
    Shown f;
    f.c.window()->hide();
    f.fixture.write(epsBytes().replace("A picture", "Another"), "a.eps");
    f.c.fileDidChangeOnDisk();
    QCOMPARE(f.c.messageBar()->message(), QString("The file has changed on disk."));
    QCOMPARE(f.c.titleForm()->cellAtIndex(0)->text(), QString("A picture"));
  }

  void aDragIsNotSpoiled() {
    Shown f;
    QVERIFY(f.c.view()->mouseDown());
    f.c.view()->mouseDragged({10, 10});
    f.c.fileDidChangeOnDisk();
    QCOMPARE(f.c.messageBar()->message(), QString("The file has changed on disk."));
  }

  void whatCouldNotBeReadAgainIsForgotten() {
    Shown f;
    f.c.zoomingScrollView()->zoomTo(2.0);
    f.fixture.write("nothing", "a.eps");
    f.c.fileDidChangeOnDisk();
    QTRY_VERIFY(f.c.messageBar()->message().endsWith("What is shown was read before."));
    f.fixture.write(epsBytes(), "a.eps");
    f.c.reload();
    QTRY_COMPARE(f.c.zoomFactor(), 1.0);
  }

  void aSizeThatOnlyTheRuleGaveIsNotKept() {
    Shown f;
    const QSize shrunk = f.c.window()->size();
    QVERIFY(shrunk.width() < 940);
    f.c.window()->close();
    MainWindowController next;
    QCOMPARE(savedWindowFrame("MainWindowController").size(), QSize(940, 760));
    QVERIFY(next.window()->width() > shrunk.width());
    QCOMPARE(next.window()->height(), 760);
  }

  void aSizeThatTheUserGaveIsKept() {
    Shown f;
    f.c.zoomingScrollView()->zoomTo(8.0);
    f.c.window()->resize(612, 518);
    f.c.window()->close();
    MainWindowController next;
    QCOMPARE(next.window()->size(), QSize(612, 518));
  }

  void aFreeWindowIsNeitherShrunkNorBounded() {
    Shown f;
    auto* fits = f.c.window()->findChild<QAction*>("windowFitsPictureAction");
    QVERIFY(fits->isChecked());
    fits->trigger();
    f.c.window()->resize(700, 650);
    f.c.zoomingScrollView()->zoomTo(0.25);
    QCOMPARE(f.c.window()->size(), QSize(700, 650));
    QCOMPARE(f.c.window()->maximumWidth(), QWIDGETSIZE_MAX);
    fits->trigger();
    QVERIFY(f.c.window()->width() < 700);
  }

  void aWindowThatWasPulledTooFarComesBack() {
    Shown f;
    f.c.setWindowSize();
    const QSize most = f.c.window()->maximumSize();
    const QPoint corner = f.c.window()->pos();
    // As a window manager would, which is told of no bound.
    f.c.window()->windowHandle()->resize(most + QSize(60, 40));
    QTRY_COMPARE(f.c.window()->size(), most + QSize(60, 40));
    QTRY_COMPARE(f.c.window()->size(), most);
    QCOMPARE(f.c.window()->pos(), corner);
  }

  void theWindowManagerMayMaximise() {
    Shown f;
    f.c.setWindowSize();
    QVERIFY(f.c.window()->maximumWidth() < QWIDGETSIZE_MAX);
    QVERIFY(f.c.window()->windowHandle()->maximumWidth() > 100'000);
  }

  void aNarrowToolbarShowsItsIconsAlone() {
    Shown f;
    f.c.zoomingScrollView()->zoomTo(8.0);
    f.c.window()->resize(780, 500);
    QTRY_COMPARE(f.copyButtonStyle(), Qt::ToolButtonTextBesideIcon);
    f.c.window()->resize(420, 400);
    QTRY_COMPARE(f.copyButtonStyle(), Qt::ToolButtonIconOnly);
    for (QAction* action : f.c.toolbar->actions())
      if (!action->isSeparator()) QTRY_VERIFY(f.c.toolbar->widgetForAction(action)->isVisible());
    f.c.window()->resize(780, 500);
    QTRY_COMPARE(f.copyButtonStyle(), Qt::ToolButtonTextBesideIcon);
  }

  void aToolbarShowsItsLabelsAsSoonAsTheyFit() {
    Shown f;
    f.c.zoomingScrollView()->zoomTo(8.0);
    f.c.window()->resize(1000, 500);
    QTRY_COMPARE(f.copyButtonStyle(), Qt::ToolButtonTextBesideIcon);
    const int labelled = f.c.toolbar->sizeHint().width();
    f.c.window()->resize(420, 400);
    QTRY_COMPARE(f.copyButtonStyle(), Qt::ToolButtonIconOnly);
    f.c.window()->resize(labelled - 1, 400);
    QTRY_COMPARE(f.c.toolbar->width(), labelled - 1);
    QCOMPARE(f.copyButtonStyle(), Qt::ToolButtonIconOnly);
    f.c.window()->resize(labelled, 400);
    QTRY_COMPARE(f.c.toolbar->width(), labelled);
    QCOMPARE(f.copyButtonStyle(), Qt::ToolButtonTextBesideIcon);
  }

  void theUpperEdgeBringsTheBars() {
    Shown f;
    f.c.window()->findChild<QAction*>("fullScreenAction")->trigger();
    QTRY_VERIFY(f.c.window()->isFullScreen());
    const auto pointAtRow = [&](int y) {
      const QPointF at(50, y);
      QMouseEvent move(QEvent::MouseMove, f.c.viewWidget()->mapFromGlobal(f.c.window()->mapToGlobal(at)),
                       f.c.window()->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
      QCoreApplication::sendEvent(f.c.viewWidget(), &move);
    };
    pointAtRow(200);
    QVERIFY(!f.c.toolbar->isVisible());
    pointAtRow(0);
    QVERIFY(f.c.toolbar->isVisible());
    pointAtRow(f.c.window()->height() - 5);
    QVERIFY(!f.c.toolbar->isVisible());
  }
};

NORVEX_TEST(ViewingTest)
#include "viewing_test.moc"
