// Jobs from a drawing to paper or to a file, with the shipped picture program.
#include "print/print_job.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/mount.h>

#include "kit/program.h"
#include "kit/test_main.h"
#include "picture/client/worker_service.h"
#include "picture/pdf_image_rep.h"
#include "print/memory_printing.h"
#include "print/print_operation.h"

using namespace norvex;
using kit::MemorySpooler;
using kit::run;
using kit::ScriptedInteraction;

namespace {

constexpr double kShort = 210 * 72 / 25.4, kLong = 297 * 72 / 25.4;

/// Red on the left, blue on the right, of any size.
QByteArray picture(const QSizeF& size) {
  const QByteArray w = QByteArray::number(size.width()), h = QByteArray::number(size.height());
  const QByteArray half = QByteArray::number(size.width() / 2);
  const QByteArray contents =
      "1 0 0 rg 0 0 " + half + ' ' + h + " re f 0 0 1 rg " + half + " 0 " + half + ' ' + h + " re f";
  const QList<QByteArray> objects{
      "<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
      "<< /Type /Page /Parent 2 0 R /Contents 4 0 R /MediaBox [0 0 " + w + ' ' + h + "] >>",
      "<< /Length " + QByteArray::number(contents.size()) + " >>\nstream\n" + contents + "\nendstream"};
  QByteArray pdf = "%PDF-1.4\n";
  for (qsizetype i = 0; i < objects.size(); ++i)
    pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
  return pdf + "trailer << /Root 1 0 R /Size 5 >>\n%%EOF\n";
}

NSPrintInfo a4(NSPaperOrientation orientation = NSPaperOrientation::Landscape) {
  NSPrintInfo info;
  info.setPaper(*paperNamed("A4"));
  info.setOrientation(orientation);
  for (const char* margin : {NSPrintLeftMargin, NSPrintRightMargin, NSPrintTopMargin, NSPrintBottomMargin})
    info.set(margin, 0.0);
  return info;
}

}  // namespace

class PrintJobTest : public QObject {
  Q_OBJECT

  std::unique_ptr<WorkerService> service_;
  QTemporaryDir folder_;
  std::shared_ptr<NSImageRep> rep_;
  std::shared_ptr<NorvexRenderingView> view_;

  void open(const QSizeF& size) {
    const auto made = NSPDFImageRep::imageRepWithData(*service_, picture(size));
    if (!made) qFatal("%s", qPrintable(made.error().message));
    rep_ = *made;
    view_ = std::make_shared<NorvexRenderingView>(QRectF(QPointF(0, 0), size), rep_.get());
    view_->setPrintJobTitle("My Picture");
    view_->setTitle("file:///tmp/My Picture.pdf");
  }
  std::unique_ptr<PrintableView> printable() { return std::make_unique<PrintableRenderingView>(view_, rep_); }
  PrintSource source() { return printable()->printSource(); }
  QString path(const char* name) const { return folder_.filePath(name); }
  Result<void> printToFile(NSPrintInfo info, const char* name = "out.pdf") {
    MemorySpooler spooler;
    info.setJobSavingPath(path(name));
    return runJob(source(), info, *service_, spooler);
  }
  QImage drawn(int page = 1) {
    const QString number = QString::number(page);
    run("pdftocairo",
        {"-png", "-singlefile", "-r", "72", "-f", number, "-l", number, path("out.pdf"), path("page")});
    return QImage(path("page.png"));
  }
  QByteArray facts() { return run("pdfinfo", {path("out.pdf")}).out; }

 private slots:
  void initTestCase() {
    service_ = std::make_unique<WorkerService>(QStringLiteral(NORVEX_BUILD_DIR "/norvex-worker"));
  }
  void cleanup() {
    view_.reset();
    rep_.reset();
  }
  void cleanupTestCase() { service_.reset(); }

