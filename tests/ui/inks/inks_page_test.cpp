// The list of inks, its switches, and what is told under the pointer.
#include "ui/inks/inks_page.h"

#include <QCheckBox>
#include <QHash>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTranslator>
#include <QTreeWidget>

#include <algorithm>

#include "kit/test_main.h"
#include "ui/inks/separation_view.h"

using namespace norvex;

namespace {

PageInks page(const QStringList& spots = {"Gold"}) {
  PageInks page;
  page.pixels = QSize(4, 2);
  for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"})
    page.inks << Ink{name, false, {}, 0.25, 0.1};
  for (const QString& name : spots) page.inks << Ink{name, true, ProcessInks{0, 0, 255, 0}, 0.5, 0.5};
  page.plates = QByteArray(page.plateBytes() * page.inks.size(), '\0');
  return page;
}

/// Another language, as long as it lives.
class German final : public QTranslator {
 public:
  German() {
    QLocale::setDefault(QLocale("de_DE"));
    QCoreApplication::installTranslator(this);
  }
  ~German() override {
    QCoreApplication::removeTranslator(this);
    QLocale::setDefault(QLocale::c());
  }
  QString translate(const char*, const char* key, const char*, int) const override {
    const QHash<QByteArray, QString> words{
        {"Cyan", "Türkis"}, {"Magenta", "Purpur"}, {"Yellow", "Gelb"}, {"Black", "Schwarz"}};
    return words.value(key);
  }
  bool isEmpty() const override { return false; }
};

QTreeWidget& listOf(InksPage& page) {
  return *page.findChild<QTreeWidget*>();
}

QPushButton& button(InksPage& page, const QString& text) {
  for (auto* one : page.findChildren<QPushButton*>())
    if (one->text() == text) return *one;
  qFatal("there is no such button");
}

QCheckBox& box(InksPage& page, const QString& text) {
  for (auto* one : page.findChildren<QCheckBox*>())
    if (one->text() == text) return *one;
  qFatal("there is no such box");
}

QStringList texts(const InksPage& page) {
  QStringList all;
  for (const auto* label : page.findChildren<QLabel*>())
    if (!label->isHidden()) all << label->text();
  return all;
}

}  // namespace

class InksPageTest : public QObject {
  Q_OBJECT
 private slots:
  void everyInkIsListedWithWhatItCovers() {
    InksPage shown;
    shown.showInks(page(), 240);
    const QTreeWidget& list = listOf(shown);
    QCOMPARE(list.topLevelItemCount(), 5);
    QCOMPARE(list.topLevelItem(0)->text(0), "Cyan");
    QCOMPARE(list.topLevelItem(0)->text(1), "25.0 %");
    QCOMPARE(list.topLevelItem(4)->text(0), "Gold");
    QCOMPARE(list.topLevelItem(4)->text(1), "50.0 %");
    const QImage swatch = list.topLevelItem(4)->icon(0).pixmap(14, 14).toImage();
    QCOMPARE(QColor(swatch.pixel(swatch.rect().center())), QColor(255, 242, 0));
    QVERIFY(texts(shown).contains("Most ink in one place: 240 %"));
    QCOMPARE(shown.choice().shown, QList<bool>(5, true));
  }

  void processInksAndNumbersAreInTheUsersLanguage() {
    const German german;
    InksPage shown;
    shown.showInks(page({"Black"}), 240);
    const QTreeWidget& list = listOf(shown);
    const QStringList words{"Türkis", "Purpur", "Gelb", "Schwarz"};
    for (int i = 0; i < 4; ++i) QCOMPARE(list.topLevelItem(i)->text(0), words.at(i));
    QCOMPARE(list.topLevelItem(4)->text(0), "Black");  // the document's own word
    QCOMPARE(list.topLevelItem(0)->text(1), "25,0 %");
  }

