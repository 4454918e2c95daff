// The Check page of a window: when it checks, what it shows where, and what ends it.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <algorithm>

#include "kit/test_main.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/password_bar.h"
#include "ui/picture/picture_mark.h"
#include "ui/source/source_text_edit.h"
#include "ui/source/source_text_view.h"
#include "window/check/check_fixture.h"
#include "window/place/window_frames.h"

using namespace norvex;

namespace {

QString sentenceOf(MainWindowController& c) {
  return pageOf(c).findChild<QLabel*>("checkSentence")->text();
}

}  // namespace

class CheckTest : public QObject {
  Q_OBJECT
 private slots:
  void nothingIsCheckedBeforeThePageIsSeen() {
    CheckFixture f;
    std::atomic<int> examined = 0;
    MemoryPicture picture = soundPicture();
    picture.examine = [&, answer = picture.examine](const ExamineRequest& request) {
      ++examined;
      return answer(request);
    };
    f.service.setPicture(picture);
    MainWindowController& c = f.shown();
    QCoreApplication::processEvents();
    QVERIFY(!c.inspectorWindow->findChild<CheckCommand*>() && examined == 0);
    const CheckCommand* command = f.checked(c);
    QVERIFY(examined > 0 && hasFinding(command->findings(), "eps.showpage.missing"));
    const int once = examined;
    c.inspectorTabs->setCurrentIndex(0);
    f.checked(c);
    QCOMPARE(int(examined), once);  // it is known already
  }

