// The Touch Bar as values, and the strip that shows it.
#include <QAction>
#include <QMainWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QToolButton>

#include "desktop/save_panel.h"
#include "kit/test_main.h"
#include "print/memory_printing.h"
#include "ui/controls/touch_strip.h"
#include "window/commands/touch_bar.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const QStringList kIdentifiers{
    "com.Norvex.mainWindowController.saveas", "com.Norvex.mainWindowController.saveto",
    "com.Norvex.mainWindowController.reload", "com.Norvex.mainWindowController.copy",
    "com.Norvex.mainWindowController.print"};

/// Keeps what it was asked and answers nothing.
class ClosedPanel final : public NSSavePanel {
 public:
  void beginSheetModalForWindow(QWidget*, const SavePanelSettings& settings, Completion completion) override {
    titles << settings.title;
    completion({});
  }
  QStringList titles;
};

QAction* action(MainWindowController& c, const char* name) {
  return c.window()->findChild<QAction*>(QString::fromLatin1(name));
}

}  // namespace

class TouchBarTest : public QObject {
  Q_OBJECT
 private slots:
  void aNewBarAtEachCallWithSixIdentifiersInOrder() {
    WindowFixture fixture;
    MainWindowController& c = fixture.controller();
    NSTouchBar bar = c.makeTouchBar();
    QCOMPARE(bar.defaultItemIdentifiers,
             kIdentifiers + QStringList{"NSTouchBarItemIdentifierOtherItemsProxy"});
    QVERIFY(bar.delegate == &c);
    bar.defaultItemIdentifiers.clear();
    QCOMPARE(c.makeTouchBar().defaultItemIdentifiers.size(), qsizetype(6));
  }

