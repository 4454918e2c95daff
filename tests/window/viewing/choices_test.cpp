// What is chosen once for all windows, and what a window shows of it.
#include <QAction>
#include <QCheckBox>
#include <QMainWindow>
#include <QScreen>
#include <QToolButton>

#include <algorithm>

#include "kit/test_main.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/viewing/real_size.h"
#include "window/viewing/selection_history.h"
#include "window/viewing/view_choices.h"
#include "window/viewing/view_preferences.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

struct Shown {
  Shown() : c(fixture.loadedEps()) { c.window()->show(); }
  [[nodiscard]] QAction* action(const char* name) const {
    return c.window()->findChild<QAction*>(QString::fromLatin1(name));
  }
  /// Of the widget that shows the picture, at a view point.
  [[nodiscard]] QColor drawn(double x, double y) const {
    return c.viewWidget()->grab().toImage().pixelColor(c.viewWidget()->fromView({x, y}).toPoint());
  }
  WindowFixture fixture;
  MainWindowController& c;
};

Preference preference(const char* name) {
  const QList<Preference> all = viewPreferences();
  const auto found = std::find_if(all.cbegin(), all.cend(),
                                  [&](const Preference& each) { return each.name == QLatin1String(name); });
  if (found == all.cend()) qFatal("no preference %s", name);
  return *found;
}

}  // namespace

class ChoicesTest : public QObject {
  Q_OBJECT
 private slots:
  void beforeAnythingWasChosen() {
    const WindowFixture fixture;  // nothing is kept
    const ViewChoices& choices = ViewChoices::shared();
    QVERIFY(choices.isOn(ViewChoices::WindowFitsPicture) && choices.isOn(ViewChoices::ReloadByItself));
    QVERIFY(!choices.isOn(ViewChoices::DimOutside) && !choices.isOn(ViewChoices::Checkerboard));
    QCOMPARE(choices.unit(), LengthUnit::Points);
  }

  void theMenuOfEveryWindowFollowsAChoice_data() {
    QTest::addColumn<QString>("preferred");
    QTest::addColumn<QString>("action");
    QTest::newRow("size rule") << "preferFits"
                               << "windowFitsPictureAction";
    QTest::newRow("dim") << "preferDim"
                         << "dimOutsideAction";
    QTest::newRow("reload") << "preferReload"
                            << "reloadByItselfAction";
  }
  void theMenuOfEveryWindowFollowsAChoice() {
    QFETCH(QString, preferred);
    QFETCH(QString, action);
    Shown f;
    WindowFixture second;
    qputenv("XDG_STATE_HOME", f.fixture.folder.path().toUtf8());  // both are windows of one user
    MainWindowController& other = second.loadedEps();
    const Preference choice = preference(preferred.toLatin1());
    const bool before = choice.read().toBool();
    QAction* first = f.action(action.toLatin1());
    auto* too = other.window()->findChild<QAction*>(action);
    QCOMPARE(first->isChecked(), before);
    choice.write(!before);
    QCOMPARE(first->isChecked(), !before);
    QCOMPARE(too->isChecked(), !before);
    first->setChecked(before);
    QCOMPARE(choice.read().toBool(), before);
    QCOMPARE(too->isChecked(), before);
  }

  void theUnitOfThePreferencesIsTheOneThatIsClickedThrough() {
    Shown f;
    const Preference unit = preference("preferUnit");
    QCOMPARE(unit.options.size(), 4);
    unit.write(int(LengthUnit::Inches));
    auto* field = f.c.window()->findChild<QToolButton*>("pointerReadout");
    QCOMPARE(field->accessibleDescription(), QStringLiteral("in"));
    field->click();
    QCOMPARE(unit.read().toInt(), int(LengthUnit::Picas));
  }

