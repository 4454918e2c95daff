// Save To: what the sheet is asked to show, and what is written where; and windows that are closed meanwhile.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>

#include "base/path_extension.h"
#include "desktop/memory_save_panel.h"
#include "kit/test_main.h"
#include "kit/widget_texts.h"
#include "ui/panels/save_sheet.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/zy_image_view.h"
#include "window/commands/saving_window.h"

using namespace norvex;

namespace {

const Error kDied{ErrorKind::Died, QStringLiteral("the picture process ended")};
const QStringList kEpsRows{
    "Encapsulated PostScript (EPS)", "PDF document", "TIFF image", "PNG image", "JPEG image", "GIF image"};

QStringList rows(const MainWindowController& c) {
  return kit::rowsOf(*c.doSaveToPopUp);
}

/// A picture of which no other vectors can be made.
MemoryPicture drawnAsPdfAlone() {
  MemoryPicture picture;
  picture.compose = [](const ComposeRequest& request) {
    return request.format == VectorFormat::Pdf ? emptyPdf(request.rect.size()) : QByteArray();
  };
  return picture;
}

/// Confirms the sheet and waits until the file is written; empty: it never was.
QVariantList saved(MainWindowController& c, MemorySavePanel& panel, const QUrl& url) {
  QSignalSpy end(&c, &MainWindowController::savedTo);
  panel.answer({true, url, -1});
  if (end.isEmpty() && !end.wait(20000)) return {};
  return end.first();
}

}  // namespace

