// The print panel as people use it.
#include "ui/print/print_panel.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QToolButton>

#include <atomic>

#include "kit/desktop_palette.h"
#include "kit/test_main.h"
#include "kit/widget_texts.h"
#include "picture/process/null_picture_service.h"
#include "print/memory_printing.h"
#include "ui/panels/centred_window.h"
#include "ui/print/a4_settings.h"
#include "ui/print/page_layout_preview.h"
#include "ui/print/print_interaction.h"
#include "ui/print/printer_choice.h"
#include "ui/style/quiet_text.h"

using namespace norvex;
using kit::MemorySpooler;

namespace {

class Drawing final : public PrintableView {
 public:
  using Picture = std::function<Result<PictureBytes>(const CancelToken&)>;
  explicit Drawing(const QSizeF& size, Picture picture = {}, QList<QSizeF> pages = {}, int pageCount = 0,
                   QString title = "A drawing", Picture other = {})
      : size_(size),
        picture_(std::move(picture)),
        pages_(std::move(pages)),
        pageCount_(pageCount),
        title_(std::move(title)),
        other_(std::move(other)) {}
  [[nodiscard]] PrintSource printSource() const override {
    PrintSource source;
    source.shown.size = size_;
    source.shown.picture = picture_;
    for (const QSizeF& page : pages_)
      source.pages << PrintPage{page, other_ && source.pages.size() == 1 ? other_ : picture_};
    source.shownPage = 1;
    source.pageCount = pageCount_;
    source.jobTitle = title_;
    source.header = [] { return std::optional(defaultPageLine()); };
    source.footer = [] { return std::optional(defaultPageLine()); };
    return source;
  }

 private:
  QSizeF size_;
  Picture picture_;
  QList<QSizeF> pages_;  ///< of a document with several; the second is the one that is shown
  int pageCount_;
  QString title_;
  Picture other_;  ///< of the second page, where that is not the first one's
};

const QList<Printer> kPrinters{{"office", "Office laser", PrinterState::Idle, true, false},
                               {"hall", "Hall", PrinterState::Stopped, true, true},
                               {"attic", "Attic", PrinterState::Idle, false, false}};

}  // namespace

class PrintPanelTest : public QObject {
  Q_OBJECT

  NullPictureService service_;
  std::unique_ptr<MemorySpooler> spooler_;
  std::unique_ptr<NSPrintOperation> operation_;
  std::unique_ptr<PrintPanel> panel_;
  Drawing::Picture picture_;  ///< of the next panel; none: blank pages
  Drawing::Picture other_;    ///< of the next panel's second page; none: the same
  QList<QSizeF> pages_;       ///< of the next panel's document; none: there is one
  int pageCount_ = 0;         ///< of it; 0: no more than those
  QString title_ = "A drawing";

  void open(const QSizeF& size, const QList<Printer>& printers = kPrinters, const NSPrintInfo& info = a4()) {
    panel_.reset();
    spooler_ = std::make_unique<MemorySpooler>(printers);
    operation_ = NSPrintOperation::printOperationWithView(
        std::make_unique<Drawing>(size, picture_, pages_, pageCount_, title_, other_), info,
        {&service_, spooler_.get(), nullptr});
    operation_->printPanel().setOptions(operation_->printPanel().options() | 28);
    panel_ = std::make_unique<PrintPanel>(*operation_, *spooler_, nullptr);
    panel_->show();
    QTRY_VERIFY(state() != "Looking for printers…");
  }
  template <typename T>
  T* child(const char* name) {
    T* found = panel_->findChild<T*>(QString::fromLatin1(name));
    if (!found) qFatal("no %s", name);
    return found;
  }
  QString state() { return child<QLabel>("printerState")->text(); }
  void choose(const char* combo, const QString& data) {
    auto* box = child<QComboBox>(combo);
    box->setCurrentIndex(box->findData(data));
    emit box->activated(box->currentIndex());
  }

 private slots:
  void cleanup() {
    panel_.reset();
    picture_ = {};
    other_ = {};
    pages_ = {};
    pageCount_ = 0;
    title_ = "A drawing";
  }

  void theDefaultPrinterIsChosenAndItsStateIsTold() {
    open({100, 100});
    QCOMPARE(child<QComboBox>("printer")->currentText(), QString("Hall"));
    QCOMPARE(state(), QString("Stopped"));
    choose("printer", "office");
    QCOMPARE(state(), QString("Ready"));
    QVERIFY(child<QPushButton>("print")->isEnabled());
    choose("printer", "attic");
    QCOMPARE(state(), QString("Takes no jobs"));
    QVERIFY(!child<QPushButton>("print")->isEnabled());
  }

