// Several pages: what is shown is what every command acts on.
#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>

#include <cstdlib>

#include "desktop/memory_pasteboard.h"
#include "kit/test_main.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/zy_form.h"
#include "ui/pages/page_strip.h"
#include "ui/pages/page_switch.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/viewing/pages_command.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// Three pages: 200 × 100, 300 × 400 at (10, 20), and one without area.
class PagesFixture : public WindowFixture {
 public:
  explicit PagesFixture(int count = 3) : c(made(count)), pages(*c.findChild<PagesCommand*>()) {}
  MainWindowController& made(int count) {
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(10, 20, 300, 400), QRectF()};
    picture.facts.pageBounds.resize(count);
    picture.facts.pageCount = count;
    service.setPicture(picture);
    MainWindowController& opened = open(emptyPdf({200, 100}), "a.pdf", "com.adobe.pdf");
    opened.window();
    opened.windowDidLoad();
    return opened;
  }
  [[nodiscard]] QAction* action(const char* name) const {
    return c.window()->findChild<QAction*>(QString::fromLatin1(name));
  }
  [[nodiscard]] PageSwitch* pageSwitch() const { return c.window()->findChild<PageSwitch*>(); }

  MainWindowController& c;
  PagesCommand& pages;
};

}  // namespace

class PagesTest : public QObject {
  Q_OBJECT
 private slots:
  void anotherPageTakesThePlaceOfTheShownOne() {
    PagesFixture f;
    QCOMPARE(f.pages.count(), 3);
    f.action("nextPageAction")->trigger();
    QCOMPARE(f.pages.shown(), 1);
    QCOMPARE(f.c.view()->imageRep()->page(), 1);
    QCOMPARE(f.c.view()->imageSize(), QSizeF(300, 400));
    QCOMPARE(f.c.view()->bounds(), QRectF(-150, -200, 300, 400));
    QCOMPARE(f.c.epsMatrix->cellAtRow(1, 0)->text().toDouble(), 20.0);
    QCOMPARE(f.pageSwitch()->numberField()->value(), 2);
    f.action("previousPageAction")->trigger();
    QCOMPARE(f.pages.shown(), 0);
    QCOMPARE(f.c.view()->imageSize(), QSizeF(200, 100));
  }

  void aPageThatIsNotThereIsNotGoneTo() {
    PagesFixture f(2);
    for (const int nowhere : {-1, 2, 3}) {
      f.pages.show(nowhere);
      QCOMPARE(f.pages.shown(), 0);
      QVERIFY(!f.c.window()->findChild<BriefNote*>());
    }
  }

  void theNumberIsToldOverThePictureWhereItCannotBeSeenElsewhere() {
    PagesFixture f(2);
    f.c.window()->show();
    f.pages.show(1);
    QVERIFY(f.pageSwitch()->isVisible());
    QVERIFY(!f.c.window()->findChild<BriefNote*>());
    f.pageSwitch()->parentWidget()->hide();
    f.pages.show(0);
    const auto* note = f.c.window()->findChild<BriefNote*>();
    QVERIFY(note);
    QCOMPARE(note->text(), QStringLiteral("1 of 2"));
  }

  void angleAndZoomStay() {
    PagesFixture f;
    f.c.rotateChange(90);
    f.c.setZoomFactor(2);
    f.pages.show(1);
    QCOMPARE(f.c.view()->bounds().size(), QSizeF(400, 300));
    QCOMPARE(f.c.zoomFactor(), 2.0);
  }

  void aSelectionOfAnotherPageGoes() {
    PagesFixture f;
    f.c.view()->selectBounds();
    f.pages.show(1);
    QCOMPARE(f.c.view()->selectRect().width(), 0.0);
  }

  void whatIsCopiedIsOfTheShownPage() {
    PagesFixture f;
    MemoryPasteboard pasteboard;
    f.c.setPasteboard(&pasteboard);
    f.pages.show(1);
    const auto process = f.service.lastProcess();
    QSignalSpy copied(&f.c, &MainWindowController::copied);
    f.c.doCopy();
    QVERIFY(!copied.isEmpty() || copied.wait(20000));
    for (const ComposeRequest& request : process->composeRequests()) QCOMPARE(request.page, 1);
  }

  void aPageWithoutAreaStaysUnshown() {
    PagesFixture f;
    f.pages.show(2);
    QCOMPARE(f.pages.shown(), 0);
    QCOMPARE(f.pageSwitch()->numberField()->value(), 1);
    f.pages.show(7);
    f.pages.show(-1);
    QCOMPARE(f.pages.shown(), 0);
  }

