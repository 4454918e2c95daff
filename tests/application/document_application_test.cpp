#include "application/document_application.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "document/memory_window_controller.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"

using namespace norvex;

namespace {

class MemoryAlerts final : public AlertPresenter {
 public:
  int runModal(const Alert& alert) override {
    shown << alert;
    return answer;
  }
  QList<Alert> shown;
  int answer = 0;
};

/// Drags the files onto the widget and drops them; whether they were taken.
bool dropFiles(QWidget* widget, const QList<QUrl>& urls) {
  QMimeData data;
  data.setUrls(urls);
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QCoreApplication::sendEvent(widget, &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  drop.ignore();
  QCoreApplication::sendEvent(widget, &drop);
  return drop.isAccepted();
}

}  // namespace

class DocumentApplicationTest : public QObject {
  Q_OBJECT

  NullPictureService service_;
  QStringList log_;
  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<ApplicationEvents> events_;
  MemoryAlerts alerts_;
  int terminated_ = 0;
  std::unique_ptr<DocumentApplication> application_;

  QUrl write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
    return QUrl::fromLocalFile(file.fileName());
  }
  QUrl writePdf(const QString& name) { return write(name, "%PDF-1.4\n%%EOF\n"); }
  bool start(const QList<QUrl>& urls) {
    QSignalSpy finished(&application_->documents(), &DocumentController::readingFinished);
    application_->start(urls);
    return urls.isEmpty() || !finished.isEmpty() || finished.wait(20000);
  }
  void makeApplication() {
    events_ = std::make_unique<ApplicationEvents>();
    application_ = std::make_unique<DocumentApplication>(*events_, service_, kit::loggingFactory(&log_),
                                                         [this](QObject*) { ++terminated_; });
    application_->setAlertPresenter(&alerts_);
  }
  void leaveSession(const QStringList& files, const QString& last) {
    const QString place = folder_->filePath("state/norvex/sessions");
    QFile file(place + "/1.session");
    if (!QDir().mkpath(place) || !file.open(QIODevice::WriteOnly)) qFatal("cannot write test data");
    file.write(QString("{\"files\":[\"%1\"],\"last\":\"%2\"}").arg(files.join("\",\""), last).toUtf8());
  }
  bool finishReading() {
    return QTest::qWaitFor([this] { return !application_->documents().isReading(); }, 20000);
  }

 private slots:
  void initTestCase() {
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NorvexTest");
    QCoreApplication::setApplicationName("document_application_test");
  }
  void init() {
    log_.clear();
    alerts_.shown.clear();
    alerts_.answer = 0;
    terminated_ = 0;
    QSettings().clear();
    folder_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_STATE_HOME", folder_->filePath("state").toLocal8Bit());
    qputenv("XDG_DATA_HOME", folder_->filePath("data").toLocal8Bit());
    makeApplication();
  }
  void cleanup() { application_.reset(); }

  void startedWithoutAFileItShowsTheStartPanelAndNoDocument() {
    QVERIFY(start({}));
    QVERIFY(application_->startPanel().isVisible());
    QVERIFY(application_->documents().documents().isEmpty());
    QVERIFY(log_.isEmpty());
    QCOMPARE(terminated_, 0);
  }

  void theStartPanelStaysWhileAnotherProgramHasTheFocus() {
    QVERIFY(start({}));
    emit events_->didResignActive();
    QCoreApplication::processEvents();
    QCOMPARE(terminated_, 0);
    QVERIFY(application_->startPanel().isVisible());
    // What it stayed for.
    QVERIFY(dropFiles(&application_->startPanel(), {writePdf("a.pdf")}));
    QVERIFY(finishReading());
    QCOMPARE(application_->documents().documents().size(), 1);
  }

  void withNothingOnTheScreenDeactivatingQuits() {
    QVERIFY(start({}));
    application_->startPanel().hide();
    emit events_->didResignActive();
    QCOMPARE(terminated_, 1);
  }

  void theRecentFilesOfEarlierVersionsMoveOutOfTheUserDefaults() {
    application_.reset();
    QSettings().setValue("RecentFiles", QStringList{"/a.eps", "/b.eps"});
    makeApplication();
    QCOMPARE(application_->recentFiles().urls(),
             (QList<QUrl>{QUrl::fromLocalFile("/a.eps"), QUrl::fromLocalFile("/b.eps")}));
    QVERIFY(!QSettings().contains("RecentFiles"));
  }

