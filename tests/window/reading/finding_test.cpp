// Text of the picture: found, selected, and its links followed.
#include <QAction>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>

#include "kit/test_main.h"
#include "protocol/page_text.h"
#include "ui/pages/layer_list.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/password_bar.h"
#include "ui/picture/text_marks.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/source/source_find_bar.h"
#include "ui/source/source_text_view.h"
#include "window/reading/find_command.h"
#include "window/reading/text_command.h"
#include "window/viewing/pages_command.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// "one two one" in letters of 10 × 10 points at y = 50, a link over "two", one below it to the second page.
PageText line() {
  PageText page;
  page.text = QStringLiteral("one two one");
  for (int i = 0; i < page.text.size(); ++i)
    page.places << (page.text.at(i) == u' ' ? QRectF() : QRectF(10 * i, 50, 10, 10));
  page.links = {{QRectF(40, 50, 30, 10), QStringLiteral("https://example.org/\u202etxt"), -1},
                {QRectF(40, 20, 30, 10), {}, 1},
                {QRectF(100, 20, 30, 10), QStringLiteral("file:///etc/passwd"), -1},
                {QRectF(150, 0, 10, 10), QStringLiteral("HTTP://example.org/"), -1},
                {QRectF(160, 0, 10, 10), QStringLiteral("mailto:someone@example.org"), -1},
                {QRectF(170, 0, 10, 10), QStringLiteral("ftp://example.org/"), -1},
                {QRectF(180, 0, 10, 10), QStringLiteral("javascript:alert(1)"), -1}};
  return page;
}

class Text : public WindowFixture {
 public:
  /// `instead`: what the engine answers in place of a text.
  explicit Text(bool hitsElsewhere = false, const QByteArray& instead = {}, int pages = 3)
      : c(opened(hitsElsewhere, instead, pages)) {
    c.window()->show();
    find = c.findChild<FindCommand*>();
    text = c.findChild<TextCommand*>();
    text->setOpener([this](const QUrl& url) {
      openedUrls << url;
      return opens;
    });
  }
  MainWindowController& opened(bool hitsElsewhere, const QByteArray& instead, int pages) {
    MemoryPicture picture;
    picture.facts.pageBounds = QList<QRectF>(pages, QRectF(0, 0, 200, 100));
    picture.facts.pageCount = pages;
    picture.examine = [hitsElsewhere, instead](const ExamineRequest& request) {
      if (!instead.isEmpty()) return instead;
      const bool hits = request.page == 0 || hitsElsewhere;
      return encodePageText(request.what == Examination::Text && hits ? line() : PageText());
    };
    service.setPicture(picture);
    return loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
  }
  [[nodiscard]] QAction* action(const char* name) {
    return c.window()->findChild<QAction*>(QString::fromLatin1(name));
  }
  [[nodiscard]] QAction* own(const char* name) { return c.findChild<QAction*>(QString::fromLatin1(name)); }
  void lookFor(const QString& needle) {
    own("findInPictureAction")->trigger();
    marks = c.window()->findChild<TextMarks*>();
    find->bar()->setNeedle(needle);
    if (!QTest::qWaitFor([this] { return find->bar()->outcome().contains(QStringLiteral("of")); }, 20000))
      qFatal("nothing was found");
  }
  void activate() {
    c.window()->activateWindow();
    if (!QTest::qWaitForWindowActive(c.window())) qFatal("the window is not active");
  }
  /// What is told over the picture.
  [[nodiscard]] QString note() const {
    const auto* note = c.window()->findChild<BriefNote*>();
    return note ? note->text() : QString();
  }
  /// Picture points, as a user drags from one to the other.
  void drag(const QPointF& from, const QPointF& to) {
    emit marks->pressed(from);
    emit marks->dragged(to);
    emit marks->released(to);
  }
  void click(const QPointF& at) {
    emit marks->pressed(at);
    emit marks->released(at);
  }
  /// The mode is on and the text is known.
  void begin() {
    own("selectTextAction")->setChecked(true);
    marks = c.window()->findChild<TextMarks*>();
    if (!QTest::qWaitFor([this] { return drag({5, 55}, {25, 55}), !text->selectedText().isEmpty(); }, 20000))
      qFatal("the text was never read");
  }

