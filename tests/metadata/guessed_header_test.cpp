// Facts of sources that decode in no encoding.
#include "metadata/guessed_header.h"

#include "kit/test_main.h"
#include "metadata/binary_eps.h"
#include "metadata/eps_header.h"

using namespace norvex;

namespace {

std::optional<GuessedHeader> guessed(const QByteArray& source) {
  return guessedHeader(source, epsHeader(source));
}

/// No encoding takes this.
const QByteArray kNoText("\n(\xFF\x80\xFD\xA0\xFF) show\n");

}  // namespace

class GuessedHeaderTest : public QObject {
  Q_OBJECT
 private slots:
  void aDecodedSourceNeedsNoGuess() {
    QVERIFY(!guessed("%!PS\n%%Title: (Größe)\n"));
    QVERIFY(!guessed({}));
  }
  void latin1IsTheFirstGuess() {
    const auto guess = guessed(
        "%!PS\n%%Title: Gr\xF6\xDF"
        "e\n%%For:\n%%Routing: r" +
        kNoText);
    QVERIFY(guess);
    QCOMPARE(guess->encodingName, "iso-8859-1");
    QCOMPARE(guess->values, HeaderDictionary({{header::Title, "Größe"}, {header::Description, "r"}}));
  }
  void bytesThatLatin1HasNoCharactersForAreMacRoman() {
    const auto guess = guessed("%!PS\r%%For: Ren\x8E\r%%Creator: x\xA9" + kNoText);
    QVERIFY(guess);
    QCOMPARE(guess->encodingName, "macintosh");
    QCOMPARE(guess->values, HeaderDictionary({{header::For, "René"}, {header::Creator, "x©"}}));
  }
  void aBinaryFileIsReadToo() {
    const auto guess = guessed(testdata::binaryEps("%!PS\n%%Title: \xE9" + kNoText, "II*"));
    QVERIFY(guess);
    QCOMPARE(guess->values, HeaderDictionary({{header::Title, "é"}}));
  }
  void nothingSaidIsNoGuess() { QVERIFY(!guessed("%!PS\n" + kNoText)); }

  void theDictionaryStaysPartialAndHasThePreview() {
    const HeaderDictionary dictionary =
        epsHeader("%!PS\n%%Title: a\n%%BeginPreview: 8 2 1 2\n%FF\n%00\n%%EndPreview" + kNoText);
    QVERIFY(!dictionary.contains(header::Title));
    QCOMPARE(dictionary.value(header::EncodingNumber).toLongLong(), encoding::Ascii);
    QCOMPARE(dictionary.value(header::Preview).value<NSBitmapImageRep>().data, QByteArray("\x00\xFF", 2));
  }
};

NORVEX_TEST(GuessedHeaderTest)
#include "guessed_header_test.moc"
