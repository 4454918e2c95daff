// The bar of a print job, and the sketch of a page.
#include <QImage>
#include <QMainWindow>
#include <QProgressDialog>
#include <QPushButton>

#include "desktop/alert.h"
#include "kit/test_main.h"
#include "print/memory_printing.h"
#include "ui/print/page_layout_preview.h"
#include "ui/print/print_interaction.h"

using namespace norvex;
using kit::MemorySpooler;

class PrintProgressTest : public QObject {
  Q_OBJECT
 private slots:
  void ofSeveralPagesTheBarTellsWhichAndOfOneNothing() {
    QMainWindow window;
    MemorySpooler spooler(QList<Printer>{});
    QtPrintInteraction interaction(spooler, &window);
    const CancelToken cancel;
    const int job = interaction.jobDidBegin("Map", cancel);
    auto* bar = window.findChild<QProgressDialog*>();
    QVERIFY(bar);
    const QString begun = bar->labelText();
    interaction.jobDidAdvance(job, "Map", 1, 1);
    QCOMPARE(bar->labelText(), begun);
    QCOMPARE(bar->maximum(), 0);
    interaction.jobDidAdvance(job + 1, "Map", 2, 9);  // of no job
    QCOMPARE(bar->labelText(), begun);
    interaction.jobDidAdvance(job, "%2 Map", 3, 9);
    QVERIFY2(bar->labelText().contains("“%2 Map”: page 3 of 9"), qPrintable(bar->labelText()));
    QCOMPARE(bar->maximum(), 9);
    QCOMPARE(bar->value(), 2);
    bar->findChild<QPushButton*>()->click();
    QVERIFY(cancel.cancelled());
    interaction.jobDidAdvance(job, "Map", 4, 9);
    QVERIFY(!bar->labelText().contains("page 4"));
    interaction.jobDidEnd(job, "Map", {});
    QVERIFY(!window.findChild<QProgressDialog*>());
  }

  void onlyAJobThatFailedIsTold() {
    struct Alerts final : AlertPresenter {
      int runModal(const Alert& alert) override {
        shown << alert;
        return 0;
      }
      QList<Alert> shown;
    } alerts;
    QMainWindow window;
    MemorySpooler spooler(QList<Printer>{});
    QtPrintInteraction interaction(spooler, &window, &alerts);
    const auto end = [&](const Result<void>& result) {
      interaction.jobDidEnd(interaction.jobDidBegin("Map", {}), "Map", result);
    };
    end({});
    end(Error{ErrorKind::Cancelled, "the printing was stopped"});
    QCOMPARE(alerts.shown.size(), 0);
    end(Error{ErrorKind::Died, "the picture process ended without an answer"});
    QCOMPARE(alerts.shown.size(), 1);
    QCOMPARE(alerts.shown[0].messageText, QString("“Map” was not printed."));
    QCOMPARE(alerts.shown[0].informativeText, QString("The picture process ended without an answer."));
  }

  void thePaperStandsInTheMiddle() {
    PageLayoutPreview preview;
    preview.resize(300, 400);
    Pagination pages;
    pages.sheet = {200, 200};
    pages.imageable = QRectF(0, 0, 200, 200);
    preview.setPage(pages, 1);
    const QImage shown = preview.grab().toImage();
    QList<int> white;
    for (int x = 0; x < 300; ++x)
      if (shown.pixelColor(x, 250) == QColor(Qt::white)) white << x;
    QVERIFY(!white.isEmpty());
    QVERIFY2(qAbs(white.first() + white.last() - 299) <= 1, qPrintable(QString::number(white.first())));
    QVERIFY(white.last() - white.first() > 260);
  }
};

NORVEX_TEST(PrintProgressTest)
#include "print_progress_test.moc"
