// Pages of the inspector that a table adds.
#include <QLabel>
#include <QTabWidget>

#include <array>

#include "kit/test_main.h"
#include "window/inspector_pages.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

int made = 0;

QWidget* makePage(MainWindowController&, QWidget* page) {
  ++made;
  return new QLabel(QStringLiteral("made"), page);
}

constexpr std::array kPages{InspectorPage{"firstPage", "First", makePage},
                            InspectorPage{"secondPage", "Second", makePage}};

}  // namespace

class InspectorPagesTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { made = 0; }

  void pagesStandInTheTablesOrderBehindThoseOfTheInterfaceFile() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    const int before = c.inspectorTabs->count();
    addInspectorPages(c, kPages);
    QCOMPARE(c.inspectorTabs->widget(0)->objectName(), QStringLiteral("picturePage"));
    QCOMPARE(c.inspectorTabs->widget(before)->objectName(), QStringLiteral("firstPage"));
    QCOMPARE(c.inspectorTabs->tabText(before), QStringLiteral("First"));
    QCOMPARE(c.inspectorTabs->widget(before + 1)->objectName(), QStringLiteral("secondPage"));
  }

  void aPageIsMadeWhenItIsFirstSeenAndOnce() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    addInspectorPages(c, kPages);
    auto* page = c.inspectorWindow->findChild<QWidget*>("firstPage");
    c.inspectorTabs->setCurrentWidget(page);  // in a window that is not shown
    QCOMPARE(made, 0);
    c.window()->show();
    c.showInspectorWindow();
    QCOMPARE(made, 1);
    QVERIFY(page->findChild<QLabel*>()->isVisible());
    c.inspectorTabs->setCurrentIndex(0);
    c.inspectorTabs->setCurrentWidget(page);
    QCOMPARE(made, 1);
  }

  void everyPageOfTheWindowHasATab() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QStringList pages;
    for (int i = 0; i < c.inspectorTabs->count(); ++i)
      pages << c.inspectorTabs->widget(i)->objectName() + ": " + c.inspectorTabs->tabText(i);
    QCOMPARE(pages, QStringList({"picturePage: Picture", "sourcePage: Source", "checkPage: Check",
                                 "inksPage: Inks"}));
  }
};

NORVEX_TEST(InspectorPagesTest)
#include "inspector_pages_test.moc"
