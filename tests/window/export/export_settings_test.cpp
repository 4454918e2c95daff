// What was chosen for the last export is there for the next one, and nothing that cannot be chosen.
#include "window/export/export_settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "base/state_folder.h"
#include "kit/test_main.h"

using namespace norvex;

class ExportSettingsTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;

  static QString file() { return settingsFolder() + QStringLiteral("/export.ini"); }
  static void write(const QByteArray& lines) {
    QDir().mkpath(settingsFolder());
    QFile stored(file());
    if (!stored.open(QIODevice::WriteOnly)) qFatal("no settings");
    stored.write("[General]\n" + lines);
  }

 private slots:
  void init() {
    qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8());
    QFile::remove(file());
  }

  void withoutAnyTheUsualChoiceIsMade() {
    QVERIFY(file().startsWith(folder_.path()));
    QCOMPARE(storedExportChoice(), ExportChoice());
  }

  void everyChoiceIsThereTheNextTime() {
    ExportChoice pixels;
    pixels.format = PictureFormat::Jpeg;
    pixels.dpi = 250;
    pixels.background = QColor(10, 20, 30, 40);
    pixels.color = OutputColor::Grey;
    pixels.quality = 73;
    storeExportChoice(pixels);
    QCOMPARE(storedExportChoice(), pixels);
    // A format without pixels or quality leaves what was chosen of them.
    ExportChoice text = pixels;
    text.format = PictureFormat::Svg;
    text.keepText = true;
    text.dpi = 99;
    text.quality.reset();
    storeExportChoice(text);
    ExportChoice expected = pixels;
    expected.format = PictureFormat::Svg;
    expected.keepText = true;
    QCOMPARE(storedExportChoice(), expected);
    pixels.quality.reset();
    pixels.background = QColor();
    storeExportChoice(pixels);
    QVERIFY(!storedExportChoice().quality);
    QVERIFY(!storedExportChoice().background.isValid());
  }

  void aQualityThatNobodyCouldChooseIsNone_data() {
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("quality");
    QTest::newRow("least") << QByteArray("1") << 1;
    QTest::newRow("most") << QByteArray("100") << 100;
    QTest::newRow("too little") << QByteArray("0") << -1;
    QTest::newRow("too much") << QByteArray("101") << -1;
    QTest::newRow("a word") << QByteArray("best") << -1;
  }
  void aQualityThatNobodyCouldChooseIsNone() {
    QFETCH(QByteArray, stored);
    QFETCH(int, quality);
    write("quality=" + stored + '\n');
    QCOMPARE(storedExportChoice().quality.value_or(-1), quality);
  }

  void whatIsStoredIsCheckedBeforeItIsBelieved() {
    write("format=tarot\npixelsPerInch=1e9\ncolor=infrared\nbackground=nowhere\n");
    QCOMPARE(storedExportChoice(), ExportChoice());
  }
};

NORVEX_TEST(ExportSettingsTest)
#include "export_settings_test.moc"
