// A mended copy from the Check page: where it goes, what is told, and which window stays.
#include <QComboBox>
#include <QDir>
#include <QFileOpenEvent>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>

#include "kit/test_main.h"
#include "kit/widget_texts.h"
#include "window/check/check_fixture.h"
#include "window/check/repair_command.h"

using namespace norvex;

namespace {

/// Remembers what the program was asked to open.
class Opened final : public QObject {
 public:
  Opened() { qApp->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::FileOpen) return false;
    urls << static_cast<QFileOpenEvent*>(event)->url();
    return true;
  }
  QList<QUrl> urls;
};

/// Another language, as long as it lives.
class German final : public QTranslator {
 public:
  German() { QCoreApplication::installTranslator(this); }
  ~German() override { QCoreApplication::removeTranslator(this); }
  QString translate(const char*, const char* key, const char*, int) const override {
    const QByteArray words(key);
    if (words == "it cannot be mended: %1") return QStringLiteral("Nicht zu reparieren: %1.");
    return words == "the bounding box %1 has no area" ? QStringLiteral("Der Rahmen %1 ist leer.") : QString();
  }
  bool isEmpty() const override { return false; }
};

}  // namespace

class RepairTest : public QObject {
  Q_OBJECT
 private slots:
  void repairWritesAnotherFileTellsWhatItChangedAndOpensIt() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.checked(c);
    const QByteArray before = f.read("a.eps");
    f.write("what the panel has asked about", "b.eps");
    Opened opened;
    f.alerts.answer = 0;
    pageOf(c).findChild<QPushButton*>("repairAll")->click();
    QVERIFY(f.panel.isOpen());
    QCOMPARE(f.panel.settings.nameFieldStringValue, QStringLiteral("a_repaired.eps"));
    QCOMPARE(f.panel.settings.message,
             QStringLiteral("A mended copy of the file is written. What it draws stays the same."));
    const QUrl url = QUrl::fromLocalFile(f.folder.filePath("b.eps"));
    QSignalSpy ended(c.inspectorWindow->findChild<RepairCommand*>(), &RepairCommand::ended);
    f.panel.answer({true, url});
    QVERIFY(!ended.isEmpty() || ended.wait(20000));
    QVERIFY(ended[0][1].toBool());
    QVERIFY(!c.inspectorWindow->findChild<RepairCommand*>()->isRepairing());
    QCOMPARE(f.read("a.eps"), before);
    QVERIFY(f.read("b.eps").contains("showpage"));
    QCOMPARE(f.alerts.shown.size(), 1);
    QVERIFY(f.alerts.shown[0].informativeText.contains("showpage", Qt::CaseInsensitive));
    QCOMPARE(f.alerts.shown[0].buttons, QStringList({"Open It", "Close"}));
    QCoreApplication::processEvents();
    QCOMPARE(opened.urls, QList<QUrl>{url});
  }

  void thatNothingIsChangedAndWhatStaysAsItIsAreTold() {
    const auto told = [](const QByteArray& bytes, const QString& name, const QStringList& missingFonts) {
      CheckFixture f;
      MemoryPicture picture = soundPicture();
      picture.examine = [=, answer = picture.examine](const ExamineRequest& request) {
        if (request.what != Examination::Contents) return answer(request);
        PageContents page;
        page.size = {200, 100};
        page.missingFonts = missingFonts;
        return encodePageContents(page);
      };
      f.service.setPicture(picture);
      MainWindowController& c = f.loaded(bytes, name, NorvexEPSType);
      c.setSavePanel(&f.panel);
      c.window()->show();
      c.showInspectorWindow();
      const CheckCommand* check = f.checked(c);
      auto* repair = c.inspectorWindow->findChild<RepairCommand*>();
      repair->run(check->findings());
      const QString proposed = f.panel.settings.nameFieldStringValue;
      QSignalSpy ended(repair, &RepairCommand::ended);
      f.panel.answer({true, QUrl::fromLocalFile(f.folder.filePath("b.eps"))});
      if (ended.isEmpty() && !ended.wait(20000)) qFatal("never repaired");
      return proposed + ": " + f.alerts.shown.value(0).informativeText;
    };
    const QByteArray sound =
        epsBytes("%%HiResBoundingBox: 10 20 210 120\n").replace("%%EOF", "showpage\n%%EOF");
    QCOMPARE(told(sound, "a.eps", {}), QString("a_repaired.eps: Nothing had to be changed."));
    const QString stays = told(sound, "a", {"the font Some is missing"});
    QVERIFY2(stays.startsWith("a_repaired: Nothing had to be changed.\n\nThis stays as it is:\n• "),
             qPrintable(stays));
  }

  void oneFileIsMendedAfterTheOther() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    const CheckCommand* check = f.checked(c);
    auto* repair = c.inspectorWindow->findChild<RepairCommand*>();
    f.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Examine); });
    repair->run(check->findings());
    QSignalSpy ended(repair, &RepairCommand::ended);
    f.panel.answer({true, QUrl::fromLocalFile(f.folder.filePath("b.eps"))});
    QVERIFY(repair->isRepairing());
    QCOMPARE(c.work().text(), QStringLiteral("Repairing…"));
    repair->run(check->findings());
    QVERIFY(!f.panel.isOpen());
    QTRY_COMPARE(f.service.openCount(), 3);
    f.service.setPrepare([](MemoryPictureProcess&) {});
    f.service.lastProcess()->release(PictureCall::Examine);
    QTRY_COMPARE(ended.size(), 1);
    repair->run(check->findings());
    QVERIFY(f.panel.isOpen());
    f.panel.answer({});
    f.document.setFileURL({});
    repair->run(check->findings());  // there is nothing to mend
    QVERIFY(!f.panel.isOpen());
  }

  void aPanelThatIsCancelledRepairsNothing() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.checked(c);
    pageOf(c).findChild<QPushButton*>("repairAll")->click();
    f.panel.answer({false, QUrl::fromLocalFile(f.folder.filePath("b.eps"))});
    QVERIFY(!c.inspectorWindow->findChild<RepairCommand*>()->isRepairing());
    QCOMPARE(QDir(f.folder.path()).entryList({"*.eps"}), QStringList{"a.eps"});
  }

  void thePanelOffersWhatBecomesOfThePreview() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.checked(c);
    pageOf(c).findChild<QPushButton*>("repairAll")->click();
    QVERIFY(f.panel.settings.accessoryView);
    const auto* preview = f.panel.settings.accessoryView->findChild<QComboBox*>();
    QCOMPARE(preview->accessibleName(), QStringLiteral("Preview"));
    QCOMPARE(kit::rowsOf(*preview), QStringList({"As it is", "Made anew", "Left out"}));
    f.panel.answer({});
  }

  void whyAFileCannotBeMendedIsToldInTheWindowsLanguage() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.checked(c);
    f.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Examine,
                   {ErrorKind::NotParsable,
                    QStringLiteral("it cannot be mended: the bounding box 0 0 0 9 has no area")});
    });
    const German german;
    pageOf(c).findChild<QPushButton*>("repairAll")->click();
    QSignalSpy ended(c.inspectorWindow->findChild<RepairCommand*>(), &RepairCommand::ended);
    f.panel.answer({true, QUrl::fromLocalFile(f.folder.filePath("b.eps"))});
    QVERIFY(!ended.isEmpty() || ended.wait(20000));
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.alerts.shown[0].messageText,
             QStringLiteral("Nicht zu reparieren: Der Rahmen 0 0 0 9 ist leer."));
  }

  void whatCannotBeMendedIsToldAndNothingIsWritten() {
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.checked(c);
    f.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Examine, {ErrorKind::Died, QStringLiteral("the picture process ended")});
    });
    pageOf(c).findChild<QPushButton*>("repairAll")->click();
    QSignalSpy ended(c.inspectorWindow->findChild<RepairCommand*>(), &RepairCommand::ended);
    f.panel.answer({true, QUrl::fromLocalFile(f.folder.filePath("b.eps"))});
    QVERIFY(!ended.isEmpty() || ended.wait(20000));
    QVERIFY(!ended[0][1].toBool() && !QFile::exists(f.folder.filePath("b.eps")));
    QCOMPARE(f.alerts.shown.size(), 1);
  }

  void aWindowThatClosesWhenDoneStaysUnderWhatIsTold_data() {
    QTest::addColumn<bool>("mends");
    QTest::newRow("mended") << true;
    QTest::newRow("failed") << false;
  }
  void aWindowThatClosesWhenDoneStaysUnderWhatIsTold() {
    QFETCH(bool, mends);
    CheckFixture f;
    MainWindowController& c = f.shown();
    f.checked(c);
    c.setShouldCloseDocument(true);
    f.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Examine); });
    pageOf(c).findChild<QPushButton*>("repairAll")->click();
    const QPointer<RepairCommand> repair = c.inspectorWindow->findChild<RepairCommand*>();
    QSignalSpy ended(repair.data(), &RepairCommand::ended);
    QSignalSpy closed(&f.document, &Document::closed);
    f.panel.answer({true, QUrl::fromLocalFile(f.folder.filePath(mends ? "b.eps" : "nowhere/b.eps"))});
    QTRY_COMPARE(f.service.openCount(), 3);
    const auto process = f.service.lastProcess();
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    f.alerts.answer = 0;  // "Close When Finished"
    QVERIFY(!c.window()->close());
    bool stood = false;
    f.alerts.answer = 1;  // "Close"
    f.alerts.whileShown = [&] {
      QTest::qWait(50);
      stood = repair && c.window()->isVisible();
    };
    f.service.setPrepare([](MemoryPictureProcess&) {});
    process->release(PictureCall::Examine);
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(f.alerts.shown.size(), 2);
    QVERIFY(stood);
    if (mends) {
      QTRY_COMPARE(closed.size(), 1);
    } else {
      QTest::qWait(50);
      QVERIFY(closed.isEmpty() && c.window()->isVisible());  // it can be tried again
    }
  }

  void aPreviewIsMadeAnewWhereItIsBadOrAllThatIsAsked() {
    const Finding missing = finding(rule("eps.preview.missing"), "a");
    const Finding differs = finding(rule("eps.preview.differs"), "b");
    const Finding box = finding(rule("eps.bounding-box.missing"), "c");
    QCOMPARE(RepairCommand::proposedPreview({box, missing}), PreviewUse::Keep);
    QCOMPARE(RepairCommand::proposedPreview({box, differs}), PreviewUse::Rebuild);
    QCOMPARE(RepairCommand::proposedPreview({missing}), PreviewUse::Rebuild);
    QCOMPARE(RepairCommand::proposedPreview({}), PreviewUse::Keep);
  }
};

NORVEX_TEST(RepairTest)
#include "repair_test.moc"
