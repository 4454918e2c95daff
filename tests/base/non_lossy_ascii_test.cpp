// Non-lossy ASCII: every character of it, and what begins like an escape and is none.
#include "base/non_lossy_ascii.h"

#include "kit/test_main.h"

using namespace norvex;

class NonLossyAsciiTest : public QObject {
  Q_OBJECT
 private slots:
  void escapesAreRead_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* bytes, const QString& text) {
      QTest::newRow(bytes) << QByteArray(bytes) << text;
    };
    row("plain", QStringLiteral("plain"));
    row("a\\\\b", QStringLiteral("a\\b"));
    row("a\\\\", QStringLiteral("a\\"));
    row("\\344\\377\\200", QString::fromUtf8("\u00e4\u00ff\u0080"));
    row("\\u65E5\\u672c\\uffff", QString() + QChar(0x65e5) + QChar(0x672c) + QChar(0xffff));
    row("\\uABCD\\uef9A", QString() + QChar(0xabcd) + QChar(0xef9a));
    row("\\u00aF\\u00Fa", QString() + QChar(0xaf) + QChar(0xfa));
    row("\\u00411", QStringLiteral("A1"));
    row("\\1011", QStringLiteral("A1"));
  }
  void escapesAreRead() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(decodeNonLossyAscii(bytes), std::optional(text));
  }

  void whatIsNoEscapeStaysAsItIs_data() {
    QTest::addColumn<QByteArray>("bytes");
    for (const char* bytes : {"\\", "a\\", "\\n", "\\400", "\\777", "\\38", "\\389", "\\u12", "\\u12g4",
                              "\\u/123", "\\u:123", "\\u`123", "\\u@123", "\\uG123", "\\8", "\\(text\\)"})
      QTest::newRow(bytes) << QByteArray(bytes);
  }
  void whatIsNoEscapeStaysAsItIs() {
    QFETCH(QByteArray, bytes);
    QCOMPARE(decodeNonLossyAscii(bytes), std::optional(QString::fromLatin1(bytes)));
  }

  void otherBytesAreNoAscii() {
    QVERIFY(decodeNonLossyAscii("\x7f"));
    QVERIFY(!decodeNonLossyAscii("a\x80"));
    QVERIFY(!decodeNonLossyAscii("\xff"));
  }

  void everyUnitComesBack() {
    QCOMPARE(encodeNonLossyAscii(u"a\\\u0080\u00ff\u0100\u65e5"),
             QByteArray("a\\\\\\200\\377\\u0100\\u65e5"));
    QString all;
    for (uint unit = 0; unit <= 0xffff; ++unit) all.append(QChar(char16_t(unit)));
    QCOMPARE(decodeNonLossyAscii(encodeNonLossyAscii(all)), std::optional(all));
  }
};

NORVEX_TEST(NonLossyAsciiTest)
#include "non_lossy_ascii_test.moc"
