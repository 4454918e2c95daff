// True if this build watches itself: sanitizers map terabytes, look at /proc and make calls of their own.
#pragma once

namespace norvex {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool isInstrumented = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
inline constexpr bool isInstrumented = true;
#else
inline constexpr bool isInstrumented = false;
#endif
#else
inline constexpr bool isInstrumented = false;
#endif

}  // namespace norvex
