// The budget of a picture process, as far as the system keeps account of it.
#pragma once

#include "protocol/worker_protocol.h"

namespace norvex {

/// Files and descriptors. Results are written to shared memory, to which the limit on files applies too;
/// scratch files get as much. No core files. Notes the seconds for grantedFor(). Exceeding the size of a file
/// is an error of the write. False: the system refused. `sends`: it hands its results over as descriptors.
[[nodiscard]] bool limitFiles(const PictureLimits& limits, bool sends);

/// What may be granted to a process for the sake of another, `asker`, which has read a document and may ask
/// for anything: `wanted`, no more of memory, pixels and seconds than limitFiles() has granted that one.
/// Where that cannot be found out, no more than PictureLimits are by default.
[[nodiscard]] PictureLimits grantedFor(int asker, PictureLimits wanted);

/// A second allocation arena would reserve 64 MiB for the thread that only reads messages. Called before the
/// first fork it costs nothing later.
void keepOneArena();

/// Address space beyond what is mapped now: the caller's limit speaks of the document. `more`: bytes on top,
/// for libraries that are still to be loaded. It can only fall. Builds with sanitizers have no such limit.
[[nodiscard]] bool limitAddressSpace(const PictureLimits& limits, quint64 more = 0);

/// Room for all libraries of ours.
inline constexpr quint64 roomForLibraries = 192ULL << 20;

/// Processor seconds from now on, beyond the wall time that is granted: what stops a process whose clock
/// nobody watches any more. Its end is a signal. May be called again before the next request. `forGood`: and
/// never again. False: the system refused.
bool limitProcessorTime(int seconds, bool forGood = false);

}  // namespace norvex
