// The header dictionary of binary EPS files.
#include "kit/test_main.h"
#include "metadata/binary_eps.h"
#include "metadata/dos_eps_header.h"
#include "metadata/eps_header.h"
#include "metadata/text_encoding.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

constexpr char kNoPreview[] = "EPS preview image is nil in Corvane";
constexpr char kNoText[] = "Corvane can't get EPSHeader because string encoding is bad.";

QByteArray eps(const QByteArray& lines) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n" + lines + "%%EndComments\n";
}

QString text(const HeaderDictionary& dictionary, const QString& key) {
  return dictionary.contains(key) ? dictionary.value(key).toString() : "(absent)";
}

/// Stands for the TIFF library: any bytes that begin like TIFF are one grey pixel.
std::optional<NSBitmapImageRep> onePixel(const QByteArray& tiff) {
  if (!tiff.startsWith("II*")) return {};
  NSBitmapImageRep rep;
  rep.pixelsWide = rep.pixelsHigh = rep.bytesPerRow = 1;
  rep.colorSpaceName = NSCalibratedWhiteColorSpace;
  rep.data = "x";
  return rep;
}

}  // namespace

class BinaryEpsHeaderTest : public QObject {
  Q_OBJECT
 private slots:
  void thePreviewIsTheTiffAndTheTextThePostScript() {
    const QByteArray tiff("II*\0%%Title: in the TIFF\n", 25);
    QByteArray given;
    const HeaderDictionary dictionary =
        epsHeader(binaryEps(eps("%%Creator: me\n"), tiff), [&](const QByteArray& bytes) {
          given = bytes;
          return onePixel(bytes);
        });
    QCOMPARE(given, tiff);
    QCOMPARE(dictionary.value(header::Preview).value<NSBitmapImageRep>().data, QByteArray("x"));
    QCOMPARE(text(dictionary, header::Title), "");
    QCOMPARE(text(dictionary, header::Creator), "me");
    QCOMPARE(text(dictionary, header::Encoding), "utf-8");
  }

  void theTiffMayStandBeforeThePostScript() {
    const QByteArray ps = eps("%%Title: t\n");
    const QByteArray source = dosHeader(33, quint32(ps.size()), 30, 3) + "II*" + ps;
    const HeaderDictionary dictionary = epsHeader(source, onePixel);
    QVERIFY(dictionary.contains(header::Preview));
    QCOMPARE(text(dictionary, header::Title), "t");
  }

  void anUnreadableTiffIsToldToTheLogAlone() {
    QTest::ignoreMessage(QtInfoMsg, kNoPreview);
    const HeaderDictionary dictionary = epsHeader(binaryEps(eps("%%Title: t\n"), "no TIFF"), onePixel);
    QVERIFY(!dictionary.contains(header::Preview));
    QCOMPARE(text(dictionary, header::Title), "t");
  }

  void aMissingTiffIsToldToTheLogAndNotDecoded() {
    QTest::ignoreMessage(QtInfoMsg, kNoPreview);
    bool asked = false;
    const HeaderDictionary dictionary = epsHeader(binaryEps(eps("%%Title: t\n")), [&](const QByteArray&) {
      asked = true;
      return std::optional<NSBitmapImageRep>();
    });
    QVERIFY(!asked);
    QCOMPARE(text(dictionary, header::Title), "t");
  }

  void onlyTwoMagicBytesAreTested() {
    const QByteArray ps = eps("%%Title: t\n");
    const QByteArray source = dosHeader(30, quint32(ps.size()), 0, 0, QByteArray("\xC5\xD0\x00\x00", 4)) + ps;
    QCOMPARE(text(epsHeader(source), header::Title), "t");
  }

  void theHeaderMayStandBehindAUtf8Mark() {
    QTest::ignoreMessage(QtInfoMsg, "complete UTF-8");
    const HeaderDictionary dictionary = epsHeader("\xEF\xBB\xBF" + binaryEps(eps("%%Title: t\n")));
    QCOMPARE(text(dictionary, header::Title), "t");
  }

  void shiftJisIsTriedBeforeEucJp() {
    const QByteArray both = encodeText(QString::fromUtf8("ｱｲｳｴ"), encoding::ShiftJis).value();
    QVERIFY(isDecodable(both, encoding::EucJp));
    const HeaderDictionary dictionary = epsHeader(binaryEps(eps("%%Title: " + both + "\n")));
    QCOMPARE(text(dictionary, header::Encoding), "shift_jis");
    QCOMPARE(text(dictionary, header::Title), QString::fromUtf8("ｱｲｳｴ"));
  }