  void whatACrashLeftIsOfferedAndItsReasonIsNotOpenedUnasked() {
    const QUrl first = writePdf("first.pdf"), last = writePdf("last.pdf");
    leaveSession({first.toLocalFile(), last.toLocalFile()}, last.toLocalFile());
    alerts_.answer = 0;  // the others
    QVERIFY(start({}));
    QTRY_COMPARE(alerts_.shown.size(), 1);
    QVERIFY(alerts_.shown.first().informativeText.contains("last.pdf"));
    QTRY_COMPARE(application_->documents().documents().size(), 1);
    QCOMPARE(application_->documents().documents().first()->fileURL(), first);
  }

  void aCrashWithOneFileOpensNothingUnlessItIsWanted() {
    const QUrl only = writePdf("only.pdf");
    leaveSession({only.toLocalFile()}, only.toLocalFile());
    alerts_.answer = -1;  // dismissed
    QVERIFY(start({}));
    QTRY_COMPARE(alerts_.shown.size(), 1);
    QTest::qWait(50);
    QVERIFY(application_->documents().documents().isEmpty());
  }

  void whatIsOpenedByNameIsNotAskedFor() {
    const QUrl only = writePdf("only.pdf"), other = writePdf("other.pdf");
    leaveSession({only.toLocalFile()}, only.toLocalFile());
    QVERIFY(start({only}));
    QTest::qWait(50);
    QCOMPARE(alerts_.shown.size(), 0);
    makeApplication();
    leaveSession({only.toLocalFile(), other.toLocalFile()}, other.toLocalFile());
    alerts_.answer = -1;
    QVERIFY(start({only}));
    QTRY_COMPARE(alerts_.shown.size(), 1);
    QVERIFY(alerts_.shown.first().informativeText.contains("other.pdf"));
    QCOMPARE(alerts_.shown.first().buttons.size(), 2);  // nothing else is left to be opened
  }

  void askedForByTheDesktopItShowsThePanelOrTheLastWindow() {
    application_->startForDesktop(1000);
    QVERIFY(!application_->startPanel().isVisible());
    application_->activate();
    QVERIFY(application_->startPanel().isVisible());
    application_->openFiles({writePdf("a.pdf")});
    QVERIFY(finishReading());
    log_.clear();
    application_->activate();
    QCOMPARE(log_.count("shown"), 1);
    QVERIFY(!application_->startPanel().isVisible());
  }

