// The printing half of a document: settings, page layout, print operation.
#include <QSemaphore>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <QUrl>

#include "base/background_work.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "document/memory_window_controller.h"
#include "document/print_settings.h"
#include "document/print_titles.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"
#include "print/memory_printing.h"
#include "print/print_info_archive.h"

using namespace norvex;
using kit::MemorySpooler;
using kit::ScriptedInteraction;

namespace {

/// A window controller that shows a view and nothing else.
class ViewController final : public DocumentWindowController {
 public:
  explicit ViewController(NorvexView* view) : view_(view) {}
  void setDocument(Document*) override {}
  void setShouldCloseDocument(bool) override {}
  void showWindow() override {}
  void windowDidLoad() override {}
  void display() override {}
  NorvexView* imageView() override { return view_; }

 private:
  NorvexView* view_;
};

void remember(const QVariant& value) {
  QSettings().setValue("PrintInfo", value);
}

}  // namespace

class DocumentPrintingTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;
  NullPictureService service_;
  NorvexView view_;
  MemorySpooler spooler_{{{"Office", "Office", PrinterState::Idle, true, false}}};
  std::unique_ptr<ScriptedInteraction> people_;

  std::unique_ptr<Document> make() {
    auto document =
        std::make_unique<Document>(service_, [this] { return std::make_unique<ViewController>(&view_); });
    document->setPrintServices({nullptr, &spooler_, people_.get()});
    return document;
  }

 private slots:
  void initTestCase() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
    QCoreApplication::setOrganizationName("norvex-tests");
    QCoreApplication::setApplicationName("norvex-tests");
  }
  void init() {
    QSettings().clear();
    NSPrintInfo::sharedPrintInfo() = NSPrintInfo();
    people_ = std::make_unique<ScriptedInteraction>();
  }
  void cleanupTestCase() {
    QSettings().clear();
    QCoreApplication::setOrganizationName({});
  }

  // ---- settings -----------------------------------------------------------------------------------------

  void aNewDocumentHasTheDefaultsWhateverTheSharedSettingsAre() {
    NSPrintInfo& shared = NSPrintInfo::sharedPrintInfo();
    shared.setOrientation(NSPaperOrientation::Portrait);
    for (const char* margin : {NSPrintLeftMargin, NSPrintRightMargin, NSPrintTopMargin, NSPrintBottomMargin})
      shared.set(margin, 33.0);
    shared.setVerticallyCentered(false);
    shared.setHorizontallyCentered(false);
    shared.setVerticalPagination(NSPrintingPaginationMode::Clip);
    shared.setHorizontalPagination(NSPrintingPaginationMode::Clip);
    shared.setPrintsHeaderAndFooter(true);
    const NSPrintInfo info = make()->printInfo();
    QCOMPARE(int(info.orientation()), 1);
    QCOMPARE(info.margins(), QMarginsF(0, 0, 0, 0));
    QVERIFY(info.isVerticallyCentered() && info.isHorizontallyCentered());
    QCOMPARE(int(info.verticalPagination()), 0);
    QCOMPARE(int(info.horizontalPagination()), 0);
    QCOMPARE(info.dictionary().value("NSPrintHeaderAndFooter"), QVariant(false));
  }

  void eachDefaultIsSetByItself_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("shared");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("orientation") << QString(NSPrintOrientation) << QVariant(0) << QVariant(1);
    QTest::newRow("left margin") << QString(NSPrintLeftMargin) << QVariant(33.0) << QVariant(0.0);
    QTest::newRow("right margin") << QString(NSPrintRightMargin) << QVariant(33.0) << QVariant(0.0);
    QTest::newRow("top margin") << QString(NSPrintTopMargin) << QVariant(33.0) << QVariant(0.0);
    QTest::newRow("bottom margin") << QString(NSPrintBottomMargin) << QVariant(33.0) << QVariant(0.0);
    QTest::newRow("vertically centred")
        << QString(NSPrintVerticallyCentered) << QVariant(false) << QVariant(true);
    QTest::newRow("horizontally centred")
        << QString(NSPrintHorizontallyCentered) << QVariant(false) << QVariant(true);
    QTest::newRow("vertical pagination") << QString(NSPrintVerticalPagination) << QVariant(2) << QVariant(0);
    QTest::newRow("horizontal pagination")
        << QString(NSPrintHorizontalPagination) << QVariant(2) << QVariant(0);
    QTest::newRow("header and footer")
        << QString(NSPrintHeaderAndFooter) << QVariant(true) << QVariant(false);
  }
  void eachDefaultIsSetByItself() {
    QFETCH(QString, key);
    QFETCH(QVariant, shared);
    QFETCH(QVariant, expected);
    NSPrintInfo::sharedPrintInfo() = NSPrintInfo();
    NSPrintInfo::sharedPrintInfo().set(key.toLatin1().constData(), shared);
    QCOMPARE(make()->printInfo().dictionary().value(key), expected);
  }

  void whatTheTableLeavesOpenIsTheSharedSettings() {
    NSPrintInfo::sharedPrintInfo().setScalingFactor(0.5);
    NSPrintInfo::sharedPrintInfo().setLeftMargin(33);
    QCOMPARE(make()->printInfo().scalingFactor(), 0.5);
    QCOMPARE(make()->printInfo().leftMargin(), 0.0);
  }

  void aRememberedLayoutTakesThePlaceOfAllDefaults() {
    NSPrintInfo info;  // upright, with the platform's margins
    info.setPrintsHeaderAndFooter(true);
    remember(archivedPrintInfo(info));
    const NSPrintInfo read = make()->printInfo();
    QCOMPARE(read.orientation(), NSPaperOrientation::Portrait);
    QCOMPARE(read.leftMargin(), 72.0);
    QVERIFY(read.printsHeaderAndFooter());
  }

  void anUnreadableLayoutGivesTheDefaultsAndStays_data() {
    QTest::addColumn<QVariant>("entry");
    QTest::newRow("damaged") << QVariant(QByteArray("not an archive"));
    QTest::newRow("cut") << QVariant(archivedPrintInfo(NSPrintInfo()).chopped(1));
    QTest::newRow("no data") << QVariant(17);
  }
  void anUnreadableLayoutGivesTheDefaultsAndStays() {
    QFETCH(QVariant, entry);
    remember(entry);
    const auto document = make();
    QCOMPARE(document->printInfo(), defaultDocumentPrintInfo());
    QCOMPARE(QSettings().value("PrintInfo"), entry);
    document->pageLayoutDidEnd(NSPrintInfo(), 1);
    QVERIFY(QSettings().value("PrintInfo") != entry);
  }

  // ---- the page-layout sheet ----------------------------------------------------------------------------

  void aConfirmedLayoutIsTheDocumentsAndOfLaterOnes() {
    const auto document = make(), other = make();
    document->runPageLayout();
    QCOMPARE(people_->sheets, 1);
    QCOMPARE(people_->shownInfo, document->printInfo());
    NSPrintInfo chosen = people_->shownInfo;
    chosen.setOrientation(NSPaperOrientation::Portrait);
    chosen.setTopMargin(40);
    chosen.setPrintsHeaderAndFooter(true);
    people_->endSheet(chosen, 1);
    QCOMPARE(document->printInfo(), chosen);
    QCOMPARE(other->printInfo(), defaultDocumentPrintInfo());
    const auto later = make();
    QCOMPARE(later->printInfo().orientation(), NSPaperOrientation::Portrait);
    QCOMPARE(later->printInfo().topMargin(), 40.0);
    QVERIFY(later->printInfo().printsHeaderAndFooter());
  }

  void aCancelledLayoutChangesNothing() {
    const auto document = make();
    document->pageLayoutDidEnd(
        [] {
          NSPrintInfo info;
          info.setScalingFactor(2);
          return info;
        }(),
        1);
    const QVariant remembered = QSettings().value("PrintInfo");
    const NSPrintInfo before = document->printInfo();
    document->runPageLayout();
    NSPrintInfo chosen = people_->shownInfo;
    chosen.setScalingFactor(0.1);
    for (const int code : {0, -1, 2}) document->pageLayoutDidEnd(chosen, code);
    people_->endSheet(chosen, 0);
    QCOMPARE(document->printInfo(), before);
    QCOMPARE(QSettings().value("PrintInfo"), remembered);
  }

  void aDocumentWhosePrinterIsGoneOpensTheSharedSettings() {
    NSPrintInfo::sharedPrintInfo().setScalingFactor(0.25);
    const auto document = make();
    NSPrintInfo info = document->printInfo();
    info.setPrinterName("Attic");
    document->setPrintInfo(info);
    document->runPageLayout();
    QTRY_COMPARE(people_->sheets, 1);
    QCOMPARE(people_->shownInfo, NSPrintInfo::sharedPrintInfo());
    QCOMPARE(document->printInfo(), info);
    info.setPrinterName("Office");
    document->setPrintInfo(info);
    document->runPageLayout();
    QTRY_COMPARE(people_->sheets, 2);
    QCOMPARE(people_->shownInfo, info);
    spooler_.error = NullPrintSpooler::unreachable();
    document->runPageLayout();
    QTRY_COMPARE(people_->sheets, 3);
    QCOMPARE(people_->shownInfo, NSPrintInfo::sharedPrintInfo());
    spooler_.error.reset();
    QCOMPARE(people_->endedPreparations.size(), 3);
    QCOMPARE(people_->preparationMessages, QStringList({"", "", ""}));
  }

  void aServerThatDoesNotAnswerHoldsUpTheSheetAlone() {
    const auto document = make();
    NSPrintInfo info = document->printInfo();
    info.setPrinterName("Office");
    document->setPrintInfo(info);
    QSemaphore answer;
    spooler_.waitForPrinters = [&answer](const CancelToken&) { answer.acquire(); };
    document->runPageLayout();
    QCOMPARE(people_->sheets, 0);
    QCOMPARE(people_->prepared.size(), 1);
    document->runPageLayout();
    QCOMPARE(people_->prepared.size(), 1);
    answer.release();
    QTRY_COMPARE(people_->sheets, 1);
    QCOMPARE(people_->shownInfo, info);
    spooler_.waitForPrinters = nullptr;
  }

  void whoCancelsTheSearchGetsNoSheet() {
    const auto document = make();
    NSPrintInfo info = document->printInfo();
    info.setPrinterName("Office");
    document->setPrintInfo(info);
    spooler_.waitForPrinters = [](const CancelToken& cancel) {
      while (!cancel.cancelled()) QThread::yieldCurrentThread();
    };
    document->runPageLayout();
    people_->preparation.cancel();
    QTRY_COMPARE(people_->endedPreparations.size(), 1);
    QCOMPARE(people_->sheets, 0);
    spooler_.waitForPrinters = nullptr;
    document->runPageLayout();
    QTRY_COMPARE(people_->sheets, 1);
  }

  void theSearchEndsWithItsDocument() {
    auto document = make();
    NSPrintInfo info = document->printInfo();
    info.setPrinterName("Office");
    document->setPrintInfo(info);
    QSemaphore ended;
    spooler_.waitForPrinters = [&ended](const CancelToken& cancel) {
      while (!cancel.cancelled()) QThread::yieldCurrentThread();
      ended.release();
    };
    document->runPageLayout();
    document.reset();
    QVERIFY(ended.tryAcquire(1, 10'000));
    QCoreApplication::processEvents();
    QCOMPARE(people_->sheets, 0);
    waitForWork(waitingThreads());
    spooler_.waitForPrinters = nullptr;
  }

  void theSheetMayOutliveItsDocument() {
    auto document = make();
    document->runPageLayout();
    document.reset();
    people_->endSheet(NSPrintInfo(), 1);
    QVERIFY(!QSettings().contains("PrintInfo"));
  }

  // ---- the print operation ------------------------------------------------------------------------------

  void aFileGivesTheTitles_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("job");
    QTest::addColumn<QString>("page");
    QTest::newRow("blank") << "/tmp/My Pictures/a.eps"
                           << "a"
                           << "file:///tmp/My Pictures/a.eps";
    QTest::newRow("name") << "/tmp/My Picture.eps"
                          << "My Picture"
                          << "file:///tmp/My Picture.eps";
    QTest::newRow("dots") << "/tmp/a.b.eps"
                          << "a.b"
                          << "file:///tmp/a.b.eps";
    QTest::newRow("no extension") << "/tmp/picture"
                                  << "picture"
                                  << "file:///tmp/picture";
    QTest::newRow("hidden") << "/tmp/.eps"
                            << ".eps"
                            << "file:///tmp/.eps";
    QTest::newRow("letters") << QString::fromUtf8("/tmp/\xC3\xA9t\xC3\xA9 100%.eps")
                             << QString::fromUtf8("\xC3\xA9t\xC3\xA9 100%")
                             << QString::fromUtf8("file:///tmp/\xC3\xA9t\xC3\xA9 100%.eps");
  }
  void aFileGivesTheTitles() {
    QFETCH(QString, path);
    QFETCH(QString, job);
    QFETCH(QString, page);
    const auto document = make();
    document->setFileURL(QUrl::fromLocalFile(path));
    document->makeWindowControllers();
    const auto operation = document->printOperationWithSettings({});
    QVERIFY(operation);
    QCOMPARE(view_.printJobTitle(), job);
    QCOMPARE(view_.title(), page);
    QCOMPARE(operation->view().printSource().jobTitle, job);
    QCOMPARE(operation->view().printSource().footer()->text, page + "\t\t");
  }

  void anUntitledDocumentIsCalledByItsDisplayName() {
    const auto document = make();
    document->makeWindowControllers();
    QVERIFY(document->printOperationWithSettings({}));
    QCOMPARE(view_.printJobTitle(), document->displayName());
    QCOMPARE(view_.title(), document->displayName());
  }

  void thePanelShowsPaperOrientationAndScalingToo() {
    const auto document = make();
    document->makeWindowControllers();
    const auto operation = document->printOperationWithSettings({});
    const int before = NSPrintPanel().options();
    QCOMPARE(operation->printPanel().options(), before | 28);
    QVERIFY((before & 28) == 0);
    QVERIFY(operation->canSpawnSeparateThread());
    QVERIFY(operation->showsPrintPanel());
  }

  void givenSettingsWinOverTheDocuments() {
    const auto document = make();
    document->makeWindowControllers();
    DocumentError error{"untouched", 77, "untouched"};
    const auto operation = document->printOperationWithSettings(
        {{NSPrintOrientation, 0}, {NSPrintScalingFactor, 3.0}, {"AnEntry", "of somebody"}}, &error);
    QCOMPARE(operation->printInfo().orientation(), NSPaperOrientation::Portrait);
    QCOMPARE(operation->printInfo().scalingFactor(), 3.0);
    QCOMPARE(operation->printInfo().dictionary().value("AnEntry").toString(), QString("of somebody"));
    QCOMPARE(operation->printInfo().leftMargin(), 0.0);
    QCOMPARE(document->printInfo(), defaultDocumentPrintInfo());
    QCOMPARE(error.code, 77);
  }

  void withoutAWindowThereIsNothingToPrint() { QVERIFY(!make()->printOperationWithSettings({})); }
};

NORVEX_TEST(DocumentPrintingTest)
#include "document_printing_test.moc"
