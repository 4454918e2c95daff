// Export: what is written is what was chosen, where it was chosen, and nothing is lost.
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardItemModel>

#include "kit/test_main.h"
#include "protocol/page_excerpts.h"
#include "ui/export/export_dialog.h"
#include "window/export/export_command.h"
#include "window/export/export_settings.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const QByteArray kExcerpt = emptyPdf({20, 10});
const QByteArray kWithoutActions = emptyPdf({30, 10});

class ExportFixture : public WindowFixture {
 public:
  explicit ExportFixture(bool pdf = false, int pages = 1)
      : controller(
            (prepare(pages), pdf ? loaded(emptyPdf({200, 100}), "a.pdf", "com.adobe.pdf") : loadedEps())),
        command(controller.findChild<ExportCommand*>()) {
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
  }
  ExportDialog& dialog() {
    command->run();
    return *command->dialog();
  }
  void choose(PictureFormat format) {
    auto* list = command->dialog()->findChild<QComboBox*>("exportFormat");
    int row = 0;
    for (const FormatRow& each : formatTable) {
      if (each.id == format) break;
      row += isWritten(each) ? 1 : 0;
    }
    list->setCurrentIndex(row);
  }
  void name(const QString& typed) { command->dialog()->findChild<QLineEdit*>("exportName")->setText(typed); }
  /// The end of the export; false when it does not come.
  bool exported() {
    QSignalSpy ended(command, &ExportCommand::ended);
    emit command->dialog()->chosen();
    if (ended.isEmpty() && !ended.wait(20000)) return false;
    path = ended.first().at(0).toString();
    return ended.first().at(1).toBool();
  }
  QByteArray bytes() const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  MainWindowController& controller;
  ExportCommand* command;
  QString path;
  QByteArray excerpt;  ///< what was last asked for

 private:
  void prepare(int pages) {
    MemoryPicture picture;
    picture.facts.pageCount = pages;
    picture.facts.pageBounds = QList<QRectF>(pages, QRectF(0, 0, 200, 100));
    picture.pdf = [](const PdfRequest& request) {
      return request.keepActions ? QByteArray() : kWithoutActions;
    };
    picture.setAttributes = [this](const QByteArray& pdf, const PdfAttributes&) {
      excerpt = pdf;
      return kExcerpt;
    };
    service.setPicture(picture);
  }
};

void select(NorvexView& view, const QPointF& from, const QPointF& to) {
  for (const QPointF& point : {from, to}) {
    QVERIFY(view.mouseDown());
    view.mouseDragged(point);
    view.mouseUp(point);
  }
}

}  // namespace

class ExportTest : public QObject {
  Q_OBJECT
 private slots:
  void everyFormatIsWrittenAsWhatItIs_data() {
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("EPS") << int(PictureFormat::Eps) << "a.eps" << QByteArray("%!PS");
    QTest::newRow("preview") << int(PictureFormat::EpsPreview) << "a.eps" << QByteArray("\xC5\xD0\xD3\xC6");
    QTest::newRow("PDF") << int(PictureFormat::Pdf) << "a.pdf" << QByteArray("%PDF");
    QTest::newRow("PNG") << int(PictureFormat::Png) << "a.png" << QByteArray("\x89PNG");
    QTest::newRow("JPEG") << int(PictureFormat::Jpeg) << "a.jpg" << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("GIF") << int(PictureFormat::Gif) << "a.gif" << QByteArray("GIF8");
    QTest::newRow("WebP") << int(PictureFormat::Webp) << "a.webp" << QByteArray("RIFF");
    QTest::newRow("TIFF") << int(PictureFormat::Tiff) << "a.tiff" << QByteArray("II*");
  }
  void everyFormatIsWrittenAsWhatItIs() {
    QFETCH(int, format);
    QFETCH(QString, name);
    QFETCH(QByteArray, begin);
    ExportFixture f;
    f.dialog();
    f.name("out");
    f.choose(PictureFormat(format));
    QVERIFY(f.exported());
    QCOMPARE(f.path, f.folder.filePath(name.replace("a.", "out.")));  // beside the picture
    QVERIFY(f.bytes().startsWith(begin));
  }

