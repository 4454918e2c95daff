// What is typed into the sheet of Save To and Save As, and where it opens.
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTreeView>

#include <memory>

#include "kit/test_main.h"
#include "ui/panels/file_dialogs.h"
#include "ui/panels/save_sheet.h"
#include "window/commands/save_to_command.h"
#include "window/commands/saving_window.h"

using namespace norvex;

namespace {

/// The sheet over a folder with one picture in it.
struct SheetOfAPicture {
  SheetOfAPicture() {
    QFile file(folder.filePath("a.png"));
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(123'456, 'x')) < 0) qFatal("no picture");
    file.close();
    SavePanelSettings settings;
    settings.allowedContentTypes = {UTTypePNG()};
    settings.directoryURL = QUrl::fromLocalFile(folder.path());
    sheet = std::make_unique<SaveSheet>(nullptr, settings);
    sheet->show();
    list = sheet->findChild<QTreeView*>("treeView");
    if (!list || !QTest::qWaitFor([this] { return list->model()->rowCount(list->rootIndex()) == 1; }))
      qFatal("the picture is not listed");
  }
  QTemporaryDir folder;
  std::unique_ptr<SaveSheet> sheet;
  const QTreeView* list = nullptr;
};

}  // namespace

class SaveSheetTest : public QObject {
  Q_OBJECT
 private slots:
  void aTypedExtensionChoosesTheFormat() {
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    SavePanelSettings settings = f.panel.settings;
    settings.directoryURL = QUrl::fromLocalFile(f.folder.path());
    SaveSheet sheet(nullptr, settings);
    auto* name = sheet.findChild<QLineEdit*>("fileNameEdit");
    QVERIFY(name);
    name->selectAll();
    QTest::keyClicks(name, "out2.png");
    QCOMPARE(name->text(), QString("out2.png"));
    QCOMPARE(c.doSaveToPopUp->currentText(), QString("PNG image"));
    QCOMPARE(settings.target(sheet.answer().url, -1).fileName(), QString("out2.png"));
    choose(c, "GIF image");  // what is chosen last counts
    QCOMPARE(settings.target(sheet.answer().url, -1).fileName(), QString("out2.gif"));
    name->selectAll();
    QTest::keyClicks(name, "Map 1.5");
    QCOMPARE(c.doSaveToPopUp->currentText(), QString("GIF image"));
  }

  void sizesKindsAndDatesAreShownWhole() {
    const SheetOfAPicture shown;
    const QTreeView* const list = shown.list;
    const QAbstractItemView* view = list;
    for (const int column : {1, 2, 3})
      QTRY_VERIFY2(
          list->columnWidth(column) >= view->sizeHintForColumn(column) && list->columnWidth(column) > 0,
          qPrintable(QString::number(column)));
    QVERIFY(list->columnWidth(0) > list->columnWidth(1));
  }

  void namesKeepRoomInANarrowSheet() {
    const SheetOfAPicture shown;
    SaveSheet& sheet = *shown.sheet;
    const QTreeView* const list = shown.list;
    const auto hidden = [list] {
      QList<int> columns;
      for (int column = 0; column < 4; ++column)
        if (list->isColumnHidden(column)) columns << column;
      return columns;
    };
    const auto hasRoom = [list] {
      return list->columnWidth(0) >= 18 * list->fontMetrics().averageCharWidth();
    };
    sheet.resize(1000, 600);
    QTRY_COMPARE(hidden(), QList<int>());
    QVERIFY(hasRoom());
    const QAbstractItemView* view = list;
    const int date = view->sizeHintForColumn(3);
    const auto narrow = [&](int names) {  // the list is as wide as that and a date
      sheet.resize(sheet.width() - list->viewport()->width() + date + names, 600);
    };
    narrow(30 * list->fontMetrics().averageCharWidth());
    QTRY_COMPARE(hidden().value(0), 2);  // the kind goes first
    QVERIFY(!list->isColumnHidden(3));
    QVERIFY(hasRoom());
    narrow(0);
    if (sheet.width() > sheet.minimumSizeHint().width()) QTRY_COMPARE(hidden(), (QList<int>{1, 2, 3}));
    QVERIFY(hasRoom());
    sheet.resize(1000, 600);
    QTRY_COMPARE(hidden(), QList<int>());
  }

  void placesAreToldByTheirNames() {
    const QTemporaryDir folder(QDir::tempPath() + "/a folder with a name-XXXXXX");
    SavePanelSettings settings;
    settings.allowedContentTypes = {UTTypePNG()};
    SaveSheet sheet(nullptr, settings);
    sheet.setSidebarUrls({QUrl::fromLocalFile(folder.path())});
    settleFileDialog(sheet);
    sheet.show();
    const auto* places = sheet.findChild<QListView*>("sidebar");
    QVERIFY(places);
    QTRY_VERIFY(places->sizeHintForColumn(0) > 20 * places->fontMetrics().averageCharWidth());
    QTRY_VERIFY(places->viewport()->width() >=
                std::min(places->sizeHintForColumn(0), 28 * places->fontMetrics().averageCharWidth()));
    QVERIFY(!places->horizontalScrollBar()->isVisible());
  }

  void aTypedExtensionChoosesTheTypeInASheetsOwnList() {
    const QTemporaryDir folder;
    SavePanelSettings settings;
    settings.allowedContentTypes = {UTTypePDF(), UTTypePNG(), UTTypeJPEG()};
    settings.allowsOtherFileTypes = false;
    settings.selectedContentType = 0;
    settings.directoryURL = QUrl::fromLocalFile(folder.path());
    settings.nameFieldStringValue = "out";
    SaveSheet sheet(nullptr, settings);
    auto* name = sheet.findChild<QLineEdit*>("fileNameEdit");
    name->selectAll();
    QTest::keyClicks(name, "out.jpeg");
    QCOMPARE(sheet.answer().contentType, 2);
    QCOMPARE(name->text(), QString("out.jpeg"));
  }

  void aLowScreenIsTheFiles() {
    QCOMPARE(previewHeight(768), 130);
    QCOMPARE(previewHeight(400), 70);
    QCOMPARE(previewHeight(300), 64);
    SavingFixture f;
    f.eps().doSaveTo();
    const int screen = f.panel.settings.accessoryView->screen()->availableGeometry().height();
    QCOMPARE(f.panel.settings.accessoryView->findChild<QWidget*>("doSaveToImageView")->height(),
             previewHeight(screen));
    SaveSheet sheet(nullptr, f.panel.settings);
    sheet.show();
    QVERIFY(QTest::qWaitForWindowExposed(&sheet));
    // In a row with Cancel, not in one of its own.
    const auto* hide = sheet.findChild<QWidget*>("hideExtension");
    const auto* name = sheet.findChild<QWidget*>("fileNameEdit");
    QVERIFY(hide->mapTo(&sheet, QPoint()).y() > name->geometry().bottom());
    QVERIFY(hide->mapTo(&sheet, QPoint()).y() < name->geometry().bottom() + 2 * name->height());
    QCOMPARE(name->nextInFocusChain(), hide);
  }

  void aFirstSheetOpensBesideThePicture() {
    QSettings().remove("SaveTo");
    SavingFixture f;
    MainWindowController& c = f.eps();
    c.doSaveTo();
    QVERIFY(f.panel.settings.directoryURL.isEmpty());
    SaveSheet sheet(nullptr, f.panel.settings);
    QCOMPARE(QDir(sheet.directory()), QDir(f.folder.path()));
  }
};

NORVEX_TEST(SaveSheetTest)
#include "save_sheet_test.moc"
