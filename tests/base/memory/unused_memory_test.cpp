#include "base/memory/unused_memory.h"

#include <QFile>

#include <dlfcn.h>
#include <link.h>
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

/// What a library keeps behind its program text and is never written.
struct LastConstants {
  QByteArray library;
  uintptr_t begin = 0;
  uintptr_t size = 0;
};

LastConstants lastConstants(const char* library) {
  LastConstants found{library};
  ::dl_iterate_phdr(
      [](dl_phdr_info* object, size_t, void* into) {
        auto& constants = *static_cast<LastConstants*>(into);
        if (!QByteArrayView(object->dlpi_name).contains(constants.library)) return 0;
        for (int i = 0; i < object->dlpi_phnum; ++i)
          if (const auto& part = object->dlpi_phdr[i]; part.p_type == PT_LOAD && part.p_flags == PF_R)
            constants = {constants.library, uintptr_t(object->dlpi_addr + part.p_vaddr),
                         uintptr_t(part.p_filesz)};
        return 1;
      },
      &found);
  return found;
}

/// Kibibytes of the part of the memory that has `place`.
qint64 residentAt(uintptr_t place) {
  QFile file("/proc/self/smaps");
  if (!file.open(QIODevice::ReadOnly)) return -1;
  bool isThere = false;
  for (const QByteArray& line : file.readAll().split('\n')) {
    const QByteArray range = line.left(line.indexOf(' '));
    if (const auto dash = range.indexOf('-'); dash > 0)
      isThere = range.first(dash).toULongLong(nullptr, 16) <= place &&
                place < range.sliced(dash + 1).toULongLong(nullptr, 16);
    else if (isThere && line.startsWith("Rss:"))
      return line.simplified().split(' ').value(1).toLongLong();
  }
  return -1;
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

  void pagesOfTheirConstantsAreGivenBackToo() {
    const LastConstants constants = lastConstants("libQt6Core.so");
    QVERIFY(constants.size > 100'000);
    volatile char sum = 0;
    for (uintptr_t at = 0; at < constants.size; at += 4096)
      sum = char(sum + *reinterpret_cast<const char*>(constants.begin + at));
    const qint64 before = residentAt(constants.begin);
    QVERIFY(before >= qint64(constants.size >> 10) - 4);
    giveBackUnusedMemory();
    QVERIFY(residentAt(constants.begin) < before / 2);
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