  void pixelsHaveTheChosenResolutionAndRectangle() {
    ExportFixture f;
    select(*f.controller.view(), {-50, -20}, {-10, 10});
    QCOMPARE(f.dialog().choice().area, ExportArea::Selection);
    f.name("out");
    f.command->dialog()->findChild<QDoubleSpinBox*>("exportDpi")->setValue(216);
    QVERIFY(f.exported());
    QCOMPARE(QImage(f.path).size(), QSize(120, 90));
  }

  void aNumberThatIsStillTypedIsWhatIsWritten() {
    ExportFixture f;
    ExportDialog& dialog = f.dialog();
    f.name("out");
    f.choose(PictureFormat::Png);
    QApplication::setActiveWindow(&dialog);
    auto* wide = dialog.findChild<QSpinBox*>("exportWidth");
    wide->setFocus();
    wide->selectAll();
    QTest::keyClicks(wide, "300");
    QVERIFY(f.exported());
    QCOMPARE(QImage(f.path).width(), 300);
  }

  void theWholePictureIsTurnedAsItIsShown() {
    ExportFixture f;
    f.controller.rotateChange(90);
    f.dialog();
    f.name("out");
    QVERIFY(f.exported());
    QCOMPARE(QImage(f.path).size(), QSize(200, 400));
  }

  void anUprightWholePdfIsHandedOnAsItIs() {
    ExportFixture f(true);
    f.dialog();
    f.choose(PictureFormat::Pdf);
    f.name("out.pdf");
    QVERIFY(f.exported());
    QCOMPARE(f.bytes(), emptyPdf({200, 100}));
  }

  void someOfThePagesAreWrittenWhereTheyAreChosen() {
    ExportFixture f(true, 5);
    f.dialog();
    f.choose(PictureFormat::Pdf);
    auto* areas = f.command->dialog()->findChild<QComboBox*>("exportArea");
    auto* first = f.command->dialog()->findChild<QSpinBox*>("firstPage");
    auto* last = f.command->dialog()->findChild<QSpinBox*>("lastPage");
    QVERIFY(!first->isVisibleTo(f.command->dialog()));
    areas->setCurrentIndex(areas->findText("Some pages"));
    QVERIFY(first->isVisibleTo(f.command->dialog()));
    QCOMPARE(last->maximum(), 5);
    first->setValue(4);
    last->setValue(2);  // the other end comes along
    QCOMPARE(first->value(), 2);
    last->setValue(3);
    f.name("some.pdf");
    QVERIFY(f.exported());
    const auto told = decodePageExcerpts(f.excerpt);
    QVERIFY(told.ok());
    QCOMPARE(told->size(), qsizetype(1));
    QCOMPARE(told->first().first, 1);
    QCOMPARE(told->first().last, 2);
    QCOMPARE(told->first().pdf, kWithoutActions);  // of which the pages are taken, not of the source
    QCOMPARE(f.bytes(), kExcerpt);
    QTRY_VERIFY(!f.command->dialog());
    f.dialog();
    f.choose(PictureFormat::Png);  // of which a file holds one
    areas = f.command->dialog()->findChild<QComboBox*>("exportArea");
    const auto* rows = qobject_cast<const QStandardItemModel*>(areas->model());
    QVERIFY(!rows->item(areas->findText("Some pages"))->isEnabled());
  }

  void theExpectedSizeIsTheFiles() {
    ExportFixture f;
    f.dialog();
    auto* expected = f.command->dialog()->findChild<QLabel*>("exportExpected");
    QTRY_VERIFY(expected->text().startsWith("File size: "));
    const QString told = expected->text();
    f.name("out");
    QVERIFY(f.exported());
    QCOMPARE(told, "File size: " + QLocale().formattedDataSize(QFileInfo(f.path).size(), 1));
  }

  void whatIsThereIsReplacedOnlyWhenThatIsWanted() {
    ExportFixture f;
    f.write("mine", "out.png");
    f.dialog();
    f.name("out");
    emit f.command->dialog()->chosen();
    QCOMPARE(f.alerts.shown.size(), 1);
    QVERIFY(f.command->dialog() && f.command->dialog()->isVisible());
    f.path = f.folder.filePath("out.png");
    QCOMPARE(f.bytes(), QByteArray("mine"));
    f.alerts.answer = 1;
    QVERIFY(f.exported());
    QVERIFY(f.bytes().startsWith("\x89PNG"));
  }

