#include "worker/drawing/packing_beside.h"

#include <QByteArray>

#include <algorithm>
#include <atomic>
#include <thread>

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

constexpr int kPiece = 16 << 10;

std::atomic<int> packedElsewhere{0};
std::thread::id packsHere;

/// zlib's own, which tells on which thread it was called.
int packAndTell(z_streamp stream, int flush) {
  if (std::this_thread::get_id() != packsHere) ++packedElsewhere;
  return deflate(stream, flush);
}

const DeflateCalls kZlib{deflateInit_, packAndTell, deflateEnd};

int findNoMemory(z_streamp, int) {
  return Z_MEM_ERROR;
}

const DeflateCalls kFailing{deflateInit_, findNoMemory, deflateEnd};

/// Numbers as they stand in a drawing.
QByteArray drawing(int lines) {
  QByteArray text;
  quint32 chance = 20;
  for (int i = 0; i < lines; ++i) {
    for (int k = 0; k < 6; ++k) {
      chance = chance * 1664525 + 1013904223;
      text += QByteArray::number(double(chance >> 8) / 7000, 'f', 2) + ' ';
    }
    text += "c\n";
  }
  return text;
}

struct Packed {
  QByteArray bytes;
  bool beside = false;
};

/// As cairo packs: in pieces of `piece`, with room for as many.
Packed packed(const QByteArray& text, bool wanted, uInt piece = kPiece) {
  const PackingBeside scope(wanted);
  packsHere = std::this_thread::get_id();
  z_stream stream{};
  Packed result;
  if (beginPacking(kZlib, &stream, Z_DEFAULT_COMPRESSION, ZLIB_VERSION, sizeof stream) != Z_OK) return {};
  result.beside = isPackedBeside(stream);
  QByteArray room(qsizetype(piece), '\0');
  const auto renew = [&] {
    result.bytes.append(room.constData(), qsizetype(piece - stream.avail_out));
    stream.next_out = reinterpret_cast<Bytef*>(room.data());
    stream.avail_out = piece;
  };
  stream.avail_out = piece;
  renew();
  QByteArray left = text;
  int outcome = Z_OK;
  stream.next_in = reinterpret_cast<Bytef*>(left.data());
  for (uInt rest = uInt(left.size()); outcome == Z_OK;) {
    stream.avail_in += std::min(piece, rest);
    rest -= std::min(piece, rest);
    while (stream.avail_in > 0) {
      if (packMore(kZlib, &stream, Z_NO_FLUSH) != Z_OK) return {};
      if (stream.avail_out == 0) renew();
    }
    while (rest == 0 && outcome == Z_OK) {
      outcome = packMore(kZlib, &stream, Z_FINISH);
      renew();
    }
  }
  endPacking(kZlib, &stream);
  return result;
}

QByteArray unpacked(const QByteArray& bytes, qsizetype size) {
  QByteArray text(size, '\0');
  uLongf length = uLongf(size);
  const int read = uncompress(reinterpret_cast<Bytef*>(text.data()), &length,
                              reinterpret_cast<const Bytef*>(bytes.constData()), uLong(bytes.size()));
  return read == Z_OK ? text.left(qsizetype(length)) : QByteArray();
}

class PackingBesideTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { packedElsewhere = 0; }

  void whatNobodyWantsBesideIsZlibsOwn() {
    const Packed own = packed(drawing(20'000), false);
    QVERIFY(!own.beside);
    QCOMPARE(packedElsewhere.load(), 0);
  }

  void theBytesAreThoseOfZlib_data() {
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("piece");
    QTest::newRow("nothing") << 0 << kPiece;
    QTest::newRow("one line") << 1 << kPiece;
    QTest::newRow("short") << 2'000 << kPiece;
    QTest::newRow("long") << 40'000 << kPiece;
    QTest::newRow("in other pieces") << 10'000 << 777;
    QTest::newRow("longer than what may wait") << 250'000 << (1 << 20);
  }

  void theBytesAreThoseOfZlib() {
    QFETCH(int, lines);
    QFETCH(int, piece);
    const QByteArray text = drawing(lines);
    const Packed own = packed(text, false, uInt(piece)), beside = packed(text, true, uInt(piece));
    QVERIFY(beside.beside);
    QVERIFY(!own.bytes.isEmpty());
    QVERIFY(own.bytes == beside.bytes);
    QVERIFY(unpacked(beside.bytes, text.size() + 1) == text);
  }

  void whatIsLongIsPackedOnAThreadOfItsOwn() {
    packed(drawing(20'000), true);
    QVERIFY(packedElsewhere.load() > 0);
  }

  void forWhatIsShortThereIsNoThread() {
    packed(drawing(1'000), true);
    QCOMPARE(packedElsewhere.load(), 0);
  }

  void theWishEndsWithItsScope() {
    {
      const PackingBeside outer(true);
      { const PackingBeside inner(false); }
      z_stream stream{};
      QCOMPARE(beginPacking(kZlib, &stream, 6, ZLIB_VERSION, sizeof stream), Z_OK);
      QVERIFY(isPackedBeside(stream));
      endPacking(kZlib, &stream);
    }
    z_stream stream{};
    QCOMPARE(beginPacking(kZlib, &stream, 6, ZLIB_VERSION, sizeof stream), Z_OK);
    QVERIFY(!isPackedBeside(stream));
    endPacking(kZlib, &stream);
  }

  void whatIsGivenUpIsLetGo() {
    const PackingBeside scope(true);
    z_stream stream{};
    QCOMPARE(beginPacking(kZlib, &stream, 6, ZLIB_VERSION, sizeof stream), Z_OK);
    QByteArray text = drawing(20'000);
    stream.next_in = reinterpret_cast<Bytef*>(text.data());
    stream.avail_in = uInt(text.size());
    QCOMPARE(packMore(kZlib, &stream, Z_NO_FLUSH), Z_OK);
    QCOMPARE(stream.avail_in, uInt(0));
    QCOMPARE(endPacking(kZlib, &stream), Z_OK);
    QVERIFY(!isPackedBeside(stream));
  }

  // cairo asks again until it hears of the end, whatever it hears else.
  void whatCannotBePackedEndsAndIsTold_data() {
    QTest::addColumn<int>("lines");
    QTest::newRow("short") << 10;
    QTest::newRow("on a thread of its own") << 20'000;
  }

  void whatCannotBePackedEndsAndIsTold() {
    QFETCH(int, lines);
    const PackingBeside scope(true);
    QVERIFY(!scope.hasFailed());
    z_stream stream{};
    QCOMPARE(beginPacking(kFailing, &stream, 6, ZLIB_VERSION, sizeof stream), Z_OK);
    QByteArray text = drawing(lines);
    stream.next_in = reinterpret_cast<Bytef*>(text.data());
    stream.avail_in = uInt(text.size());
    QCOMPARE(packMore(kFailing, &stream, Z_NO_FLUSH), Z_OK);
    QCOMPARE(stream.avail_in, uInt(0));
    QCOMPARE(packMore(kFailing, &stream, Z_FINISH), Z_STREAM_END);
    QVERIFY(scope.hasFailed());
    endPacking(kFailing, &stream);
    QVERIFY(!PackingBeside(true).hasFailed());
  }

  void whatWasPackedHasNotFailed() {
    const PackingBeside scope(true);
    z_stream stream{};
    QCOMPARE(beginPacking(kZlib, &stream, 6, ZLIB_VERSION, sizeof stream), Z_OK);
    QByteArray text = drawing(20'000), room(text.size(), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(text.data());
    stream.avail_in = uInt(text.size());
    stream.next_out = reinterpret_cast<Bytef*>(room.data());
    stream.avail_out = uInt(room.size());
    QCOMPARE(packMore(kZlib, &stream, Z_FINISH), Z_STREAM_END);
    QVERIFY(!scope.hasFailed());
    endPacking(kZlib, &stream);
  }

  void aLevelThatZlibRefusesIsRefused() {
    const PackingBeside scope(true);
    z_stream stream{};
    QCOMPARE(beginPacking(kZlib, &stream, 77, ZLIB_VERSION, sizeof stream), Z_STREAM_ERROR);
    QVERIFY(!isPackedBeside(stream));
  }
};

}  // namespace

NORVEX_TEST(PackingBesideTest)
#include "packing_beside_test.moc"
