// Colour wells, the cells of a rectangle, and forms.
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "kit/test_main.h"
#include "ui/controls/color_well.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/zy_form.h"

using namespace norvex;

class SmallControlsTest : public QObject {
  Q_OBJECT
 private slots:
  void aWellTellsItsColourAndWhetherItLetsThrough() {
    ColorWell well;
    well.setColor(QColor(255, 128, 0));
    QCOMPARE(well.accessibleDescription(), QStringLiteral("#ff8000"));
    well.setColor(QColor(255, 128, 0, 128));
    QCOMPARE(well.accessibleDescription(), QStringLiteral("#80ff8000"));
  }

  void aWellShowsItsColourWithinItsFrame() {
    ColorWell well;
    well.setColor(QColor(255, 128, 0));
    well.resize(well.sizeHint());
    const QImage shown = well.grab().toImage();
    // The same room on every side: 1 pixel around the frame, 4 within it.
    for (const QPoint& inside : {QPoint(6, 13), QPoint(45, 13), QPoint(26, 6), QPoint(26, 19)})
      QCOMPARE(shown.pixelColor(inside), QColor(255, 128, 0));
    for (const QPoint& beside : {QPoint(3, 13), QPoint(48, 13), QPoint(26, 3), QPoint(26, 22)})
      QCOMPARE(shown.pixelColor(beside), well.palette().color(QPalette::Base));
    well.setColor(QColor(255, 128, 0, 128));
    const QImage through = well.grab().toImage();
    QVERIFY(through.pixelColor(26, 13) != QColor(255, 128, 0));
  }

  void aRectanglesNumbersStandInItsOwnCells() {
    NumberMatrix matrix;
    matrix.setRect({1, 2, 30, 40});
    QCOMPARE(matrix.cellAtRow(0, 0)->text(), QStringLiteral("1"));
    QCOMPARE(matrix.cellAtRow(1, 0)->text(), QStringLiteral("2"));
    QCOMPARE(matrix.cellAtRow(0, 1)->text(), QStringLiteral("30"));
    QCOMPARE(matrix.cellAtRow(1, 1)->text(), QStringLiteral("40"));
  }

  void theTitlesOfFormsEndInOneLine() {
    QWidget page;
    auto* column = new QVBoxLayout(&page);
    auto *first = new ZyForm(&page), *second = new ZyForm(&page);
    column->addWidget(first);
    column->addWidget(second);
    first->setTitles({"A:", "A title that is longer than the others:"});
    second->setTitles({"Another:"});
    ZyForm::alignTitles({first, second});
    page.resize(500, 200);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const int left = first->cellAtIndex(0)->mapTo(&page, QPoint(0, 0)).x();
    QCOMPARE(first->cellAtIndex(1)->mapTo(&page, QPoint(0, 0)).x(), left);
    QCOMPARE(second->cellAtIndex(0)->mapTo(&page, QPoint(0, 0)).x(), left);
    for (ZyForm* form : {first, second})
      QVERIFY(form->titleAtIndex(0)->width() >= first->titleAtIndex(1)->sizeHint().width());
    QVERIFY(first->cellAtIndex(0)->width() > 100);
  }

  void bothColumnsOfARectangleAreEquallyWide() {
    NumberMatrix matrix;
    matrix.resize(400, matrix.sizeHint().height());
    matrix.show();
    QVERIFY(QTest::qWaitForWindowExposed(&matrix));
    QVERIFY(qAbs(matrix.cellAtRow(0, 0)->width() - matrix.cellAtRow(0, 1)->width()) <= 20);
    QCOMPARE(matrix.cellAtRow(1, 1)->width(), matrix.cellAtRow(0, 1)->width());
  }
};

NORVEX_TEST(SmallControlsTest)
#include "small_controls_test.moc"