  void whatIsChosenIsRemembered() {
    ExportFixture f;
    f.dialog();
    f.choose(PictureFormat::Jpeg);
    f.command->dialog()->findChild<QDoubleSpinBox*>("exportDpi")->setValue(96);
    f.name("out");
    QVERIFY(f.exported());
    const ExportChoice next = f.dialog().choice();
    QCOMPARE(next.format, PictureFormat::Jpeg);
    QCOMPARE(next.dpi, 96.0);
    QVERIFY(QFile::exists(f.folder.filePath("norvex/export.ini")));
    QVERIFY(!QSettings().allKeys().contains("format"));
  }

  void rubbishInTheSettingsIsPassedOver() {
    ExportFixture f;
    f.write("[General]\nformat=ai\npixelsPerInch=-3\nquality=900\nbackground=nocolour\n", "x");
    QDir(f.folder.path()).mkpath("norvex");
    QVERIFY(QFile::rename(f.folder.filePath("x"), f.folder.filePath("norvex/export.ini")));
    QCOMPARE(storedExportChoice(), ExportChoice());
  }

  void whatCannotBeMadeIsToldInTheDialog() {
    ExportFixture f;
    f.service.lastProcess()->fail(PictureCall::Render, {ErrorKind::Limit, "the picture is too large"});
    f.dialog();
    auto* remarks = f.command->dialog()->findChild<QLabel*>("exportRemarks");
    QTRY_COMPARE(remarks->text(), QString("The picture is too large."));
  }

  void aFileThatCannotBeWrittenIsTold() {
    ExportFixture f;
    f.dialog();
    f.name("/nowhere/at/all/out.png");
    QVERIFY(!f.exported());
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.alerts.shown.first().informativeText, QString("/nowhere/at/all/out.png"));
  }

  void whatCannotBeMadeIsToldAndLeavesNoFile() {
    ExportFixture f;
    const auto process = f.service.lastProcess();
    process->fail(PictureCall::Render, {ErrorKind::Limit, "the picture is too large"});
    process->hold(PictureCall::Render);
    f.dialog();
    f.name("out");
    QSignalSpy ended(f.command, &ExportCommand::ended);
    emit f.command->dialog()->chosen();
    QCOMPARE(f.controller.work().text(), QStringLiteral("Writing…"));
    process->release(PictureCall::Render);
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(!ended[0][1].toBool());
    QVERIFY(!QFile::exists(f.folder.filePath("out.png")));
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.alerts.shown.first().messageText, QStringLiteral("The picture is too large."));
  }

  void aFileOfTwoPagesHasPagesToChooseFrom() {
    ExportFixture one(true, 1);
    QCOMPARE(one.dialog().findChild<QComboBox*>("exportArea")->findText("Some pages"), -1);
    ExportFixture two(true, 2);
    QVERIFY(two.dialog().findChild<QComboBox*>("exportArea")->findText("Some pages") >= 0);
  }

  void aWindowThatIsToCloseStaysWhereNothingWasWritten() {
    ExportFixture f;
    MainWindowController& c = f.controller;
    c.window()->show();
    const auto process = f.service.lastProcess();
    for (const PictureCall call : {PictureCall::Pdf, PictureCall::Compose}) process->hold(call);
    f.dialog();
    f.choose(PictureFormat::Pdf);
    f.name("/nowhere/at/all/out.pdf");
    QSignalSpy ended(f.command, &ExportCommand::ended);
    emit f.command->dialog()->chosen();
    QVERIFY(process->waitUntilHeld(PictureCall::Compose));
    f.alerts.answer = 0;  // "Close When Finished"
    QVERIFY(!c.window()->close() && c.closesWhenDone());
    for (const PictureCall call : {PictureCall::Pdf, PictureCall::Compose}) process->release(call);
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(f.alerts.shown.size(), 2);
    QTest::qWait(50);
    QVERIFY(c.window()->isVisible() && !c.closesWhenDone());
  }

  void withoutAPictureThereIsNothingToExport() {
    WindowFixture f;
    MainWindowController& c = f.loaded("no picture", "a.eps", NorvexEPSType);
    auto* action = c.window()->findChild<QAction*>("exportAction");
    QVERIFY(action && !action->isEnabled());
    c.findChild<ExportCommand*>()->run();
    QVERIFY(!c.findChild<ExportCommand*>()->dialog());
  }
};

NORVEX_TEST(ExportTest)
#include "export_test.moc"