  void nothingLiesAboveAnythingElseWhereThereIsNoRoom() {
    QWidget window;
    window.resize(300, 200);
    InksPage shown(&window);
    shown.showInks(page(), 240);
    shown.resize(window.size());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto* list = &listOf(shown);
    const auto boxes = shown.findChildren<QCheckBox*>();
    QVERIFY(!boxes.isEmpty());
    for (const QCheckBox* box : boxes) QVERIFY(box->geometry().top() > list->geometry().bottom());
    const auto* view = shown.findChild<SeparationView*>();
    QVERIFY(view->geometry().bottom() < list->geometry().top());
    for (const auto* button : shown.findChildren<QPushButton*>())
      QVERIFY(button->geometry().top() > list->geometry().bottom());
  }

  void aSwitchIsAChoice() {
    InksPage shown;
    QSignalSpy chosen(&shown, &InksPage::choiceChanged);
    shown.showInks(page(), 0);
    QVERIFY2(chosen.isEmpty(), "nobody chose what was filled in");
    listOf(shown).topLevelItem(1)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(shown.choice().shown, QList<bool>({true, false, true, true, true}));
  }

  void oneInkCanBeShownAlone() {
    InksPage shown;
    shown.showInks(page(), 0);
    QSignalSpy chosen(&shown, &InksPage::choiceChanged);
    listOf(shown).setCurrentItem(listOf(shown).topLevelItem(4));
    button(shown, "Only This Ink").click();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(shown.choice().shown, QList<bool>({false, false, false, false, true}));
    box(shown, "Inks as grey plates").click();
    QCOMPARE(chosen.size(), 2);
    QVERIFY(shown.choice().isPlate);
    button(shown, "All Inks").click();
    QCOMPARE(shown.choice().shown, QList<bool>(5, true));
  }

  void theLimitCountsOnceItIsAskedFor() {
    InksPage shown;
    shown.showInks(page(), 0);
    auto* limit = shown.findChild<QSpinBox*>();
    QCOMPARE(limit->value(), 300);
    QCOMPARE(shown.choice().limit, 0.0);
    QSignalSpy chosen(&shown, &InksPage::choiceChanged);
    limit->setValue(280);
    QCOMPARE(chosen.size(), 0);
    box(shown, "Mark ink above").click();
    QCOMPARE(shown.choice().limit, 280.0);
    limit->setValue(260);
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(shown.choice().limit, 260.0);
  }

  void overprintingIsAnotherSeparation() {
    InksPage shown;
    shown.showInks(page(), 0);
    QSignalSpy chosen(&shown, &InksPage::choiceChanged), overprint(&shown, &InksPage::overprintChanged);
    QVERIFY(!shown.simulatesOverprint());
    box(shown, "Simulate overprinting").click();
    QCOMPARE(overprint.size(), 1);
    QCOMPARE(chosen.size(), 0);
    QVERIFY(shown.simulatesOverprint());
  }

  void whatIsUnderThePointerStandsBesideTheInks() {
    InksPage shown;
    shown.showInks(page(), 240);
    QSignalSpy chosen(&shown, &InksPage::choiceChanged);
    shown.showAmounts({100, 20.4, 0, 0, 50});
    QCOMPARE(listOf(shown).topLevelItem(1)->text(2), "20 %");
    QCOMPARE(listOf(shown).topLevelItem(4)->text(2), "50 %");
    QVERIFY(texts(shown).contains("All inks under the pointer: 170 %"));
    shown.showAmounts({});
    QCOMPARE(listOf(shown).topLevelItem(1)->text(2), "");
    QVERIFY(texts(shown).contains("Most ink in one place: 240 %"));
    QCOMPARE(chosen.size(), 0);
  }

  void inksThatWereSwitchedOffStaySo() {
    InksPage shown;
    shown.showInks(page({"Gold", "Silver"}), 0);
    listOf(shown).topLevelItem(5)->setCheckState(0, Qt::Unchecked);
    shown.showInks(page({"Silver", "Green"}), 0);
    QCOMPARE(shown.choice().shown, QList<bool>({true, true, true, true, false, true}));
  }

  void aSentenceStandsInThePlaceOfEverything() {
    InksPage shown;
    shown.resize(300, 600);
    shown.show();
    shown.tell("There are no inks.");
    QVERIFY(texts(shown).contains("There are no inks."));
    QVERIFY(!listOf(shown).isVisible());
    shown.showInks(page(), 0);
    QVERIFY(listOf(shown).isVisible());
    QVERIFY(!texts(shown).contains("There are no inks."));
  }

