// What a picture process tells of a page comes in memory that it has made as large as it likes: what is
// longer than an honest answer is not read at all.
#include <QtEndian>

#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <vector>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "protocol/page_contents.h"
#include "protocol/page_inks.h"
#include "protocol/page_text.h"

using namespace norvex;

namespace {

/// A map of one byte string, well formed, in memory that takes room only where it was looked at.
class LongAnswer {
 public:
  explicit LongAnswer(qsizetype size) : size_(size) {
    void* const memory = ::mmap(nullptr, size_t(size), PROT_READ | PROT_WRITE,
                                MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) qFatal("no memory");
    ::madvise(memory, size_t(size), MADV_NOHUGEPAGE);
    data_ = static_cast<char*>(memory);
    const QByteArray head = QByteArray::fromHex("a161785b");  // { "x": bytes of a length in eight bytes
    std::memcpy(data_, head.constData(), size_t(head.size()));
    qToBigEndian(quint64(size - head.size() - 8), data_ + head.size());
  }
  ~LongAnswer() { ::munmap(data_, size_t(size_)); }
  LongAnswer(const LongAnswer&) = delete;
  LongAnswer& operator=(const LongAnswer&) = delete;

  [[nodiscard]] QByteArray bytes() const { return QByteArray::fromRawData(data_, size_); }
  [[nodiscard]] bool wasRead() const {
    const auto page = size_t(::sysconf(_SC_PAGESIZE));
    std::vector<unsigned char> resident((size_t(size_) + page - 1) / page);
    if (::mincore(data_, size_t(size_), resident.data()) != 0) qFatal("nobody knows what was read");
    size_t read = 0;
    for (const unsigned char each : resident) read += each & 1;
    return read > resident.size() / 2;
  }

 private:
  char* data_ = nullptr;
  qsizetype size_;
};

template <typename T>
bool isRefused(const Result<T>& answer) {
  return !answer && answer.error().kind == ErrorKind::Protocol;
}

}  // namespace

class ReplySizesTest : public QObject {
  Q_OBJECT
 private slots:
  /// Of the right length, it is read, and refused for what it says.
  void whatMayBeHonestIsRead() {
    const LongAnswer longest(limits::maximumMessageBytes);
    QVERIFY(isRefused(decodePageContents(longest.bytes())));
    QVERIFY(longest.wasRead());
    const LongAnswer text(maximumPageTextBytes);
    QVERIFY(isRefused(decodePageText(text.bytes())));
    QVERIFY(text.wasRead());
  }

  void contentsBeyondTheirBoundAreNotRead() {
    const LongAnswer answer(qsizetype(limits::maximumMessageBytes) + 1);
    QVERIFY(isRefused(decodePageContents(answer.bytes())));
    QVERIFY(isRefused(decodeDrawnInk(answer.bytes())));
    QVERIFY(!answer.wasRead());
  }

  void textBeyondItsBoundIsNotRead() {
    const LongAnswer answer(maximumPageTextBytes + 1);
    QVERIFY(isRefused(decodePageText(answer.bytes())));
    QVERIFY(!answer.wasRead());
  }

  void platesBeyondTheirBoundAreNotRead() {
    const LongAnswer answer(maximumPageInksBytes + 1);
    QVERIFY(isRefused(decodePageInks(answer.bytes())));
    QVERIFY(!answer.wasRead());
  }
};

NORVEX_TEST(ReplySizesTest)
#include "reply_sizes_test.moc"
