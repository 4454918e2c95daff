// Functions of ours that libraries find before those of another library (cairo_calls.cpp, deflate_calls.cpp,
// face_calls.cpp, number_calls.cpp, text_calls.cpp).
#pragma once

#include <dlfcn.h>

#define NORVEX_STANDS_IN extern "C" __attribute__((visibility("default")))

namespace norvex {

/// The library's own function, whose name one of ours has. The first argument only says of which type it is.
template <typename Function>
Function librarysOwn(Function, const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

}  // namespace norvex
