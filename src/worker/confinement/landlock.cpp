#include "worker/confinement/landlock.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

#include "base/file_descriptor.h"
#include "worker/confinement/places.h"

// The system's header may be older than the kernel that it runs on: the numbers of the kernel's interface are
// told here.
namespace norvex {
namespace {

constexpr long kCreateRuleset = 444, kAddRule = 445, kRestrictSelf = 446;
constexpr uint32_t kTellVersion = 1;
constexpr int kPathBeneath = 1;

struct RulesetAttributes {
  uint64_t files = 0;
  uint64_t network = 0;
  uint64_t scopes = 0;
};
struct __attribute__((packed)) PathBeneath {
  uint64_t allowed;
  int32_t parent;
};

constexpr uint64_t kExecute = 1 << 0, kWriteFile = 1 << 1, kReadFile = 1 << 2, kReadFolder = 1 << 3,
                   kRemoveFile = 1 << 5, kMakeRegular = 1 << 8, kRefer = 1 << 13, kTruncate = 1 << 14,
                   kDeviceControl = 1 << 15;
constexpr uint64_t kFirstVersion = kRefer - 1;  ///< all that the first version knows
constexpr uint64_t kForFiles = kExecute | kWriteFile | kReadFile | kTruncate | kDeviceControl;
constexpr uint64_t kBindTcp = 1, kConnectTcp = 2;
constexpr uint64_t kAbstractSockets = 1, kSignals = 2;

uint64_t accessOf(PlaceUse use) {
  switch (use) {
    case PlaceUse::Read:
      return kReadFile;
    case PlaceUse::ReadAndList:
      return kReadFile | kReadFolder;
    case PlaceUse::Run:
      return kReadFile | kExecute;
    case PlaceUse::Device:
      return kReadFile | kWriteFile;
  }
  return 0;
}

class Ruleset {
 public:
  explicit Ruleset(LandlockAbilities abilities) {
    handled_.files = kFirstVersion;
    if (abilities.abi >= 2) handled_.files |= kRefer;
    if (abilities.truncating()) handled_.files |= kTruncate;
    if (abilities.devices()) handled_.files |= kDeviceControl;
    if (abilities.network()) handled_.network = kBindTcp | kConnectTcp;
    if (abilities.scopes()) handled_.scopes = kAbstractSockets | kSignals;
    size_t size = sizeof handled_.files;  // an older kernel refuses what it does not know
    if (abilities.network()) size += sizeof handled_.network;
    if (abilities.scopes()) size += sizeof handled_.scopes;
    descriptor_.reset(int(::syscall(kCreateRuleset, &handled_, size, 0)));
  }

  /// A place that is missing needs no rule.
  bool allow(const std::string& path, uint64_t access) {
    const FileDescriptor place(::open(path.c_str(), O_PATH | O_CLOEXEC));
    struct stat status = {};
    if (!place.valid() || ::fstat(place.get(), &status) != 0) return true;
    if (!S_ISDIR(status.st_mode)) access &= kForFiles;
    const PathBeneath rule{access & handled_.files, place.get()};
    return ::syscall(kAddRule, descriptor_.get(), kPathBeneath, &rule, 0) == 0;
  }

  [[nodiscard]] bool valid() const { return descriptor_.valid(); }
  [[nodiscard]] bool allowPlaces() {
    for (const Place& place : enginePlaces())
      if (!allow(place.path, accessOf(place.use))) return false;
    return true;
  }
  [[nodiscard]] FileDescriptor& descriptor() { return descriptor_; }

 private:
  RulesetAttributes handled_;
  FileDescriptor descriptor_;
};

FileDescriptor prepared;

bool restrictSelf(const FileDescriptor& rules) {
  return ::syscall(kRestrictSelf, rules.get(), 0) == 0;
}

}  // namespace

LandlockAbilities landlockAbilities() {
  const long version = ::syscall(kCreateRuleset, nullptr, 0, kTellVersion);
  return {version > 0 ? int(version) : 0};
}

void prepareLandlock() {
  const LandlockAbilities abilities = landlockAbilities();
  if (!abilities.files() || prepared.valid()) return;
  Ruleset rules(abilities);
  if (rules.valid() && rules.allowPlaces()) prepared = std::move(rules.descriptor());
}

int movePreparedLandlock(int descriptor) {
  if (!prepared.valid()) return descriptor;
  if (prepared.get() != descriptor) prepared.reset(::dup3(prepared.get(), descriptor, O_CLOEXEC));
  return descriptor + 1;
}

bool enterLandlock(const std::string& scratchFolder) {
  const FileDescriptor made = std::move(prepared);
  if (made.valid() && scratchFolder.empty()) return restrictSelf(made);
  const LandlockAbilities abilities = landlockAbilities();
  if (!abilities.files()) return false;
  Ruleset rules(abilities);
  if (!rules.valid() || !rules.allowPlaces()) return false;
  constexpr uint64_t scratch = kReadFile | kWriteFile | kReadFolder | kRemoveFile | kMakeRegular | kTruncate;
  if (!scratchFolder.empty() && !rules.allow(scratchFolder, scratch)) return false;
  return restrictSelf(rules.descriptor());
}

}  // namespace norvex