  void aUnitIsNotToldWithoutAPicture() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("no picture", "a.eps", NorvexEPSType);
    QVERIFY(!c.view()->imageRep());
    QCOMPARE(c.window()->findChild<QToolButton*>("pointerReadout")->text(), QString());
    fixture.write(epsBytes(), "a.eps");
    fixture.revert();
    QTRY_COMPARE(c.window()->findChild<QToolButton*>("pointerReadout")->text(),
                 QStringLiteral("200 × 100 pt"));
  }

  void newWindowsShowACheckerboardByChoice() {
    WindowFixture fixture;
    preference("preferCheckerboard").write(true);
    MainWindowController& c = fixture.loadedEps();
    QVERIFY(!c.useBackgroundSwitch()->isChecked());
    QVERIFY(!c.scrollArea()->drawsBackground());
    preference("preferCheckerboard").write(false);
    WindowFixture plain;
    QVERIFY(plain.loadedEps().useBackgroundSwitch()->isChecked());
  }

  void aFreeWindowShowsThePictureOnTheWindowsOwnGround() {
    Shown f;
    const QColor paper = f.c.scrollArea()->backgroundColor();
    f.action("windowFitsPictureAction")->setChecked(false);
    f.c.window()->resize(700, 600);
    QCoreApplication::processEvents();
    QCOMPARE(f.drawn(160, 100), f.c.viewWidget()->palette().color(QPalette::Window));
    f.action("windowFitsPictureAction")->setChecked(true);
    QCoreApplication::processEvents();
    const QRectF& bounds = f.c.view()->bounds();
    if (f.c.viewWidget()->width() > bounds.width() + 40) QCOMPARE(f.drawn(bounds.right() + 18, 0), paper);
  }

  void anEdgeTellsWhereThePictureEnds() {
    Shown f;
    f.action("windowFitsPictureAction")->setChecked(false);
    f.c.window()->resize(700, 600);
    QCoreApplication::processEvents();
    const QColor ground = f.drawn(160, 100);
    QVERIFY2(f.drawn(0, -51) != ground, "below the lower edge");
    f.c.rotateChange(45);  // where the corner of the box is nothing of the page is
    QCoreApplication::processEvents();
    QCOMPARE(f.drawn(f.c.view()->bounds().right() - 3, f.c.view()->bounds().bottom() - 3), ground);
  }

  void anInchOfThePictureIsAnInchOfTheScreen_data() {
    QTest::addColumn<double>("physical");
    QTest::addColumn<double>("logical");
    QTest::addColumn<double>("factor");
    QTest::newRow("a usual screen") << 108.0 << 96.0 << 1.5;
    QTest::newRow("a screen of 72") << 72.0 << 96.0 << 1.0;
    QTest::newRow("a wall") << 45.0 << 96.0 << 0.625;
    QTest::newRow("further off than any wall") << 44.0 << 96.0 << 96.0 / 72;
    QTest::newRow("a telephone") << 400.0 << 96.0 << 400.0 / 72;
    QTest::newRow("finer than any telephone") << 401.0 << 96.0 << 96.0 / 72;
    QTest::newRow("one that tells nothing") << 0.0 << 144.0 << 2.0;
    QTest::newRow("one that cannot be") << 5000.0 << 72.0 << 1.0;
    QTest::newRow("one of no end") << 0.0 << qInf() << 1.0;
    QTest::newRow("one that is less than nothing") << 0.0 << -96.0 << 1.0;
    QTest::newRow("not a number") << qQNaN() << qQNaN() << 1.0;
  }
  void anInchOfThePictureIsAnInchOfTheScreen() {
    QFETCH(double, physical);
    QFETCH(double, logical);
    QFETCH(double, factor);
    QCOMPARE(realSizeFactor(physical, logical), factor);
  }

  void realSizeIsAZoom() {
    Shown f;
    const QScreen* screen = f.c.window()->screen();
    f.action("realSizeAction")->trigger();
    QCOMPARE(f.c.zoomFactor(), realSizeFactor(screen->physicalDotsPerInch(), screen->logicalDotsPerInch()));
  }
};

NORVEX_TEST(ChoicesTest)
#include "choices_test.moc"
