// The shown page: its switch, the strip of small pictures, layers and a rectangle by its numbers.
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>
#include <memory>

#include "kit/test_main.h"
#include "kit/widget_texts.h"
#include "ui/pages/dock_title.h"
#include "ui/pages/layer_list.h"
#include "ui/pages/page_strip.h"
#include "ui/pages/page_switch.h"
#include "ui/pages/rectangle_dialog.h"

using namespace norvex;

namespace {

QToolButton* arrow(const QWidget& of, const QString& name) {
  for (auto* button : of.findChildren<QToolButton*>())
    if (button->accessibleName() == name) return button;
  return nullptr;
}

QList<int> told(const QSignalSpy& spy) {
  QList<int> pages;
  for (const QList<QVariant>& call : spy) pages << call.first().toInt();
  return pages;
}

bool takes(QObject* widget, QEvent::Type type, int key) {
  QKeyEvent event(type, key, Qt::NoModifier);
  event.ignore();
  QCoreApplication::sendEvent(widget, &event);
  return event.isAccepted();
}

double field(const RectangleDialog& dialog, const char* name) {
  return dialog.findChild<QDoubleSpinBox*>(QLatin1String(name))->value();
}

QImage plain(QSize size, const QColor& color) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(color);
  return image;
}

/// With so many pages, three of which are seen at once.
std::unique_ptr<PageStrip> shownStrip(int pages) {
  auto strip = std::make_unique<PageStrip>();
  strip->setCount(pages);
  strip->resize(160, 420);
  strip->show();
  if (!QTest::qWaitForWindowExposed(strip.get())) qFatal("the strip is not shown");
  return strip;
}

}  // namespace

class PagesTest : public QObject {
  Q_OBJECT
 private slots:
  // ---- the switch

  void pagesCountFromNoughtInsideAndFromOneOnTheScreen() {
    PageSwitch pages;
    QSignalSpy chosen(&pages, &PageSwitch::pageChosen);
    pages.setPages(4, 9);
    QCOMPARE(pages.numberField()->value(), 5);
    QCOMPARE(pages.findChild<QLabel*>()->text(), QStringLiteral("of 9"));
    QCOMPARE(chosen.size(), 0);
    arrow(pages, "Previous Page")->click();
    arrow(pages, "Next Page")->click();
    pages.numberField()->setValue(9);
    QCOMPARE(told(chosen), (QList<int>{3, 5, 8}));
  }

  void theArrowsEndWithTheDocument_data() {
    QTest::addColumn<int>("shown");
    QTest::addColumn<bool>("back");
    QTest::addColumn<bool>("on");
    QTest::newRow("first") << 0 << false << true;
    QTest::newRow("second") << 1 << true << true;
    QTest::newRow("last") << 2 << true << false;
  }
  void theArrowsEndWithTheDocument() {
    QFETCH(int, shown);
    PageSwitch pages;
    pages.setPages(shown, 3);
    QTEST(arrow(pages, "Previous Page")->isEnabled(), "back");
    QTEST(arrow(pages, "Next Page")->isEnabled(), "on");
  }

  void oneIsNoChoice() {
    PageSwitch pages;
    QVERIFY(pages.isHidden());
    pages.setPages(0, 2);
    QVERIFY(!pages.isHidden());
    pages.setPages(0, 1);
    QVERIFY(pages.isHidden());
  }

