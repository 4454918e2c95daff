// Encodings of SVG text: recognised, named, and written out again.
#include "worker/svg/svg_text.h"

#include <QStringConverter>

#include "kit/test_main.h"
#include "metadata/header_dictionary.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using norvex::kit::OpenSvg;

namespace {

const QString kBody = QStringLiteral(
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"1\"><title>%1</title></svg>");

QString declaration(const char* encoding) {
  return QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>").arg(QString::fromLatin1(encoding));
}

QByteArray utf16(const QString& text, QStringConverter::Encoding encoding, bool mark) {
  QStringEncoder encoder(encoding, mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
  return encoder.encode(text);
}

}  // namespace

class SvgTextTest : public QObject {
  Q_OBJECT
 private slots:
  void anEncodingIsCalledAsTheDocumentCallsIt() {
    const auto declared = [](const QByteArray& bytes) {
      const Result<SvgText> text = decodeSvgText(bytes);
      return text ? text->declaredName : text.error().message.toUtf8();
    };
    const QString plain = kBody.arg("abc");
    QCOMPARE(declared(plain.toUtf8()), "UTF-8");
    QCOMPARE(declared((declaration("Shift_JIS") + plain).toLatin1()), "Shift_JIS");
    const QByteArray sixteen = utf16(plain, QStringConverter::Utf16BE, true),
                     more = utf16(plain, QStringConverter::Utf32LE, true);
    QCOMPARE(declared(sixteen), "UTF-16");
    QCOMPARE(declared(more), "UTF-32");
    QCOMPARE(declared(sixteen + 'x'), "the bytes are not text in the encoding UTF-16");
    QCOMPARE(declared(more + 'x'), "the bytes are not text in the encoding UTF-32");
  }

