// Printing from the document window.
#include <QAction>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>

#include <atomic>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "picture/process/forwarding_process.h"
#include "print/memory_printing.h"
#include "ui/picture/norvex_view_widget.h"
#include "window/commands/print_jobs.h"
#include "window/window_fixture.h"

using namespace norvex;
using kit::MemorySpooler;
using kit::ScriptedInteraction;

namespace {

/// A picture service that composes pages by writing down what it was asked.
class PagesService final : public ForwardingService {
 public:
  PagesService() : ForwardingService(pictures) {}
  Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request,
                                  const CancelToken&) override {
    const std::lock_guard lock(mutex);
    asked << request;
    picturesGiven << pdf;
    return QByteArray("%PDF-pages");
  }

  MemoryPictureService pictures;
  std::mutex mutex;
  QList<PagesRequest> asked;
  QByteArrayList picturesGiven;
};

struct PrintFixture {
  PrintFixture()
      : document(service, [this] {
          auto made = std::make_unique<MainWindowController>();
          made->setAlertPresenter(&alerts);
          made->setPrintServices({nullptr, &spooler, &people});
          return made;
        }) {
    qputenv("XDG_STATE_HOME", folder.path().toUtf8());
  }
  MainWindowController& load(const QString& name, const QByteArray& bytes = epsBytes()) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write the test's file");
    file.close();
    document.setFileURL(QUrl::fromLocalFile(folder.filePath(name)));
    document.setFileType(NorvexEPSType);
    return untitled();
  }
  MainWindowController& untitled() {
    document.makeWindowControllers();
    auto& made = *static_cast<MainWindowController*>(document.windowController());
    made.windowDidLoad();
    return made;
  }
  [[nodiscard]] QString location(const QString& name) const { return "file://" + folder.filePath(name); }

  QTemporaryDir folder;
  PagesService service;
  RecordingAlerts alerts;
  MemorySpooler spooler{{{"Office", "Office", PrinterState::Idle, true, true}}};
  ScriptedInteraction people;
  WaitingThreadsEnd threadsEnd;  ///< what a window leaves behind still asks the service
  Document document;
};

/// Does something while it tells that the picture could not be made.
class EndingInteraction final : public PrintInteraction {
 public:
  explicit EndingInteraction(std::function<void()> meanwhile) : meanwhile_(std::move(meanwhile)) {}
  bool runPrintPanel(NSPrintOperation&) override { return false; }
  void beginPageLayout(const NSPrintInfo&, std::function<void(const NSPrintInfo&, int)>) override {}
  int preparationDidBegin(const QString&, const CancelToken&) override { return 1; }
  void preparationDidEnd(int, const QString&, const Result<void>&) override { meanwhile_(); }
  int jobDidBegin(const QString&, const CancelToken&) override { return 1; }
  void jobDidAdvance(int, const QString&, int, int) override {}
  void jobDidEnd(int, const QString&, const Result<void>&) override {}

 private:
  const std::function<void()> meanwhile_;
};

/// What the panel was shown: the view that is printed.
struct Printed {
  QSizeF size;
  QString job, footer;
};

}  // namespace

class MainWindowPrintTest : public QObject {
  Q_OBJECT

  QTemporaryDir settings_;

  static Printed print(PrintFixture& fixture, MainWindowController& c) {
    Printed printed;
    fixture.people.onPanel = [&printed](NSPrintOperation& operation) {
      const PrintSource source = operation.view().printSource();
      printed = {source.shown.size, source.jobTitle, source.footer() ? source.footer()->text : QString()};
    };
    const int before = fixture.people.panels;
    c.doPrinting();
    if (!QTest::qWaitFor([&] { return fixture.people.panels > before; }, 20000)) qFatal("no panel");
    return printed;
  }

