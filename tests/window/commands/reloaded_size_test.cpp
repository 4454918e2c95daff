// A picture that has another size when it is read again, while the angle stays at 0.
#include <QLabel>
#include <QSignalSpy>

#include "display/norvex_view.h"
#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QByteArray epsOfSize(const QSize& size) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 " + QByteArray::number(size.width()) + ' ' +
         QByteArray::number(size.height()) + "\n%%EndComments\n";
}

MemoryPicture svgOfSize(const QSize& size) {
  MemoryPicture picture;
  picture.facts.pageBounds = {QRectF(QPointF(), size)};
  picture.facts.viewBox = QRectF(QPointF(), size);
  return picture;
}

}  // namespace

class ReloadedSizeTest : public QObject {
  Q_OBJECT
 private slots:
  void theViewAndTheWindowTakeTheNewSize_data() {
    QTest::addColumn<bool>("svg");
    QTest::addColumn<bool>("inPlace");
    QTest::addColumn<QSize>("after");
    for (const bool svg : {false, true})
      for (const bool inPlace : {false, true})
        for (const QSize after : {QSize(500, 300), QSize(900, 700), QSize(600, 300)})
          QTest::addRow("%s %s, %d x %d", svg ? "SVG" : "EPS", inPlace ? "from the bar" : "by the command",
                        after.width(), after.height())
              << svg << inPlace << after;
  }
  void theViewAndTheWindowTakeTheNewSize() {
    QFETCH(bool, svg);
    QFETCH(bool, inPlace);
    QFETCH(QSize, after);
    const QSize before(600, 500);
    const QString name = svg ? "a.svg" : "a.eps";
    WindowFixture fixture;
    const auto give = [&](const QSize& size) {
      if (svg) fixture.service.setPicture(svgOfSize(size));
      return svg ? QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>") : epsOfSize(size);
    };
    MainWindowController& c =
        fixture.loaded(give(before), name, svg ? UTTypeSVG().identifier() : QString(NorvexEPSType));
    c.window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(c.window()));
    const double angle = c.view()->rotate();
    QCOMPARE(c.view()->frame().size(), QSizeF(before));
    c.view()->selectBounds();

    fixture.write(give(after), name);
    if (inPlace) {
      c.fileDidChangeOnDisk();
      emit c.messageBar()->actionChosen();
      QTRY_VERIFY(!c.isReading());
    } else {
      fixture.revert();
    }
    QCoreApplication::processEvents();
    QCOMPARE(c.view()->rotate(), angle);
    QCOMPARE(c.view()->imageSize(), QSizeF(after));
    QCOMPARE(c.view()->frame().size(), QSizeF(after));
    QCOMPARE(c.view()->bounds(), QRectF(QPointF(-after.width() / 2.0, -after.height() / 2.0), QSizeF(after)));
    QVERIFY(c.view()->bounds().contains(c.view()->selectRect()));
    // The largest window shows the picture whole, without a strip of what was there.
    c.window()->resize(c.window()->maximumSize());
    QCoreApplication::processEvents();
    QCOMPARE(c.zoomingScrollView()->documentViewVisibleRect().size(), QSizeF(after));
  }

  void aSelectionThatStaysIsToldAgain() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded(epsOfSize({600, 500}), "a.eps", NorvexEPSType);
    c.window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(c.window()));
    c.view()->selectBounds();
    const QString start = c.startPoint->text(), end = c.endPoint->text();
    QVERIFY(!start.isEmpty() && !end.isEmpty());
    QSignalSpy shown(&c, &MainWindowController::documentShown);
    c.reload();
    QTRY_COMPARE(shown.size(), 1);
    QVERIFY(!c.view()->selectRect().isEmpty());
    QCOMPARE(c.startPoint->text(), start);
    QCOMPARE(c.endPoint->text(), end);
  }
};

NORVEX_TEST(ReloadedSizeTest)
#include "reloaded_size_test.moc"
