// What somebody at the screen sees of printing: progress, failures, the sheet, printers that come and go.
#include "ui/print/print_interaction.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>

#include <cmath>

#include "kit/desktop_palette.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"
#include "print/memory_printing.h"
#include "ui/print/page_layout_preview.h"
#include "ui/print/page_layout_sheet.h"
#include "ui/print/print_panel.h"
#include "ui/print/printer_choice.h"
#include "ui/print/zy_page_layout_accessory.h"
#include "window/window_fixture.h"

using namespace norvex;
using kit::MemorySpooler;

namespace {

class Blank final : public PrintableView {
 public:
  [[nodiscard]] PrintSource printSource() const override {
    PrintSource source;
    source.shown.size = {100, 100};
    source.jobTitle = "A drawing";
    return source;
  }
};

QList<QProgressDialog*> visibleProgress(QWidget& window) {
  QList<QProgressDialog*> visible;
  for (auto* dialog : window.findChildren<QProgressDialog*>())
    if (dialog->isVisible()) visible << dialog;
  return visible;
}

/// As accessibility counts it, 1 … 21.
double contrast(const QColor& a, const QColor& b) {
  const auto light = [](const QColor& colour) {
    const auto linear = [](double v) {
      return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
  };
  return (std::max(light(a), light(b)) + 0.05) / (std::min(light(a), light(b)) + 0.05);
}

const Printer kOffice{"office", "Office laser", PrinterState::Idle, true, false};
const Printer kHall{"hall", "Hall", PrinterState::Idle, true, true};

}  // namespace

class PrintInteractionTest : public QObject {
  Q_OBJECT

  NullPictureService service_;
  MemorySpooler spooler_{{kOffice, kHall}};
  RecordingAlerts alerts_;
  std::unique_ptr<QWidget> window_;
  std::unique_ptr<QtPrintInteraction> interaction_;

  std::unique_ptr<NSPrintOperation> operation() {
    return NSPrintOperation::printOperationWithView(std::make_unique<Blank>(), NSPrintInfo(),
                                                    {&service_, &spooler_, interaction_.get()});
  }

 private slots:
  void init() {
    alerts_.shown.clear();
    spooler_.setPrinters({kOffice, kHall});
    window_ = std::make_unique<QWidget>();
    window_->show();
    interaction_ = std::make_unique<QtPrintInteraction>(spooler_, window_.get(), &alerts_);
  }
  void cleanup() {
    interaction_.reset();
    window_.reset();
  }

  // ---- progress ------------------------------------------------------------------------

  void aTitleInTheProgressIsNoMarkup() {
    interaction_->preparationDidBegin("<b>bold</b>", {});
    interaction_->jobDidBegin("<img src=\"/tmp/a.png\">", {});
    const QList<QProgressDialog*> progress = window_->findChildren<QProgressDialog*>();
    QCOMPARE(progress.size(), 2);
    for (const QProgressDialog* each : progress) {
      const auto* label = each->findChild<QLabel*>();
      QCOMPARE(label->textFormat(), Qt::PlainText);
      QVERIFY(label->text().contains('<'));
    }
  }

