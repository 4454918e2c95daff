#include "worker/eps_output/cff_texts.h"

#include <algorithm>

#include "kit/test_main.h"
#include "worker/eps_output/cff_index.h"
#include "worker/kit/made_font.h"

using namespace norvex;
using namespace norvex::engine;
using kit::bigEndian;

namespace {

constexpr int kFirstOwn = 391;  // the texts before it are of every font

QByteArray entry(int value, const QByteArray& operation) {
  return '\x1d' + bigEndian(quint32(value), 4) + operation;
}

/// What is for reading of a font of three glyphs whose notice is its text 0, and full name 1. Its glyphs are
/// named by `charset`, and by `encoding` where that is given.
std::set<int> forReading(const QByteArray& charset, const QByteArray& encoding = {},
                         const QByteArray& more = {}) {
  const QByteArray font = QByteArray(8, '\0') + kit::cffIndex({"a", "b", "c"});
  const int charsetAt = int(font.size()), encodingAt = charsetAt + int(charset.size());
  const QByteArray dict = entry(kFirstOwn, "\1") + entry(kFirstOwn + 1, "\2") + entry(charsetAt, "\x0f") +
                          (encoding.isEmpty() ? QByteArray() : entry(encodingAt, "\x10")) + entry(8, "\x11") +
                          more;
  return textsForReading(font + charset + encoding, dict, 2);
}

QByteArray named(int first, int second) {
  return '\0' + bigEndian(quint32(first), 2) + bigEndian(quint32(second), 2);
}

}  // namespace

class CffTextsTest : public QObject {
  Q_OBJECT
 private slots:
  void noticeAndNameAreForReading() { QCOMPARE(forReading(named(34, 35)), (std::set<int>{0, 1})); }

  void whatNamesAGlyphIsNot() {
    QCOMPARE(forReading(named(34, kFirstOwn + 1)), std::set<int>{0});
    // Ranges: the first name, and how many follow it in one byte and in two.
    QCOMPARE(forReading('\1' + bigEndian(kFirstOwn - 1, 2) + '\1'), std::set<int>{1});
    QCOMPARE(forReading('\2' + bigEndian(kFirstOwn, 2) + bigEndian(1, 2)), std::set<int>());
  }

  // A code may have a further glyph, by its name, behind the list of codes or ranges.
  void norWhatNamesOneForACode() {
    const QByteArray further = QByteArray("\x01\x41") + bigEndian(kFirstOwn + 1, 2);
    QCOMPARE(forReading(named(34, 35), QByteArray("\x80\x02\x41\x42") + further), std::set<int>{0});
    QCOMPARE(forReading(named(34, 35), QByteArray("\x81\x01\x41\x01") + further), std::set<int>{0});
    QCOMPARE(forReading(named(34, 35), QByteArray("\0\x02\x41\x42", 4) + further), (std::set<int>{0, 1}));
  }

  void aProgramIsNone() {
    QCOMPARE(forReading(named(34, 35), {}, entry(kFirstOwn, "\x0c\x15")), std::set<int>{1});
  }

  void theDigitsOfARealNumberAreNoOperators() {
    const QByteArray real("\x1e\x0b\x11\x0e\x5f", 5);
    const QByteArray dict = real + "\x0c\x07" + entry(99, "\x11");
    QCOMPARE(cffOperands(dict), (std::map<int, qint64>{{cffEscape | 7, 0}, {CffCharStrings, 99}}));
  }

  // Places in a list take one to four bytes.
  void aListWithPlacesOfOtherSizesIsDamaged() {
    const auto isList = [](int size) {
      QByteArray list = bigEndian(1, 2) + char(size);
      for (const quint32 place : {1u, 3u})
        list += QByteArray(std::max(0, size - 4), '\0') + bigEndian(place, std::min(size, 4));
      list += "ab";
      ByteReader read(list);
      return cffIndexAt(read, 0).has_value();
    };
    for (const int size : {1, 2, 3, 4}) QVERIFY(isList(size));
    QVERIFY(!isList(0));
    QVERIFY(!isList(5));
  }

  void damageLeavesEverything() {
    QCOMPARE(forReading(named(34, 35).left(3)), std::set<int>());
    const QByteArray withoutOutlines = entry(kFirstOwn, "\1") + entry(8, "\x0f");
    QCOMPARE(textsForReading(QByteArray(8, '\0') + named(34, 35), withoutOutlines, 2), std::set<int>());
    QCOMPARE(forReading('\3' + named(34, 35)), std::set<int>());
  }
};

NORVEX_TEST(CffTextsTest)
#include "cff_texts_test.moc"
