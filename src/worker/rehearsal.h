// What is done once before pictures come, so that not each of their processes does it anew.
#pragma once

#include "worker/engine_set.h"

namespace norvex {

/// Opens a picture of our own, draws it, makes it a PDF and gives that attributes, as far as the engines can:
/// libraries then have their types registered, their expressions compiled and their tables made, and forked
/// processes inherit that. Starts no thread: the picture has neither text nor filters.
void rehearse(const EngineSet& engines);

}  // namespace norvex