  void aSlowJobShowsItsProgressAndCancelEndsIt() {
    const CancelToken cancel;
    const int job = interaction_->jobDidBegin("A drawing", cancel);
    QVERIFY(visibleProgress(*window_).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(visibleProgress(*window_).size(), 1,
                              2500);  // a moment, not the dialog's own four seconds
    QProgressDialog* const progress = visibleProgress(*window_).first();
    QCOMPARE(progress->labelText(), QString("Printing “A drawing”…"));
    QVERIFY(progress->minimum() == 0 && progress->maximum() == 0);  // nobody knows how long it takes
    auto* button = progress->findChild<QPushButton*>();
    QVERIFY(button && button->isEnabled());
    QVERIFY(!cancel.cancelled());
    button->click();
    QVERIFY(cancel.cancelled());
    interaction_->jobDidEnd(job, "A drawing", Error{ErrorKind::Cancelled, "the printing was cancelled"});
    QVERIFY(visibleProgress(*window_).isEmpty());
    QVERIFY(alerts_.shown.isEmpty());
  }

  void progressNamesThePageOfSeveral() {
    const int job = interaction_->jobDidBegin("A drawing", {});
    QTRY_COMPARE_WITH_TIMEOUT(visibleProgress(*window_).size(), 1, 2500);
    QProgressDialog* const progress = visibleProgress(*window_).first();
    interaction_->jobDidAdvance(job, "A drawing", 1, 1);
    QCOMPARE(progress->labelText(), QString("Printing “A drawing”…"));
    interaction_->jobDidAdvance(job, "A drawing", 3, 12);
    QCOMPARE(progress->labelText(), QString("Printing “A drawing”: page 3 of 12…"));
    QVERIFY(progress->value() == 2 && progress->maximum() == 12);
    interaction_->jobDidAdvance(job, "A drawing", 12, 12);
    QVERIFY(progress->isVisible());  // the last page is begun, not done
    interaction_->jobDidAdvance(job, "100%2 %3", 4, 12);
    QCOMPARE(progress->labelText(), QString("Printing “100%2 %3”: page 4 of 12…"));
    interaction_->jobDidEnd(job, "A drawing", {});
    interaction_->jobDidAdvance(job, "A drawing", 2, 12);  // too late
    QVERIFY(visibleProgress(*window_).isEmpty());
  }

  void aPageNumberShowsNoProgressBeforeItsMoment() {
    const int job = interaction_->jobDidBegin("A drawing", {});
    for (int page = 1; page <= 5; ++page) interaction_->jobDidAdvance(job, "A drawing", page, 5);
    QVERIFY(visibleProgress(*window_).isEmpty());
    interaction_->jobDidEnd(job, "A drawing", {});
  }

  void aQuickJobShowsNone() {
    interaction_->jobDidEnd(interaction_->jobDidBegin("A drawing", {}), "A drawing", {});
    QTest::qWait(400);
    QVERIFY(visibleProgress(*window_).isEmpty());
    QVERIFY(alerts_.shown.isEmpty());
  }

  void jobsOfOneTitleHaveTheirOwnProgress() {
    const CancelToken first, second;
    const int one = interaction_->jobDidBegin("A drawing", first),
              two = interaction_->jobDidBegin("A drawing", second);
    QVERIFY(one != two);
    QTRY_COMPARE(visibleProgress(*window_).size(), 2);
    interaction_->jobDidEnd(one, "A drawing", {});
    QCOMPARE(visibleProgress(*window_).size(), 1);
    visibleProgress(*window_).first()->findChild<QPushButton*>()->click();
    QVERIFY(second.cancelled() && !first.cancelled());
    interaction_->jobDidEnd(two, "A drawing", Error{ErrorKind::Cancelled, "the printing was cancelled"});
  }

  void progressThatIsLeftGoesWithTheWindow() {
    interaction_->jobDidBegin("A drawing", {});
    QTRY_COMPARE(visibleProgress(*window_).size(), 1);
    interaction_.reset();
    QVERIFY(visibleProgress(*window_).isEmpty());
  }

  // ---- failures ------------------------------------------------------------------------

  void aFailureIsOneSentence_data() {
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("told");
    QTest::newRow("no service") << "the print service cannot be reached"
                                << "The print service cannot be reached.";
    QTest::newRow("no printer") << "there is no printer"
                                << "There is no printer.";
    QTest::newRow("gone") << "there is no printer named “Office”"
                          << "There is no printer named “Office”.";
    QTest::newRow("refusing") << "the printer “Office” takes no jobs"
                              << "The printer “Office” takes no jobs.";
    QTest::newRow("full") << "there is no space left to write to"
                          << "There is no space left to write to.";
  }
  void aFailureIsOneSentence() {
    QFETCH(QString, message);
    QFETCH(QString, told);
    const int job = interaction_->jobDidBegin("A drawing", {});
    interaction_->jobDidEnd(job, "A drawing", Error{ErrorKind::CannotWrite, message});
    QCOMPARE(alerts_.shown.size(), 1);
    QCOMPARE(alerts_.shown.first().messageText, QString("“A drawing” was not printed."));
    QCOMPARE(alerts_.shown.first().informativeText, told);
  }

  // ---- the page-layout sheet -----------------------------------------------------------

  void theSheetIsTheWindowsWithTheAccessory_data() {
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("confirmed") << true;
    QTest::newRow("cancelled") << false;
  }
  void theSheetIsTheWindowsWithTheAccessory() {
    QFETCH(bool, confirmed);
    int code = -1;
    NSPrintInfo chosen;
    interaction_->beginPageLayout(NSPrintInfo(), [&](const NSPrintInfo& info, int returnCode) {
      chosen = info;
      code = returnCode;
    });
    auto* sheet = window_->findChild<PageLayoutSheet*>();
    QVERIFY(sheet && sheet->isVisible() && sheet->windowModality() == Qt::WindowModal);
    QVERIFY(sheet->findChild<ZyPageLayoutAccessory*>());
    QCOMPARE(code, -1);
    sheet->findChild<QDoubleSpinBox*>("scaling")->setValue(50);
    if (confirmed)
      sheet->accept();
    else
      sheet->reject();
    QCOMPARE(code, confirmed ? 1 : 0);
    QCOMPARE(chosen.scalingFactor(), 0.5);
  }

  void marginsWithoutRoomCannotBeConfirmed() {
    interaction_->beginPageLayout(NSPrintInfo(), [](const NSPrintInfo&, int) {});
    auto* sheet = window_->findChild<PageLayoutSheet*>();
    auto* ok = sheet->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isEnabled());
    sheet->findChild<QDoubleSpinBox*>("topMargin")->setValue(900);
    QVERIFY(!ok->isEnabled());
    QTest::keyClick(sheet, Qt::Key_Return);
    QVERIFY(sheet->isVisible());
    sheet->findChild<QDoubleSpinBox*>("topMargin")->setValue(10);
    QVERIFY(ok->isEnabled());
  }

