// The names that the sheet of Save As shows and answers, and what stands in it.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

#include "kit/test_main.h"
#include "ui/panels/save_sheet.h"

using namespace norvex;

namespace {

/// Of a sheet for EPS and PNG files in a folder of its own.
struct Sheet {
  Sheet() {
    settings.directoryURL = QUrl::fromLocalFile(folder.path());
    for (const char* extension : {"eps", "png"})
      settings.allowedContentTypes << *UTType::typeWithFilenameExtension(QLatin1String(extension));
    settings.allowsOtherFileTypes = false;
  }
  void open(const QString& name = {}) {
    settings.nameFieldStringValue = name;
    sheet = std::make_unique<SaveSheet>(nullptr, settings);
  }
  [[nodiscard]] QLineEdit* name() const { return sheet->findChild<QLineEdit*>("fileNameEdit"); }
  [[nodiscard]] QString answered(const QString& typed) const {
    name()->setText(typed);
    return sheet->answer().url.fileName();
  }

  QTemporaryDir folder;
  SavePanelSettings settings;
  std::unique_ptr<SaveSheet> sheet;
};

}  // namespace

class SaveSheetNamesTest : public QObject {
  Q_OBJECT
 private slots:
  void anExtensionThatNamesNoTypeIsPartOfTheName() {
    Sheet s;
    s.open();
    QCOMPARE(s.answered("Map.eps"), QStringLiteral("Map.eps"));
    QCOMPARE(s.answered("Map.png"), QStringLiteral("Map.png"));
    QCOMPARE(s.answered("Map 1.5"), QStringLiteral("Map 1.5.eps"));
    QCOMPARE(s.answered("Map.pdf"), QStringLiteral("Map.pdf.eps"));  // a type that is not offered
    QCOMPARE(s.answered("Map"), QStringLiteral("Map"));
    s.settings.allowsOtherFileTypes = true;
    s.open();
    QCOMPARE(s.answered("Map 1.5"), QStringLiteral("Map 1.5"));
  }

  void theNameShowsItsExtensionOnlyWhereThatCanBeHidden() {
    Sheet s;
    s.settings.target = [](const QUrl& url, int) {
      return QUrl::fromLocalFile(url.toLocalFile() + QStringLiteral(".eps"));
    };
    s.open("Map");
    QCOMPARE(s.name()->text(), QStringLiteral("Map"));
    QVERIFY(s.sheet->hideExtensionBox()->isHidden());
    s.settings.canSelectHiddenExtension = true;
    s.open("Map");
    QCOMPARE(s.name()->text(), QStringLiteral("Map.eps"));
    s.sheet->hideExtensionBox()->setChecked(true);
    QCOMPARE(s.name()->text(), QStringLiteral("Map"));
  }

  void aMessageStandsThereToTheLetterAndNoneTakesNoRoom() {
    Sheet s;
    const auto has = [&s](const QString& text) {
      for (const QLabel* label : s.sheet->findChildren<QLabel*>())
        if (label->text() == text && label->textFormat() == Qt::PlainText) return true;
      return false;
    };
    s.open();
    QVERIFY(!has({}));
    s.settings.message = QStringLiteral("Save <b>all</b> of it.");
    s.open();
    QVERIFY(has("Save <b>all</b> of it."));
  }

  void whereThereIsNoListOfTypesNothingIsSaidOfTypes() {
    Sheet s;
    s.open();
    QVERIFY(s.sheet->findChild<QLabel*>("fileTypeLabel")->isHidden());
    QVERIFY(s.sheet->findChild<QComboBox*>("fileTypeCombo")->isHidden());
    s.settings.selectedContentType = 1;
    s.open();
    QVERIFY(!s.sheet->findChild<QComboBox*>("fileTypeCombo")->isHidden());
    QCOMPARE(s.sheet->answer().contentType, 1);
  }
};

NORVEX_TEST(SaveSheetNamesTest)
#include "save_sheet_names_test.moc"
