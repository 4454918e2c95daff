// The files of tests/data/metadata and what they hold; tests/fuzz cuts and damages them.
#include <QFile>
#include <QLoggingCategory>

#include "kit/test_main.h"
#include "metadata/eps_header.h"
#include "metadata/source_text.h"

using namespace norvex;

namespace {

const QString kFolder = QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/metadata/");

QByteArray contents(const QString& name) {
  QFile file(kFolder + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class HostileFilesTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { QLoggingCategory::setFilterRules("norvex.*=false"); }
  void cleanupTestCase() { QLoggingCategory::setFilterRules(QString()); }

  void whatTheFilesHold_data() {
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("title");
    const QString japanese = QString::fromUtf8("日本語テスト");
    QTest::newRow("utf8.eps") << "utf-8" << japanese;
    QTest::newRow("utf8_mark.eps") << "utf-8" << japanese;
    QTest::newRow("utf16_be.eps") << "utf-16" << japanese;
    QTest::newRow("utf16_le.eps") << "utf-16" << japanese;
    QTest::newRow("euc_jp.eps") << "euc-jp" << japanese;
    QTest::newRow("shift_jis.eps") << "shift_jis" << japanese;
    QTest::newRow("cr.eps") << "utf-8"
                            << "CR";
    QTest::newRow("cr_lf.eps") << "utf-8"
                               << "CR LF";
    QTest::newRow("declared_utf8.eps") << "utf-8"
                                       << "";
    QTest::newRow("binary_tiff_last.eps") << "utf-8"
                                          << "binary";
    QTest::newRow("binary_tiff_first.eps") << "utf-8"
                                           << "binary";
    QTest::newRow("binary_broken_tiff.eps") << "utf-8"
                                            << "binary";
    QTest::newRow("binary_sections_outside.eps") << "utf-8"
                                                 << "binary";
    QTest::newRow("interchange_preview.epsi") << "utf-8"
                                              << "preview";
    QTest::newRow("huge_preview.epsi") << "utf-8"
                                       << "x";
  }
  void whatTheFilesHold() {
    QFETCH(QString, encoding);
    QFETCH(QString, title);
    const QByteArray bytes = contents(QTest::currentDataTag());
    QVERIFY(!bytes.isEmpty());
    const HeaderDictionary dictionary = epsHeader(bytes);
    QCOMPARE(dictionary.value(header::Encoding).toString(), encoding);
    QCOMPARE(dictionary.value(header::Title).toString(), title);
    const QString text =
        sourceText(PictureKind::Eps, bytes, dictionary.value(header::EncodingNumber).toLongLong());
    QCOMPARE(text.contains("%%Title: " + title), !title.isEmpty());
  }
};

NORVEX_TEST(HostileFilesTest)
#include "hostile_files_test.moc"
