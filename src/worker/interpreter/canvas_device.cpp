#include "worker/interpreter/canvas_device.h"

#include <ghostscript/gdevdsp.h>
#include <ghostscript/iapi.h>
#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>

namespace norvex {

/// The library's calls. `self` is the device's handle there.
struct CanvasDevice::Calls {
  static CanvasDevice& of(void* self) { return *static_cast<CanvasDevice*>(self); }
  static int nothing(void*, void*) { return 0; }
  static int willResize(void* self, void*, int width, int height, int bytesPerRow, unsigned) {
    of(self).tell({});
    of(self).coming_ = {width, height, bytesPerRow};
    return 0;
  }
  static int didResize(void* self, void*, int, int, int, unsigned, unsigned char*) {
    of(self).tell(of(self).coming_);
    return 0;
  }
  // A next page would paint this one over.
  static int page(void*, void*, int, int) {
    while (true) ::poll(nullptr, 0, -1);
  }
  static void* allocate(void* self, void*, size_t size) { return of(self).allocate(size); }
  static int release(void* self, void*, void*) { return of(self).release(), 0; }
  static int answer(void*, void* self, const char* device, int id, int size, void* data) {
    static display_callback calls = all();
    if (std::strcmp(device, "display") != 0 || id != DISPLAY_CALLOUT_GET_CALLBACK ||
        size < int(sizeof(gs_display_get_callback_t)))
      return -1;  // not for us
    *static_cast<gs_display_get_callback_t*>(data) = {&calls, self};
    return 0;
  }
  static display_callback all() {
    display_callback calls{};
    calls.size = sizeof calls;
    calls.version_major = DISPLAY_VERSION_MAJOR;
    calls.version_minor = DISPLAY_VERSION_MINOR;
    calls.display_open = calls.display_preclose = calls.display_close = calls.display_sync = nothing;
    calls.display_presize = willResize;
    calls.display_size = didResize;
    calls.display_page = page;
    calls.display_memalloc = allocate;
    calls.display_memfree = release;
    return calls;
  }
};

void CanvasDevice::serve(void* instance) {
  ::gsapi_register_callout(instance, Calls::answer, this);
}

void CanvasDevice::tell(const CanvasHeader& header) const {
  if (memory_ != nullptr) std::memcpy(memory_, &header, sizeof header);
}

void* CanvasDevice::allocate(size_t size) {
  size_ = size_t(canvasPixels) + size;
  if (::ftruncate(STDOUT_FILENO, off_t(size_)) != 0) return nullptr;
  void* const memory = ::mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_SHARED, STDOUT_FILENO, 0);
  if (memory == MAP_FAILED) return nullptr;
  memory_ = memory;
  std::memset(memory, 0xFF, size_);  // paper; the device paints it only later
  tell({});
  return static_cast<char*>(memory_) + canvasPixels;
}

void CanvasDevice::release() {
  tell({});
  if (memory_ != nullptr) ::munmap(memory_, size_);
  memory_ = nullptr;
}

}  // namespace norvex