  void thatInksAreBeingSeparatedIsToldAboveThoseThatAreShown() {
    const QString separating = "Separating";
    InksPage shown;
    shown.resize(300, 600);
    shown.show();
    shown.showInks(page(), 0);
    shown.showSeparating(separating);
    QVERIFY(texts(shown).contains(separating));
    QVERIFY(listOf(shown).isVisible());
    QVERIFY(!listOf(shown).isEnabled());
    shown.tell("There are no inks.");
    shown.showSeparating(separating);  // and alone where none are shown
    QVERIFY(!listOf(shown).isVisible());
    const auto labels = shown.findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
      return label->isVisible() && label->text() == separating;
    }));
  }

  void theImageIsAsHighAsThePageIsWide() {
    InksPage shown;
    shown.resize(500, 1400);
    shown.showInks(page(), 0);
    shown.showImage(QImage(100, 90, QImage::Format_RGB32));
    shown.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown));
    const auto* view = shown.findChild<SeparationView*>();
    QVERIFY(view->width() > 400);
    QCOMPARE(view->height(), qRound(view->width() * 0.9));
  }

  void aFrameClosesTheImageOnAllSides() {
    SeparationView view;
    view.resize(200, 200);
    QImage white(40, 20, QImage::Format_RGB32);
    white.fill(Qt::white);
    view.setImage(white);
    const QImage drawn = view.grab().toImage();
    const QRect place = view.imageRect();
    const QColor frame = view.palette().color(QPalette::Mid);
    for (const QPoint at : {place.topLeft(), place.topRight(), place.bottomLeft(), place.bottomRight()})
      QCOMPARE(drawn.pixelColor(at).name(), frame.name());
    QCOMPARE(drawn.pixelColor(place.center()).name(), QColor(Qt::white).name());
  }

  void thePointerIsToldByThePixelsOfTheImage() {
    SeparationView view;
    view.resize(200, 200);
    view.setImage(QImage(4, 2, QImage::Format_RGB32));
    QCOMPARE(view.imageRect(), QRect(0, 50, 200, 100));
    view.show();
    QSignalSpy pointed(&view, &SeparationView::pointed);
    const auto at = [&](const QPoint& point) {
      pointed.clear();
      QMouseEvent move(QEvent::MouseMove, QPointF(point), view.mapToGlobal(QPointF(point)), Qt::NoButton,
                       Qt::NoButton, Qt::NoModifier);
      QCoreApplication::sendEvent(&view, &move);
      return pointed.isEmpty() ? QPoint(-9, -9) : pointed.last().at(0).toPoint();
    };
    QCOMPARE(at({1, 51}), QPoint(0, 0));
    QCOMPARE(at({199, 149}), QPoint(3, 1));
    QCOMPARE(at({120, 60}), QPoint(2, 0));
    QCOMPARE(at({100, 20}), QPoint(-1, -1));
    at({120, 60});
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    QCOMPARE(pointed.last().at(0).toPoint(), QPoint(-1, -1));
  }

  void theImageIsAsHighAsItsShapeAsksUnlessItIsVeryHigh() {
    SeparationView view;
    view.setImage(QImage(40, 20, QImage::Format_RGB32));
    QCOMPARE(view.heightForWidth(400), 200);
    QCOMPARE(view.heightForWidth(100), view.minimumHeight());
    view.setImage(QImage(20, 20, QImage::Format_RGB32));
    QCOMPARE(view.heightForWidth(400), 400);
    view.setImage(QImage(20, 400, QImage::Format_RGB32));
    QVERIFY(view.heightForWidth(400) >= 400 && view.heightForWidth(400) <= 440);
    view.setImage(QImage(1, 4000, QImage::Format_RGB32));
    view.resize(300, 200);
    QCOMPARE(view.imageRect().size(), QSize(1, 200));  // a hairline is still seen
  }
};

NORVEX_TEST(InksPageTest)
#include "inks_page_test.moc"
