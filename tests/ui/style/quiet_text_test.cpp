// Secondary text keeps its colour when the desktop goes from light to dark.
#include "ui/style/quiet_text.h"

#include <QLabel>

#include "kit/desktop_palette.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

const QPalette kLight(QColor(240, 240, 240), QColor(250, 250, 250));
const QPalette kDark(QColor(60, 60, 60), QColor(30, 30, 30));

QColor colorOf(const QWidget& widget) {
  return widget.palette().color(QPalette::Active, QPalette::WindowText);
}

}  // namespace

class QuietTextTest : public QObject {
  Q_OBJECT
 private slots:
  void theColourIsMixedTwoToOneWithTheGround() {
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(30, 60, 90));
    palette.setColor(QPalette::Window, QColor(240, 210, 0));
    QCOMPARE(quietTextColor(palette), QColor(100, 110, 60));
  }

  void aDarkGroundIsADarkScheme() {
    QVERIFY(isDarkScheme(kDark));
    QVERIFY(!isDarkScheme(kLight));
  }

  void theTextFollowsItsParent() {
    QWidget parent;
    parent.setPalette(kLight);
    auto* text = new QLabel(&parent);
    makeQuiet(*text);
    QCOMPARE(colorOf(*text), quietTextColor(kLight));
    parent.setPalette(kDark);
    QCOMPARE(colorOf(*text), quietTextColor(kDark));
    makeQuiet(*text);  // a second time changes nothing
    QCOMPARE(colorOf(*text), quietTextColor(kDark));
    QWidget light;
    light.setPalette(kLight);
    text->setParent(&light);
    QCOMPARE(colorOf(*text), quietTextColor(kLight));
  }

  void theTextFollowsTheDesktop() {
    const kit::DesktopPalette light(kLight);
    QWidget parent;
    auto* inner = new QWidget(&parent);
    auto* text = new QLabel(inner);
    QLabel alone;
    makeQuiet(*text);
    makeQuiet(alone);
    const kit::DesktopPalette dark(kDark);
    QCoreApplication::processEvents();
    QCOMPARE(colorOf(*text), quietTextColor(kDark));
    QCOMPARE(colorOf(alone), quietTextColor(kDark));
  }
};

NORVEX_TEST(QuietTextTest)
#include "quiet_text_test.moc"