  void aSmallPictureIsInTheMiddleOfThePaper() {
    open({10, 10});
    QVERIFY(printToFile(a4()).ok());
    QVERIFY2(facts().contains("Pages:           1\n"), facts());
    QVERIFY2(facts().contains("(A4)"), facts());
    const QImage page = drawn();
    QCOMPARE(page.size(), QSize(842, 596));  // rounded up
    const QPoint middle(qRound(kLong / 2), qRound(kShort / 2));
    QCOMPARE(page.pixelColor(middle - QPoint(3, 0)), QColor(Qt::red));
    QCOMPARE(page.pixelColor(middle + QPoint(3, 0)), QColor(Qt::blue));
    QCOMPARE(page.pixelColor(middle - QPoint(8, 0)), QColor(Qt::white));
    QCOMPARE(page.pixelColor(middle + QPoint(0, 8)), QColor(Qt::white));
  }

  void aLargePictureIsOnAllItsPagesAsVectors() {
    open({3000, 2000});
    QVERIFY(printToFile(a4()).ok());
    QVERIFY2(facts().contains("Pages:           16\n"), facts());
    QCOMPARE(run("pdfimages", {"-list", path("out.pdf")}).out.count('\n'), 2);
    QCOMPARE(run("qpdf", {"--check", path("out.pdf")}).exitCode, 0);
    QCOMPARE(drawn(1).pixelColor(400, 300), QColor(Qt::red));
    // The halves meet at 1500 points, on the second page.
    const QImage second = drawn(2);
    QCOMPARE(second.pixelColor(int(1500 - kLong) - 3, 300), QColor(Qt::red));
    QCOMPARE(second.pixelColor(int(1500 - kLong) + 3, 300), QColor(Qt::blue));
    QCOMPARE(drawn(16).pixelColor(10, 10), QColor(Qt::blue));
    QCOMPARE(drawn(16).pixelColor(10, 400), QColor(Qt::white));
  }

  void aRangeOfPagesIsPrintedAlone() {
    open({3000, 2000});
    NSPrintInfo info = a4();
    info.setPageRange(2, 4);
    QVERIFY(printToFile(info).ok());
    QVERIFY(facts().contains("Pages:           3\n"));
    QCOMPARE(drawn(1).pixelColor(int(1500 - kLong) - 3, 300), QColor(Qt::red));
    info.setPageRange(17, 20);
    const Result<void> beyond = printToFile(info);
    QVERIFY(!beyond.ok());
    QCOMPARE(beyond.error().message, QString("there are no such pages: the picture takes 16"));
  }

  void headerAndFooterAreTextOnEveryPage() {
    open({1500, 300});
    NSPrintInfo info = a4();
    info.setPrintsHeaderAndFooter(true);
    QVERIFY(printToFile(info).ok());
    QVERIFY(facts().contains("Pages:           2\n"));
    QVERIFY(facts().contains("Title:           My Picture\n"));
    for (const char* page : {"1", "2"}) {
      const QString text =
          QString::fromUtf8(run("pdftotext", {"-layout", "-f", page, "-l", page, path("out.pdf"), "-"}).out);
      QVERIFY2(text.contains("file:///tmp/My Picture.pdf"), qPrintable(text));
      QVERIFY2(text.contains(QString::number(QDate::currentDate().year())), qPrintable(text));
    }
    QCOMPARE(run("pdfimages", {"-list", path("out.pdf")}).out.count('\n'), 2);
  }

  void withTheSettingOffOrTheTitleUnsetThereIsNeither() {
    open({100, 100});
    QVERIFY(printToFile(a4()).ok());
    QCOMPARE(run("pdftotext", {path("out.pdf"), "-"}).out.trimmed(), QByteArray());
    view_->setTitle(QString());
    NSPrintInfo info = a4();
    info.setPrintsHeaderAndFooter(true);
    QVERIFY(printToFile(info).ok());
    QCOMPARE(run("pdftotext", {path("out.pdf"), "-"}).out.trimmed(), QByteArray());
  }

  void withoutAPictureThePagesAreEmpty() {
    view_ = std::make_shared<NorvexRenderingView>(QRectF(0, 0, 100, 50), nullptr);
    view_->setPrintJobTitle("Untitled");
    QVERIFY(printToFile(a4()).ok());
    QVERIFY(facts().contains("Pages:           1\n"));
    QCOMPARE(drawn().pixelColor(421, 297), QColor(Qt::white));
  }

