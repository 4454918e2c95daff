#include "worker/confinement/file_view.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "base/file_descriptor.h"
#include "worker/confinement/places.h"

namespace norvex {
namespace {

namespace fs = std::filesystem;

/// Where the view is put together. It hides the folder, for us alone, and nothing that is needed is there.
constexpr char kRoot[] = "/proc";
constexpr char kRootOptions[] = "size=1m,nr_inodes=1k,mode=755";

struct MountAttributes {  ///< as struct mount_attr
  uint64_t set = 0, clear = 0, propagation = 0, userNamespace = 0;
};
constexpr uint64_t kReadOnly = 1, kNoSetuid = 2, kNoDevices = 4, kNoPrograms = 8;
constexpr unsigned kRecursive = 0x8000;

/// A file that there is nowhere but in the root of a view.
constexpr char kMark[] = "/.norvex-file-view";

std::string scratchPath;
FileDescriptor aboveScratch;  ///< the folder that holds the scratch root, outside the view

bool put(const char* path, const std::string& text) {
  const FileDescriptor file(::open(path, O_WRONLY | O_CLOEXEC));
  return file.valid() && ::write(file.get(), text.data(), text.size()) == ssize_t(text.size());
}

/// Nobody else's numbers exist inside; ours stay what they are.
bool keepOwnNumbers(uid_t user, gid_t group) {
  const auto same = [](unsigned number) {
    return std::to_string(number) + ' ' + std::to_string(number) + " 1";
  };
  return put("/proc/self/setgroups", "deny") && put("/proc/self/uid_map", same(user)) &&
         put("/proc/self/gid_map", same(group));
}

bool setAttributes(const char* path, uint64_t attributes, uint64_t unset = 0) {
  const MountAttributes wanted{attributes, unset};
  return ::syscall(SYS_mount_setattr, AT_FDCWD, path, kRecursive, &wanted, sizeof wanted) == 0;
}

/// Shows a file or folder in the view at the path that it has. What is missing is missing there, too.
bool show(const std::string& path) {
  struct stat status = {};
  if (::stat(path.c_str(), &status) != 0) return true;
  const std::string to = kRoot + path;
  std::error_code failed;
  fs::create_directories(S_ISDIR(status.st_mode) ? fs::path(to) : fs::path(to).parent_path(), failed);
  if (!S_ISDIR(status.st_mode))
    FileDescriptor(::open(to.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644)).reset();
  return !failed && ::mount(path.c_str(), to.c_str(), nullptr, MS_BIND | MS_REC, nullptr) == 0;
}

/// /lib and its like, which are links on a system of today.
bool linkTopFolders() {
  bool good = true;
  for (const char* name : {"/lib", "/lib64", "/bin"}) {
    std::error_code none;
    const fs::path target = fs::read_symlink(name, none);
    if (!none) good = good && ::symlink(target.c_str(), (kRoot + std::string(name)).c_str()) == 0;
  }
  return good;
}

/// Places within a place that is shown already, or at the end of one of the links, need not be shown.
bool isShownBy(const std::string& path, std::string_view shown) {
  return path.size() > shown.size() && path.starts_with(shown) && path[shown.size()] == '/';
}

bool isBelowALink(const std::string& path) {
  return path.starts_with("/lib/") || path.starts_with("/lib64/");
}

bool showPlaces() {
  const std::vector<Place>& places = enginePlaces();
  for (size_t i = 0; i < places.size(); ++i) {
    bool shown = isBelowALink(places[i].path);
    for (size_t j = 0; j < places.size(); ++j)
      shown =
          shown || isShownBy(places[i].path, places[j].path) || (j < i && places[i].path == places[j].path);
    if (!shown && !show(places[i].path)) return false;
  }
  return true;
}

bool putTogether(const std::string& scratchRoot) {
  if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
      ::mount("tmpfs", kRoot, "tmpfs", MS_NOSUID | MS_NODEV, kRootOptions) != 0)
    return false;
  const bool hasScratch = !scratchRoot.empty();
  const std::string mark = kRoot + std::string(kMark);
  if (!FileDescriptor(::open(mark.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0444)).valid()) return false;
  if (!linkTopFolders() || !showPlaces() || (hasScratch && !show(scratchRoot)) ||
      !setAttributes(kRoot, kReadOnly | kNoSetuid))
    return false;
  return !hasScratch || setAttributes((kRoot + scratchRoot).c_str(), kNoDevices | kNoPrograms, kReadOnly);
}

}  // namespace

bool enterFileView(const std::string& scratchRoot) {
  (void)enginePlaces();  // looks at /proc
  const uid_t user = ::getuid();
  const gid_t group = ::getgid();
  FileDescriptor above(::open(fs::path(scratchRoot).parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  // From here on there is no way back; a view that was not put together is not entered.
  if (!keepOwnNumbers(user, group) || !putTogether(scratchRoot)) return false;
  if (::chdir(kRoot) != 0 || ::chroot(".") != 0) return false;
  // Folders of other documents have names that cannot be guessed, and nobody can list them.
  if (!scratchRoot.empty()) ::chmod(scratchRoot.c_str(), S_IWUSR | S_IXUSR);
  scratchPath = scratchRoot;
  aboveScratch = std::move(above);
  return true;
}

bool isInFileView() {
  return ::access(kMark, F_OK) == 0;
}

void removeScratchRootOfView() {
  if (scratchPath.empty()) return;
  std::error_code ignored;
  ::chmod(scratchPath.c_str(), S_IRWXU);
  for (const auto& entry : fs::directory_iterator(scratchPath, ignored)) fs::remove_all(entry, ignored);
  ::umount2(scratchPath.c_str(), MNT_DETACH);
  ::unlinkat(aboveScratch.get(), fs::path(scratchPath).filename().c_str(), AT_REMOVEDIR);
}

}  // namespace norvex