  void aTypedNumberIsTakenWithReturnAndPutBackWithEscape() {
    PageSwitch pages;
    pages.setPages(1, 9);
    QSignalSpy chosen(&pages, &PageSwitch::pageChosen), left(&pages, &PageSwitch::leftNumber);
    auto* number = pages.numberField();
    auto* text = number->findChild<QLineEdit*>();
    text->setText("7");
    QVERIFY(takes(number, QEvent::ShortcutOverride, Qt::Key_Escape));
    QCOMPARE(left.size(), 0);
    QVERIFY(takes(number, QEvent::KeyPress, Qt::Key_Escape));
    QCOMPARE(text->text(), QStringLiteral("2"));
    QCOMPARE(left.size(), 1);
    QCOMPARE(chosen.size(), 0);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
      text->setText(key == Qt::Key_Return ? "7" : "8");
      QVERIFY(takes(number, QEvent::KeyPress, key));
    }
    QCOMPARE(told(chosen), (QList<int>{6, 7}));
    QCOMPARE(left.size(), 3);
    takes(number, QEvent::KeyPress, Qt::Key_Up);
    takes(number, QEvent::KeyRelease, Qt::Key_Return);
    QCOMPARE(left.size(), 3);
  }

  void aNumberThatIsBeingTypedIsNoneYet() {
    PageSwitch pages;
    pages.setPages(1, 99);
    pages.show();
    pages.editNumber();
    QSignalSpy chosen(&pages, &PageSwitch::pageChosen);
    QTest::keyClicks(pages.numberField(), "47");
    QCOMPARE(told(chosen), QList<int>{});
    QTest::keyClick(pages.numberField(), Qt::Key_Return);
    QCOMPARE(told(chosen), QList<int>{46});
  }

  // ---- the strip

  void theStripTellsWhichPageIsChosenAndWhichWasSet() {
    PageStrip strip;
    QSignalSpy chosen(&strip, &PageStrip::pageChosen);
    strip.setCount(3);
    strip.setShownPage(1);
    QCOMPARE(chosen.size(), 0);
    QCOMPARE(strip.currentRow(), 1);
    QCOMPARE(strip.item(2)->text(), QStringLiteral("3"));
    QCOMPARE(strip.item(2)->data(Qt::AccessibleTextRole).toString(), QStringLiteral("Page 3"));
    strip.setCurrentRow(0);
    QCOMPARE(told(chosen), QList<int>{0});
    strip.setCount(1);
    QCOMPARE(strip.count(), 1);
    QCOMPARE(told(chosen), QList<int>{0});
  }

  void theNextThumbnailIsTheNearestToWhatIsSeen() {
    const auto shown = shownStrip(40);
    PageStrip& strip = *shown;
    QCOMPARE(strip.gridSize().height(), 140);
    const int middle = strip.viewport()->height() / 2 / 140;
    QCOMPARE(strip.nextWanted(), middle);
    strip.setThumbnail(middle, {});
    QCOMPARE(strip.nextWanted(), middle - 1);
    strip.setThumbnail(middle - 1, {});
    QCOMPARE(strip.nextWanted(), middle + 1);
    strip.verticalScrollBar()->setValue(140 * 30);
    QCOMPARE(strip.nextWanted(), 30 + middle);
    for (const int nowhere : {-1, 40}) strip.setThumbnail(nowhere, plain({4, 4}, Qt::red));
    for (int page = 0; page < 39; ++page) strip.setThumbnail(page, {});
    QCOMPARE(strip.nextWanted(), 39);
    strip.setThumbnail(39, {});
    QCOMPARE(strip.nextWanted(), -1);
    strip.setCount(2);
    QVERIFY(strip.nextWanted() >= 0);
  }

  void thumbnailsFarFromWhatIsSeenAreForgottenAndMadeAgain() {
    const auto shown = shownStrip(3000);
    PageStrip& strip = *shown;
    const auto isBlank = [&strip](int page) {
      const QImage icon = strip.item(page)->icon().pixmap(PageStrip::side, PageStrip::side).toImage();
      return icon.pixelColor(56, 56).alpha() == 0;
    };
    int kept = 0;
    for (int top = 0; top < 3000; top += 50) {
      strip.verticalScrollBar()->setValue(140 * top);
      for (int page = strip.nextWanted(); page >= 0; page = strip.nextWanted())
        strip.setThumbnail(page, plain({4, 4}, Qt::red));
      QVERIFY(!isBlank(top));
    }
    for (int page = 0; page < 3000; ++page) kept += isBlank(page) ? 0 : 1;
    QVERIFY2(kept > 0 && kept <= 4 * PageStrip::near + 1, qPrintable(QString::number(kept)));
    QVERIFY(isBlank(0));
    strip.setThumbnail(1, plain({4, 4}, Qt::red));  // what was still being made for a place that was left
    QVERIFY(isBlank(1));
    strip.verticalScrollBar()->setValue(0);
    QVERIFY(strip.nextWanted() >= 0 && strip.nextWanted() < 5);
  }

  void scrollingIsToldAndSoIsBeingShownAtAll() {
    PageStrip strip;
    strip.setCount(40);
    strip.resize(160, 420);
    QSignalSpy scrolled(&strip, &PageStrip::scrolled);
    strip.show();
    QVERIFY(!scrolled.isEmpty());
    scrolled.clear();
    strip.verticalScrollBar()->setValue(200);
    QCOMPARE(scrolled.size(), 1);
  }

  void aThumbnailLiesOnPaperInTheMiddleOfItsSquare() {
    PageStrip strip;
    strip.setCount(1);
    QImage half = QImage(50, 100, QImage::Format_ARGB32);
    half.fill(Qt::transparent);
    for (int y = 0; y < 50; ++y)
      for (int x = 0; x < 50; ++x) half.setPixelColor(x, y, Qt::red);
    strip.setThumbnail(0, half);
    const QImage shown = strip.item(0)->icon().pixmap(PageStrip::side, PageStrip::side).toImage();
    QCOMPARE(shown.size(), QSize(112, 112));
    QCOMPARE(shown.pixelColor(56, 20), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(56, 90), QColor(Qt::white));
    QCOMPARE(shown.pixelColor(20, 56).alpha(), 0);
    QCOMPARE(shown.pixelColor(92, 56).alpha(), 0);
    QCOMPARE(shown.pixelColor(32, 20), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(80, 20), QColor(Qt::red));
    strip.setThumbnail(0, plain({100, 100}, Qt::red));
    const QImage square = strip.item(0)->icon().pixmap(PageStrip::side, PageStrip::side).toImage();
    for (const QPoint& corner : {QPoint(0, 0), QPoint(111, 0), QPoint(0, 111), QPoint(111, 111)})
      QVERIFY(square.pixelColor(corner).alpha() > 0);
  }

  void asManyThumbnailsAreWantedOnEitherSide() {
    const auto shown = shownStrip(3000);
    PageStrip& strip = *shown;
    strip.verticalScrollBar()->setValue(140 * 1000);
    QList<int> wanted;
    for (int page = strip.nextWanted(); page >= 0; page = strip.nextWanted()) {
      wanted << page;
      strip.setThumbnail(page, {});
    }
    std::sort(wanted.begin(), wanted.end());
    QCOMPARE(wanted.size(), 2 * PageStrip::near + 1);
    QCOMPARE(wanted.last() - wanted.first(), 2 * PageStrip::near);
  }

  void theStripHasRoomForAThumbnail() {
    const PageStrip strip;
    QVERIFY(strip.minimumWidth() >= PageStrip::side);
    QVERIFY(strip.gridSize().width() >= PageStrip::side);
    QCOMPARE(strip.sizeHint().width(), strip.minimumWidth());
  }

  // ---- layers

  void aLayerThatIsSwitchedIsToldWithAllOthers() {
    LayerList list;
    QSignalSpy chosen(&list, &LayerList::layersChosen);
    list.setLayers({{"Roads", true}, {{}, false}, {"<b>Names</b>", true}});
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.item(1)->text(), QStringLiteral("Layer 2"));
    QCOMPARE(list.item(1)->checkState(), Qt::Unchecked);
    QCOMPARE(list.item(2)->text(), QStringLiteral("<b>Names</b>"));
    QCOMPARE(list.item(2)->toolTip(), QStringLiteral("&lt;b&gt;Names&lt;/b&gt;"));
    QCOMPARE(chosen.size(), 0);
    list.item(1)->setCheckState(Qt::Checked);
    QCOMPARE(chosen.size(), 1);
    const auto layers = chosen.first().first().value<QList<PictureLayer>>();
    QCOMPARE(layers.size(), 3);
    QVERIFY(layers.at(0).shown && layers.at(1).shown && layers.at(2).shown);
    list.item(1)->setText("Water");  // no switch
    QCOMPARE(chosen.size(), 1);
    list.setLayers({{"Roads", false}});
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.item(0)->checkState(), Qt::Unchecked);
    QCOMPARE(chosen.size(), 1);
  }

  void aListOfLayersIsAsWideAsItsNamesWithinBounds() {
    LayerList list;
    const int line = list.fontMetrics().height();
    list.setLayers({{"A", true}});
    QCOMPARE(list.sizeHint().width(), 9 * line);
    list.setLayers({{QString(200, u'W'), true}});
    QCOMPARE(list.sizeHint().width(), 27 * line / 2);
  }

  void aListOfLayersIsNoWiderForTheWidthOfAFontsLetters() {
    LayerList narrow, wide;
    QFont font = narrow.font();
    font.setStretch(50);
    narrow.setFont(font);
    font.setStretch(200);
    wide.setFont(font);
    QVERIFY(wide.fontMetrics().averageCharWidth() > narrow.fontMetrics().averageCharWidth());
    QCOMPARE(wide.fontMetrics().height(), narrow.fontMetrics().height());
    for (LayerList* list : {&narrow, &wide}) list->setLayers({{"A", true}});
    QCOMPARE(wide.sizeHint().width(), narrow.sizeHint().width());
  }

  // ---- a rectangle by its numbers

  void aRectangleIsTypedInTheReadersUnit() {
    const double mm = pointsOf(LengthUnit::Millimetres);
    RectangleDialog dialog({72, 36, 144, 90}, {288, 216}, LengthUnit::Millimetres, nullptr);
    QCOMPARE(field(dialog, "rectangleLeft"), 25.4);
    QCOMPARE(field(dialog, "rectangleBottom"), 12.7);
    QCOMPARE(field(dialog, "rectangleWidth"), 50.8);
    QCOMPARE(field(dialog, "rectangleHeight"), 31.75);
    QVERIFY(QLineF(dialog.rectangle().topLeft(), QPointF(72, 36)).length() < 0.01);
    auto* width = dialog.findChild<QDoubleSpinBox*>("rectangleWidth");
    QCOMPARE(width->decimals(), 3);
    width->setValue(1000);
    QVERIFY(qAbs(dialog.rectangle().width() - 288) < 0.001 * mm);
    auto* height = dialog.findChild<QDoubleSpinBox*>("rectangleHeight");
    height->setValue(-1);
    QCOMPARE(dialog.rectangle().height(), 0.0);
    height->setValue(10);
    QCOMPARE(dialog.rectangle().height(), 10 * mm);
  }

  void whatTheFieldsSay() {
    const RectangleDialog dialog({0, 0, 10, 10}, {288, 216}, LengthUnit::Points, nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Select Rectangle"));
    QCOMPARE(kit::labelsOf(dialog), QStringList({"From the left:", "From below:", "Width:", "Height:"}));
    QCOMPARE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->text(),
             QStringLiteral("Select"));
    const auto* left = dialog.findChild<QDoubleSpinBox*>("rectangleLeft");
    QVERIFY(left->minimumWidth() > left->fontMetrics().horizontalAdvance(QStringLiteral("00000.000 mm")));
    const PageSwitch pages;
    QCOMPARE(pages.numberField()->accessibleName(), QStringLiteral("Page"));
    QCOMPARE(pages.numberField()->toolTip(), QStringLiteral("Page"));
    QCOMPARE(LayerList().accessibleName(), QStringLiteral("Layers"));
    QCOMPARE(PageStrip().accessibleName(), QStringLiteral("Pages"));
  }

  void theButtonOfADockClosesIt() {
    QDockWidget dock("Pages");
    auto* title = new DockTitle(dock);
    dock.setTitleBarWidget(title);
    dock.show();
    QCOMPARE(title->findChild<QLabel*>()->text(), QStringLiteral("Pages"));
    arrow(*title, "Close")->click();
    QVERIFY(dock.isHidden());
  }
};

NORVEX_TEST(PagesTest)
#include "pages_test.moc"
