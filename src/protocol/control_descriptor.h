// Where a picture process finds its line. Free of Qt, because it is also told before Qt is loaded.
#pragma once

namespace norvex {

/// The descriptor with which a picture process is started and on which it serves.
inline constexpr int controlDescriptor = 3;

}  // namespace norvex