  void everyItemHasItsTitleTargetAndAction_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("document");
    QTest::addColumn<int>("action");
    QTest::newRow("save as") << 0 << "SaveAs" << true << int(TouchBarAction::SaveDocumentAs);
    QTest::newRow("save to") << 1 << "SaveTo" << true << int(TouchBarAction::SaveDocumentTo);
    QTest::newRow("reload") << 2 << "Reload" << true << int(TouchBarAction::RevertDocumentToSaved);
    QTest::newRow("copy") << 3 << "Copy" << false << int(TouchBarAction::Copy);
    QTest::newRow("print") << 4 << "Print" << true << int(TouchBarAction::PrintDocument);
  }
  void everyItemHasItsTitleTargetAndAction() {
    QFETCH(int, index);
    QFETCH(QString, title);
    QFETCH(bool, document);
    QFETCH(int, action);
    WindowFixture fixture;
    MainWindowController& c = fixture.controller();
    const auto item = c.touchBar(c.makeTouchBar(), kIdentifiers.at(index));
    QVERIFY(item);
    QCOMPARE(item->identifier, kIdentifiers.at(index));
    QCOMPARE(item->title, title);
    QCOMPARE(item->target == TouchBarTarget::Document, document);
    QCOMPARE(int(item->action), action);
    QCOMPARE(item->visibilityPriority, 0.0F);
  }

  void thereIsNoItemOutsideTheFive() {
    WindowFixture fixture;
    MainWindowController& c = fixture.controller();
    const NSTouchBar bar = c.makeTouchBar();
    QVERIFY(!c.touchBar(bar, "NSTouchBarItemIdentifierOtherItemsProxy"));
    QVERIFY(!c.touchBar(bar, "com.Norvex.mainWindowController.inspector"));
    QVERIFY(!c.touchBar(bar, ""));
    QCOMPARE(bar.items().size(), qsizetype(5));
  }

  void aBarInAnotherOrderGetsTheButtonsByPosition() {
    WindowFixture fixture;
    MainWindowController& c = fixture.controller();
    NSTouchBar bar = c.makeTouchBar();
    std::swap(bar.defaultItemIdentifiers[0], bar.defaultItemIdentifiers[4]);
    const auto item = c.touchBar(bar, "com.Norvex.mainWindowController.print");
    QVERIFY(item);
    QCOMPARE(item->identifier, QStringLiteral("com.Norvex.mainWindowController.saveas"));
    QCOMPARE(int(item->action), int(TouchBarAction::SaveDocumentAs));
    bar.defaultItemIdentifiers.prepend("something.else");
    QCOMPARE(c.touchBar(bar, "something.else")->identifier,
             QStringLiteral("com.Norvex.mainWindowController.saveas"));
    QVERIFY(!c.touchBar(bar, "com.Norvex.mainWindowController.saveas"));  // now the sixth
  }

  void theStripShowsTheFiveButtonsLargeEnoughForFingers() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QTest::failOnWarning(QRegularExpression("style ?sheet"));  // one that is wrong is left out whole
    c.window()->show();
    QVERIFY(!c.touchStrip());
    action(c, "touchBarAction")->trigger();
    QVERIFY(c.touchStrip() && c.touchStrip()->isVisible());
    QCoreApplication::processEvents();
    for (const QString& identifier : kIdentifiers) {
      const QToolButton* button = c.touchStrip()->button(identifier);
      QVERIFY2(button && button->isEnabled(), qPrintable(identifier));
      QVERIFY(button->height() >= TouchStrip::smallestButtonHeight);
      QVERIFY(!button->accessibleName().isEmpty());
    }
    QVERIFY(!c.touchStrip()->button("NSTouchBarItemIdentifierOtherItemsProxy"));
    action(c, "touchBarAction")->trigger();
    QVERIFY(!c.touchStrip()->isVisible());
  }

  void thePictureStillFitsExactlyBesideTheStrip() {
    WindowFixture fixture;
    MainWindowController& c =
        fixture.loaded(epsBytes().replace("10 20 210 120", "0 0 700 500"), "a.eps", NorvexEPSType);
    c.window()->show();
    const int before = c.window()->maximumHeight();
    action(c, "touchBarAction")->trigger();
    QCoreApplication::processEvents();
    c.setWindowSize();
    QCOMPARE(c.window()->maximumHeight(), before + c.touchStrip()->height());
  }

  void reloadRunsTheSetUpAgain() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.showTouchBar(true);
    c.rotateChange(90);
    c.touchStrip()->button(kIdentifiers.at(2))->click();
    QCOMPARE(c.view()->rotate(), 0.0);
  }

  void saveAsAndSaveToOpenTheDocumentsOwnPanel() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    ClosedPanel panel;
    c.setSavePanel(&panel);
    c.showTouchBar(true);
    c.touchStrip()->button(kIdentifiers.at(0))->click();
    c.touchStrip()->button(kIdentifiers.at(1))->click();
    QCOMPARE(panel.titles, QStringList({"Save As", "Save To"}));
  }

  void copyIsTheControllersCopy() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QSignalSpy copied(&c, &MainWindowController::copied);
    c.showTouchBar(true);
    c.touchStrip()->button(kIdentifiers.at(3))->click();
    QVERIFY(!copied.isEmpty() || copied.wait(10000));
  }

  void thereIsOneStripHoweverOftenItIsShown() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    for (const bool on : {true, true, false, true}) c.showTouchBar(on);
    QCOMPARE(c.window()->findChildren<TouchStrip*>().size(), 1);
    QVERIFY(c.touchStrip()->isVisibleTo(c.window()));
  }

  void printIsTheDocumentsPrintingOfTheWholePicture() {
    WindowFixture fixture;
    kit::MemorySpooler spooler({{"Office", "Office", PrinterState::Idle, true, true}});
    kit::ScriptedInteraction people;
    QSizeF printed;
    people.onPanel = [&](NSPrintOperation& operation) {
      printed = operation.view().printSource().shown.size;
    };
    people.printsFromPanel = false;
    MainWindowController& c = fixture.loadedEps();
    c.setPrintServices({nullptr, &spooler, &people});
    c.view()->selectBounds();
    QVERIFY(c.view()->resizeSelection(QPointF(-60, 0)));
    c.showTouchBar(true);
    c.touchStrip()->button(kIdentifiers.at(4))->click();
    QTRY_COMPARE(people.panels, 1);
    QCOMPARE(printed, QSizeF(200, 100));  // the toolbar's prints the selection
    QVERIFY(spooler.jobs().isEmpty());
  }

  void theStripIsRememberedForLaterWindows() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    action(c, "touchBarAction")->trigger();
    MainWindowController later;
    later.window();
    QVERIFY(later.touchStrip() && later.touchStrip()->isVisibleTo(later.window()));
    QVERIFY(later.window()->findChild<QAction*>("touchBarAction")->isChecked());
    action(c, "touchBarAction")->trigger();
    MainWindowController last;
    last.window();
    QVERIFY(!last.touchStrip());
  }

  void withoutAPictureTheButtonsRestButForReload() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("nothing", "a.eps", NorvexEPSType);
    c.showTouchBar(true);
    for (int i = 0; i < 5; ++i) QCOMPARE(c.touchStrip()->button(kIdentifiers.at(i))->isEnabled(), i == 2);
    fixture.write(epsBytes(), "a.eps");
    c.touchStrip()->button(kIdentifiers.at(2))->click();
    for (int i = 0; i < 5; ++i) QVERIFY(c.touchStrip()->button(kIdentifiers.at(i))->isEnabled());
  }
};

NORVEX_TEST(TouchBarTest)
#include "touch_bar_test.moc"