  void theProfileIsRememberedAndChecksAgain() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    CheckCommand* command = f.checked(c);
    QVERIFY(!hasFinding(command->findings(), "lines.thin"));
    auto* list = pageOf(c).findChild<QComboBox*>("checkProfile");
    list->setCurrentIndex(list->findData("print"));
    emit list->activated(list->currentIndex());
    QTRY_VERIFY(!command->isChecking());
    QVERIFY(hasFinding(command->findings(), "lines.thin"));
    QCOMPARE(savedViewText("check/profile"), QStringLiteral("print"));  // as every version has kept it
    CheckPage other;
    CheckCommand another(c, other, nullptr);
    QCOMPARE(other.profile(), QStringLiteral("print"));
  }

  void aProfileThatCannotBeReadIsToldInASentence() {
    CheckFixture f;
    f.write("[limit]\n", "bad.toml");
    MainWindowController& c = f.shown();
    CheckCommand* command = f.checked(c);
    pageOf(c).setProfile(f.folder.filePath("bad.toml"));
    command->start();
    QVERIFY(!command->isChecking());
    QVERIFY(sentenceOf(c).contains("There is no limit") || sentenceOf(c).contains("there is no limit"));
  }

  void edgesOfTheInkAreLookedForSharplyWhereSomethingIsToBeTold() {
    CheckFixture f;
    QRectF ink(0.4, 0.4, 199, 99);
    QList<double> looks;
    MemoryPicture picture = soundPicture();
    picture.examine = [&, answer = picture.examine](const ExamineRequest& request) {
      if (request.what != Examination::Drawn) return answer(request);
      looks << request.dpi;
      return encodeDrawnInk({ink, ink, QRectF(-50, -50, 300, 200), request.dpi > 1000 ? 0.05 : 0.5});
    };
    f.service.setPicture(picture);
    CheckCommand* command = f.checked(f.shown());
    QCOMPARE(looks.size(), 1);
    const double coarse = looks[0];
    const auto looked = [&](const QRectF& at) {
      looks.clear();
      ink = at;
      command->start();
      return QTest::qWaitFor([&] { return !command->isChecking(); }, 20000);
    };
    QVERIFY(looked(QRectF(0, 0, 210, 100)));
    QCOMPARE(looks.size(), 2);
    QVERIFY(looks[0] == coarse && looks[1] > 5 * coarse);
    QVERIFY(hasFinding(command->findings(), "eps.bounding-box.cuts-ink"));
    // Half of the box, or a hair less.
    QVERIFY(looked(QRectF(0, 0, 100.5, 50.5)));
    QCOMPARE(looks.size(), 2);
  }

  void aPlaceIsMarkedInThePicture() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    CheckCommand* command = f.checked(c);
    pageOf(c).setProfile("print");
    command->start();
    QTRY_VERIFY(!command->isChecking());
    c.rotateChange(90);
    command->show(f.found(*command, "lines.thin"));
    auto* mark = c.viewWidget()->findChild<PictureMark*>();
    QVERIFY(mark && mark->isVisible());
    // (40, 35) of the picture, a quarter turn about its centre (100, 50), in the widget.
    const QPointF centre = mark->frame().boundingRect().center();
    QVERIFY(QLineF(centre, c.viewWidget()->fromView({15, -60})).length() < 1);
    QVERIFY(mark->frame().boundingRect().height() > mark->frame().boundingRect().width());
    c.windowDidLoad();
    QVERIFY(!mark->isVisible());  // another picture has other places
  }

  void aPlaceOnAnotherPageIsShownThere() {
    CheckFixture f;
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(10, 20, 300, 400)};
    picture.facts.pageCount = 2;
    picture.examine = [](const ExamineRequest& request) {
      PageContents page;
      page.size = {300, 400};
      if (request.page == 1) page.rgb = page.cmyk = QRectF(20, 30, 40, 10);
      return encodePageContents(page);
    };
    f.service.setPicture(picture);
    MainWindowController& c = f.loaded(emptyPdf({200, 100}), "a.pdf", "com.adobe.pdf");
    c.window()->show();
    c.showInspectorWindow();
    CheckCommand* command = f.checked(c);
    const Finding& colours = f.found(*command, "colour.rgb-in-cmyk");
    QCOMPARE(colours.page, 2);
    QVERIFY(!colours.sentence.contains("page"));
    command->show(colours);
    QCOMPARE(c.view()->imageRep()->page(), 1);
    QVERIFY(c.viewWidget()->findChild<PictureMark*>()->isVisible());
  }

  void aLineIsShownInTheSource() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    CheckCommand* command = f.checked(c);
    command->show(finding(rule("eps.comments.out-of-order"), "a comment", 5));
    QCOMPARE(c.inspectorTabs->currentWidget(), c.sourcePage);
    QCOMPARE(c.sourceTextView->textEdit()->textCursor().selectedText(), QStringLiteral("%%Pages: x"));
  }

  void aFileThatChangesEndsTheCheckAndAnotherStateIsCheckedAnew() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Examine); });
    CheckCommand& command = f.command(c);
    QVERIFY(command.isChecking());
    emit c.fileChanged();
    QVERIFY(!command.isChecking());
    QVERIFY(sentenceOf(c).contains("has changed"));
    f.service.setPrepare([](MemoryPictureProcess&) {});
    f.write(epsBytes().replace("%%EOF", "showpage\n%%EOF"), "a.eps");
    f.revert();
    QTRY_VERIFY(!command.isChecking() && !command.findings().isEmpty());
    QVERIFY(!hasFinding(command.findings(), "eps.showpage.missing"));
  }

  void aFileThatChangesAfterItsCheckLeavesTheFindings() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.checked(c);
    const QString before = sentenceOf(c);
    emit c.fileChanged();
    QCOMPARE(sentenceOf(c), before);
  }

  void withoutAFileNothingIsChecked() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    CheckCommand* command = f.checked(c);
    f.document.setFileURL({});
    command->start();
    QVERIFY(!command->isChecking());
    QCOMPARE(sentenceOf(c), QStringLiteral("There is no file to check."));
  }

  void whatCouldNotBeCheckedIsToldBesideTheFindings() {
    CheckFixture f;
    f.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Examine, {ErrorKind::Limit, "the page is too large"});
    });
    MainWindowController& c = f.shown();
    const CheckCommand* command = f.checked(c);
    QVERIFY(!command->findings().isEmpty());
    const auto labels = pageOf(c).findChildren<QLabel*>();
    QCOMPARE(std::count_if(labels.begin(), labels.end(),
                           [](const QLabel* label) {
                             return label->text().startsWith("Not everything could be checked. ");
                           }),
             1);
  }

  void aWindowThatGoesEndsItsCheck() {
    std::shared_ptr<MemoryPictureProcess> process;
    {
      CheckFixture f;
      MainWindowController& c = f.shown();
      f.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Examine); });
      f.command(c);
      QTRY_COMPARE(f.service.openCount(), 2);
      process = f.service.lastProcess();
      QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    }  // hangs when it does not
    QCOMPARE(process->cancelledCalls(), 1);
  }

  void stopEndsTheCheckAndSaysSo() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Examine); });
    CheckCommand& command = f.command(c);
    pageOf(c).findChild<QPushButton*>("checkAgain")->click();
    QVERIFY(!command.isChecking());
    QVERIFY(sentenceOf(c).contains("stopped"));
  }

  void thePasswordOfTheWindowIsThatOfTheCheck() {
    WindowFixture f;
    f.service.setChoose([](const QByteArray& pdf, const ReaderChoices& choices) -> Result<PictureBytes> {
      if (choices.password == u"geheim") return PictureBytes{pdf + "opened", {}};
      return PictureBytes{pdf, {}};
    });
    f.service.setPrepare([](MemoryPictureProcess& made) {
      if (!made.bytes().endsWith("opened"))
        made.fail(PictureCall::Facts, {ErrorKind::Encrypted, "the document is protected with a password"});
    });
    MainWindowController& c = f.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_VERIFY(c.window()->findChild<PasswordBar*>());
    QTRY_VERIFY(!c.isReading());
    auto* bar = c.window()->findChild<PasswordBar*>();
    bar->passwordField()->setText("geheim");
    bar->openButton()->click();
    QTRY_VERIFY(c.view()->imageRep());
    c.showInspectorWindow();
    const int before = int(f.service.choices().size());
    CheckFixture::checked(c);
    QVERIFY(f.service.choices().size() > before);
    QCOMPARE(f.service.choices().constLast().password, QString("geheim"));
  }
};

NORVEX_TEST(CheckTest)
#include "check_test.moc"