  void aTypedNumberIsGoneTo() {
    PagesFixture f(2);
    f.pageSwitch()->numberField()->setValue(2);
    QCOMPARE(f.pages.shown(), 1);
    QVERIFY(!f.action("nextPageAction")->isEnabled());
    QVERIFY(f.action("previousPageAction")->isEnabled());
  }

  void returnAndEscapeLeadFromTheNumberToThePicture() {
    PagesFixture f(2);
    f.c.window()->show();
    QSpinBox* const number = f.pageSwitch()->numberField();
    f.action("goToPageAction")->trigger();
    QCOMPARE(f.c.window()->focusWidget(), number);
    QTest::keyClick(number, Qt::Key_2);
    QCOMPARE(f.pages.shown(), 0);
    QTest::keyClick(number, Qt::Key_Escape);
    QCOMPARE(f.c.window()->focusWidget(), f.c.scrollArea());
    QCOMPARE(number->text(), QString("1"));
    QCOMPARE(f.pages.shown(), 0);
    f.action("goToPageAction")->trigger();
    QTest::keyClick(number, Qt::Key_2);
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(f.pages.shown(), 1);
    QCOMPARE(f.c.window()->focusWidget(), f.c.scrollArea());
  }

  void onePageShowsNothingOfPages() {
    PagesFixture f(1);
    QVERIFY(f.pageSwitch()->isHidden());
    for (const char* name :
         {"nextPageAction", "previousPageAction", "goToPageAction", "pageThumbnailsAction"})
      QVERIFY(!f.action(name)->isEnabled());
    QVERIFY(!f.c.window()->findChild<QDockWidget*>("pagesDock")->isVisible());
  }

  void pageKeysGoOnWhereAPageEnds() {
    PagesFixture f(2);
    f.c.window()->show();
    QScrollBar* bar = f.c.scrollArea()->verticalBar();
    bar->setValue(bar->maximum());
    QTest::keyClick(f.c.scrollArea(), Qt::Key_PageDown);
    QCOMPARE(f.pages.shown(), 1);
    f.c.setZoomFactor(4);  // now there is more below: the key scrolls
    bar->setValue(0);
    QTest::keyClick(f.c.scrollArea(), Qt::Key_PageDown);
    QCOMPARE(f.pages.shown(), 1);
    QVERIFY(bar->value() > 0);
    bar->setValue(0);
    QTest::keyClick(f.c.scrollArea(), Qt::Key_PageUp);
    QCOMPARE(f.pages.shown(), 0);
  }

  void ofTwoPagesEachHasItsWays() {
    PagesFixture f(2);
    const auto possible = [&f] {
      QStringList names;
      for (const char* name : {"nextPageAction", "previousPageAction", "firstPageAction", "lastPageAction",
                               "goToPageAction", "pageThumbnailsAction"})
        if (f.action(name)->isEnabled()) names << QString(QLatin1String(name)).remove("Action");
      return names.join(u' ');
    };
    QCOMPARE(possible(), QStringLiteral("nextPage lastPage goToPage pageThumbnails"));
    f.action("nextPageAction")->trigger();
    QCOMPARE(f.pages.shown(), 1);
    QCOMPARE(possible(), QStringLiteral("previousPage firstPage goToPage pageThumbnails"));
    f.action("previousPageAction")->trigger();
    QCOMPARE(f.pages.shown(), 0);
  }

  void beyondTheFirstAndTheLastPageNothingIsSaid() {
    PagesFixture f(2);
    f.c.window()->show();
    QScrollBar* bar = f.c.scrollArea()->verticalBar();
    QTest::keyClick(f.c.scrollArea(), Qt::Key_PageUp);
    QCOMPARE(f.pages.shown(), 0);
    f.pages.show(1);
    bar->setValue(bar->maximum());
    const auto* note = f.c.window()->findChild<BriefNote*>();
    const QString before = note ? note->text() : QString();
    QTest::keyClick(f.c.scrollArea(), Qt::Key_PageDown);
    QCOMPARE(f.pages.shown(), 1);
    note = f.c.window()->findChild<BriefNote*>();
    QCOMPARE(note ? note->text() : QString(), before);
  }

