// Panels on screens that are too small for them.
#include "ui/panels/panel_body.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>

#include "kit/test_main.h"
#include "ui/panels/window_place.h"

using namespace norvex;

namespace {

QRect screenRoom() {
  return roomOn(*QGuiApplication::primaryScreen());
}

/// A panel of so many numbers one below another.
struct Panel {
  explicit Panel(int rows) {
    auto* contents = new QWidget;
    column = new QVBoxLayout(contents);
    for (int i = 0; i < rows; ++i) {
      numbers << new QSpinBox;
      column->addWidget(numbers.last());
    }
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    body = fillPanel(dialog, contents, buttons);
  }
  void show() {
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCoreApplication::processEvents();
  }
  [[nodiscard]] QRect placeOf(const QWidget& widget) const {
    return {widget.mapTo(&dialog, QPoint()), widget.size()};
  }
  /// True if the whole of a number is where it is not scrolled away.
  [[nodiscard]] bool isSeen(const QWidget& number) const {
    return placeOf(*body->viewport()).contains(placeOf(number));
  }

  QDialog dialog;
  QVBoxLayout* column = nullptr;
  PanelBody* body = nullptr;
  QDialogButtonBox* buttons = nullptr;
  QList<QSpinBox*> numbers;
};

void wheel(QWidget& widget) {
  const QPointF at = widget.rect().center();
  QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace

class PanelBodyTest : public QObject {
  Q_OBJECT
 private slots:
  void whereThereIsRoomNothingIsScrolled() {
    Panel p(4);
    p.show();
    QCOMPARE(p.body->verticalScrollBar()->maximum(), 0);
    QCOMPARE(p.body->horizontalScrollBar()->maximum(), 0);
    for (const QSpinBox* each : p.numbers) QVERIFY(p.isSeen(*each));
    p.dialog.resize(10, 10);
    QVERIFY2(p.isSeen(*p.numbers.last()), "nobody makes it smaller than its choices");
  }

  void whereThereIsNoneTheButtonsStay() {
    Panel p(200);
    p.show();
    QVERIFY(p.dialog.height() <= screenRoom().height());
    QVERIFY(p.dialog.height() > screenRoom().height() * 3 / 4);
    QVERIFY(p.dialog.rect().contains(p.placeOf(*p.buttons)));
    QVERIFY(p.body->verticalScrollBar()->maximum() > 0);
    QCOMPARE(p.body->horizontalScrollBar()->maximum(), 0);
  }

  void halvesThatFillTheScreenStandBelowEachOtherWhereABarStandsBesideThem() {
    Panel p(200);
    QWidget& contents = *p.body->widget();
    contents.setMinimumWidth(100000);
    const int room = p.body->minimumSizeHint().width();
    contents.setMinimumWidth(0);
    auto* row = new QHBoxLayout;
    auto *left = new QWidget, *right = new QWidget;
    left->setMinimumSize(100, 10);
    right->setMinimumSize(100, 10);
    row->addWidget(left);
    row->addWidget(right);
    p.column->insertLayout(0, row);
    right->setMinimumWidth(100 + room - contents.minimumSizeHint().width());
    row->invalidate();  // nothing is shown yet that would tell of its size
    QCOMPARE(contents.minimumSizeHint().width(), room);
    p.body->stackWhereNarrow(*row);
    p.show();
    QCOMPARE(p.body->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(row->direction(), QBoxLayout::TopToBottom);
  }

  void aPanelThatGrowsStaysOnTheScreen() {
    Panel p(3);
    p.show();
    p.dialog.move(screenRoom().left() + 40, screenRoom().bottom() - p.dialog.height() - 10);
    QCoreApplication::processEvents();
    const int left = p.dialog.geometry().left();
    for (int i = 0; i < 6; ++i) p.column->addWidget(new QLabel("So many words more."));
    QTRY_VERIFY(p.dialog.geometry().bottom() <= screenRoom().bottom());
    QCOMPARE(p.body->verticalScrollBar()->maximum(), 0);
    QCOMPARE(p.dialog.geometry().left(), left);
  }

  /// Until the window manager has placed a panel, its frame seems to be beyond the screen's corner.
  void aPanelAtTheUpperLeftCornerIsLeftThere() {
    Panel p(3);
    p.show();
    p.dialog.move(screenRoom().topLeft() - QPoint(9, 9));
    QCoreApplication::processEvents();
    const int height = p.dialog.height();
    p.column->addWidget(new QLabel("So many words more."));
    QTRY_VERIFY(p.dialog.height() > height);
    QCoreApplication::processEvents();
    QVERIFY(p.dialog.geometry().left() < 0 && p.dialog.geometry().top() < 0);
  }

  void itScrollsToWhatGetsTheKeyboard() {
    Panel p(200);
    p.show();
    QVERIFY(!p.isSeen(*p.numbers.at(150)));
    p.numbers.at(150)->setFocus(Qt::ShortcutFocusReason);
    QVERIFY(p.isSeen(*p.numbers.at(150)));
    p.numbers.at(2)->setFocus(Qt::TabFocusReason);
    QVERIFY(p.isSeen(*p.numbers.at(2)));
  }

  void aWheelThatScrollsChangesNoNumber() {
    Panel p(200);
    p.show();
    p.numbers.first()->setFocus();
    p.numbers.at(3)->setValue(50);
    p.numbers.first()->setValue(50);
    wheel(*p.numbers.at(3));
    QCOMPARE(p.numbers.at(3)->value(), 50);
    wheel(*p.numbers.first());
    QCOMPARE(p.numbers.first()->value(), 49);  // it is the one that is worked with
    Panel small(2);
    small.show();
    small.numbers.last()->setValue(50);
    wheel(*small.numbers.last());
    QCOMPARE(small.numbers.last()->value(), 49);
  }

  void keysThatNothingElseTakesScroll() {
    Panel p(200);
    p.show();
    QPushButton* const ok = p.buttons->button(QDialogButtonBox::Ok);
    ok->setFocus();
    const QScrollBar& bar = *p.body->verticalScrollBar();
    QTest::keyClick(ok, Qt::Key_PageDown);
    QCOMPARE(bar.value(), bar.pageStep());
    QTest::keyClick(ok, Qt::Key_End);
    QCOMPARE(bar.value(), bar.maximum());
    QTest::keyClick(ok, Qt::Key_PageUp);
    QCOMPARE(bar.value(), bar.maximum() - bar.pageStep());
    QTest::keyClick(ok, Qt::Key_Home);
    QCOMPARE(bar.value(), 0);
    p.numbers.first()->setFocus();
    QTest::keyClick(p.numbers.first(), Qt::Key_PageUp);
    QCOMPARE(p.numbers.first()->value(), 10);
    QCOMPARE(bar.value(), 0);
  }

  void aRowThatIsTooWideIsStacked() {
    QDialog dialog;
    auto* contents = new QWidget;
    auto* row = new QHBoxLayout(contents);
    for (int i = 0; i < 2; ++i) {
      auto* half = new QWidget;
      half->setMinimumSize(screenRoom().width() * 2 / 5, 20);
      row->addWidget(half);
    }
    PanelBody* body = fillPanel(dialog, contents, new QDialogButtonBox);
    body->stackWhereNarrow(*row);
    QCOMPARE(row->direction(), QBoxLayout::LeftToRight);
    row->itemAt(0)->widget()->setMinimumWidth(screenRoom().width() * 4 / 5);
    body->stackWhereNarrow(*row);
    QCOMPARE(row->direction(), QBoxLayout::TopToBottom);
    body->stackWhereNarrow(*row, true);
    QCOMPARE(row->direction(), QBoxLayout::BottomToTop);
  }
};

NORVEX_TEST(PanelBodyTest)
#include "panel_body_test.moc"