 private slots:
  void initTestCase() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings_.path());
    QCoreApplication::setOrganizationName("norvex-tests");
  }
  void cleanupTestCase() { QCoreApplication::setOrganizationName({}); }

  void aSelectionIsPrintedInItsOwnSizeWhateverTheZoom_data() {
    QTest::addColumn<double>("zoom");
    for (const double zoom : {0.5, 1.0, 3.0}) QTest::newRow(qPrintable(QString::number(zoom))) << zoom;
  }
  void aSelectionIsPrintedInItsOwnSizeWhateverTheZoom() {
    QFETCH(double, zoom);
    PrintFixture fixture;
    fixture.service.pictures.setPicture([] {
      MemoryPicture picture;
      picture.facts.pageBounds = {QRectF(0, 0, 200, 100)};
      return picture;
    }());
    MainWindowController& c = fixture.load("a.eps");
    c.zoomingScrollView()->zoomTo(zoom);
    c.view()->selectBounds();
    QCOMPARE(c.view()->selectRect().size(), QSizeF(200, 100));
    QCOMPARE(print(fixture, c).size, QSizeF(200, 100));
  }

  void withoutASelectionTheVisiblePartIsPrinted() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    c.view()->clearSelectRect();
    QCOMPARE(print(fixture, c).size, c.view()->visibleRect().size());
  }

  void aFileGivesTheJobItsTitles() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("My Picture.eps");
    c.view()->selectBounds();
    const Printed printed = print(fixture, c);
    QCOMPARE(printed.job, QString("My Picture"));
    QCOMPARE(printed.footer, fixture.location("My Picture.eps") + "\t\t");
  }

  void anUntitledDocumentPrintsWithItsWindowsTitle() {
    PrintFixture fixture;
    MainWindowController& c = fixture.untitled();
    c.window()->setWindowTitle("The window");
    const Printed printed = print(fixture, c);
    QCOMPARE(printed.job, fixture.document.displayName());
    QCOMPARE(printed.footer, QString("The window\t\t"));
  }

  void thePanelOffersPaperOrientationAndScaling() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    c.view()->selectBounds();
    print(fixture, c);
    QCOMPARE(fixture.people.panels, 1);
    QCOMPARE(fixture.people.panelOptions, NSPrintPanel().options() | 28);
    QCOMPARE(fixture.people.shownInfo, fixture.document.printInfo());
  }

  void theToolbarItemPrintsTheSelectionOnAThreadOfItsOwn() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    c.view()->selectBounds();
    c.doPrintingToolbarItem->trigger();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.ended.size(), 1, 20000);
    QCOMPARE(fixture.people.messages, QStringList{QString()});
    QCOMPARE(fixture.spooler.jobs().size(), 1);
    QCOMPARE(fixture.spooler.jobs().first().ticket.title, QString("a"));
    QCOMPARE(fixture.spooler.jobs().first().pdf, QByteArray("%PDF-pages"));
    QCOMPARE(fixture.service.asked.size(), 1);
    QCOMPARE(fixture.service.asked.first().sheets.size(), 1);
    QCOMPARE(fixture.service.asked.first().sheets.first().target.size(), c.view()->selectRect().size());
    QVERIFY(fixture.service.picturesGiven.first().startsWith("%PDF-"));
  }

  void withoutAPictureThePagesAreEmpty() {
    PrintFixture fixture;
    MainWindowController& c = fixture.untitled();
    c.doPrinting();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.ended.size(), 1, 20000);
    QCOMPARE(fixture.people.messages, QStringList{QString()});
    QCOMPARE(fixture.service.picturesGiven, QByteArrayList{QByteArray()});
    QVERIFY(fixture.alerts.shown.isEmpty());
  }

  void thePictureIsMadeBesideTheWindow() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    const auto process = fixture.service.pictures.lastProcess();
    process->hold(PictureCall::Compose);
    c.doPrinting();
    QCOMPARE(fixture.people.prepared, QStringList{"a"});
    QCOMPARE(fixture.people.panels, 0);
    c.doPrinting();      // one at a time
    c.rotateChange(30);  // the window works on
    QVERIFY(process->waitUntilHeld(PictureCall::Compose));
    process->release(PictureCall::Compose);
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.ended.size(), 1, 20000);
    QCOMPARE(fixture.people.panels, 1);
    QCOMPARE(fixture.people.endedPreparations, QList<int>{1});
    QCOMPARE(fixture.people.preparationMessages, QStringList{QString()});
  }

  void aPictureThatCannotBeMadeIsToldAndThereIsNoPanel() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    fixture.service.pictures.lastProcess()->fail(PictureCall::Compose,
                                                 {ErrorKind::TimedOut, "the picture takes too long"});
    c.doPrinting();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.endedPreparations.size(), 1, 20000);
    QCOMPARE(fixture.people.preparationMessages, QStringList{"the picture takes too long"});
    QTest::qWait(20);
    QCOMPARE(fixture.people.panels, 0);
    QVERIFY(fixture.spooler.jobs().isEmpty());
  }

  // Another document may take the window's place while a message is on the screen.
  void theWindowMayGoWhileAFailureIsTold() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    fixture.service.pictures.lastProcess()->fail(PictureCall::Compose, {ErrorKind::Died, "it ended"});
    auto jobs = std::make_unique<PrintJobs>();
    EndingInteraction people([&jobs] { jobs.reset(); });
    jobs->printRectangle(*c.view(), QRectF(0, 0, 10, 10), fixture.document, "a",
                         {nullptr, &fixture.spooler, &people});
    QTRY_VERIFY_WITH_TIMEOUT(!jobs, 20000);
  }

  void thePreparationCanBeCancelled() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    fixture.service.pictures.lastProcess()->hold(PictureCall::Compose);
    c.doPrinting();
    fixture.people.preparation.cancel();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.endedPreparations.size(), 1, 20000);
    QTest::qWait(20);
    QCOMPARE(fixture.people.panels, 0);
  }

  void closingTheWindowLetsARunningJobFinish() {
    PrintFixture fixture;
    std::atomic<bool> held = true;
    fixture.spooler.wait = [&held](const CancelToken&) {
      while (held) QThread::msleep(5);
    };
    MainWindowController& c = fixture.load("a.eps");
    c.window()->show();
    c.printDocument();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.begun.size(), 1, 20000);
    QSignalSpy closed(&fixture.document, &Document::closed);
    fixture.alerts.answer = 0;
    QVERIFY(!c.window()->close());
    QCOMPARE(fixture.alerts.shown.size(), 1);
    QCOMPARE(fixture.alerts.shown[0].messageText, QString("The picture is still being printed."));
    QVERIFY(c.window()->isVisible() && closed.isEmpty());
    held = false;
    QTRY_COMPARE_WITH_TIMEOUT(closed.size(), 1, 20000);
    QCOMPARE(fixture.spooler.jobs().size(), 1);
  }

  void closingTheWindowInItsPrintPanelAsksNothingAndPrintsNothing() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    c.window()->show();
    QSignalSpy closed(&fixture.document, &Document::closed);
    bool wentAtOnce = true;
    fixture.people.printsFromPanel = false;
    fixture.people.onPanel = [&](NSPrintOperation&) { wentAtOnce = c.window()->close(); };
    c.printDocument();
    QVERIFY(!wentAtOnce);  // what shows the panel is the window's
    QVERIFY(c.closesWhenDone());
    QTRY_COMPARE_WITH_TIMEOUT(closed.size(), 1, 20000);
    QVERIFY(fixture.alerts.shown.isEmpty());
    QVERIFY(fixture.spooler.jobs().isEmpty());
  }

  void theQuestionGoesWhenThereIsNothingLeftToAsk_data() {
    QTest::addColumn<bool>("fails");
    QTest::newRow("it is printed") << false;
    QTest::newRow("it is not printed, and can be tried again") << true;
  }
  void theQuestionGoesWhenThereIsNothingLeftToAsk() {
    QFETCH(bool, fails);
    PrintFixture fixture;
    std::atomic<bool> held = true;
    fixture.spooler.wait = [&held](const CancelToken&) {
      while (held) QThread::msleep(5);
    };
    if (fails) fixture.spooler.error = Error{ErrorKind::CannotWrite, "the printer “Office” takes no jobs"};
    MainWindowController& c = fixture.load("a.eps");
    c.window()->show();
    c.printDocument();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.begun.size(), 1, 20000);
    QSignalSpy closed(&fixture.document, &Document::closed);
    int dismissed = 0;
    fixture.alerts.whileShown = [&] {
      fixture.alerts.shown.last().willShow([&dismissed] { ++dismissed; });
      held = false;
      QTRY_COMPARE_WITH_TIMEOUT(dismissed, 1, 20000);
      QVERIFY(c.window()->isVisible());
    };
    QCOMPARE(c.window()->close(), !fails);
    QCOMPARE(c.window()->isVisible(), fails);
    QCOMPARE(dismissed, 1);
    if (!fails) QTRY_COMPARE_WITH_TIMEOUT(closed.size(), 1, 20000);
  }

  void theMenuPrintsTheWholeTurnedPicture() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    c.view()->selectBounds();
    c.rotateChange(90);
    const QSizeF turned = c.view()->bounds().size();
    auto* action = c.window()->findChild<QAction*>("printAction");
    QVERIFY(action && action->shortcut() == QKeySequence(QKeySequence::Print));
    QSizeF size;
    fixture.people.onPanel = [&size](NSPrintOperation& operation) {
      size = operation.view().printSource().shown.size;
    };
    action->trigger();
    QCOMPARE(size, turned);
    QVERIFY(size.height() > size.width());
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.ended.size(), 1, 20000);
  }

  void thePageLayoutComesFromTheMenu() {
    PrintFixture fixture;
    MainWindowController& c = fixture.load("a.eps");
    c.window()->findChild<QAction*>("pageLayoutAction")->trigger();
    QCOMPARE(fixture.people.sheets, 1);
    NSPrintInfo chosen = fixture.people.shownInfo;
    chosen.setScalingFactor(0.5);
    fixture.people.endSheet(chosen, 1);
    QCOMPARE(fixture.document.printInfo().scalingFactor(), 0.5);
    QSettings().remove("PrintInfo");
  }

  void aFailedJobIsToldOnceAndTheSettingsStay() {
    PrintFixture fixture;
    fixture.spooler.error = Error{ErrorKind::CannotWrite, "the printer “Office” takes no jobs"};
    MainWindowController& c = fixture.load("a.eps");
    const NSPrintInfo before = fixture.document.printInfo();
    c.doPrinting();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.people.ended.size(), 1, 20000);
    QCOMPARE(fixture.people.messages, QStringList{"the printer “Office” takes no jobs"});
    QCOMPARE(fixture.document.printInfo(), before);
  }

  void closingTheWindowEndsARunningJob() {
    auto fixture = std::make_unique<PrintFixture>();
    fixture->spooler.wait = [](const CancelToken& cancel) {
      while (!cancel.cancelled()) QThread::msleep(5);
    };
    fixture->load("a.eps").doPrinting();
    QTRY_COMPARE_WITH_TIMEOUT(fixture->people.begun.size(), 1, 20000);
    fixture.reset();  // comes back
  }
};

NORVEX_TEST(MainWindowPrintTest)
#include "main_window_print_test.moc"