  void aNarrowFootKeepsItsFiguresWhole() {
    PagesFixture f(59);
    f.c.window()->show();
    auto* bar = f.c.window()->findChild<QWidget*>("bottomBar");
    bar->findChild<QLabel*>("startPoint")->setText("(  100.00,   341.92)");
    bar->findChild<QLabel*>("endPoint")->setText("(  244.00,   645.92)");
    int shown = 0, needed = 4 * bar->layout()->spacing() + 24;  // and its edges
    for (const QLabel* label : bar->findChildren<QLabel*>()) needed += label->minimumSizeHint().width();
    needed += bar->findChild<PageSwitch*>()->minimumSizeHint().width();
    bar->setFixedWidth(needed);
    for (const QLabel* label : bar->findChildren<QLabel*>())
      if (label->isVisible() && ++shown)
        QTRY_VERIFY2(label->width() >= label->minimumSizeHint().width(), qPrintable(label->text()));
    QVERIFY(shown >= 3);
  }

  void theStripShowsThumbnailsAndIsRemembered() {
    PagesFixture f(2);
    f.c.window()->show();
    auto* strip = f.c.window()->findChild<PageStrip*>();
    QVERIFY(!strip->isVisible());
    f.action("pageThumbnailsAction")->trigger();
    QVERIFY(strip->isVisible());
    QCOMPARE(strip->count(), 2);
    QVERIFY(strip->width() < 2 * PageStrip::side);
    const auto centre = [strip](int page) { return strip->visualItemRect(strip->item(page)).center(); };
    QTRY_VERIFY(std::abs(centre(0).x() - strip->viewport()->rect().center().x()) <= 1);
    QVERIFY(centre(1).y() - centre(0).y() >= PageStrip::side);
    QTRY_COMPARE(strip->nextWanted(), -1);  // every page has its picture
    QSet<int> drawn;
    for (const RenderRequest& request : f.service.lastProcess()->renderRequests())
      if (request.purpose == RenderPurpose::Preview) drawn << request.page;
    QVERIFY(drawn.contains(0) && drawn.contains(1));
    strip->setCurrentRow(1);
    QCOMPARE(f.pages.shown(), 1);
    QFile stored(f.folder.filePath("norvex/windows.ini"));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    QVERIFY(stored.readAll().contains("pages=true"));
  }

  void thumbnailsOfAnotherPageAreTheSameAndThoseOfAnotherFileNot() {
    PagesFixture f(2);
    f.c.window()->show();
    f.action("pageThumbnailsAction")->trigger();
    auto* strip = f.c.window()->findChild<PageStrip*>();
    QTRY_COMPARE(strip->nextWanted(), -1);
    const auto drawn = [&f] {
      int previews = 0;
      for (const RenderRequest& request : f.service.lastProcess()->renderRequests())
        previews += request.purpose == RenderPurpose::Preview;
      return previews;
    };
    const int before = drawn();
    f.pages.show(1);
    QCOMPARE(strip->nextWanted(), -1);
    QCOMPARE(drawn(), before);
    f.revert();
    QVERIFY(strip->nextWanted() >= 0);
    QTRY_COMPARE(strip->nextWanted(), -1);
    QVERIFY(drawn() >= 2);  // by a process of its own
  }

  void aFileThatComesBackWithOnePageHasNoStrip() {
    PagesFixture f(2);
    f.c.window()->show();
    f.action("pageThumbnailsAction")->trigger();
    QVERIFY(f.c.window()->findChild<QDockWidget*>("pagesDock")->isVisible());
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100)};
    picture.facts.pageCount = 1;
    f.service.setPicture(picture);
    f.revert();
    QTRY_VERIFY(!f.c.window()->findChild<QDockWidget*>("pagesDock")->isVisible());
  }

  void noThumbnailIsMadeForAStripThatNobodySees() {
    PagesFixture f(2);
    f.c.window()->show();
    QTRY_VERIFY(f.c.view()->imageRep()->isSharp());
    QTest::qWait(50);
    for (const RenderRequest& request : f.service.lastProcess()->renderRequests())
      QVERIFY(request.purpose != RenderPurpose::Preview);
  }

  void theNamesAreSeenWhicheverPageIsShownFirst() {
    PagesFixture f(2);
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(0, 0, 300, 400)};
    picture.facts.pageCount = 2;
    picture.facts.fonts = {"Symbol"};
    f.service.setPicture(picture);
    f.revert();
    f.pages.show(1);  // as the page is that was shown last
    f.c.window()->show();
    f.c.inspectorWindow->show();
    const auto* names = f.c.inspectorWindow->findChild<ZyForm*>("usesForm")->cellAtIndex(0);
    QTRY_COMPARE(names->text(), QStringLiteral("Symbol"));
  }

  void reloadingBeginsWithTheFirstPage() {
    PagesFixture f(2);
    f.pages.show(1);
    f.revert();
    QCOMPARE(f.pages.shown(), 0);
    QCOMPARE(f.pageSwitch()->numberField()->value(), 1);
  }
};

NORVEX_TEST(PagesTest)
#include "pages_test.moc"
