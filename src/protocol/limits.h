// Every limit of the picture process in one place, each with the attack that it stops.
// What the caller may choose for a document (time, memory, megapixels) is PictureLimits in
// protocol/worker_protocol.h.
#pragma once

#include <QtGlobal>

namespace norvex::limits {

/// A document of some kilobytes that asks for a bitmap of gigabytes (a huge page at a high zoom, a hostile
/// request).
inline constexpr int maximumSide = 65535;

/// A gzip bomb: some kilobytes of compressed SVG that inflate to gigabytes.
inline constexpr qint64 maximumInflatedBytes = 256LL << 20;
inline constexpr int maximumInflateRatio = 1000;  ///< checked beyond the first MiB

/// XML that nests until the parser's or the drawing's stack is gone.
inline constexpr int maximumXmlDepth = 512;
/// References from group to group, each of them allowed, whose drawing together uses up the renderer's stack
/// (some 5 KiB a level of 8 MiB).
inline constexpr int maximumDrawingDepth = 1000;
/// XML with millions of empty elements, each of which costs memory in two trees.
inline constexpr int maximumXmlElements = 1'000'000;
/// Entities that expand to one another ("a billion laughs"); what Illustrator writes stays far below.
inline constexpr qint64 maximumEntityExpansion = 64LL << 20;
/// Entities of a few bytes that are used millions of times: each use costs the parser far more than its
/// bytes.
inline constexpr int maximumEntityUses = 200'000;

/// A page tree made to be walked for ever.
inline constexpr int maximumPages = 100'000;
/// Pages whose boxes are told with the facts; later pages are told when they are asked for.
inline constexpr int maximumPageBoxes = 2'000;

/// Pages that are kept from being shown by the search for their fonts and colour spaces: contents that unpack
/// to gigabytes, resources without end.
inline constexpr qint64 maximumColourScan = 4LL << 20;
inline constexpr int maximumResources = 20'000;

/// A side of the picture in points beyond which geometry is not to be trusted.
inline constexpr double maximumPoints = 1.0e7;

}  // namespace norvex::limits
