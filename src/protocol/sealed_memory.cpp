#include "protocol/sealed_memory.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <cerrno>

namespace norvex {
namespace {

constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;

Error cannotBeTrue() {
  return {ErrorKind::Protocol,
          QStringLiteral("the picture process handed over memory that cannot be trusted")};
}

Error noMemory() {
  return {ErrorKind::Limit, QStringLiteral("there is not enough memory for the picture")};
}

/// Why memory could not be made or filled.
Error notMade(int reason) {
  if (reason == EMFILE || reason == ENFILE)
    return {ErrorKind::Limit, QStringLiteral("too many files are open for another picture")};
  if (reason == EFBIG)
    return {ErrorKind::Limit, QStringLiteral("the picture is larger than files may become here")};
  return noMemory();
}

bool writeAll(int fd, const char* bytes, qsizetype size) {
  while (size > 0) {
    const ssize_t written = ::write(fd, bytes, size_t(size));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes += written;
    size -= written;
  }
  return true;
}

/// Huge pages are refused: their first access can fail with a bus error however they are sealed.
bool isOrdinarySharedMemory(int fd) {
  struct statfs system = {};
  return ::fstatfs(fd, &system) == 0 && system.f_type == TMPFS_MAGIC;
}

}  // namespace

Result<FileDescriptor> SealedMemory::seal(const void* bytes, qsizetype size) {
  FileDescriptor fd(::memfd_create("norvex", MFD_CLOEXEC | MFD_ALLOW_SEALING));
  if (!fd.valid() || !writeAll(fd.get(), static_cast<const char*>(bytes), size)) return notMade(errno);
  if (::fcntl(fd.get(), F_ADD_SEALS, kSeals) != 0) return noMemory();
  return fd;
}

Result<FileDescriptor> SealedMemory::seal(const QByteArray& bytes) {
  return seal(bytes.constData(), bytes.size());
}

Result<SealedMemory> SealedMemory::map(FileDescriptor fd, qsizetype maximumBytes) {
  const int seals = fd.valid() ? ::fcntl(fd.get(), F_GET_SEALS) : -1;
  struct stat status = {};
  if (seals < 0 || (seals & kSeals) != kSeals || !isOrdinarySharedMemory(fd.get())) return cannotBeTrue();
  if (::fstat(fd.get(), &status) != 0 || status.st_size < 0 || status.st_size > maximumBytes)
    return cannotBeTrue();
  SealedMemory memory;
  memory.size_ = status.st_size;
  if (memory.size_ == 0) return memory;
  void* mapped = ::mmap(nullptr, size_t(memory.size_), PROT_READ, MAP_SHARED, fd.get(), 0);
  if (mapped == MAP_FAILED) return noMemory();
  memory.mapping_ = std::shared_ptr<const void>(
      mapped, [size = size_t(memory.size_)](const void* start) { ::munmap(const_cast<void*>(start), size); });
  return memory;
}

}  // namespace norvex
