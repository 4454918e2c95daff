#include "worker/confinement/process_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

#include "base/file_descriptor.h"

namespace norvex {
namespace {

int folder = -1;  ///< /proc
int size = -1;    ///< what tells the size of this process, once it was asked for

FileDescriptor openOwn(const char* name, int flags) {
  openProcessFiles();
  return FileDescriptor(::openat(folder, name, flags | O_CLOEXEC));
}

void closeFile(int& descriptor) {
  if (descriptor >= 0) ::close(descriptor);
  descriptor = -1;
}

}  // namespace

void openProcessFiles() {
  if (folder < 0) folder = ::open("/proc", O_PATH | O_DIRECTORY | O_CLOEXEC);
}

int openedProcessFiles() {
  return folder;
}

void adoptProcessFiles(int descriptor) {
  if (folder < 0 && ::fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0) folder = descriptor;
}

int moveProcessFiles(int descriptor) {
  if (folder < 0) return descriptor;
  if (folder != descriptor) {
    const int moved = ::dup3(folder, descriptor, O_CLOEXEC);
    ::close(folder);
    folder = moved;
  }
  return descriptor + 1;
}

void closeProcessFiles() {
  closeFile(folder);
  closeFile(size);
}

uint64_t mappedBytes() {
  if (size < 0) size = openOwn("self/statm", O_RDONLY).release();
  char text[64] = {};
  if (size < 0 || ::pread(size, text, sizeof text - 1, 0) <= 0) return 0;
  return std::strtoull(text, nullptr, 10) * uint64_t(::sysconf(_SC_PAGESIZE));
}

void volunteerWhenMemoryRunsOut() {
  const FileDescriptor score = openOwn("self/oom_score_adj", O_WRONLY);
  // Not being allowed to is no loss of confinement.
  if (score.valid() && ::write(score.get(), "500", 3) < 0) return;
}

}  // namespace norvex
