// What becomes UTF-8 of a program in another encoding, and what stays.
#include "metadata/eps_utf8_comments.h"

#include "kit/test_main.h"
#include "metadata/binary_eps.h"
#include "metadata/text_encoding.h"

using namespace norvex;

namespace {

const QString kTitle = QStringLiteral("日本語");

QByteArray in(qint64 number) {
  return encodeText(kTitle, number).value_or(QByteArray());
}

/// A header, a shown string, a comment between the lines of the program and one in the trailer.
QByteArray program(const QByteArray& commented, const QByteArray& shown) {
  return "%!PS-Adobe-3.0 EPSF-3.0\r\n%%Title: (" + commented + ")\r\n%%EndComments\r\n(" + shown +
         ") show\r\n(a\n%%" + shown + ") show % " + shown + "\n%%For: " + commented + "\n%%EOF\n";
}

}  // namespace

class EpsUtf8CommentsTest : public QObject {
  Q_OBJECT
 private slots:
  void commentsBecomeUtf8AndStringsStay() {
    for (const qint64 number : {encoding::ShiftJis, encoding::EucJp})
      QCOMPARE(epsWithUtf8Comments(program(in(number), in(number)), number),
               program(kTitle.toUtf8(), in(number)));
  }
  void utf8AndAsciiStay() {
    const QByteArray utf8 = program(kTitle.toUtf8(), kTitle.toUtf8());
    QCOMPARE(epsWithUtf8Comments(utf8, encoding::Utf8), utf8);
    for (const qint64 number :
         {encoding::ShiftJis, encoding::Ascii, encoding::NonLossyAscii, encoding::Utf16})
      QCOMPARE(epsWithUtf8Comments(program("a\\344", "b"), number), program("a\\344", "b"));
    QCOMPARE(epsWithUtf8Comments("\xEF\xBB\xBF" + utf8, encoding::Utf8), utf8);
  }
  void aSourceOfNoEncodingStaysAsItIs() {
    const QByteArray bytes = program(in(encoding::ShiftJis), "\xFF\x80\xFD");
    for (const qint64 number :
         {encoding::ShiftJis, encoding::EucJp, encoding::Ascii, encoding::NonLossyAscii})
      QCOMPARE(epsWithUtf8Comments(bytes, number), bytes);
  }
  void amongBinaryDataOnlyTheHeaderIsText() {
    const QByteArray sjis = in(encoding::ShiftJis);
    const QByteArray data = QByteArray("\n\x01\n%%", 5) + sjis + "\n";
    const QByteArray header = "%!PS\n%%Title: ";
    QCOMPARE(epsWithUtf8Comments(header + sjis + data, encoding::ShiftJis), header + kTitle.toUtf8() + data);
  }
  void escapedParenthesesAreNoEnds() {
    const QByteArray sjis = in(encoding::ShiftJis);
    const QByteArray body = "(\\)\n%%" + sjis + "\\\\) show\n%%";
    QCOMPARE(epsWithUtf8Comments("%!PS\n" + body + sjis, encoding::ShiftJis),
             "%!PS\n" + body + kTitle.toUtf8());
  }
  void ofABinaryFileThePostScriptIsTaken() {
    const QByteArray sjis = in(encoding::ShiftJis);
    QCOMPARE(epsWithUtf8Comments(testdata::binaryEps(program(sjis, sjis), "II*"), encoding::ShiftJis),
             program(kTitle.toUtf8(), sjis));
  }
  void behindAUtf16MarkAllIsText() {
    const QString text = QString::fromUtf8(program(kTitle.toUtf8(), kTitle.toUtf8()));
    QCOMPARE(epsWithUtf8Comments(*encodeText(text, encoding::Utf16), encoding::Utf16), text.toUtf8());
  }
};

NORVEX_TEST(EpsUtf8CommentsTest)
#include "eps_utf8_comments_test.moc"
