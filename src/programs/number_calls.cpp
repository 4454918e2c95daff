// The C library's function by which cairo prints each number of a PDF: found before its own as those
// of cairo_calls.cpp, under both names that a compiler calls it by. It goes by way of long integers;
// std::to_chars() has the same digits, for the standard defines its by that function, in a fifth of the time.
// Whatever is printed in another way than cairo prints numbers, the C library prints.
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstring>
#include <optional>

#include "programs/taken_call.h"

// Not from <cstdio>, where a name may be an inline function that calls another.
extern "C" int vsnprintf(char* buffer, std::size_t size, const char* format, std::va_list arguments);
extern "C" int __vsnprintf_chk(char* buffer, std::size_t size, int flag, std::size_t room, const char* format,
                               std::va_list arguments);
NORVEX_STANDS_IN int snprintf(char* buffer, std::size_t size, const char* format, ...);
NORVEX_STANDS_IN int __snprintf_chk(char* buffer, std::size_t size, int flag, std::size_t room,
                                    const char* format, ...);

namespace {

/// How many characters the number takes, with a point as in every picture process (worker/environment.h);
/// none where the C library has to say what becomes of it: it does not fit, is infinite or is none.
std::optional<int> inFull(char* buffer, std::size_t size, double number, int decimals) {
  if (!std::isfinite(number) || size == 0 || decimals < 0) return std::nullopt;
  const auto [end, error] =
      std::to_chars(buffer, buffer + size - 1, number, std::chars_format::fixed, decimals);
  if (error != std::errc{}) return std::nullopt;
  *end = 0;
  return static_cast<int>(end - buffer);
}

/// The same for a format by which cairo prints one number and nothing else; none for any other.
std::optional<int> asCairoPrints(char* buffer, std::size_t size, const char* format, std::va_list arguments) {
  if (format[0] != '%') return std::nullopt;
  if (std::strcmp(format, "%f") == 0) return inFull(buffer, size, va_arg(arguments, double), 6);
  if (std::strcmp(format, "%.18f") == 0) return inFull(buffer, size, va_arg(arguments, double), 18);
  if (std::strcmp(format, "%.*f") != 0) return std::nullopt;
  const int decimals = va_arg(arguments, int);
  return inFull(buffer, size, va_arg(arguments, double), decimals);
}

}  // namespace

int snprintf(char* buffer, std::size_t size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::optional<int> length = asCairoPrints(buffer, size, format, arguments);
  va_end(arguments);
  if (length) return *length;
  va_start(arguments, format);
  length = vsnprintf(buffer, size, format, arguments);
  va_end(arguments);
  return *length;
}

int __snprintf_chk(char* buffer, std::size_t size, int flag, std::size_t room, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::optional<int> length;
  if (size <= room) length = asCairoPrints(buffer, size, format, arguments);
  va_end(arguments);
  if (length) return *length;
  va_start(arguments, format);
  length = __vsnprintf_chk(buffer, size, flag, room, format, arguments);
  va_end(arguments);
  return *length;
}
