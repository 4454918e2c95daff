#include "worker/engine_modules.h"

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "worker/rehearsal.h"

namespace norvex {
namespace {

/// Everything is bound now, once for all pictures, and before the first byte of one is read. A library's own
/// names are looked for in the module first, which is found sooner than behind everything that the program
/// has linked.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kBinding = RTLD_NOW | RTLD_LOCAL;  // a sanitizer must come first
#else
constexpr int kBinding = RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND;
#endif

std::string folderOfProgram() {
  std::error_code ignored;
  return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
}

Error notLoaded(const std::string& file) {
  return {ErrorKind::CannotRead,
          QStringLiteral("the part of norvex that this picture needs is missing or damaged: %1")
              .arg(QString::fromStdString(file))};
}

}  // namespace

EngineModules::EngineModules(std::string folder)
    : folder_(folder.empty() ? folderOfProgram() : std::move(folder)) {}

Result<const EngineSet*> EngineModules::engines(PictureNeeds needs) {
  for (size_t i = 0; i < slots_.size(); ++i)
    if (slots_[i].loaded && (needs & ~engineParts[i].offers) == 0) return &slots_[i].engines;
  const size_t first = enginePartFor(needs);
  const std::string file = std::string("norvex-engine-") + engineParts[first].name + ".so";
  void* module = ::dlopen((folder_ + '/' + file).c_str(), kBinding);
  void* entry = module == nullptr ? nullptr : ::dlsym(module, kEngineModuleEntry);
  if (entry == nullptr) return notLoaded(file);
  Slot& slot = slots_[first];
  reinterpret_cast<EngineModuleEntry*>(entry)(&slot.engines);
  slot.loaded = true;
  return &slot.engines;
}

void EngineModules::warmUp() {
  const auto loaded =
      std::find_if(slots_.begin(), slots_.end(), [](const Slot& slot) { return slot.loaded; });
  const Result<const EngineSet*> set = loaded == slots_.end() ? engines(allPictureNeeds) : &loaded->engines;
  if (set && (*set)->warmUpProgram) (*set)->warmUpProgram();
  if (set) rehearse(**set);
}

}  // namespace norvex
