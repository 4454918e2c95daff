// Work done once before pictures come, so that not each of their processes does it anew.
#pragma once

#include "worker/engine_set.h"

namespace norvex {

/// Opens pictures of our own, draws them and writes them in other formats, as far as the engines can:
/// libraries then have their types registered, their expressions compiled and their tables made, and forked
/// processes inherit that. Starts no thread: the SVG has neither text nor filters.
void rehearse(const EngineSet& engines);

}  // namespace norvex
