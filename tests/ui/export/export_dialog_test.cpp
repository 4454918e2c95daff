// The Export dialog: what follows what, and what it asks for.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardItemModel>

#include "kit/test_main.h"
#include "kit/widget_texts.h"
#include "ui/export/export_dialog.h"
#include "ui/panels/centred_window.h"

using namespace norvex;

namespace {

ExportOffer offer() {
  ExportOffer made;
  for (const FormatRow& row : formatTable)
    if (isWritten(row)) made.formats << row.id;
  made.areas = {
      {ExportArea::Selection, {40, 30}}, {ExportArea::Page, {200, 100}}, {ExportArea::Document, {200, 100}}};
  made.folder = "/pictures";
  made.name = "Map 1.5";
  return made;
}

struct Shown {
  explicit Shown(const ExportChoice& first = {}) : dialog(nullptr, offer(), first) {}
  template <typename Widget>
  Widget* find(const char* name) {
    return dialog.findChild<Widget*>(QLatin1String(name));
  }
  void choose(PictureFormat format) {
    find<QComboBox>("exportFormat")->setCurrentIndex(int(offer().formats.indexOf(format)));
  }
  void type(const QString& name) {
    find<QLineEdit>("exportName")->clear();
    QTest::keyClicks(find<QLineEdit>("exportName"), name);
  }
  ExportDialog dialog;
};

}  // namespace

class ExportDialogTest : public QObject {
  Q_OBJECT
 private slots:
  void theExtensionFollowsTheFormat() {
    Shown f;
    QCOMPARE(f.dialog.path(), QString("/pictures/Map 1.5.png"));
    f.choose(PictureFormat::Jpeg);
    QCOMPARE(f.dialog.path(), QString("/pictures/Map 1.5.jpg"));
    f.choose(PictureFormat::EpsPreview);
    QCOMPARE(f.dialog.path(), QString("/pictures/Map 1.5.eps"));
  }

  void textIsKeptInAnSvgWhereThatIsChosen() {
    Shown f;
    auto* keep = f.find<QCheckBox>("exportText");
    f.choose(PictureFormat::Png);
    QVERIFY(keep->isHidden());
    f.choose(PictureFormat::Svg);
    QVERIFY(!keep->isHidden() && !f.dialog.choice().keepText);
    keep->click();
    QVERIFY(f.dialog.choice().keepText);
    f.choose(PictureFormat::Pdf);
    QVERIFY(!f.dialog.choice().keepText);
    // Of an SVG nothing is drawn that could be text.
    ExportOffer own = offer();
    own.drawsSvg = false;
    ExportChoice svg;
    svg.format = PictureFormat::Svg;
    ExportDialog dialog(nullptr, own, svg);
    QVERIFY(dialog.findChild<QCheckBox*>("exportText")->isHidden());
  }

  void aTypedExtensionChoosesTheFormat() {
    Shown f;
    f.type("out2.svg");
    QCOMPARE(f.dialog.choice().format, PictureFormat::Svg);
    f.type("out2.jpeg");
    QCOMPARE(f.dialog.choice().format, PictureFormat::Jpeg);
    QCOMPARE(f.dialog.path(), QString("/pictures/out2.jpeg"));  // as good as .jpg
    f.choose(PictureFormat::EpsPreview);
    f.type("out2.eps");
    QCOMPARE(f.dialog.choice().format, PictureFormat::EpsPreview);  // it is named so, too
    f.type("out2.xyz");
    QCOMPARE(f.dialog.path(), QString("/pictures/out2.xyz.eps"));
  }

  void withoutANameNothingIsExported() {
    Shown f;
    f.type("  ");
    QVERIFY(f.dialog.path().isEmpty());
    QVERIFY(!f.find<QPushButton>("exportButton")->isEnabled());
    f.type("a");
    QVERIFY(f.find<QPushButton>("exportButton")->isEnabled());
  }

  void pixelsFollowTheResolutionAndTheOtherWay() {
    Shown f;
    f.find<QComboBox>("exportArea")->setCurrentIndex(0);  // 40 × 30 points at 144
    QCOMPARE(f.find<QSpinBox>("exportWidth")->value(), 80);
    QCOMPARE(f.find<QSpinBox>("exportHeight")->value(), 60);
    f.find<QSpinBox>("exportWidth")->setValue(1000);
    QCOMPARE(f.find<QSpinBox>("exportWidth")->value(), 1000);
    QCOMPARE(f.find<QSpinBox>("exportHeight")->value(), 750);
    QCOMPARE(f.dialog.choice().dpi, 1800.0);
    f.find<QComboBox>("exportArea")->setCurrentIndex(1);
    QCOMPARE(f.find<QSpinBox>("exportWidth")->value(), 5000);
  }

  void aResolutionIsShownToATenth() {
    Shown f;
    auto* resolution = f.find<QDoubleSpinBox>("exportDpi");
    resolution->setValue(96.1234);
    QCOMPARE(resolution->value(), 96.1234);
    QVERIFY2(resolution->text().contains("96.1"), qPrintable(resolution->text()));
    QVERIFY(!resolution->text().contains("96.12"));
    resolution->setValue(299.99);
    QVERIFY2(resolution->text().contains("300"), qPrintable(resolution->text()));
  }