  void withoutPrintersThePagesCanStillBeSaved() {
    open({100, 100}, {});
    QCOMPARE(child<QComboBox>("printer")->count(), 1);
    QCOMPARE(state(), QString("There is no printer."));
    QVERIFY(child<QPushButton>("print")->isEnabled());
    QString suggested;
    panel_->askForFile = [&suggested](const QString& suggestion) {
      suggested = suggestion;
      return QString("/tmp/somewhere.pdf");
    };
    panel_->accept();
    QCOMPARE(suggested, QString("A drawing.pdf"));
    QCOMPARE(operation_->printInfo().jobSavingPath(), QString("/tmp/somewhere.pdf"));
    QCOMPARE(panel_->result(), int(QDialog::Accepted));
  }

  void aSentenceThatWrapsIsShownWhole() {
    open({100, 100});
    spooler_->error =
        Error{ErrorKind::CannotWrite,
              QString("the printer “%1” takes no jobs").arg(QString("at the end of the hall ").repeated(8))};
    panel_->findChild<PrinterChoice*>()->fetchPrinters();
    auto* label = child<QLabel>("printerState");
    QTRY_VERIFY(label->text() != "Stopped");
    QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
    QVERIFY(label->height() > 2 * label->fontMetrics().height());
  }

  void aFileOfPagesIsSuggestedBesideThePictureAndNeverOneThatIsThere() {
    QTemporaryDir folder;
    open({100, 100}, {});
    QWidget window;
    window.setWindowFilePath(folder.filePath("A drawing.pdf"));
    PrintPanel panel(*operation_, *spooler_, &window);
    QString suggested;
    panel.askForFile = [&suggested](const QString& suggestion) {
      suggested = suggestion;
      return QString();
    };
    panel.accept();
    QCOMPARE(suggested, folder.filePath("A drawing.pdf"));
    QFile picture(folder.filePath("A drawing.pdf"));
    QVERIFY(picture.open(QIODevice::WriteOnly));
    panel.accept();
    QCOMPARE(suggested, folder.filePath("A drawing-2.pdf"));
  }

  void aPictureWhoseNameHoldsAPlaceIsSuggestedUnderItsName() {
    QTemporaryDir folder;
    title_ = "50%1 off";
    open({100, 100}, {});
    QWidget window;
    window.setWindowFilePath(folder.filePath("50%1 off.eps"));
    QFile earlier(folder.filePath("50%1 off.pdf"));
    QVERIFY(earlier.open(QIODevice::WriteOnly));
    PrintPanel panel(*operation_, *spooler_, &window);
    QString suggested;
    panel.askForFile = [&suggested](const QString& suggestion) {
      suggested = suggestion;
      return QString();
    };
    panel.accept();
    QCOMPARE(suggested, folder.filePath("50%1 off-2.pdf"));
  }

