#include "base/memory/unused_memory.h"

#include <elf.h>
#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace norvex {
namespace {

/// True if the linker has written where nothing is written otherwise: those pages are in no file.
bool hasRelocatedText(const dl_phdr_info& object) {
  const ElfW(Phdr)* const end = object.dlpi_phdr + object.dlpi_phnum;
  const auto* dynamic =
      std::find_if(object.dlpi_phdr, end, [](const ElfW(Phdr) & part) { return part.p_type == PT_DYNAMIC; });
  if (dynamic == end) return true;
  const auto* entry = reinterpret_cast<const ElfW(Dyn)*>(object.dlpi_addr + dynamic->p_vaddr);
  for (; entry->d_tag != DT_NULL; ++entry)
    if (entry->d_tag == DT_TEXTREL || (entry->d_tag == DT_FLAGS && (entry->d_un.d_val & DF_TEXTREL)))
      return true;
  return false;
}

int letGoOfPages(dl_phdr_info* object, size_t, void*) {
  // What the kernel maps has no file.
  if (std::string_view(object->dlpi_name).starts_with("linux-vdso") || hasRelocatedText(*object)) return 0;
  const auto page = uintptr_t(::sysconf(_SC_PAGESIZE));
  for (int i = 0; i < object->dlpi_phnum; ++i) {
    const ElfW(Phdr)& part = object->dlpi_phdr[i];
    if (part.p_type != PT_LOAD || (part.p_flags & PF_W) != 0) continue;
    const uintptr_t begin = (object->dlpi_addr + part.p_vaddr + page - 1) & ~(page - 1);
    const uintptr_t end = (object->dlpi_addr + part.p_vaddr + part.p_filesz) & ~(page - 1);
    if (begin < end) ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
  }
  return 0;
}

}  // namespace

void giveBackUnusedMemory() {
  ::malloc_trim(0);
  ::dl_iterate_phdr(letGoOfPages, nullptr);
}

void giveBackLargeBlocks() {
  constexpr int large = 128 << 10;  // what it begins with; said, it stays
  ::mallopt(M_MMAP_THRESHOLD, large);
}

}  // namespace norvex