  void eachPartIsOfferedWithItsSize() {
    const auto offered = [](const ExportOffer& offer) {
      const ExportDialog dialog(nullptr, offer, {});
      return kit::rowsOf(*dialog.findChild<QComboBox*>(QStringLiteral("exportArea")));
    };
    QCOMPARE(offered(offer()),
             (QStringList{"Selection (40 × 30 pt)", "This page (200 × 100 pt)", "All pages"}));
    ExportOffer onePage = offer();
    onePage.areas = {{ExportArea::Visible, {40, 30}}, {ExportArea::Page, {200, 100}}};
    QCOMPARE(offered(onePage), (QStringList{"Visible part (40 × 30 pt)", "Whole picture (200 × 100 pt)"}));
  }

  void onlyWhatMeansSomethingIsShown() {
    Shown f;
    const auto shown = [&] {
      return QList<bool>{!f.find<QDoubleSpinBox>("exportDpi")->isHidden(),
                         !f.find<QSpinBox>("exportQuality")->parentWidget()->isHidden(),
                         !f.find<QCheckBox>("exportLossless")->isHidden()};
    };
    f.choose(PictureFormat::Pdf);
    QCOMPARE(shown(), (QList<bool>{false, false, false}));
    f.choose(PictureFormat::Png);
    QCOMPARE(shown(), (QList<bool>{true, false, false}));
    f.choose(PictureFormat::Jpeg);
    QCOMPARE(shown(), (QList<bool>{true, true, false}));
    f.choose(PictureFormat::Webp);
    QCOMPARE(shown(), (QList<bool>{true, true, true}));
  }

  void qualityIsAskedForWhereThereIsOne() {
    Shown f;
    QVERIFY(!f.dialog.choice().quality);
    f.choose(PictureFormat::Jpeg);
    QCOMPARE(f.dialog.choice().quality, std::optional<int>(90));
    f.choose(PictureFormat::Webp);
    QVERIFY(!f.dialog.choice().quality);
    f.find<QCheckBox>("exportLossless")->setChecked(false);
    f.find<QSpinBox>("exportQuality")->setValue(60);
    QCOMPARE(f.dialog.choice().quality, std::optional<int>(60));
    f.choose(PictureFormat::Png);
    QVERIFY(!f.dialog.choice().quality);
  }

  void returnExportsWhereverTheKeyboardIs() {
    Shown f;
    f.dialog.show();
    QApplication::setActiveWindow(&f.dialog);
    QSignalSpy chosen(&f.dialog, &ExportDialog::chosen);
    for (auto* button : f.dialog.findChildren<QPushButton*>()) {
      if (button->text() != "Other Folder…") continue;
      button->setFocus();
      QTest::keyClick(button, Qt::Key_Return);
    }
    QCOMPARE(chosen.size(), 1);
  }

  void aQualityThatIsBeingTypedIsNoneYet() {
    Shown f;
    f.choose(PictureFormat::Jpeg);
    f.dialog.show();
    QApplication::setActiveWindow(&f.dialog);
    auto* quality = f.find<QSpinBox>("exportQuality");
    quality->setFocus();
    quality->selectAll();
    QSignalSpy changed(&f.dialog, &ExportDialog::changed);
    QTest::keyClicks(quality, "75");
    QVERIFY(changed.isEmpty());
    QTest::keyClick(quality, Qt::Key_Tab);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(f.dialog.choice().quality, std::optional<int>(75));
  }

  void allPagesGoIntoAPdfOnly() {
    Shown f;
    auto* areas = f.find<QComboBox>("exportArea");
    const auto* model = qobject_cast<QStandardItemModel*>(areas->model());
    QVERIFY(!model->item(2)->isEnabled());
    f.choose(PictureFormat::Pdf);
    QVERIFY(model->item(2)->isEnabled());
    areas->setCurrentIndex(2);
    QCOMPARE(f.dialog.choice().area, ExportArea::Document);
    f.choose(PictureFormat::Png);
    QCOMPARE(f.dialog.choice().area, ExportArea::Selection);
  }

  void whatIsChosenIsTold() {
    Shown f;
    QSignalSpy changed(&f.dialog, &ExportDialog::changed);
    f.find<QDoubleSpinBox>("exportDpi")->setValue(300);
    f.find<QCheckBox>("exportFilled")->setChecked(true);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(f.dialog.choice().dpi, 300.0);
    QCOMPARE(f.dialog.choice().background, QColor(Qt::white));
  }

  void aNumberThatIsStillTypedIsChosenWhenItIsTaken() {
    Shown f;
    f.dialog.show();
    QApplication::setActiveWindow(&f.dialog);
    for (const char* name : {"exportWidth", "exportDpi"}) {
      auto* field = f.find<QAbstractSpinBox>(name);
      field->setFocus();
      field->selectAll();
      QTest::keyClicks(field, "300");
      const double before = f.dialog.choice().dpi;
      QSignalSpy changed(&f.dialog, &ExportDialog::changed);
      f.dialog.takeTyped();
      QVERIFY(f.dialog.choice().dpi != before);
      QVERIFY(!changed.isEmpty());  // what was made of the number before is not written
    }
    QCOMPARE(f.dialog.choice().dpi, 300.0);
    QSignalSpy changed(&f.dialog, &ExportDialog::changed);
    f.dialog.takeTyped();
    QVERIFY(changed.isEmpty());
  }

