// What somebody meets who uses a screen reader and a keyboard.
#include <QAccessible>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QTabWidget>

#include "kit/test_main.h"
#include "ui/controls/color_well.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_edit.h"
#include "ui/source/source_text_view.h"
#include "window/accessible_walk.h"
#include "window/window_fixture.h"

using namespace norvex;
using kit::complaintsAbout;

namespace {

QAccessibleInterface* interfaceOf(QObject* object) {
  return QAccessible::queryAccessibleInterface(object);
}

/// The widgets that Tab goes to, from one on, until it would leave `page`.
QList<QWidget*> tabOrder(QWidget* first, QWidget* page) {
  QList<QWidget*> order;
  QWidget* widget = first;
  do {
    if ((widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() && page->isAncestorOf(widget) &&
        widget->isVisibleTo(page))
      order << widget;
    widget = widget->nextInFocusChain();
  } while (widget != first);
  return order;
}

}  // namespace

class AccessibilityTest : public QObject {
  Q_OBJECT
 private slots:
  void everyControlOfTheWindowHasANameAndARole() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showTouchBar(true);
    QCoreApplication::processEvents();
    const QStringList complaints = complaintsAbout(c.window());
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join('\n')));
  }

  void everyControlOfTheInspectorHasANameAndARole_data() {
    QTest::addColumn<int>("page");
    QTest::newRow("picture") << 0;
    QTest::newRow("source") << 1;
  }
  void everyControlOfTheInspectorHasANameAndARole() {
    QFETCH(int, page);
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    c.inspectorWindow->findChild<QTabWidget*>()->setCurrentIndex(page);
    if (page == 1) c.sourceTextView->showFindBar();
    QCoreApplication::processEvents();
    const QStringList complaints = complaintsAbout(c.inspectorWindow);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join('\n')));
  }

  void ourOwnControlsSayWhatTheyAre() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    QCOMPARE(interfaceOf(c.dialKnob())->role(), QAccessible::Dial);
    QCOMPARE(interfaceOf(c.backgroundColorWell())->role(), QAccessible::PushButton);
    QCOMPARE(interfaceOf(c.previewImageView())->role(), QAccessible::Graphic);
    QCOMPARE(interfaceOf(c.viewWidget())->role(), QAccessible::Graphic);
    QCOMPARE(interfaceOf(c.titleForm())->role(), QAccessible::Form);
    QVERIFY(interfaceOf(c.sourceTextView->textEdit())->textInterface());
  }

  void theDialIsAValueThatCanBeSet() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QAccessibleValueInterface* value = interfaceOf(c.dialKnob())->valueInterface();
    QVERIFY(value);
    value->setCurrentValue(180.0);
    QCOMPARE(c.view()->rotate(), M_PI);
    QCOMPARE(value->currentValue().toDouble(), 180.0);
  }

  void theColourWellTellsItsColourAndIsPressed() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.backgroundColorWell()->setColor(QColor(0x12, 0x34, 0x56));
    QAccessibleInterface* well = interfaceOf(c.backgroundColorWell());
    QCOMPARE(well->text(QAccessible::Value), QStringLiteral("#123456"));
    QVERIFY(well->actionInterface());
    QVERIFY(well->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  }

  void selectionAndItsAbsenceAreTold() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->findChild<QAction*>("selectAllAction")->trigger();
    const QString all = interfaceOf(c.viewWidget())->text(QAccessible::Description);
    QVERIFY(!all.isEmpty());
    c.window()->findChild<QAction*>("deselectAction")->trigger();
    QVERIFY(interfaceOf(c.viewWidget())->text(QAccessible::Description) != all);
  }

  void tabGoesThroughTheInspectorFromTopToBottom() {
    WindowFixture fixture;
    // With every row that an EPS file can have.
    MainWindowController& c =
        fixture.loaded(epsBytes("%%DocumentFonts: Helvetica\n%%DocumentCustomColors: (PANTONE 186 C)\n"),
                       "a.eps", NorvexEPSType);
    c.window()->show();
    c.showInspectorWindow();
    QCoreApplication::processEvents();
    auto* page = c.inspectorWindow->findChild<QWidget*>("pictureFacts");
    const QList<QWidget*> order = tabOrder(c.dialKnob(), page);
    const QList<QWidget*> wanted{c.dialKnob(), c.rotateField(), c.backgroundColorWell(),
                                 c.useBackgroundSwitch(), c.titleForm()->cellAtIndex(0)};
    QCOMPARE(order.mid(0, 5), wanted);
    QVERIFY(order.size() >= 15);
    QCOMPARE(order.last(), static_cast<QWidget*>(c.descriptionView->textEdit()));
    int last = -1;
    for (QWidget* widget : order.mid(4)) {
      const int top = widget->mapTo(page, QPoint(0, widget->height() / 2)).y();
      QVERIFY2(top >= last - 2, qPrintable(widget->accessibleName()));
      last = top;
    }
  }

  void keysReachThePictureAndTheStrip() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showTouchBar(true);
    QCoreApplication::processEvents();
    const QList<QWidget*> order = tabOrder(c.scrollArea(), c.window());
    QVERIFY(order.contains(c.scrollArea()));
    int buttons = 0;
    for (const QWidget* widget : order)
      buttons += widget->parentWidget()->objectName() == QLatin1String("touchStrip");
    QCOMPARE(buttons, 5);
  }
};

NORVEX_TEST(AccessibilityTest)
#include "accessibility_test.moc"
