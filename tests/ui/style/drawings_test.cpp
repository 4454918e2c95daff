// Icons, the pattern of what is not painted, and cards.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <algorithm>

#include "kit/desktop_palette.h"
#include "kit/test_main.h"
#include "ui/style/checkerboard.h"
#include "ui/style/floating_card.h"
#include "ui/style/symbolic_icon.h"

using namespace norvex;

namespace {

const QList<Symbol> kAll{Symbol::Inspector,  Symbol::Copy,        Symbol::Print,   Symbol::SaveTo,
                         Symbol::SaveAs,     Symbol::ZoomIn,      Symbol::ZoomOut, Symbol::Fit,
                         Symbol::RotateLeft, Symbol::RotateRight, Symbol::Open,    Symbol::Reload};

QImage drawn(Symbol symbol, QIcon::Mode mode = QIcon::Normal, int side = 96) {
  return symbolicIcon(symbol)
      .pixmap(QSize(side, side), 1, mode)
      .toImage()
      .convertToFormat(QImage::Format_ARGB32);
}

QImage blank(QSize size) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  return image;
}

/// What is painted at all; pixels.
QRect inked(const QImage& image) {
  QRect all;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) > 40) all |= QRect(x, y, 1, 1);
  return all;
}

int strongest(const QImage& image) {
  int most = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) most = std::max(most, qAlpha(image.pixel(x, y)));
  return most;
}

}  // namespace

class DrawingsTest : public QObject {
  Q_OBJECT
 private slots:
  void everyIconIsAnotherAndStandsInTheMiddleWithRoomAround() {
    QList<QImage> before;
    for (const Symbol symbol : kAll) {
      const QImage image = drawn(symbol);
      QVERIFY(!before.contains(image));
      before << image;
      // 96 pixels for 24 units: three units stay free, and what is drawn leans by one at most.
      const QRect ink = inked(image);
      QVERIFY2(QRect(9, 9, 78, 78).contains(ink), qPrintable(QString::number(int(symbol))));
      QVERIFY2((ink.center() - QPoint(48, 48)).manhattanLength() <= 8,
               qPrintable(QString::number(int(symbol))));
      QVERIFY(qMax(ink.width(), ink.height()) >= 60);
    }
  }

  void turningLeftIsTheMirrorOfTurningRight() {
    const QImage left = drawn(Symbol::RotateLeft), right = drawn(Symbol::RotateRight).mirrored(true, false);
    for (int y = 0; y < 96; ++y)
      for (int x = 0; x < 96; ++x) QVERIFY(qAbs(qAlpha(left.pixel(x, y)) - qAlpha(right.pixel(x, y))) <= 16);
  }

  void iconsTakeTheColourOfTheTextAndFadeWhereTheyCannotBePressed() {
    QPalette red = QApplication::palette();
    red.setColor(QPalette::WindowText, QColor(200, 0, 0));
    red.setColor(QPalette::ButtonText, QColor(200, 0, 0));
    const kit::DesktopPalette desktop(red);
    const QImage image = drawn(Symbol::Copy), faint = drawn(Symbol::Copy, QIcon::Disabled);
    const QRect ink = inked(image);
    QVERIFY(!ink.isEmpty());
    for (int y = ink.top(); y <= ink.bottom(); ++y)
      for (int x = ink.left(); x <= ink.right(); ++x)
        if (qAlpha(image.pixel(x, y)) == 255) QCOMPARE(image.pixelColor(x, y), QColor(200, 0, 0));
    QVERIFY(strongest(faint) < strongest(image));
  }

  void squaresOfEightPixelsTakeTurnsFromTheOriginOn() {
    QImage image(48, 48, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    QPalette light;
    light.setColor(QPalette::Window, Qt::white);
    light.setColor(QPalette::WindowText, Qt::black);
    drawCheckerboard(painter, QRectF(0, 0, 48, 48), light);
    drawCheckerboard(painter, QRectF(13, 5, 20, 20), light);  // joins what is there
    painter.end();
    const QRgb first = image.pixel(0, 0), second = image.pixel(8, 0);
    QVERIFY(first != second);
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 48; ++x) QCOMPARE(image.pixel(x, y), (x / 8 + y / 8) % 2 == 0 ? first : second);
    QVERIFY(qAbs(qGray(first) - qGray(second)) < 30);
  }

  void aCardIsRoundAtEachCornerAlike() {
    QImage image = blank({60, 40});
    QPainter painter(&image);
    drawFloatingCard(painter, {0, 0, 60, 40}, QColor(10, 200, 30), QPalette());
    painter.end();
    QCOMPARE(image.pixelColor(30, 20), QColor(10, 200, 30));
    QCOMPARE(image.pixelColor(1, 20), QColor(10, 200, 30));
    QVERIFY(image.pixelColor(0, 20) != QColor(10, 200, 30) && image.pixelColor(0, 20).alpha() > 0);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    // As far across as down.
    for (int i = 0; i < 12; ++i)
      for (int j = 0; j < 12; ++j) QVERIFY(qAbs(qAlpha(image.pixel(i, j)) - qAlpha(image.pixel(j, i))) <= 24);
  }
};

NORVEX_TEST(DrawingsTest)
#include "drawings_test.moc"