  MainWindowController& c;
  FindCommand* find = nullptr;
  TextCommand* text = nullptr;
  TextMarks* marks = nullptr;
  QList<QUrl> openedUrls;
  bool opens = true;  ///< a program is there that does
};

}  // namespace

class FindingTest : public QObject {
  Q_OBJECT
 private slots:
  void nothingIsMadeBeforeItIsWanted() {
    Text f;
    QVERIFY(!f.c.window()->findChild<TextMarks*>());
    QVERIFY(!f.c.window()->findChild<SourceFindBar*>("pictureFindBar"));
    QVERIFY(!f.c.window()->findChild<PasswordBar*>());
    QVERIFY(!f.c.window()->findChild<LayerList*>());
    f.own("findInPictureAction")->trigger();
    QVERIFY(f.c.window()->findChild<SourceFindBar*>("pictureFindBar")->isVisible());
  }

  void whatHasNoSourceIsLookedThroughByTheUsualKeys() {
    Text f;
    QCOMPARE(f.action("findAction")->text(), QString("&Find…"));  // it names no source
    f.action("findAction")->trigger();
    auto* bar = f.c.window()->findChild<SourceFindBar*>("pictureFindBar");
    QVERIFY(bar && bar->isVisible());
    QVERIFY(!f.c.inspectorWindow->isVisible());
    bar->setNeedle("one");
    QTRY_COMPARE(bar->outcome(), QString("1 of 2"));
    f.action("findNextAction")->trigger();
    QCOMPARE(bar->outcome(), QString("2 of 2"));
    f.action("findPreviousAction")->trigger();
    QCOMPARE(bar->outcome(), QString("1 of 2"));
    f.find->close();
    f.action("findNextAction")->trigger();  // nothing is looked for any more: what is it to be?
    QVERIFY(bar->isVisible());
    QTRY_COMPARE(bar->outcome(), QString("1 of 2"));
  }

  void whatHasASourceIsLookedThroughThere() {
    WindowFixture f;
    MainWindowController& c = f.loaded(epsBytes(), "a.eps", NorvexEPSType);
    c.window()->show();
    QTRY_VERIFY(!c.sourceTextView->string().isEmpty());
    c.window()->findChild<QAction*>("findAction")->trigger();
    QVERIFY(c.inspectorWindow->isVisible());
    QVERIFY(!c.window()->findChild<SourceFindBar*>("pictureFindBar"));
  }

  void everyPlaceIsMarkedAndCounted() {
    Text f;
    f.lookFor("ONE");
    QTRY_COMPARE(f.find->bar()->outcome(), QString("1 of 2"));
    QCOMPARE(f.marks->current(), QList<QRectF>{QRectF(0, 50, 30, 10)});
    QCOMPARE(f.marks->found(), QList<QRectF>{QRectF(80, 50, 30, 10)});
    QCOMPARE(f.note(), QString());
  }

  void aTextThatCannotBeReadIsTold() {
    Text f(false, "no text");
    f.own("findInPictureAction")->trigger();
    QTRY_COMPARE(f.note(), QString("The text of the picture cannot be read."));
  }