  void theLastChoiceIsTheFirst() {
    const ExportChoice first{.format = PictureFormat::Webp,
                             .area = ExportArea::Page,
                             .dpi = 96,
                             .background = Qt::red,
                             .quality = 40};
    QCOMPARE(Shown(first).dialog.choice(), first);
    ExportChoice other = first;
    other.format = PictureFormat::Illustrator;  // cannot be written
    QCOMPARE(Shown(other).dialog.choice().format, PictureFormat::Eps);
  }

  void itIsLargerForLargerTextsAndStaysOnTheScreen() {
    QCOMPARE(Shown().dialog.size(), QSize(680, 430));
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(21);
    QApplication::setFont(large);
    const auto back = qScopeGuard([&] { QApplication::setFont(usual); });
    const Shown f;
    QCOMPARE(f.dialog.size(), sizeForTexts(f.dialog, {680, 430}));
    QVERIFY(f.dialog.height() > 430);
    QVERIFY(f.dialog.width() < f.dialog.screen()->availableSize().width());
  }

  void whatCannotBeMadeIsNotExported() {
    Shown f;
    f.dialog.showProblem("Only an SVG picture can be written as SVG.");
    QVERIFY(!f.find<QPushButton>("exportButton")->isEnabled());
    QCOMPARE(f.find<QLabel>("exportRemarks")->text(), QString("Only an SVG picture can be written as SVG."));
    f.dialog.showMade(QImage(4, 4, QImage::Format_RGB32), 2300, {});
    QVERIFY(f.find<QPushButton>("exportButton")->isEnabled());
    QCOMPARE(f.find<QLabel>("exportExpected")->text(), QString("File size: 2.2 KiB"));
    QVERIFY(f.find<QLabel>("exportRemarks")->isHidden());
  }

  void everyRowSaysWhatItIs() {
    Shown f;
    QCOMPARE(f.dialog.windowTitle(), QString("Export"));
    const QStringList texts = kit::labelsOf(f.dialog);
    for (const char* title : {"Format:", "Part:", "From page:", "Resolution:", "Size:", "×", "pixels",
                              "Colours:", "Background:", "Quality:", "Name:"})
      QVERIFY2(texts.contains(QString::fromUtf8(title)), title);
    QCOMPARE(kit::rowsOf(*f.find<QComboBox>("exportColor")),
             QStringList({"RGB for screens", "Shades of grey", "CMYK for print"}));
    QCOMPARE(f.find<QCheckBox>("exportLossless")->text(), QString("Lossless"));
    QCOMPARE(f.find<QCheckBox>("exportText")->text(), QString("Keep text as text, with its fonts"));
    QCOMPARE(f.find<QSpinBox>("firstPage")->accessibleName(), QString("First page"));
    QCOMPARE(f.find<QSpinBox>("lastPage")->accessibleName(), QString("Last page"));
  }

  void aColourStaysWhereTheOtherFormatHoldsIt() {
    Shown f;
    f.choose(PictureFormat::Png);
    f.find<QComboBox>("exportColor")->setCurrentIndex(int(OutputColor::Grey));
    f.choose(PictureFormat::Jpeg);
    QCOMPARE(f.dialog.choice().color, OutputColor::Grey);
    f.find<QComboBox>("exportColor")->setCurrentIndex(int(OutputColor::Cmyk));
    f.choose(PictureFormat::Png);  // which has no such pixels
    QCOMPARE(f.dialog.choice().color, OutputColor::Rgb);
  }

  void thePagesBelongToTheirPartAlone() {
    ExportOffer own = offer();
    own.areas << ExportOffer::Area{ExportArea::Pages, {200, 100}};
    own.pageCount = 5;
    own.shownPage = 2;
    ExportChoice pdf;
    pdf.format = PictureFormat::Pdf;
    const ExportDialog dialog(nullptr, own, pdf);
    auto* areas = dialog.findChild<QComboBox*>("exportArea");
    const ExportChoice unchosen;
    QCOMPARE(dialog.choice().firstPage, unchosen.firstPage);
    QCOMPARE(dialog.choice().lastPage, unchosen.lastPage);
    areas->setCurrentIndex(3);
    QCOMPARE(dialog.choice().firstPage, 3);
    QCOMPARE(dialog.choice().lastPage, 5);
  }

  void theQualityGoesFromOneToAHundred() {
    Shown f;
    const auto* quality = f.find<QSpinBox>("exportQuality");
    QCOMPARE(quality->minimum(), 1);
    QCOMPARE(quality->maximum(), 100);
  }
};

NORVEX_TEST(ExportDialogTest)
#include "export_dialog_test.moc"
