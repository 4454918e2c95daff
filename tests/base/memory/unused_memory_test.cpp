#include "base/memory/unused_memory.h"

#include <QFile>

#include <dlfcn.h>
#include <malloc.h>

#include <cstdlib>
#include <vector>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Kibibytes of a line of /proc/self/smaps_rollup or status.
qint64 told(const char* file, const QByteArray& name) {
  QFile told{QString::fromLatin1(file)};
  if (!told.open(QIODevice::ReadOnly)) return -1;
  for (const QByteArray& line : told.readAll().split('\n'))
    if (line.startsWith(name)) return line.simplified().split(' ').value(1).toLongLong();
  return -1;
}

qint64 fromFiles() {
  return told("/proc/self/status", "RssFile:");
}

}  // namespace

class UnusedMemoryTest : public QObject {
  Q_OBJECT
 private slots:
  void pagesOfLibrariesAreGivenBack() {
    const qint64 before = fromFiles();
    QVERIFY(before > 0);
    giveBackUnusedMemory();
    QVERIFY2(fromFiles() < before / 2, qPrintable(QStringLiteral("%1 of %2").arg(fromFiles()).arg(before)));
  }

  void whatWasWrittenStays() {
    static int written = 1;
    written = 7;
    const QByteArray text = QByteArray("kept").repeated(1000);
    giveBackUnusedMemory();
    QCOMPARE(written, 7);
    QCOMPARE(text.count("kept"), 1000);
    QVERIFY(QString::fromLatin1(text).endsWith(QLatin1String("kept")));
  }

  void whatTheLinkerWroteIntoAProgramStays() {
    void* const library = ::dlopen(NORVEX_RELOCATED_TEXT, RTLD_NOW);
    QVERIFY2(library, ::dlerror());
    void* volatile* const place = static_cast<void* volatile*>(::dlsym(library, "norvexOwnAddress"));
    QVERIFY(place);
    QCOMPARE(*place, static_cast<void*>(const_cast<void**>(place)));
    giveBackUnusedMemory();
    QCOMPARE(*place, static_cast<void*>(const_cast<void**>(place)));
    ::dlclose(library);
  }

  void largeBlocksAreTheSystemsHoweverManyWereFreed() {
    constexpr size_t large = 1 << 20;
    giveBackLargeBlocks();
    const size_t before = ::mallinfo2().hblks;
    for (int i = 0; i < 3; ++i) {
      void* volatile block = std::malloc(large);
      if (i == 0 && ::mallinfo2().hblks == before) QSKIP("another allocator is in use");
      QCOMPARE(::mallinfo2().hblks, before + 1);
      std::free(block);
      QCOMPARE(::mallinfo2().hblks, before);
    }
  }

  void blocksAreLargeFrom128KibibytesOn() {
    giveBackLargeBlocks();
    // The first may fit into what is free of the heap.
    const auto areTheSystems = [](size_t size) {
      const size_t before = ::mallinfo2().hblks;
      std::vector<void*> blocks;
      for (int i = 0; i < 64; ++i) blocks.push_back(std::malloc(size));
      const bool mapped = ::mallinfo2().hblks > before;
      for (void* block : blocks) std::free(block);
      return mapped;
    };
    if (!areTheSystems(1 << 20)) QSKIP("another allocator is in use");
    QVERIFY(!areTheSystems(120 << 10));
    QVERIFY(areTheSystems((128 << 10) + 16));
  }

  void theFreePartsOfTheHeapAreGivenBack() {
    const size_t inUse = ::mallinfo2().uordblks;
    std::vector<void*> pieces;
    for (int i = 0; i < 2000; ++i) {
      pieces.push_back(std::malloc(16 << 10));
      static_cast<volatile char*>(pieces.back())[100] = 1;
      static_cast<volatile char*>(pieces.back())[9000] = 1;
    }
    if (::mallinfo2().uordblks < inUse + (30 << 20)) QSKIP("another allocator is in use");
    void* const above = std::malloc(100);
    for (void* piece : pieces) std::free(piece);
    const qint64 before = told("/proc/self/status", "RssAnon:");
    giveBackUnusedMemory();
    QVERIFY(told("/proc/self/status", "RssAnon:") < before - 8000);
    std::free(above);
  }
};

NORVEX_TEST(UnusedMemoryTest)
#include "unused_memory_test.moc"
