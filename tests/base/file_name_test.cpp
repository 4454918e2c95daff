// Names of files as text and as bytes.
#include "base/file_name.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <filesystem>

#include "base/atomic_file.h"
#include "kit/test_main.h"
#include "picture/document_file.h"

using namespace norvex;

class FileNameTest : public QObject {
  Q_OBJECT
 private slots:
  void everyNameComesBackAsItsBytes_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("ASCII") << QByteArray("a.eps");
    QTest::newRow("text") << QByteArray(
        "gr\xC3\xBC\xC3\x9F"
        "e \xE2\x82\xAC \xF0\x9F\x96\xBC.eps");
    QTest::newRow("Latin-1") << QByteArray(
        "gr\xFC\xDF"
        "e.eps");
    QTest::newRow("Shift JIS") << QByteArray("\x90\x7D\x96\xCA.eps");
    QTest::newRow("cut character") << QByteArray("a\xE2\x82");
    QTest::newRow("broken inside") << QByteArray("a\xE2(\xA1.eps");
    QTest::newRow("overlong slash") << QByteArray(
        "a\xC0\xAF"
        "b");
    QTest::newRow("encoded surrogate") << QByteArray(
        "a\xED\xB2\x80"
        "b");
    QTest::newRow("beyond Unicode") << QByteArray("\xF4\x90\x80\x80");
    QTest::newRow("byte-order mark") << QByteArray(
        "\xEF\xBB\xBF"
        "a");
    QTest::newRow("raw byte behind a character of two units") << QByteArray("\xF0\x9F\x96\xBC\xFF");
  }
  void everyNameComesBackAsItsBytes() {
    QFETCH(QByteArray, bytes);
    QCOMPARE(fileNameBytes(fileNameText(bytes)), bytes);
  }

  void everyByteComesBackInAnyPlace() {
    for (int byte = 1; byte < 256; ++byte) {
      for (const QByteArray& name :
           {QByteArray(1, char(byte)), "x" + QByteArray(1, char(byte)) + "y",
            "\xC3" + QByteArray(1, char(byte)), QByteArray(3, char(byte)) + "\xC3\xBC"})
        QCOMPARE(fileNameBytes(fileNameText(name)), name);
    }
  }

  void textStaysText() {
    QCOMPARE(fileNameText("gr\xC3\xBC\xC3\x9F"
                          "e.eps"),
             QString::fromUtf8("gr\xC3\xBC\xC3\x9F"
                               "e.eps"));
    QCOMPARE(fileNameBytes(QString::fromUtf8("\xF0\x9F\x96\xBC")), QByteArray("\xF0\x9F\x96\xBC"));
    QCOMPARE(fileNameText("a\xFF").size(), 2);
    QCOMPARE(rawByteOf(fileNameText("a\xFF")[1], u'a'), 0xFF);
    QCOMPARE(rawByteOf(QChar(0xDCFF), QChar(0xD83D)), -1);  // the second half of a character
  }

  void nothingBehindTheNameIsRead() {
    const QByteArrayView behind("\xC3\xA9");
    const QString name = fileNameText(behind.first(1));
    QCOMPARE(name.size(), 1);
    QCOMPARE(rawByteOf(name[0], QChar()), 0xC3);
  }

  void filesOfAnyNameAreWrittenReadAndFound() {
    const QTemporaryDir folder;
    const QByteArray bytes = folder.path().toUtf8() +
                             "/gr\xFC\xDF"
                             "e";
    const QString name = fileNameText(bytes);
    QVERIFY(!fileExists(name));
    QVERIFY(writeFileAtomically(name, "one", IfExists::Fail));
    QVERIFY(fileExists(name));
    QVERIFY(!folderExists(name));
    QCOMPARE(*readDocumentFile(name), QByteArray("one"));
    QVERIFY(!writeFileAtomically(name, "two", IfExists::Fail));
    QVERIFY(writeFileAtomically(name, "two", IfExists::Replace));
    QCOMPARE(*readDocumentFile(name), QByteArray("two"));
    QVERIFY(isSameFile(name, name));
    FILE* file = std::fopen(bytes.constData(), "r");
    QVERIFY(file != nullptr);
    std::fclose(file);
    QVERIFY(std::filesystem::remove(bytes.toStdString()));  // QTemporaryDir cannot
  }

  void theRealPathOfALinkIsWhereItLeads() {
    const QTemporaryDir folder;
    const QByteArray root = realPath(fileNameBytes(folder.path()));
    QVERIFY(writeFileAtomically(fileNameText(root + "/file\xFC"), "x", IfExists::Fail).ok());
    std::filesystem::create_symlink("file\xFC", (root + "/one").toStdString());
    std::filesystem::create_symlink("one", (root + "/two").toStdString());
    QCOMPARE(realPath(root + "/./two"), root + "/file\xFC");
    QCOMPARE(realPath(root + "/not/there"), root + "/not/there");
    QVERIFY(std::filesystem::remove((root + "/file\xFC").toStdString()));  // QTemporaryDir cannot
  }

  void theLongestNameIsReplaced() {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QString(85, QChar(0x56FE)));  // 255 bytes
    QVERIFY(writeFileAtomically(name, "one", IfExists::Fail));
    QVERIFY(writeFileAtomically(name, "two", IfExists::Replace));
    QCOMPARE(*readDocumentFile(name), QByteArray("two"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
  }
};

NORVEX_TEST(FileNameTest)
#include "file_name_test.moc"