  void everyEncodingHasItsNameAndNumber_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QString>("title");
    const QString plain = kBody.arg("abc");
    const QString japanese = QStringLiteral("日本語");
    const auto row = [](const char* what, const QByteArray& bytes, const char* name, qint64 number,
                        const QString& title) {
      QTest::newRow(what) << bytes << QString::fromLatin1(name) << number << title;
    };
    row("nothing said", plain.toUtf8(), "utf-8", encoding::Utf8, "abc");
    row("UTF-8", (declaration("UTF-8") + kBody.arg(japanese)).toUtf8(), "utf-8", encoding::Utf8, japanese);
    row("UTF-8 mark", "\xef\xbb\xbf" + kBody.arg(japanese).toUtf8(), "utf-8", encoding::Utf8, japanese);
    row("UTF-8 mark against the declaration",
        "\xef\xbb\xbf" + (declaration("shift_jis") + kBody.arg(japanese)).toUtf8(), "utf-8", encoding::Utf8,
        japanese);
    row("8-bit text that claims UTF-16", (declaration("UTF-16") + plain).toUtf8(), "utf-8", encoding::Utf8,
        "abc");
    row("UTF-16 FE FF", utf16(kBody.arg(japanese), QStringConverter::Utf16BE, true), "utf-16",
        encoding::Utf16, japanese);
    row("UTF-16 FF FE", utf16(kBody.arg(japanese), QStringConverter::Utf16LE, true), "utf-16",
        encoding::Utf16, japanese);
    row("UTF-16 without mark", utf16(declaration("UTF-16") + plain, QStringConverter::Utf16LE, false),
        "utf-16", encoding::Utf16, "abc");
    row("Shift JIS", (declaration("Shift_JIS") + kBody).toLatin1().replace("%1", "\x93\xfa\x96\x7b\x8c\xea"),
        "shift_jis", encoding::ShiftJis, japanese);
    row("EUC-JP", (declaration("EUC-JP") + kBody).toLatin1().replace("%1", "\xc6\xfc\xcb\xdc\xb8\xec"),
        "euc-jp", encoding::EucJp, japanese);
    row("ASCII", (declaration("us-ascii") + plain).toLatin1(), "us-ascii", encoding::NonLossyAscii, "abc");
    row("ASCII with a backslash", (declaration("us-ascii") + kBody.arg("a\\142c")).toLatin1(), "utf-8",
        encoding::Utf8, "a\\142c");
    row("Latin 1", (declaration("iso-8859-1") + kBody).toLatin1().replace("%1", "\xe9t\xe9"), "utf-8",
        encoding::Utf8, QStringLiteral("été"));
    row("UTF-32", utf16(kBody.arg(japanese), QStringConverter::Utf32LE, true), "utf-8", encoding::Utf8,
        japanese);
  }
  void everyEncodingHasItsNameAndNumber() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(qint64, number);
    QFETCH(QString, title);
    OpenSvg document(bytes);
    QVERIFY2(document.ok(), document.ok() ? "" : qPrintable(document.result.error().message));
    const PictureFacts facts = *document->facts();
    QCOMPARE(facts.encodingName, name);
    QCOMPARE(qint64(facts.encodingNumber), number);
    QCOMPARE(facts.title, title);
    // What is handed out reads the same again, and is in the encoding that was told.
    const QByteArray pretty = document->svg({})->bytes;
    OpenSvg again(pretty);
    QVERIFY(again.ok());
    QCOMPARE(again->facts()->encodingName, name);
    QCOMPARE(again->facts()->title, title);
    QCOMPARE(pretty.startsWith("\xef\xbb\xbf"), bytes.startsWith("\xef\xbb\xbf"));
    if (number == encoding::Utf16) QVERIFY(pretty.startsWith("\xfe\xff") || pretty.startsWith("\xff\xfe"));
  }

  void bytesComeBackAsTheyWere() {
    for (const QByteArray& bytes :
         {utf16(kBody, QStringConverter::Utf16LE, true), utf16(kBody, QStringConverter::Utf16BE, true),
          "\xef\xbb\xbf" + kBody.toUtf8(), kBody.toUtf8(),
          QByteArray("<?xml version='1.0' encoding='EUC-JP'?><svg>\xc6\xfc</svg>")}) {
      const Result<SvgText> text = decodeSvgText(bytes);
      QVERIFY(text);
      QCOMPARE(encodeSvgText(text->utf8, *text), bytes);
    }
  }

  void theDeclarationFollowsTheEncoding() {
    QCOMPARE(withDeclaredEncoding("<?xml version='1.0' encoding='latin1'?><a/>", "UTF-8"),
             QByteArray("<?xml version='1.0' encoding='UTF-8'?><a/>"));
    QCOMPARE(withDeclaredEncoding("<?xml version='1.0'?><a encoding='b'/>", "UTF-8"),
             QByteArray("<?xml version='1.0'?><a encoding='b'/>"));
    QCOMPARE(withDeclaredEncoding("<a/>", "UTF-8"), QByteArray("<a/>"));
  }

  void theTextEndsAtTheFirstNul() {
    const QString padded = kBody + QChar(0) + QStringLiteral("</x><rubbish");
    for (const QByteArray& bytes : {padded.toUtf8(), utf16(padded, QStringConverter::Utf16LE, true),
                                    (declaration("EUC-JP") + padded).toLatin1()}) {
      const Result<SvgText> text = decodeSvgText(bytes);
      QVERIFY(text);
      QVERIFY(text->utf8.endsWith("</svg>"));
    }
    OpenSvg document(padded.toUtf8());
    SvgRequest request;
    request.rotate = 1;
    for (const bool pretty : {true, false}) {
      request.pretty = pretty;
      OpenSvg again(document->svg(request)->bytes);
      QVERIFY(again->facts());
    }
  }

  void aDeclarationBehindANulDeclaresNothing() {
    const QByteArray bytes("<?xml v\x9frs\0on='1.0' encoding='EUC-JP'?>\n<svg/>", 46);
    const Result<SvgText> text = decodeSvgText(bytes);
    QVERIFY(text);
    QCOMPARE(text->utf8, QByteArray("<?xml v\x9frs"));
    QCOMPARE(text->declaredName, QByteArray("UTF-8"));
    const Result<SvgText> again = decodeSvgText(encodeSvgText(text->utf8, *text));
    QVERIFY(again);
    QCOMPARE(again->utf8, text->utf8);
    QCOMPARE(OpenSvg(bytes).ok(), false);  // no document is left, and that is said
  }

  void whatIsNoTextIsRefused() {
    for (const QByteArray& bytes :
         {QByteArray("<?xml version='1.0' encoding='EUC-JP'?><svg>\xc6</svg>"),
          QByteArray("<?xml version='1.0' encoding='no-such'?><svg/>"), QByteArray("\xfe\xff\0", 3)}) {
      const Result<SvgText> text = decodeSvgText(bytes);
      QVERIFY(!text);
      QCOMPARE(text.error().kind, ErrorKind::NotParsable);
    }
  }
};

NORVEX_TEST(SvgTextTest)
#include "svg_text_test.moc"
