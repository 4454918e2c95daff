#include "protocol/sealed_memory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "kit/forked_check.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

FileDescriptor memoryWithSeals(const QByteArray& bytes, int seals) {
  FileDescriptor fd(::memfd_create("test", MFD_CLOEXEC | MFD_ALLOW_SEALING));
  if (::write(fd.get(), bytes.constData(), size_t(bytes.size())) != bytes.size()) return {};
  if (seals != 0 && ::fcntl(fd.get(), F_ADD_SEALS, seals) != 0) return {};
  return fd;
}

constexpr int kAll = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;

}  // namespace

class SealedMemoryTest : public QObject {
  Q_OBJECT
 private slots:
  void bytesComeBackUnchanged() {
    QByteArray bytes(70'001, '\0');
    for (qsizetype i = 0; i < bytes.size(); ++i) bytes[i] = char(i * 7);
    auto fd = SealedMemory::seal(bytes);
    QVERIFY(fd.ok());
    auto memory = SealedMemory::map(std::move(*fd), bytes.size());
    QVERIFY(memory.ok());
    QCOMPARE(memory->size(), bytes.size());
    QCOMPARE(memory->toByteArray(), bytes);
    QCOMPARE(memory->view(), bytes);
  }

  void emptyBytesNeedNoMapping() {
    auto fd = SealedMemory::seal(QByteArray());
    QVERIFY(fd.ok());
    auto memory = SealedMemory::map(std::move(*fd), 0);
    QVERIFY(memory.ok());
    QCOMPARE(memory->size(), 0);
    QVERIFY(memory->data() == nullptr);
    QCOMPARE(memory->toByteArray(), QByteArray());
  }

  void sealedBytesCannotBeWrittenOrShortened() {
    auto fd = SealedMemory::seal(QByteArray("abc"));
    QVERIFY(fd.ok());
    QCOMPARE(::pwrite(fd->get(), "x", 1, 0), ssize_t(-1));
    QCOMPARE(::ftruncate(fd->get(), 1), -1);
    QCOMPARE(::ftruncate(fd->get(), 10), -1);
  }

  void aMissingSealIsRefused_data() {
    QTest::addColumn<int>("seals");
    QTest::newRow("none") << 0;
    QTest::newRow("no shrink") << (kAll & ~F_SEAL_SHRINK);
    QTest::newRow("no grow") << (kAll & ~F_SEAL_GROW);
    QTest::newRow("no write") << (kAll & ~F_SEAL_WRITE);
    QTest::newRow("no seal") << (kAll & ~F_SEAL_SEAL);
    QTest::newRow("future write only") << (F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL | F_SEAL_FUTURE_WRITE);
  }
  void aMissingSealIsRefused() {
    QFETCH(int, seals);
    FileDescriptor fd = memoryWithSeals("abc", seals);
    QVERIFY(fd.valid());
    const auto memory = SealedMemory::map(std::move(fd), 100);
    QVERIFY(!memory.ok());
    QCOMPARE(memory.error().kind, ErrorKind::Protocol);
    QCOMPARE(memory.error().message, "the picture process handed over memory that cannot be trusted");
  }

  void whatIsNoSharedMemoryIsRefused() {
    int ends[2] = {-1, -1};
    QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
    FileDescriptor keep(ends[1]);
    QCOMPARE(SealedMemory::map(FileDescriptor(ends[0]), 100).error().kind, ErrorKind::Protocol);
    FileDescriptor folder(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    QCOMPARE(SealedMemory::map(std::move(folder), 100).error().kind, ErrorKind::Protocol);
    QCOMPARE(SealedMemory::map(FileDescriptor(), 100).error().kind, ErrorKind::Protocol);
  }

  void moreThanTheMaximumIsRefused() {
    auto fits = SealedMemory::seal(QByteArray(100, 'x'));
    QVERIFY(SealedMemory::map(std::move(*fits), 100).ok());
    auto large = SealedMemory::seal(QByteArray(101, 'x'));
    QCOMPARE(SealedMemory::map(std::move(*large), 100).error().kind, ErrorKind::Protocol);
  }

  void theDescriptorIsClosedInEveryCase() {
    auto good = SealedMemory::seal(QByteArray("abc"));
    const int goodNumber = good->get();
    QVERIFY(SealedMemory::map(std::move(*good), 3).ok());
    QCOMPARE(::fcntl(goodNumber, F_GETFD), -1);
    FileDescriptor bad = memoryWithSeals("abc", 0);
    const int badNumber = bad.get();
    QVERIFY(!SealedMemory::map(std::move(bad), 3).ok());
    QCOMPARE(::fcntl(badNumber, F_GETFD), -1);
  }

  void whyMemoryCouldNotBeMadeIsTold() {
    const auto refusal = [](__rlimit_resource resource, rlim_t most) {
      int ends[2] = {-1, -1};
      if (::pipe(ends) != 0) return QByteArray("no pipe");
      kit::inForkedChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {most, most};
        if (::setrlimit(resource, &limit) != 0) return 1;
        const auto sealed = SealedMemory::seal(QByteArray(10'000, 'x'));
        const QByteArray told = sealed ? "none" : sealed.error().message.toUtf8();
        return sealed || sealed.error().kind == ErrorKind::Limit
                   ? int(::write(ends[1], told, size_t(told.size())))
                   : 2;
      });
      ::close(ends[1]);
      char told[200] = {};
      const ssize_t size = ::read(ends[0], told, sizeof told);
      ::close(ends[0]);
      return QByteArray(told, std::max<ssize_t>(size, 0));
    };
    QCOMPARE(refusal(RLIMIT_FSIZE, 10'000), "none");
    QCOMPARE(refusal(RLIMIT_FSIZE, 9'999), "the picture is larger than files may become here");
    QCOMPARE(refusal(RLIMIT_NOFILE, 3), "too many files are open for another picture");
  }

  void theMappingOutlivesTheFirstOwner() {
    SealedMemory copy;
    {
      auto fd = SealedMemory::seal(QByteArray("kept"));
      auto memory = SealedMemory::map(std::move(*fd), 4);
      copy = *memory;
    }
    QCOMPARE(copy.toByteArray(), QByteArray("kept"));
  }
};

NORVEX_TEST(SealedMemoryTest)
#include "sealed_memory_test.moc"