  void everyControlCanBeReachedByKeyboard() {
    const auto printed = operation();
    PrintPanel panel(*printed, spooler_, window_.get());
    PageLayoutSheet sheet({}, window_.get());
    sheet.addAccessoryController(new ZyPageLayoutAccessory);
    for (QDialog* dialog : std::initializer_list<QDialog*>{&panel, &sheet}) {
      QWidgetList chain;
      for (QWidget* each = dialog->nextInFocusChain(); each != dialog; each = each->nextInFocusChain())
        chain << each;
      for (auto* control : dialog->findChildren<QWidget*>()) {
        const bool isControl = qobject_cast<QAbstractButton*>(control) || qobject_cast<QComboBox*>(control) ||
                               qobject_cast<QAbstractSpinBox*>(control);
        if (!isControl || control->parentWidget()->inherits("QComboBoxPrivateContainer")) continue;
        QVERIFY2(control->focusPolicy() & Qt::TabFocus, qPrintable(control->objectName()));
        QVERIFY2(chain.contains(control), qPrintable(control->objectName()));
        const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(control);
        QVERIFY2(told && !told->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
      }
    }
  }

  void noTwoControlsShareAKey() {
    const auto printed = operation();
    printed->printPanel().setOptions(printed->printPanel().options() | 28);
    PrintPanel panel(*printed, spooler_, window_.get());
    PageLayoutSheet sheet({}, window_.get());
    sheet.addAccessoryController(new ZyPageLayoutAccessory);
    panel.show();
    QTRY_VERIFY(panel.findChild<QPushButton*>("print")->isEnabled());
    for (QDialog* dialog : std::initializer_list<QDialog*>{&panel, &sheet}) {
      QMap<QString, QString> owners;
      QStringList texts;
      for (const auto* label : dialog->findChildren<QLabel*>())
        if (label->buddy()) texts << label->text();
      for (const auto* button : dialog->findChildren<QAbstractButton*>()) texts << button->text();
      for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty()) continue;
        QVERIFY2(!owners.contains(key), qPrintable(owners.value(key) + " and " + text));
        owners.insert(key, text);
      }
    }
  }