  void thePrinterIsToldTitleCopiesAndPaper() {
    open({100, 100});
    MemorySpooler spooler({{"Office", "Office", PrinterState::Idle, true, false}});
    NSPrintInfo info = a4();
    info.setPrinterName("Office");
    info.setCopies(3);
    QVERIFY(runJob(source(), info, *service_, spooler).ok());
    QCOMPARE(spooler.jobs().size(), 1);
    const PrintTicket ticket = spooler.jobs().first().ticket;
    QCOMPARE(ticket.printer, QString("Office"));
    QCOMPARE(ticket.title, QString("My Picture"));
    QCOMPARE(ticket.copies, 3);
    QCOMPARE(ticket.media, QString("iso_a4_210x297mm"));
    QVERIFY(ticket.landscape);
    QVERIFY(spooler.jobs().first().pdf.startsWith("%PDF-"));
  }

  void aFileThatCannotBeWrittenIsOneSentence() {
    open({100, 100});
    const Result<void> gone = printToFile(a4(), "no/such/folder.pdf");
    QVERIFY(!gone.ok());
    QCOMPARE(gone.error().kind, ErrorKind::CannotWrite);
    QVERIFY(!gone.error().message.isEmpty() && !gone.error().message.contains('\n'));
  }

  void aFullDiskIsOneSentenceAndTheSettingsAreKept() {
    open({100, 100});
    const QString disk = path("disk");
    QVERIFY(QDir().mkpath(disk));
    if (::mount("tmpfs", QFile::encodeName(disk), "tmpfs", 0, "size=4k") != 0)
      QSKIP("mounting is not permitted here");
    QFile filler(disk + "/filler");
    if (filler.open(QIODevice::WriteOnly)) filler.write(QByteArray(4096, 'x'));
    filler.close();
    MemorySpooler spooler;
    ScriptedInteraction people;
    NSPrintInfo info = a4();
    info.setJobSavingPath(disk + "/out.pdf");
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), info, {service_.get(), &spooler, &people});
    const bool printed = operation->runOperation();
    const QStringList left = QDir(disk).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    ::umount(QFile::encodeName(disk));
    QVERIFY(!printed);
    QCOMPARE(people.messages, QStringList{"there is no space left to write to"});
    QCOMPARE(left, QStringList{"filler"});
    QCOMPARE(operation->printInfo(), info);
    QVERIFY(spooler.jobs().isEmpty());
  }

  void noPrintServiceAndNoPrinterAreSentences() {
    NullPrintSpooler none;
    QCOMPARE(printerNamed(none, "Office").error().message, QString("the print service cannot be reached"));
    MemorySpooler empty;
    QCOMPARE(printerNamed(empty, "").error().message, QString("there is no printer"));
    QCOMPARE(printerNamed(empty, "Office").error().message, QString("there is no printer named “Office”"));
    MemorySpooler one({{"Office", "Office", PrinterState::Idle, true, false}});
    QCOMPARE(printerNamed(one, "").error().message, QString("no printer is the default one"));
    QVERIFY(printerNamed(one, "Office").ok());
  }

  // ---- NSPrintOperation ---------------------------------------------------------------------------------

  void anOperationRunsOnAThreadOfItsOwn() {
    open({100, 100});
    MemorySpooler spooler;
    QThread* const mainThread = QThread::currentThread();
    std::atomic<bool> elsewhere = false;
    spooler.wait = [&](const CancelToken&) { elsewhere = QThread::currentThread() != mainThread; };
    ScriptedInteraction people;
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), a4(), {service_.get(), &spooler, &people});
    operation->setCanSpawnSeparateThread(true);
    QSignalSpy finished(operation.get(), &NSPrintOperation::finished);
    QVERIFY(operation->runOperation());
    QVERIFY(!operation->result());
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30000);
    QVERIFY(operation->result()->ok());
    QVERIFY(elsewhere);
    QCOMPARE(people.panels, 1);
    QCOMPARE(people.begun, QStringList{"My Picture"});
    QCOMPARE(people.advances, QStringList{"1: 1 of 1"});
    QCOMPARE(people.ended, QStringList{"My Picture"});
    QCOMPARE(people.messages, QStringList{QString()});
  }

  void aDismissedPanelPrintsNothing() {
    open({100, 100});
    MemorySpooler spooler;
    ScriptedInteraction people;
    people.printsFromPanel = false;
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), a4(), {service_.get(), &spooler, &people});
    QSignalSpy finished(operation.get(), &NSPrintOperation::finished);
    QVERIFY(!operation->runOperation());
    QCOMPARE(finished.size(), 1);
    QVERIFY(spooler.jobs().isEmpty() && people.begun.isEmpty());
  }

  void whatIsChosenInThePanelIsPrinted() {
    open({3000, 2000});
    MemorySpooler spooler;
    ScriptedInteraction people;
    people.onPanel = [](NSPrintOperation& operation) {
      operation.printInfo().setScalingFactor(0.5);
      operation.printInfo().setCopies(2);
    };
    const NSPrintInfo info = a4();
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), info, {service_.get(), &spooler, &people});
    QVERIFY(operation->runOperation());
    QCOMPARE(spooler.jobs().first().ticket.copies, 2);
    QCOMPARE(info.copies(), 1);
    QFile file(path("out.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(spooler.jobs().first().pdf) > 0);
    file.close();
    QVERIFY(facts().contains("Pages:           4\n"));
  }

  void aRefusedJobIsToldAndTheSettingsAreKept() {
    open({100, 100});
    MemorySpooler spooler;
    spooler.error = Error{ErrorKind::CannotWrite, "the printer “Office” takes no jobs"};
    ScriptedInteraction people;
    NSPrintInfo info = a4();
    info.setPrinterName("Office");
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), info, {service_.get(), &spooler, &people});
    QVERIFY(!operation->runOperation());
    QCOMPARE(people.messages, QStringList{"the printer “Office” takes no jobs"});
    QCOMPARE(operation->printInfo(), info);
  }

  void cancellingEndsTheJob() {
    open({100, 100});
    MemorySpooler spooler;
    spooler.wait = [](const CancelToken& cancel) {
      while (!cancel.cancelled()) QThread::msleep(5);
    };
    ScriptedInteraction people;
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), a4(), {service_.get(), &spooler, &people});
    operation->setCanSpawnSeparateThread(true);
    QSignalSpy finished(operation.get(), &NSPrintOperation::finished);
    QVERIFY(operation->runOperation());
    people.token.cancel();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30000);
    QCOMPARE(operation->result()->error().kind, ErrorKind::Cancelled);
    QVERIFY(spooler.jobs().isEmpty());
  }

  void aCancelledJobLeavesNoFile() {
    open({3000, 2000});
    NSPrintInfo info = a4();
    info.setJobSavingPath(path("cancelled.pdf"));
    ScriptedInteraction people;
    MemorySpooler spooler;
    // Before the pages are made, and at some moments while they are.
    for (const int milliseconds : {0, 5, 20, 60}) {
      auto operation =
          NSPrintOperation::printOperationWithView(printable(), info, {service_.get(), &spooler, &people});
      const CancelToken cancel;
      operation->setCancelToken(cancel);
      operation->setCanSpawnSeparateThread(true);
      QSignalSpy finished(operation.get(), &NSPrintOperation::finished);
      if (milliseconds == 0) cancel.cancel();
      QVERIFY(operation->runOperation());
      QThread::msleep(milliseconds);
      cancel.cancel();
      QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30000);
      // Either it was too late and the file is whole, or there is nothing.
      QVERIFY(operation->result()->ok() == QFile::exists(path("cancelled.pdf")));
      if (operation->result()->ok())
        QCOMPARE(run("qpdf", {"--check", path("cancelled.pdf")}).exitCode, 0);
      else
        QCOMPARE(operation->result()->error().kind, ErrorKind::Cancelled);
      if (milliseconds == 0) QVERIFY(!operation->result()->ok());
      QFile::remove(path("cancelled.pdf"));
    }
    QCOMPARE(people.endedJobs, (QList<int>{1, 2, 3, 4}));
  }

  void destroyingAnOperationEndsItsJob() {
    open({100, 100});
    MemorySpooler spooler;
    spooler.wait = [](const CancelToken& cancel) {
      while (!cancel.cancelled()) QThread::msleep(5);
    };
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), a4(), {service_.get(), &spooler, nullptr});
    operation->setCanSpawnSeparateThread(true);
    QVERIFY(operation->runOperation());
    operation.reset();
    QVERIFY(spooler.jobs().isEmpty());
  }

  void theViewMayChangeWhileItIsPrinted() {
    open({100, 100});
    MemorySpooler spooler;
    auto operation =
        NSPrintOperation::printOperationWithView(printable(), a4(), {service_.get(), &spooler, nullptr});
    operation->setCanSpawnSeparateThread(true);
    QSignalSpy finished(operation.get(), &NSPrintOperation::finished);
    QVERIFY(operation->runOperation());
    view_.reset();
    rep_.reset();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30000);
    QVERIFY(operation->result()->ok());
  }

  void aRectangleOfATurnedViewIsPrintedAsItIsThere() {
    open({200, 100});
    NorvexView shown;
    shown.setImageSize({200, 100});
    shown.setImageRep(rep_);
    shown.setRotate(0.5235987755982988, false);  // 30 degrees
    const QRectF rect(-40, -30, 80, 60);
    const QByteArray pdf = shown.dataWithPDFInsideRect(rect);
    const auto part = NSPDFImageRep::imageRepWithData(*service_, pdf);
    QVERIFY(part.ok());
    auto view = std::make_shared<NorvexRenderingView>(QRectF(QPointF(0, 0), rect.size()), part->get());
    NSPrintInfo info = a4();
    info.setJobSavingPath(path("out.pdf"));
    MemorySpooler spooler;
    QVERIFY(runJob(PrintableRenderingView(view, *part).printSource(), info, *service_, spooler).ok());
    const QImage page = drawn();
    const QPointF middle(kLong / 2, page.height() - kShort / 2);
    int compared = 0;
    for (double y = -35; y <= 35; y += 5) {
      for (double x = -45; x <= 45; x += 5) {
        // The halves meet in a line through the middle, 30 degrees left of upright. What is beside the edge
        // between two colours is not looked at.
        const double side = x * std::cos(0.5235987755982988) + y * std::sin(0.5235987755982988);
        const bool inside = std::abs(x) < 40 && std::abs(y) < 30,
                   beside = std::abs(x) == 40 || std::abs(y) == 30;
        if (beside || std::abs(side) < 2) continue;
        const QColor expected = !inside ? Qt::white : side < 0 ? Qt::red : Qt::blue;
        QCOMPARE(page.pixelColor((middle + QPointF(x, -y)).toPoint()), expected);
        ++compared;
      }
    }
    QVERIFY(compared > 150);
    QCOMPARE(run("pdfimages", {"-list", path("out.pdf")}).out.count('\n'), 2);
  }

  void theTurnedPictureIsPrintedAsItIsShown() {
    open({200, 100});
    NorvexView shown;
    shown.setImageSize({200, 100});
    shown.setImageRep(rep_);
    shown.setRotate(1.5707963267948966, false);
    shown.setPrintJobTitle("Turned");
    NSPrintInfo info = a4();
    info.setJobSavingPath(path("out.pdf"));
    MemorySpooler spooler;
    QVERIFY(runJob(PrintableNorvexView(shown).printSource(), info, *service_, spooler).ok());
    const QImage page = drawn();
    const QPoint middle(qRound(kLong / 2), qRound(kShort / 2));
    // A quarter turn to the left: what was on the right is above.
    QCOMPARE(page.pixelColor(middle - QPoint(0, 90)), QColor(Qt::blue));
    QCOMPARE(page.pixelColor(middle + QPoint(0, 90)), QColor(Qt::red));
    QCOMPARE(page.pixelColor(middle + QPoint(60, 0)), QColor(Qt::white));
  }
};

NORVEX_TEST(PrintJobTest)
#include "print_job_test.moc"