  void eucJpThatIsNoShiftJis() {
    const QByteArray euc("\xB0\xFD\xB0\xFE");  // neither FD nor FE stands anywhere in Shift JIS
    const HeaderDictionary dictionary = epsHeader(binaryEps(eps("%%Title: " + euc + "\n")));
    QCOMPARE(text(dictionary, header::Encoding), "euc-jp");
    QCOMPARE(text(dictionary, header::Title).size(), 2);
  }

  void undecodableTextRecordsTheLastAttempt() {
    QTest::ignoreMessage(QtInfoMsg, kNoText);
    const HeaderDictionary dictionary = epsHeader(binaryEps(eps("%%Title: \xFF\xFF\x80\n")));
    QCOMPARE(text(dictionary, header::Encoding), "us-ascii");
    QCOMPARE(dictionary.value(header::EncodingNumber).toLongLong(), 7);
    QCOMPARE(dictionary.size(), 2);
  }

  void thePreviewStaysWhenTheTextIsUndecodable() {
    QTest::ignoreMessage(QtInfoMsg, kNoText);
    const HeaderDictionary dictionary = epsHeader(binaryEps(eps("%%Title: \xFF\x80\n"), "II*"), onePixel);
    QCOMPARE(dictionary.keys(), QStringList({"Encoding", "EncodingNumber", "Preview"}));
  }

  void neitherTheDeclaredEncodingNorAnInterchangePreviewCounts() {
    const QByteArray euc = encodeText(QString::fromUtf8("ｱｲｳｴ"), encoding::ShiftJis).value();
    const HeaderDictionary dictionary =
        epsHeader(binaryEps(eps("%APL_DSC_Encoding: UTF8\n%%Title: " + euc + "\n") +
                            "%%BeginPreview: 8 2 1 2\n%FF\n%00\n%%EndPreview\n"));
    QCOMPARE(dictionary.value(header::EncodingNumber).toLongLong(), 8);
    QVERIFY(!dictionary.contains(header::Preview));
  }

  void thirtyBytesAreText() {
    const QByteArray source = dosHeader(30, 0, 0, 0);
    QCOMPARE(source.size(), 30);
    QVERIFY(!dosEpsHeader(source));
    QVERIFY(dosEpsHeader(source + "x"));
  }

  void aHeaderCutBehindAMarkIsText() {
    QTest::ignoreMessage(QtInfoMsg, "complete UTF-8");
    QTest::ignoreMessage(QtInfoMsg, kNoText);
    QVERIFY(epsHeader("\xEF\xBB\xBF" + dosHeader(30, 0, 0, 0).first(29)).contains(header::EncodingNumber));
  }

  void sectionsOutsideTheFileReadNothingOutsideIt() {
    const QByteArray ps = eps("%%Title: t\n");
    QTest::ignoreMessage(QtInfoMsg, kNoPreview);
    const QByteArray longer = dosHeader(30, 4000000000u, 4000000000u, 4000000000u) + ps;
    QCOMPARE(text(epsHeader(longer, onePixel), header::Title), "t");
    QTest::ignoreMessage(QtInfoMsg, kNoPreview);
    const QByteArray outside = dosHeader(4294967295u, 4294967295u, 4294967295u, 4294967295u) + "..." + ps;
    QCOMPARE(text(epsHeader(outside, onePixel), header::Title), "t");
    QCOMPARE(postScriptSection(outside, *dosEpsHeader(outside)), QByteArrayView(ps));
  }

  void aTiffSectionThatRunsOverTheEndIsCut() {
    QByteArray given;
    const QByteArray source = dosHeader(0, 0, 30, 100) + "II*";
    const HeaderDictionary dictionary = epsHeader(source, [&](const QByteArray& bytes) {
      given = bytes;
      return std::optional<NSBitmapImageRep>(NSBitmapImageRep());
    });
    QVERIFY(dictionary.contains(header::Preview));
    QCOMPARE(given, QByteArray("II*"));
  }

  void everyCutOfABinaryFileIsReadWithoutHarm() {
    const QByteArray source = binaryEps(eps("%%Title: t\n"), "II*tiff");
    for (qsizetype length = 1; length <= source.size(); ++length)
      QVERIFY(epsHeader(source.first(length)).contains(header::EncodingNumber));
  }
};

NORVEX_TEST(BinaryEpsHeaderTest)
#include "binary_eps_header_test.moc"