  void aFileOfPagesIsCalledPdf_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("no extension") << "pages"
                                  << "pages.pdf";
    QTest::newRow("another one") << "pages.txt"
                                 << "pages.txt.pdf";
    QTest::newRow("its own") << "pages.PDF"
                             << "pages.PDF";
  }
  void aFileOfPagesIsCalledPdf() {
    QFETCH(QString, typed);
    QFETCH(QString, written);
    QTemporaryDir folder;
    open({100, 100}, {});
    panel_->askForFile = [&](const QString&) { return folder.filePath(typed); };
    panel_->accept();
    QCOMPARE(operation_->printInfo().jobSavingPath(), folder.filePath(written));
  }

  void aFileThatNobodyNamedIsNotReplacedUnasked() {
    QTemporaryDir folder;
    QFile there(folder.filePath("pages.pdf"));
    QVERIFY(there.open(QIODevice::WriteOnly));
    open({100, 100}, {});
    panel_->askForFile = [&](const QString&) { return folder.filePath("pages"); };
    QStringList asked;
    panel_->mayReplace = [&asked](const QString& path) {
      asked << path;
      return asked.size() > 1;
    };
    panel_->accept();
    QVERIFY(panel_->isVisible() && operation_->printInfo().jobSavingPath().isEmpty());
    panel_->accept();
    QCOMPARE(asked, (QStringList{there.fileName(), there.fileName()}));
    QCOMPARE(operation_->printInfo().jobSavingPath(), there.fileName());
  }

  void aFileThatIsNotChosenLeavesThePanelOpen() {
    open({100, 100}, {});
    panel_->askForFile = [](const QString&) { return QString(); };
    panel_->accept();
    QVERIFY(panel_->isVisible());
    QVERIFY(operation_->printInfo().jobSavingPath().isEmpty());
  }

  void whatIsChosenIsTheOperationsWhenItIsAccepted() {
    open({3000, 2000});
    choose("printer", "office");
    child<QSpinBox>("copies")->setValue(4);
    child<QRadioButton>("landscape")->click();
    child<QDoubleSpinBox>("scaling")->setValue(50);
    child<QCheckBox>("headerAndFooter")->click();
    choose("paper", "na_letter_8.5x11in");
    QCOMPARE(operation_->printInfo(), a4());  // nothing yet
    panel_->accept();
    const NSPrintInfo& info = operation_->printInfo();
    QCOMPARE(info.printerName(), QString("office"));
    QCOMPARE(info.copies(), 4);
    QCOMPARE(info.orientation(), NSPaperOrientation::Landscape);
    QCOMPARE(info.scalingFactor(), 0.5);
    QVERIFY(info.printsHeaderAndFooter());
    QCOMPARE(info.paper().name, QString("Letter"));
    QVERIFY(info.printsAllPages());
  }

  void thePagesAreCountedAndTurned() {
    open({3000, 2000});
    QCOMPARE(panel_->sheetCount(), 18);
    auto* label = child<QLabel>("pageLabel");
    QCOMPARE(label->text(), QString("1 of 18"));
    QVERIFY(!child<QToolButton>("previousPage")->isEnabled());
    child<QToolButton>("nextPage")->click();
    QCOMPARE(label->text(), QString("2 of 18"));
    child<QRadioButton>("landscape")->click();
    QCOMPARE(label->text(), QString("2 of 16"));
    child<QCheckBox>("fit")->click();
    QCOMPARE(label->text(), QString("1 of 1"));
    QVERIFY(!child<QToolButton>("nextPage")->isEnabled());
  }

  void ofADocumentWithPagesTheShownOneIsPrintedUnlessOthersAreChosen() {
    pages_ = {{100, 100}, {3000, 2000}, {100, 100}, {100, 100}};
    open(pages_.at(1));
    auto* which = child<QComboBox>("documentPages");
    QCOMPARE(which->currentText(), QString("The shown page (2)"));
    QCOMPARE(panel_->sheetCount(), 18);
    QVERIFY(!child<QSpinBox>("firstPage")->isEnabled());
    which->setCurrentIndex(1);
    QCOMPARE(which->currentText(), QString("All 4 pages"));
    QCOMPARE(panel_->sheetCount(), 21);
    which->setCurrentIndex(2);
    child<QSpinBox>("firstPage")->setValue(3);
    QVERIFY(child<QSpinBox>("firstPage")->isEnabled());
    QCOMPARE(panel_->sheetCount(), 2);
    child<QSpinBox>("lastPage")->setValue(1);  // the other end comes along
    QCOMPARE(child<QSpinBox>("firstPage")->value(), 1);
    QCOMPARE(panel_->sheetCount(), 1);
    panel_->accept();
    QCOMPARE(operation_->printInfo().documentPages(), DocumentPages::Range);
    QCOMPARE(operation_->printInfo().firstDocumentPage(), 1);
    QCOMPARE(operation_->printInfo().lastDocumentPage(), 1);
  }

  void aRangeThatWasChosenBeforeIsShownAgain() {
    pages_ = {{100, 100}, {200, 100}, {100, 200}, {100, 100}};
    open({200, 100});
    QCOMPARE(child<QSpinBox>("firstPage")->value(), 2);  // the shown one, and what follows it
    QCOMPARE(child<QSpinBox>("lastPage")->value(), 4);
    NSPrintInfo info = a4();
    info.setDocumentPageRange(3, 3);
    open({200, 100}, kPrinters, info);
    QCOMPARE(child<QComboBox>("documentPages")->currentData().toInt(), int(DocumentPages::Range));
    QCOMPARE(child<QSpinBox>("firstPage")->value(), 3);
    QCOMPARE(child<QSpinBox>("lastPage")->value(), 3);
  }

  void aPreviewLeavesASmallScreenToTheChoices() {
    open({100, 100});
    const QSize least = panel_->findChild<PageLayoutPreview*>()->minimumSize();
    QCOMPARE(least, leastPreview(*panel_, {330, 330}));
    QVERIFY(least.width() < 330);
  }

  void aRangeThatIsStillTypedIsPrinted() {
    pages_ = QList<QSizeF>(9, QSizeF(100, 100));
    open({100, 100});
    choose("printer", "office");
    auto* which = child<QComboBox>("documentPages");
    which->setCurrentIndex(which->findData(int(DocumentPages::Range)));
    auto* first = child<QSpinBox>("firstPage");
    first->selectAll();
    QTest::keyClicks(first, "7");
    QVERIFY(first->value() != 7);  // it is being typed
    child<QPushButton>("print")->click();
    QCOMPARE(panel_->result(), int(QDialog::Accepted));
    QCOMPARE(operation_->printInfo().firstDocumentPage(), 7);
    QCOMPARE(operation_->printInfo().lastDocumentPage(), 9);
  }

  void pagesThatAreTooManyAreCountedAndNotLeftOutUnsaid() {
    pages_ = QList<QSizeF>(3, QSizeF(100, 100));
    pageCount_ = 5;
    open({100, 100});
    choose("printer", "office");
    auto* which = child<QComboBox>("documentPages");
    const int all = which->findData(int(DocumentPages::All));
    QCOMPARE(which->itemText(all), QString("All 5 pages"));
    which->setCurrentIndex(all);
    QVERIFY(!child<QPushButton>("print")->isEnabled());
    which->setCurrentIndex(which->findData(int(DocumentPages::Range)));
    QVERIFY(child<QPushButton>("print")->isEnabled());
    QCOMPARE(child<QSpinBox>("lastPage")->maximum(), 3);
  }

  void aDocumentOfOnePageHasNoSuchChoice() {
    open({100, 100});
    QVERIFY(!panel_->findChild<QComboBox*>("documentPages"));
    pages_ = {{100, 100}};
    open({100, 100});
    QVERIFY(!panel_->findChild<QComboBox*>("documentPages"));
    pages_ = {{100, 100}, {100, 100}};
    open({100, 100});
    QVERIFY(panel_->findChild<QComboBox*>("documentPages"));
  }

  void aRangeOfPagesCanBeChosen() {
    open({3000, 2000});
    QCOMPARE(child<QSpinBox>("firstPage")->value(), 1);
    QCOMPARE(child<QSpinBox>("lastPage")->value(), 18);
    child<QSpinBox>("firstPage")->setValue(3);
    child<QSpinBox>("lastPage")->setValue(5);
    QVERIFY(child<QRadioButton>("somePages")->isChecked());
    panel_->accept();
    QCOMPARE(operation_->printInfo().firstPage(), 3);
    QCOMPARE(operation_->printInfo().lastPage(), 5);
    QCOMPARE(child<QSpinBox>("lastPage")->maximum(), 18);
  }

  void aPageThatIsChosenWhileAnotherIsDrawnIsDrawnNext() {
    QSemaphore goesOn;
    std::atomic<int> drawn = 0;
    picture_ = [&](const CancelToken&) -> Result<PictureBytes> {
      ++drawn;
      goesOn.acquire();
      return PictureBytes{};
    };
    pages_ = {{100, 100}, {200, 100}};
    NSPrintInfo info = a4();
    info.setDocumentPages(DocumentPages::All);
    open({100, 100}, kPrinters, info);
    QTRY_COMPARE(int(drawn), 1);
    child<QToolButton>("nextPage")->click();
    QTest::qWait(200);  // longer than it takes to settle
    QCOMPARE(int(drawn), 1);
    goesOn.release(100);
    QTRY_VERIFY(drawn >= 2);
    panel_.reset();
  }

  void marginsWithoutRoomAreToldInThePreview() {
    NSPrintInfo info = a4();
    info.setLeftMargin(600);
    open({100, 100}, kPrinters, info);
    QCOMPARE(panel_->sheetCount(), 0);
    QVERIFY(!child<QPushButton>("print")->isEnabled());
  }

  void aPanelMayBeClosedWhileItIsDrawing() {
    std::atomic<int> drawings = 0;
    std::atomic<bool> stopped = false;
    picture_ = [&](const CancelToken& cancel) -> Result<PictureBytes> {
      ++drawings;
      // One that nobody stops ends by itself, so that the panel comes back and the test can tell.
      for (int i = 0; i < 2000 && !cancel.cancelled(); ++i) QThread::msleep(2);
      stopped = cancel.cancelled();
      return Error{ErrorKind::Cancelled, "stopped"};
    };
    open({3000, 2000});
    QTRY_COMPARE(drawings.load(), 1);
    panel_.reset();  // comes back, and with it the drawing
    QVERIFY(stopped);
  }

  void everyPageHasItsOwnPictureWhichIsAskedForOnce() {
    std::atomic<int> first = 0, second = 0;
    const auto counting = [](std::atomic<int>& asked) {
      return [&asked](const CancelToken&) -> Result<PictureBytes> {
        ++asked;
        return PictureBytes{"%PDF-1.4 of nothing", {}};
      };
    };
    picture_ = counting(first);
    pages_ = {{3000, 2000}, {200, 100}};
    other_ = counting(second);
    NSPrintInfo info = a4();
    info.setDocumentPages(DocumentPages::All);
    open({200, 100}, kPrinters, info);
    QTRY_COMPARE(int(first), 1);
    QTest::qWait(200);  // until it is drawn
    child<QToolButton>("nextPage")->click();
    QTest::qWait(200);
    QCOMPARE(int(first), 1);  // the same picture on another sheet
    QCOMPARE(int(second), 0);
    while (child<QToolButton>("nextPage")->isEnabled()) child<QToolButton>("nextPage")->click();
    QTRY_COMPARE(int(second), 1);
    QCOMPARE(int(first), 1);
    panel_.reset();
  }

  void aPrinterThatWasChosenStaysOnceInTheList() {
    open({100, 100});
    choose("printer", "office");
    QCOMPARE(child<QComboBox>("printer")->currentIndex(), 0);
    auto* list = child<QComboBox>("printer");
    QCOMPARE(list->count(), 4);
    spooler_->setPrinters(kPrinters.mid(0, 2));
    panel_->findChild<PrinterChoice*>()->fetchPrinters();
    QTRY_COMPARE(list->count(), 3);
    QCOMPARE(list->currentText(), QString("Office laser"));
  }

  void nobodyIsAskedForPrintersWhileSomebodyChooses() {
    open({100, 100});
    std::atomic<int> asked = 0;
    spooler_->waitForPrinters = [&asked](const CancelToken&) { ++asked; };
    auto* list = child<QComboBox>("printer");
    list->showPopup();
    QVERIFY(list->view()->isVisible());
    panel_->findChild<PrinterChoice*>()->fetchPrinters();
    list->hidePopup();
    QTest::qWait(50);
    QCOMPARE(int(asked), 0);
    panel_->findChild<PrinterChoice*>()->fetchPrinters();
    QTRY_COMPARE(int(asked), 1);
    panel_.reset();
  }

  void theStateIsReadableInAnotherScheme() {
    open({100, 100});
    const QPalette dark(QColor(60, 60, 60), QColor(30, 30, 30));
    const kit::DesktopPalette desktop(dark);
    QTRY_COMPARE(child<QLabel>("printerState")->palette().color(QPalette::WindowText), quietTextColor(dark));
  }

  void whatThePanelSays() {
    pages_ = {{100, 100}, {100, 100}};
    open({100, 100});
    const auto* which = child<QComboBox>("documentPages");
    QCOMPARE(which->itemText(2), QString("Some pages"));
    QCOMPARE(child<QToolButton>("previousPage")->accessibleName(), QString("Previous page"));
    QCOMPARE(child<QToolButton>("nextPage")->accessibleName(), QString("Next page"));
    const auto says = [this](const char* text) {
      return kit::labelsOf(*panel_).contains(QLatin1String(text));
    };
    QVERIFY(says("Sheets:") && !says("Pages:"));
    pages_ = {};
    open({100, 100});
    QVERIFY(says("Pages:") && !says("Sheets:"));
  }

  void aScaleIsWithinWhatCanBePrinted() {
    open({100, 100});
    const auto* scaling = child<QDoubleSpinBox>("scaling");
    QCOMPARE(scaling->minimum(), NSPrintInfo::smallestScalingFactor * 100);
    QCOMPARE(scaling->maximum(), NSPrintInfo::largestScalingFactor * 100);
  }

  void itGoesWithItsWindow() {
    open({200, 100});
    auto window = std::make_unique<QWidget>();
    window->show();
    QtPrintInteraction interaction(*spooler_, window.get());
    QTimer::singleShot(0, this, [&] { window.reset(); });
    QVERIFY(!interaction.runPrintPanel(*operation_));
    QVERIFY(!window);
  }

  void itsQuestionGoesWithItAndShowsNamesAsTheyAre() {
    open({200, 100});
    QString said;
    QTimer::singleShot(0, this, [&] {
      const auto* box = panel_->findChild<QMessageBox*>();
      if (box && box->textFormat() == Qt::PlainText) said = box->text();
      panel_.reset();
    });
    QVERIFY(!panel_->mayReplace("/nowhere/<b>a.pdf"));
    QCOMPARE(said, "“<b>a.pdf” exists already. Do you want to replace it?");
  }
};

NORVEX_TEST(PrintPanelTest)
#include "print_panel_test.moc"
