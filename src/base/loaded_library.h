// A library that few runs need: loaded when it is first used, where to link it would cost every start.
#pragma once

#include <dlfcn.h>

namespace norvex {

/// Finds functions by their names. Nothing is ever unloaded.
class LoadedLibrary {
 public:
  /// `name`: as the system's linker knows it, "libtiff.so.6".
  explicit LoadedLibrary(const char* name) : handle_(::dlopen(name, RTLD_LAZY | RTLD_LOCAL)) {}

  template <typename Function>
  LoadedLibrary& find(const char* name, Function*& function) {
    void* const found = handle_ == nullptr ? nullptr : ::dlsym(handle_, name);
    function = reinterpret_cast<Function*>(found);
    isComplete_ = isComplete_ && found != nullptr;
    return *this;
  }
  /// True if the library is there and everything was found so far.
  [[nodiscard]] bool isComplete() const { return handle_ != nullptr && isComplete_; }

 private:
  void* handle_;
  bool isComplete_ = true;
};

}  // namespace norvex