  void bothSchemesCanBeRead_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
  }
  void bothSchemesCanBeRead() {
    QFETCH(bool, dark);
    const kit::DesktopPalette desktop(QPalette(dark ? QColor(40, 40, 40) : QColor(240, 240, 240)));
    const auto printed = operation();
    PrintPanel panel(*printed, spooler_, window_.get());
    PageLayoutSheet sheet({}, window_.get());
    sheet.addAccessoryController(new ZyPageLayoutAccessory);
    panel.show();
    sheet.show();
    auto* state = panel.findChild<QLabel*>("printerState");
    QTRY_COMPARE(state->text(), QString("Ready"));
    const QColor text = state->palette().color(state->foregroundRole()),
                 ground = panel.palette().color(QPalette::Window);
    QCOMPARE(ground.lightness() < 128, dark);
    QVERIFY2(contrast(text, ground) > 4.5, qPrintable(QString::number(contrast(text, ground))));
    // Paper is white, whatever the scheme.
    auto* preview = sheet.findChild<PageLayoutPreview*>();
    const QImage seen = preview->grab().toImage();
    QCOMPARE(seen.pixelColor(seen.width() / 2, seen.height() / 2 - preview->paperPixels().height() / 2 + 4),
             QColor(Qt::white));
    QCOMPARE(seen.pixelColor(2, 2), ground);
    if (const QString folder = qEnvironmentVariable("NORVEX_KEEP_SCREENS"); !folder.isEmpty())
      for (QDialog* dialog : std::initializer_list<QDialog*>{&panel, &sheet})
        dialog->grab().save(folder + (dialog == &panel ? "/panel-" : "/sheet-") +
                            (dark ? "dark.png" : "light.png"));
  }

  // ---- printers that come and go -------------------------------------------------------

  void aPrinterThatGoesWhileItIsChosenIsTold() {
    const auto printed = operation();
    PrintPanel panel(*printed, spooler_, window_.get());
    panel.show();
    auto* printers = panel.findChild<QComboBox*>("printer");
    auto* state = panel.findChild<QLabel*>("printerState");
    auto* print = panel.findChild<QPushButton*>("print");
    QTRY_COMPARE(state->text(), QString("Ready"));
    QCOMPARE(printers->currentText(), QString("Hall"));
    spooler_.setPrinters({kOffice});
    panel.findChild<PrinterChoice*>()->fetchPrinters();
    QTRY_COMPARE(state->text(), QString("This printer is no longer there."));
    QCOMPARE(printers->currentText(), QString("Hall"));
    QVERIFY(!print->isEnabled());
    QCOMPARE(panel.printInfo().printerName(), QString("hall"));
    spooler_.setPrinters({kOffice, kHall});
    panel.findChild<PrinterChoice*>()->fetchPrinters();
    QTRY_COMPARE(state->text(), QString("Ready"));
    QCOMPARE(printers->count(), 3);
    QVERIFY(print->isEnabled());
  }

  void aPrinterThatTheSettingsNameAndNobodyHasIsTheDefaultOne() {
    const auto printed = operation();
    printed->printInfo().setPrinterName("attic");
    PrintPanel panel(*printed, spooler_, window_.get());
    panel.show();
    QTRY_COMPARE(panel.findChild<QLabel*>("printerState")->text(), QString("Ready"));
    QCOMPARE(panel.printInfo().printerName(), QString("hall"));
  }

  void returnIsNoFileWhileThePrintersAreLookedFor() {
    const auto printed = operation();
    PrintPanel panel(*printed, spooler_, window_.get());
    bool asked = false;
    panel.askForFile = [&asked](const QString&) {
      asked = true;
      return QString();
    };
    panel.show();
    QTest::keyClick(&panel, Qt::Key_Return);
    QVERIFY(!asked);
    QVERIFY2(panel.isVisible(), qPrintable(panel.findChild<QLabel*>("printerState")->text()));
    QCOMPARE(panel.findChild<QLabel*>("printerState")->text(), QString("Looking for printers…"));
    QTRY_VERIFY(panel.findChild<QPushButton*>("print")->isEnabled());
    QTest::keyClick(&panel, Qt::Key_Return);
    QCOMPARE(panel.result(), int(QDialog::Accepted));
    QCOMPARE(printed->printInfo().printerName(), QString("hall"));
  }
};

NORVEX_TEST(PrintInteractionTest)
#include "print_interaction_test.moc"