  // Menus and file managers start the program by the bus alone.
  void whatACrashLeftIsOfferedWhenTheDesktopAsksForSomething_data() {
    QTest::addColumn<bool>("aFile");
    QTest::newRow("a file") << true;
    QTest::newRow("the program") << false;
  }
  void whatACrashLeftIsOfferedWhenTheDesktopAsksForSomething() {
    QFETCH(bool, aFile);
    const QUrl left = writePdf("left.pdf");
    leaveSession({left.toLocalFile()}, left.toLocalFile());
    application_->startForDesktop(60'000);
    QCoreApplication::processEvents();
    QCOMPARE(alerts_.shown.size(), 0);  // there is nothing on the screen
    aFile ? application_->openFiles({writePdf("a.pdf")}) : application_->activate();
    QTRY_COMPARE(alerts_.shown.size(), 1);
    QVERIFY(alerts_.shown.first().informativeText.contains("left.pdf"));
    application_->activate();
    QVERIFY(finishReading());
    QCOMPARE(alerts_.shown.size(), 1);
  }

  void startedByTheBusForNothingItEnds() {
    application_->startForDesktop(1);
    QTRY_COMPARE(terminated_, 1);
  }

  void startedByTheBusForAFileItStays() {
    application_->startForDesktop(1);
    application_->openFiles({writePdf("a.pdf")});
    QVERIFY(finishReading());
    QTest::qWait(20);
    QCOMPARE(application_->documents().documents().size(), 1);
    QCOMPARE(terminated_, 0);
  }

  void aPanelThatIsAskedForAgainStaysWhereItWasMoved_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("manual") << "ManualWindow";
    QTest::newRow("preferences") << "PreferencesPanel";
  }
  void aPanelThatIsAskedForAgainStaysWhereItWasMoved() {
    QFETCH(QString, name);
    const auto ask = [&] {
      name == "ManualWindow" ? application_->showManual() : application_->showPreferences();
      for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == name) return widget;
      return static_cast<QWidget*>(nullptr);
    };
    QVERIFY(start({}));
    QWidget* const panel = ask();
    QVERIFY(panel);
    const QPoint moved = panel->pos() + QPoint(7, 5);
    panel->move(moved);
    QCOMPARE(ask(), panel);
    QCOMPARE(panel->pos(), moved);
  }

  void theManualIsOneWindow() {
    application_->showManual();
    application_->showManual();
    int count = 0;
    for (const QWidget* widget : QApplication::topLevelWidgets())
      count += widget->objectName() == "ManualWindow";
    QCOMPARE(count, 1);
  }

  void startedWithFilesItShowsThemAndNoPanel() {
    QVERIFY(start({writePdf("a.pdf"), writePdf("b.pdf")}));
    QCOMPARE(application_->documents().documents().size(), 2);
    QVERIFY(!application_->startPanel().isVisible());
    QCOMPARE(log_.count("shown"), 2);
  }

  void deactivatingWithADocumentOpenKeepsItRunning() {
    QVERIFY(start({writePdf("a.pdf")}));
    emit events_->didResignActive();
    QCOMPARE(terminated_, 0);
  }

  void aFileOnItsWayIsAsGoodAsOpen() {
    application_->start({writePdf("a.pdf")});
    emit events_->didResignActive();
    QCOMPARE(terminated_, 0);
    QVERIFY(finishReading());
  }

  void closingTheLastDocumentBringsTheStartPanelBackAndClosingThatQuits() {
    QVERIFY(start({writePdf("a.pdf")}));
    application_->documents().documents().first()->close();
    QVERIFY(application_->startPanel().isVisible());
    QCOMPARE(terminated_, 0);
    application_->startPanel().close();
    QTRY_COMPARE(terminated_, 1);
  }

  void closingTheStartPanelWithNothingElseOpenQuits() {
    QVERIFY(start({}));
    application_->startPanel().close();
    QTRY_COMPARE(terminated_, 1);
  }

  void aWindowThatClosesLaterEndsTheProgramThatItKept() {
    QVERIFY(start({writePdf("a.pdf"), writePdf("b.pdf")}));
    const QList<Document*> open = application_->documents().documents();
    static_cast<kit::MemoryWindowController*>(open[0]->windowController())->waits = true;
    emit events_->quitRefused();
    QCOMPARE(terminated_, 0);
    open[0]->close();
    QTRY_COMPARE(terminated_, 1);
  }

  void aWindowThatIsToStayOpenKeepsTheProgram() {
    QVERIFY(start({writePdf("a.pdf"), writePdf("b.pdf")}));
    emit events_->quitRefused();
    application_->documents().documents().first()->close();
    QTest::qWait(20);
    QCOMPARE(terminated_, 0);
  }

  void aMissingFileIsToldInAPlainSentence() {
    QVERIFY(start({QUrl::fromLocalFile(folder_->filePath("none.eps"))}));
    QCOMPARE(alerts_.shown.size(), 1);
    QCOMPARE(alerts_.shown.first().messageText, QString("“none.eps” could not be opened."));
    QCOMPARE(alerts_.shown.first().informativeText, QString("No such file or directory."));
    QVERIFY(application_->startPanel().isVisible());
    QCOMPARE(terminated_, 0);
  }

  void aFileOfAnotherKindIsToldInAPlainSentence() {
    QVERIFY(start({}));
    QTest::ignoreMessage(QtInfoMsg, "notes.txt: readFromData:ofType:error: is unimplemented");  // for the log
    QVERIFY(dropFiles(&application_->startPanel(), {write("notes.txt", "milk")}));
    QVERIFY(finishReading());
    QCOMPARE(alerts_.shown.size(), 1);
    QCOMPARE(alerts_.shown.first().messageText, QString("“notes.txt” could not be opened."));
    QCOMPARE(alerts_.shown.first().informativeText,
             QString("This is not an EPS, Illustrator, PDF or SVG picture."));
    QVERIFY(application_->startPanel().isVisible());
  }

  void filesThatCannotBeOpenedAreToldTogether() {
    QVERIFY(start({}));
    QList<QUrl> files{writePdf("a.pdf"), QUrl("http://example.org/a.pdf")};
    for (int i = 0; i < 7; ++i) files << write(QString("notes%1.txt").arg(i), "milk");
    application_->documents().openDocuments(files);
    QVERIFY(finishReading());
    QCOMPARE(application_->documents().documents().size(), 1);
    QCOMPARE(alerts_.shown.size(), 1);
    const Alert& told = alerts_.shown.constFirst();
    QCOMPARE(told.messageText, QString("8 files could not be opened."));
    QVERIFY(told.informativeText.startsWith(
        "http://example.org/a.pdf: Only files on this computer can be opened.\n"));
    QVERIFY(told.informativeText.endsWith(QString::fromUtf8("\n…")));
    QCOMPARE(told.informativeText.count('\n'), 6);
    QCOMPARE(told.details.count('\n'), 7);
    QCoreApplication::processEvents();
    QCOMPARE(alerts_.shown.size(), 1);
  }

  void anOperationThatFailedIsToldAndEverythingGoesOn() {
    QVERIFY(start({writePdf("a.pdf")}));
    emit events_->operationFailed("dataOfType:error: is unimplemented");
    QCOMPARE(alerts_.shown.size(), 1);
    QCOMPARE(alerts_.shown.first().informativeText, QString("dataOfType:error: is unimplemented."));
    QCOMPARE(application_->documents().documents().size(), 1);
  }

  void openedFilesBecomeRecentAndMissingOnesAreForgotten() {
    const QUrl gone = QUrl::fromLocalFile(folder_->filePath("gone.pdf"));
    application_->recentFiles().add(gone);
    const QUrl url = writePdf("a.pdf");
    QVERIFY(start({url, gone}));
    QCOMPARE(application_->recentFiles().urls(), (QList<QUrl>{url}));
  }

  void aRecentFileOpensFromThePanel() {
    application_->recentFiles().add(writePdf("a.pdf"));
    QVERIFY(start({}));
    QListWidget* list = application_->startPanel().recentList();
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->item(0)->text(), QString("a.pdf"));
    emit list->itemActivated(list->item(0));
    QVERIFY(finishReading());
    QCOMPARE(application_->documents().documents().size(), 1);
    QVERIFY(!application_->startPanel().isVisible());
  }

  void filesDroppedOnThePanelOpen() {
    QVERIFY(start({}));
    QVERIFY(dropFiles(&application_->startPanel(), {writePdf("a.pdf"), writePdf("b.pdf")}));
    QVERIFY(finishReading());
    QCOMPARE(application_->documents().documents().size(), 2);
  }

  void whatIsNoLocalFileIsNotTaken() {
    QVERIFY(start({}));
    QVERIFY(!dropFiles(&application_->startPanel(), {QUrl("https://example.org/a.svg")}));
    QVERIFY(!dropFiles(&application_->startPanel(), {}));
  }

  void aDocumentWindowTakesFilesAndHasOpenInItsMenu() {
    QMainWindow window;
    auto* file = window.menuBar()->addMenu("File");
    file->setObjectName("fileMenu");
    file->addAction("Close");
    auto* help = window.menuBar()->addMenu("Help");
    help->setObjectName("helpMenu");
    help->addAction("About");
    QVERIFY(start({writePdf("a.pdf")}));
    QCOMPARE(file->actions().first()->objectName(), QString("openAction"));
    QCOMPARE(file->actions().first()->shortcut(), QKeySequence(QKeySequence::Open));
    QCOMPARE(help->actions().count(), 2);
    QCOMPARE(help->actions().first()->objectName(), QString("manualAction"));
    QCOMPARE(help->actions().first()->shortcut(), QKeySequence(QKeySequence::HelpContents));
    QVERIFY(dropFiles(&window, {writePdf("b.pdf")}));
    QVERIFY(finishReading());
    QCOMPARE(application_->documents().documents().size(), 2);
    QCOMPARE(file->actions().count(), 4);  // equipped once: Open, Open Recent, separator, Close
    QMenu* recent = file->actions().at(1)->menu();
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().first()->text(), QString("b.pdf"));
    QCOMPARE(recent->actions().count(), 5);
  }

  void aChangeOnDiskReachesTheWindow() {
    const QUrl url = writePdf("a.pdf");
    QVERIFY(start({url}));
    QTest::qWait(200);
    write("a.pdf", "%PDF-1.4\n% another\n%%EOF\n");
    QVERIFY(QTest::qWaitFor([this] { return log_.contains("changed on disk"); }, 20000));
    QVERIFY(QFile::remove(url.toLocalFile()));
    QVERIFY(QTest::qWaitFor([this] { return log_.contains("gone from disk"); }, 20000));
  }

  void theButtonOfThePanelIsMarkedOnlyWhileItHasTheFocus() {
    QVERIFY(start({}));
    StartPanel& panel = application_->startPanel();
    panel.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    auto* const open = panel.findChild<QPushButton*>();
    open->setFocus();
    QVERIFY(open->isDefault());
    open->clearFocus();
    QVERIFY(!open->isDefault());
    open->setFocus();
    QVERIFY(open->isDefault());
  }

  void everyControlOfThePanelHasAName() {
    QVERIFY(start({}));
    for (QWidget* widget : application_->startPanel().findChildren<QWidget*>()) {
      if (widget->focusPolicy() == Qt::NoFocus || qobject_cast<QScrollBar*>(widget)) continue;
      if (!widget->isVisibleTo(&application_->startPanel())) continue;
      const auto* button = qobject_cast<QPushButton*>(widget);
      QVERIFY2(!widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()),
               widget->metaObject()->className());
    }
  }
};

NORVEX_TEST(DocumentApplicationTest)
#include "document_application_test.moc"
