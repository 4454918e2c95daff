// EngineModules: the engines, each with the libraries that it takes, as files beside the program that are
// loaded when the first picture needs them.
#pragma once

#include <array>
#include <string>

#include "base/result.h"
#include "worker/engine_parts_table.h"
#include "worker/engine_set.h"

namespace norvex {

/// The one function of a module: it fills in what the module offers.
using EngineModuleEntry = void(EngineSet* engines);
inline constexpr char kEngineModuleEntry[] = "norvexEngines";

/// Loaded modules stay loaded. Single-threaded. Forked processes share what was loaded before.
class EngineModules {
 public:
  /// `folder`: where the files are; empty: where the running program is.
  explicit EngineModules(std::string folder = {});

  /// Engines that can do all of `needs`: those of a module that is loaded already, else the first that can.
  /// Fails with CannotRead when the module is missing or damaged.
  Result<const EngineSet*> engines(PictureNeeds needs);
  /// Initialises what every picture may use; where nothing was loaded so far, everything is.
  void warmUp();

 private:
  struct Slot {
    bool loaded = false;
    EngineSet engines;
  };
  std::string folder_;
  std::array<Slot, engineParts.size()> slots_;
};

}  // namespace norvex

/// The entry for whoever defines it, or links a module.
extern "C" __attribute__((visibility("default"))) norvex::EngineModuleEntry norvexEngines;
