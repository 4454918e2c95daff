// The page-layout sheet as people use it.
#include "ui/print/page_layout_sheet.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QRadioButton>

#include "kit/test_main.h"
#include "ui/print/a4_settings.h"
#include "ui/print/page_layout_preview.h"
#include "ui/print/zy_page_layout_accessory.h"

using namespace norvex;

class PageLayoutSheetTest : public QObject {
  Q_OBJECT
 private slots:
  void theSheetChangesWhatIsChosenAndNothingElse() {
    NSPrintInfo info = a4();
    info.set("SomebodysEntry", 5);
    info.setLeftMargin(12.3456);
    info.setScalingFactor(1.0 / 3);
    PageLayoutSheet sheet(info, nullptr);
    sheet.addAccessoryController(new ZyPageLayoutAccessory);
    sheet.findChild<QRadioButton*>("landscape")->click();
    sheet.findChild<QDoubleSpinBox*>("topMargin")->setValue(10);
    sheet.findChild<QCheckBox*>("headerAndFooter")->click();
    sheet.findChild<QCheckBox*>("centreVertically")->click();
    const NSPrintInfo& chosen = sheet.printInfo();
    QCOMPARE(chosen.orientation(), NSPaperOrientation::Landscape);
    QVERIFY(std::abs(chosen.topMargin() - 10 * 72 / 25.4) < 1e-9);
    QCOMPARE(chosen.leftMargin(), 12.3456);
    QCOMPARE(chosen.scalingFactor(), 1.0 / 3);
    QVERIFY(chosen.printsHeaderAndFooter() && !chosen.isVerticallyCentered() &&
            chosen.isHorizontallyCentered());
    QCOMPARE(chosen.dictionary().value("SomebodysEntry"), QVariant(5));
  }

  void theSheetShowsTheSettings() {
    NSPrintInfo info = a4();
    info.setPaper(*paperNamed("A5"));
    info.setScalingFactor(0.75);
    info.setRightMargin(72);
    info.setHorizontallyCentered(false);
    PageLayoutSheet sheet(info, nullptr);
    sheet.addAccessoryController(new ZyPageLayoutAccessory);
    QCOMPARE(sheet.findChild<QComboBox*>("paper")->currentData().toString(), QString("iso_a5_148x210mm"));
    QVERIFY(sheet.findChild<QRadioButton*>("portrait")->isChecked());
    QCOMPARE(sheet.findChild<QDoubleSpinBox*>("scaling")->value(), 75.0);
    QCOMPARE(sheet.findChild<QDoubleSpinBox*>("rightMargin")->value(), 25.4);
    QVERIFY(!sheet.findChild<QCheckBox*>("centreHorizontally")->isChecked());
  }

  void returnTakesTheSheetWhereverTheKeyboardIs() {
    PageLayoutSheet sheet(a4(), nullptr);
    sheet.show();
    QApplication::setActiveWindow(&sheet);
    auto* cancel = sheet.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    QCOMPARE(sheet.result(), int(QDialog::Accepted));
  }

  void withoutASheetThereIsNoPaperToShow() {
    PageLayoutPreview preview;
    preview.resize(300, 300);
    QVERIFY(preview.paperPixels().isEmpty());
  }
};

NORVEX_TEST(PageLayoutSheetTest)
#include "page_layout_sheet_test.moc"