class SaveToTest : public QObject {
  Q_OBJECT
 private slots:
  void theSheetOffersTheFormatsInTheirOrder_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("EPS") << epsBytes() << "a.eps" << NorvexEPSType << kEpsRows;
    QTest::newRow("PDF") << emptyPdf({200, 100}) << "a.pdf"
                         << "com.adobe.pdf" << QStringList{"PDF document", "Encapsulated PostScript (EPS)",
                                                           "TIFF image",   "PNG image",
                                                           "JPEG image",   "GIF image"};
    QTest::newRow("SVG") << kSvg << "a.svg"
                         << "public.svg-image"
                         << QStringList{"SVG image",  "PDF document", "Encapsulated PostScript (EPS)",
                                        "TIFF image", "PNG image",    "JPEG image",
                                        "GIF image"};
  }
  void theSheetOffersTheFormatsInTheirOrder() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(QString, type);
    QFETCH(QStringList, expected);
    SavingFixture f;
    MainWindowController& c = f.show(bytes, name, type);
    c.doSaveTo();
    QCOMPARE(rows(c), expected);
    QCOMPARE(c.doSaveToPopUp->currentIndex(), 0);
    QCOMPARE(f.panel.settings.allowedContentTypes.size(), expected.size());
  }

  void thePanelIsSetUp() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    QCOMPARE(f.panel.parent, c.window());
    QVERIFY(f.panel.settings.canSelectHiddenExtension && f.panel.settings.extensionHidden);
    QVERIFY(!f.panel.settings.allowsOtherFileTypes);
    QCOMPARE(f.panel.settings.directoryURL, QUrl());
    QCOMPARE(f.panel.settings.nameFieldStringValue, QString("pic_clip"));
    QCOMPARE(f.panel.settings.message, QString("Selected range of image data is written or displayed."));
    QCOMPARE(f.panel.settings.accessoryView, c.doSaveToAccessoryView);
    QTRY_VERIFY(c.doSaveToImageView->imageRep());
  }

  void aWindowWithoutAFileProposesClip() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.window()->setWindowFilePath(QString());
    c.doSaveTo();
    QCOMPARE(f.panel.settings.nameFieldStringValue, QString("_clip"));
  }

  void onlyTheLastExtensionIsLeftOut() {
    SavingFixture f;
    f.show(epsBytes(), "a.b.eps", NorvexEPSType).doSaveTo();
    QCOMPARE(f.panel.settings.nameFieldStringValue, QString("a.b_clip"));
  }

  void theChosenFormatDecidesNotTheTypedExtension() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    choose(c, "PNG image");
    QCOMPARE(saved(c, f.panel, f.url("out.pdf")), (QVariantList{f.folder.filePath("out.png"), true}));
    QVERIFY(f.read("out.png").startsWith("\x89PNG"));
    QVERIFY(!QFile::exists(f.folder.filePath("out.pdf")));
  }

  void aNameWithoutExtensionGetsTheFormatsOwn() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    choose(c, "JPEG image");
    QCOMPARE(saved(c, f.panel, f.url("out")), (QVariantList{f.folder.filePath("out.jpeg"), true}));
    QVERIFY(f.read("out.jpeg").startsWith("\xFF\xD8"));
  }

  void eachFormatIsWrittenAsWhatItIs() {
    SavingFixture f;
    MainWindowController& c = f.show(kSvg, "a.svg", "public.svg-image");
    const QList<std::pair<QString, QByteArray>> all{
        {"svg", "<svg"},    {"pdf", "%PDF"},      {"eps", "%!PS"},  {"tiff", "II"},
        {"png", "\x89PNG"}, {"jpeg", "\xFF\xD8"}, {"gif", "GIF89a"}};
    for (int i = 0; i < all.size(); ++i) {
      c.doSaveTo();
      c.doSaveToPopUp->setCurrentIndex(i);
      QCOMPARE(saved(c, f.panel, f.url("out")),
               (QVariantList{f.folder.filePath("out." + all[i].first), true}));
      QVERIFY2(f.read("out." + all[i].first).startsWith(all[i].second), qPrintable(all[i].first));
    }
  }

  void theNextSheetOpensWhereTheLastWas() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    QDir(f.folder.path()).mkpath("x/y");
    c.doSaveTo();
    choose(c, "PNG image");
    QCOMPARE(saved(c, f.panel, f.url("x/y/out.gif")).value(1), QVariant(true));
    // What was typed is kept, not what was written.
    QCOMPARE(QSettings().value("SaveTo").toUrl(), f.url("x/y/out.gif"));
    c.doSaveTo();
    QCOMPARE(f.panel.settings.directoryURL, f.url("x/y"));
  }

  void aPlaceThatIsNoFileIsNotReturnedTo() {
    SavingFixture f;
    QSettings().setValue("SaveTo", QUrl("https://example.org/x/y.png"));
    f.eps().doSaveTo();
    QCOMPARE(f.panel.settings.directoryURL, QUrl());
  }

  void aCancelledSheetWritesAndRemembersNothing() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    QSignalSpy end(&c, &MainWindowController::savedTo);
    c.doSaveTo();
    f.panel.answer({false, f.url("out.eps"), -1});
    QTest::qWait(20);
    QCOMPARE(end.count(), 0);
    QVERIFY(!QFile::exists(f.folder.filePath("out.eps")));
    QVERIFY(!QSettings().contains("SaveTo"));
  }

  void aFailedWriteIsToldWithItsPathAndRememberedAllTheSame() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    QCOMPARE(saved(c, f.panel, f.url("nowhere/out.eps")),
             (QVariantList{f.folder.filePath("nowhere/out.eps"), false}));
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.alerts.shown[0].style, AlertStyle::Warning);
    QVERIFY(!f.alerts.shown[0].messageText.isEmpty());
    QCOMPARE(f.alerts.shown[0].informativeText, f.folder.filePath("nowhere/out.eps"));
    QCOMPARE(QSettings().value("SaveTo").toUrl(), f.url("nowhere/out.eps"));
  }

  void withoutAPictureTheSheetOpensEmptyAndWritesNothing() {
    SavingFixture f;
    MainWindowController& c = f.show("no picture", "a.eps", NorvexEPSType);
    c.doSaveTo();
    QCOMPARE(f.beeps, 1);
    QVERIFY(f.panel.isOpen());
    QCOMPARE(rows(c), QStringList());
    f.panel.answer({true, f.url("out"), -1});
    QTest::qWait(20);
    QVERIFY(!QFile::exists(f.folder.filePath("out")));
  }

  void theSheetOpensBeforeAnythingIsMade() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Compose);
    c.doSaveTo();  // a sheet that waited would never open
    QCOMPARE(rows(c), kEpsRows);
    QSignalSpy end(&c, &MainWindowController::savedTo);
    f.panel.answer({true, f.url("out"), -1});
    QVERIFY(!QFile::exists(f.folder.filePath("out.eps")));
    process->release(PictureCall::Compose);
    QVERIFY(end.wait(20000));
    QVERIFY(f.read("out.eps").startsWith("%!PS"));
  }

  void aFormatThatTurnsOutMissingLosesItsRow() {
    SavingFixture f;
    f.service.setPicture(drawnAsPdfAlone());
    MainWindowController& c = f.eps();
    c.doSaveTo();
    QTRY_COMPARE(rows(c), kEpsRows.mid(1));
    QCOMPARE(c.doSaveToPopUp->currentText(), QString("PDF document"));
    auto* note = c.doSaveToAccessoryView->findChild<QLabel*>("doSaveToNote");
    QCOMPARE(note->text(), QString("Not possible for this picture: Encapsulated PostScript (EPS)"));
    QCOMPARE(saved(c, f.panel, f.url("out")), (QVariantList{f.folder.filePath("out.pdf"), true}));
    QVERIFY(f.read("out.pdf").startsWith("%PDF"));  // rows and bytes still belong together
    c.doSaveTo();
    QCOMPARE(note->text(), QString());
  }

  void aChoiceStaysWhenAnotherRowGoes() {
    SavingFixture f;
    f.service.setPicture(drawnAsPdfAlone());
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Compose);
    c.doSaveTo();
    choose(c, "TIFF image");
    process->release(PictureCall::Compose);
    QTRY_COMPARE(rows(c), kEpsRows.mid(1));  // PDF and what is made of it stay, EPS goes
    QCOMPARE(c.doSaveToPopUp->currentText(), QString("TIFF image"));
    QCOMPARE(c.doSaveToPopUp->currentIndex(), 1);
    QCOMPARE(saved(c, f.panel, f.url("out")), (QVariantList{f.folder.filePath("out.tiff"), true}));
    QVERIFY(f.read("out.tiff").startsWith("II"));  // and its bytes with it
  }

  void bytesThatAreMissingInTheEndAreTold() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    const auto process = f.service.lastProcess();
    process->fail(PictureCall::Compose, kDied);
    process->hold(PictureCall::Compose);
    c.doSaveTo();
    QSignalSpy end(&c, &MainWindowController::savedTo);
    f.panel.answer({true, f.url("out"), -1});  // before it is known
    process->release(PictureCall::Compose);
    QVERIFY(end.wait(20000));
    QCOMPARE(end.first().at(1), QVariant(false));
    QCOMPARE(f.alerts.shown.size(), 1);
    QVERIFY(!QFile::exists(f.folder.filePath("out.eps")));
  }

  void extensionsAreReplacedOrAppended() {
    const auto with = [](const char* path, const char* extension) {
      return urlWithExtension(QUrl::fromLocalFile(path), extension).toLocalFile();
    };
    QCOMPARE(with("/a/out.pdf", "png"), QString("/a/out.png"));
    QCOMPARE(with("/a/out", "png"), QString("/a/out.png"));
    QCOMPARE(with("/a/out.png", "png"), QString("/a/out.png"));
    QCOMPARE(with("/a/out.PNG", "png"), QString("/a/out.png"));
    QCOMPARE(with("/a.b/out", "png"), QString("/a.b/out.png"));
    QCOMPARE(with("/a/.out", "png"), QString("/a/.out.png"));
    QCOMPARE(with("/a/100% #1?.x", "gif"), QString("/a/100% #1?.gif"));
    QCOMPARE(pathExtension("/a/b.c/d.e.f"), QString("f"));
    QCOMPARE(pathWithoutExtension("/a/b.c/d"), QString("/a/b.c/d"));
  }

  // ---- the sheet itself
  // ---------------------------------------------------------------------------------------------

  void theSheetShowsItsNameWithAndWithoutExtension() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    SavePanelSettings settings = f.panel.settings;
    settings.directoryURL = QUrl::fromLocalFile(f.folder.path());
    settings.nameFieldStringValue = "Map 1.5_clip";
    SaveSheet sheet(nullptr, settings);
    auto* name = sheet.findChild<QLineEdit*>("fileNameEdit");
    QVERIFY(name && sheet.hideExtensionBox()->isChecked());
    QCOMPARE(name->text(), QString("Map 1.5_clip"));
    sheet.hideExtensionBox()->setChecked(false);
    QCOMPARE(name->text(), QString("Map 1.5_clip.eps"));
    choose(c, "GIF image");
    QCOMPARE(name->text(), QString("Map 1.5_clip.gif"));
    sheet.hideExtensionBox()->setChecked(true);
    QCOMPARE(name->text(), QString("Map 1.5_clip"));
    QCOMPARE(f.panel.settings.target(sheet.answer().url, -1).fileName(), QString("Map 1.5_clip.gif"));
  }

  void theSheetGivesTheAccessoryBack() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    QWidget* const owner = c.doSaveToAccessoryView->parentWidget();
    {
      SaveSheet sheet(nullptr, f.panel.settings);
      QVERIFY(sheet.isAncestorOf(c.doSaveToAccessoryView));
    }
    QCOMPARE(c.doSaveToAccessoryView->parentWidget(), owner);
  }

  // ---- Save As
  // ------------------------------------------------------------------------------------------------------
  void aWindowThatIsClosedMeanwhileAsksAndClosesWhenTheFileIsThere_data() {
    QTest::addColumn<bool>("saveAs");
    QTest::newRow("Save As") << true;
    QTest::newRow("Save To") << false;
  }
  void aWindowThatIsClosedMeanwhileAsksAndClosesWhenTheFileIsThere() {
    QFETCH(bool, saveAs);
    WritingWindow f(saveAs);
    f.alerts.answer = 0;  // "Close When Finished"
    QVERIFY(f.closeMeanwhile());
    QCOMPARE(f.alerts.shown.size(), 1);
    QCOMPARE(f.alerts.shown[0].messageText, QString("A file is still being written."));
    QCOMPARE(f.alerts.shown[0].buttons, (QStringList{"Close When Finished", "Stop and Close", "Keep Open"}));
    QCOMPARE(f.closed.size(), 1);
    QCOMPARE(f.read("other.svg"), kSvg);
  }

  void aWindowThatIsToStayOpenDoes_data() {
    aWindowThatIsClosedMeanwhileAsksAndClosesWhenTheFileIsThere_data();
  }
  void aWindowThatIsToStayOpenDoes() {
    QFETCH(bool, saveAs);
    WritingWindow f(saveAs);
    f.alerts.answer = 2;  // "Keep Open"; dismissing the question is the same
    f.alerts.whileShown = [&f] { f.c.window()->close(); };  // which asks nothing once more
    QVERIFY(!f.closeMeanwhile());
    QCOMPARE(f.read("other.svg"), kSvg);
    f.alerts.answer = -1;
    QVERIFY(f.c.window()->isVisible() && f.closed.isEmpty());
    QVERIFY(f.c.window()->close());  // nothing is being written any more
    QCOMPARE(f.alerts.shown.size(), 1);
  }

  void anEndDuringTheQuestionNeedsNoFurtherWaiting() {
    WritingWindow f(false);
    f.alerts.answer = 0;
    f.alerts.whileShown = [&f] {
      f.process->release(PictureCall::Svg);
      QVERIFY(QTest::qWaitFor([&f] { return !f.ended.isEmpty(); }, 20000));
    };
    QVERIFY(f.c.window()->close());
    QCOMPARE(f.read("other.svg"), kSvg);
  }

  void whatCouldNotBeWrittenKeepsTheWindowOpen() {
    WritingWindow f(false, "nowhere/other");
    f.alerts.answer = 0;
    QVERIFY(!f.closeMeanwhile());
    QCOMPARE(f.alerts.shown.size(), 2);
    QCOMPARE(f.alerts.shown[1].informativeText, f.folder.filePath("nowhere/other.svg"));
    QVERIFY(f.c.window()->isVisible());
  }

  void aSaveToCanBeStopped() {
    WritingWindow f(false);
    emit f.c.window()->findChild<LoadingCard*>()->cancelled();
    QTRY_COMPARE(f.ended.size(), 1);
    QCOMPARE(QDir(f.folder.path()).entryList({"other*"}), QStringList());
    QCOMPARE(f.alerts.shown.size(), 0);
  }

  void aWindowThatIsStoppedAndClosedWritesNothing() {
    SavingFixture f;
    MainWindowController& c = f.show(kSvg, "a.svg", "public.svg-image");
    c.setShouldCloseDocument(true);
    QSignalSpy closed(&f.document, &Document::closed);
    c.window()->show();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Svg);
    f.alerts.answer = 1;  // "Stop and Close"
    c.saveDocumentAs();
    bool asked = false;
    whileSaving(c, [&] {
      QVERIFY(!c.window()->close());
      asked = true;
    });
    f.panel.answer({true, f.url("other"), 3});
    QTRY_COMPARE(closed.size(), 1);
    QVERIFY(asked && !c.window()->isVisible());
    QCOMPARE(QDir(f.folder.path()).entryList({"other*"}), QStringList());
  }
};

NORVEX_TEST(SaveToTest)
#include "save_to_test.moc"
