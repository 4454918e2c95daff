// Which clock a moment in a message was told by.
#pragma once

namespace norvex {

enum class CborClock { Local = 0, Utc = 1, Offset = 2 };

}  // namespace norvex