  void whileTheTextIsBeingReadNothingIsMissing() {
    Text f;
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    f.own("findInPictureAction")->trigger();
    f.find->bar()->setNeedle("three");
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    QCOMPARE(f.find->bar()->outcome(), QString());
    process->release(PictureCall::Examine);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("Not on this page"));
    emit f.find->bar()->wanted(false);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("Not found"));  // on no other page either
  }

  void theOnlyPageIsNotGivenUpBeforeItsTextIsRead() {
    Text f(false, {}, 1);
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    f.own("findInPictureAction")->trigger();
    f.find->bar()->setNeedle("two");
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    emit f.find->bar()->wanted(false);
    QCOMPARE(f.find->bar()->outcome(), QString());
    process->release(PictureCall::Examine);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("1 of 1"));
    f.find->bar()->setNeedle("three");
    QCOMPARE(f.find->bar()->outcome(), QString("Not found"));  // there is no page where else it could be
  }

  void whileOtherPagesAreBeingReadThePlaceStays() {
    Text f(true, {}, 2);
    f.lookFor("one");
    f.find->findNext(false);
    QCOMPARE(f.find->bar()->outcome(), QString("2 of 2"));
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    f.find->findNext(false);
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    QCOMPARE(f.find->bar()->outcome(), QString("2 of 2"));
    QCOMPARE(f.c.findChild<PagesCommand*>()->shown(), 0);
    process->release(PictureCall::Examine);
    QTRY_COMPARE(f.c.findChild<PagesCommand*>()->shown(), 1);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("1 of 2"));
  }

  void theBarDoesNotLieOverWhatWasFound() {
    PageText foot = line();
    for (QRectF& place : foot.places) place.moveTop(0);
    Text f(false, encodePageText(foot));
    f.c.zoomingScrollView()->zoomTo(4.0);  // more than the window shows, and nothing below it
    f.lookFor("two");
    const QWidget& bar = *f.find->bar()->parentWidget();
    const QRect found = f.marks->placeOf(f.marks->current().constFirst());
    const QWidget& clip = *bar.parentWidget();
    QVERIFY(QRect(clip.mapToGlobal(QPoint(0, 0)), clip.size()).intersects(found));
    QVERIFY(!QRect(bar.mapToGlobal(QPoint(0, 0)), bar.size()).intersects(found));
  }

  void theWayGoesRound() {
    Text f;
    f.lookFor("one");
    emit f.find->bar()->wanted(false);
    QCOMPARE(f.find->bar()->outcome(), QString("2 of 2"));
    QCOMPARE(f.marks->current(), QList<QRectF>{QRectF(80, 50, 30, 10)});
    emit f.find->bar()->wanted(false);  // the other page has none
    QTRY_COMPARE(f.find->bar()->outcome(), QString("1 of 2"));
    emit f.find->bar()->wanted(true);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("2 of 2"));
    QCOMPARE(f.c.findChild<PagesCommand*>()->shown(), 0);
  }

  void theWayGoesOnToOtherPages() {
    Text f(true);
    auto* pages = f.c.findChild<PagesCommand*>();
    f.lookFor("one");
    emit f.find->bar()->wanted(true);  // back from the first
    QTRY_COMPARE(pages->shown(), 2);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("2 of 2"));
    emit f.find->bar()->wanted(false);
    QTRY_COMPARE(pages->shown(), 0);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("1 of 2"));
  }

  void thePagesBesideAPageWithoutAnyAreInReach() {
    Text f;
    f.lookFor("one");
    auto* pages = f.c.findChild<PagesCommand*>();
    pages->show(1);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("Not on this page"));
    QToolButton* next = nullptr;
    for (auto* button : f.find->bar()->findChildren<QToolButton*>())
      if (button->accessibleName() == "Next") next = button;
    QVERIFY(next->isEnabled());
    next->click();
    QTRY_COMPARE(pages->shown(), 0);
    f.find->bar()->setNeedle({});
    QVERIFY(!next->isEnabled());
  }

  void anotherWordEndsTheLookAtOtherPages() {
    Text f(true);
    f.lookFor("two");
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    emit f.find->bar()->wanted(false);
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    f.find->bar()->setNeedle("one");
    process->release(PictureCall::Examine);
    QTest::qWait(50);
    QCOMPARE(f.c.findChild<PagesCommand*>()->shown(), 0);
    QCOMPARE(f.find->bar()->outcome(), QString("2 of 2"));  // the next one from where "two" stands
  }

  void theKeyOfTheNextPlaceIsTheBars() {
    Text f;
    f.activate();
    f.lookFor("one");
    auto* needle = f.find->bar()->findChild<QLineEdit*>();
    needle->setFocus();
    QTest::keyClick(needle, Qt::Key_F3);
    QCOMPARE(f.find->bar()->outcome(), QString("2 of 2"));
    QTest::keyClick(needle, Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(f.find->bar()->outcome(), QString("1 of 2"));
    QVERIFY(!f.c.inspectorWindow->isVisible());
    QTest::keyClick(needle, Qt::Key_Escape);
    QVERIFY(f.c.scrollArea()->hasFocus() && !f.c.scrollArea()->showsFocus());
  }

  void escapeInThePictureClosesTheBarThenEndsTheMode() {
    Text f;
    f.activate();
    f.begin();
    f.lookFor("one");
    f.c.view()->selectBounds();
    f.c.scrollArea()->setFocus();
    QTest::keyClick(f.c.scrollArea(), Qt::Key_Escape);
    QVERIFY(!f.find->bar()->isVisible() && f.own("selectTextAction")->isChecked());
    QTest::keyClick(f.c.scrollArea(), Qt::Key_Escape);
    QVERIFY(!f.own("selectTextAction")->isChecked());
    QVERIFY(!f.c.view()->selectRect().isEmpty());
    QTest::keyClick(f.c.scrollArea(), Qt::Key_Escape);  // the window's again
    QVERIFY(f.c.view()->selectRect().isEmpty());
  }

  void aDragWithSpacePansWhileTextIsSelected() {
    Text f;
    f.activate();
    f.begin();
    f.c.zoomingScrollView()->zoomTo(8);
    f.c.scrollArea()->setFocus();
    const QPointF before = f.c.scrollArea()->scrollOffset();
    const QPoint from = f.marks->rect().center(), to = from - QPoint(30, 20);
    QTest::keyPress(f.c.scrollArea(), Qt::Key_Space);
    QCOMPARE(f.marks->cursor().shape(), Qt::OpenHandCursor);
    const QString selected = f.text->selectedText();
    QTest::mousePress(f.marks, Qt::LeftButton, {}, from);
    QTest::mouseMove(f.marks, to);
    QTest::mouseRelease(f.marks, Qt::LeftButton, {}, to);
    QTest::keyRelease(f.c.scrollArea(), Qt::Key_Space);
    QVERIFY(f.c.scrollArea()->scrollOffset() != before);
    QCOMPARE(f.text->selectedText(), selected);
    QCOMPARE(f.marks->cursor().shape(), Qt::IBeamCursor);
    QTest::mousePress(f.marks, Qt::LeftButton, {}, from);
    QVERIFY(f.text->selectedText().isEmpty());  // without it a press is for the text
  }

  void closingTakesTheMarksAway() {
    Text f;
    f.lookFor("one");
    f.find->close();
    QVERIFY(f.marks->found().isEmpty() && f.marks->current().isEmpty());
    QVERIFY(f.marks->isHidden());
  }

  void anotherPageIsAnotherText() {
    Text f;
    f.lookFor("one");
    f.c.findChild<PagesCommand*>()->show(1);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("Not on this page"));
    QVERIFY(f.marks->current().isEmpty());
    f.c.findChild<PagesCommand*>()->show(0);
    QTRY_COMPARE(f.find->bar()->outcome(), QString("1 of 2"));
  }

  void aDragSelectsTextThatCanBeCopied() {
    Text f;
    f.begin();
    f.drag({5, 55}, {65, 55});
    QCOMPARE(f.text->selectedText(), QString("one two"));
    QCOMPARE(f.marks->selected(), QList<QRectF>{QRectF(0, 50, 70, 10)});
    f.own("copyTextAction")->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("one two"));
  }

  void theUsualKeysCopyTheSelectedText() {
    Text f;
    f.begin();
    QGuiApplication::clipboard()->setText("before");
    f.click({5, 5});
    QCOMPARE(f.text->selectedText(), QString());
    QTest::keyClick(f.c.scrollArea(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("before"));  // nothing is selected
    f.drag({5, 55}, {65, 55});
    QKeyEvent taken(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
    taken.ignore();
    QCoreApplication::sendEvent(f.c.scrollArea(), &taken);
    QVERIFY(taken.isAccepted());
    QTest::keyClick(f.c.scrollArea(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("one two"));
  }

  void aLinkTellsItsAddressAndTheTipOfTheTwoDragsIsNotShown() {
    Text f;
    f.begin();
    emit f.marks->hovered({50, 55});
    QCOMPARE(f.marks->toolTip(), QString("https://example.org/%E2%80%AEtxt"));
    emit f.marks->hovered({5, 5});
    QCOMPARE(f.marks->toolTip(), QString());
    QHelpEvent asked(QEvent::ToolTip, {5, 5}, {5, 5});
    asked.ignore();
    QCoreApplication::sendEvent(f.marks, &asked);
    QVERIFY(asked.isAccepted());  // so that the view's is not asked for
  }

  void theTwoDragsAreAsBeforeWhileTheModeIsOff() {
    Text f;
    f.own("findInPictureAction")->trigger();  // marks alone
    QTRY_VERIFY(f.c.window()->findChild<TextMarks*>());
    f.find->close();
    QVERIFY(f.c.window()->findChild<TextMarks*>()->testAttribute(Qt::WA_TransparentForMouseEvents));
    f.begin();
    QVERIFY(!f.marks->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(f.c.view()->selectRect().width(), 0.0);
    f.own("selectTextAction")->setChecked(false);
    QVERIFY(f.marks->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(f.text->selectedText(), QString());
    QVERIFY(!f.own("copyTextAction")->isEnabled());
  }

  void aLinkIsFollowedOnlyAfterAQuestionThatShowsIt() {
    Text f;
    f.begin();
    f.alerts.answer = 1;
    f.click({50, 55});
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.alerts.shown.constLast().informativeText, QString("https://example.org/%E2%80%AEtxt"));
    QVERIFY(f.openedUrls.isEmpty());
    f.alerts.answer = 0;
    f.click({50, 55});
    QCOMPARE(f.openedUrls.size(), 1);
    QCOMPARE(f.openedUrls.first().host(), QString("example.org"));
    QCOMPARE(f.note(), QString());
    f.opens = false;
    f.click({50, 55});
    QCOMPARE(f.note(), QString("No program here opens this address."));
  }

  void aClickMayTrembleByLessThanTwoPoints() {
    Text f;
    f.begin();
    f.alerts.answer = 1;
    f.drag({52, 55}, {53.9, 55});
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.text->selectedText(), QString());
    f.drag({52, 55}, {54, 55});
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.text->selectedText(), QString("w"));
  }

  void addressesOfTheWebAndOfMailAreAskedFor() {
    Text f;
    f.begin();
    f.alerts.answer = 0;
    f.click({155, 5});
    f.click({165, 5});
    QCOMPARE(f.openedUrls, (QList<QUrl>{QUrl("http://example.org/"), QUrl("mailto:someone@example.org")}));
  }

  void otherAddressesAreNotOpened() {
    for (const QPointF& place : {QPointF(110, 25), QPointF(175, 5), QPointF(185, 5)}) {
      Text f;
      f.begin();
      f.click(place);
      QVERIFY(f.alerts.shown.isEmpty());
      QVERIFY(f.openedUrls.isEmpty());
      QCOMPARE(f.note(), QString("Links of this kind are not followed."));
      emit f.marks->hovered(place);
      QCOMPARE(f.marks->toolTip(), QString());
    }
  }

  void aLinkWithinTheDocumentShowsItsPage() {
    Text f;
    f.begin();
    f.click({50, 25});
    QCOMPARE(f.c.findChild<PagesCommand*>()->shown(), 1);
  }
};

NORVEX_TEST(FindingTest)
#include "finding_test.moc"
