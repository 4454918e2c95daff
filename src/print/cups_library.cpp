#include "print/cups_library.h"

#include <dlfcn.h>

#include <optional>

namespace norvex {
namespace {

constexpr char kLibrary[] = "libcups.so.2";

template <typename Function>
bool find(void* library, const char* name, Function*& function) {
  function = reinterpret_cast<Function*>(::dlsym(library, name));
  return function != nullptr;
}

std::optional<CupsLibrary> load() {
  void* const library = ::dlopen(kLibrary, RTLD_LAZY | RTLD_LOCAL);
  if (library == nullptr) return std::nullopt;
  CupsLibrary made;
  const bool complete =
      find(library, "cupsAddOption", made.cupsAddOption) &&
      find(library, "cupsCancelDestJob", made.cupsCancelDestJob) &&
      find(library, "cupsCopyDestInfo", made.cupsCopyDestInfo) &&
      find(library, "cupsCreateDestJob", made.cupsCreateDestJob) &&
      find(library, "cupsEncryption", made.cupsEncryption) &&
      find(library, "cupsFinishDestDocument", made.cupsFinishDestDocument) &&
      find(library, "cupsFreeDestInfo", made.cupsFreeDestInfo) &&
      find(library, "cupsFreeDests", made.cupsFreeDests) &&
      find(library, "cupsFreeOptions", made.cupsFreeOptions) &&
      find(library, "cupsGetDests2", made.cupsGetDests2) &&
      find(library, "cupsGetOption", made.cupsGetOption) &&
      find(library, "cupsLastError", made.cupsLastError) &&
      find(library, "cupsLastErrorString", made.cupsLastErrorString) &&
      find(library, "cupsServer", made.cupsServer) &&
      find(library, "cupsSetPasswordCB2", made.cupsSetPasswordCB2) &&
      find(library, "cupsStartDestDocument", made.cupsStartDestDocument) &&
      find(library, "cupsWriteRequestData", made.cupsWriteRequestData) &&
      find(library, "httpClose", made.httpClose) && find(library, "httpConnect2", made.httpConnect2) &&
      find(library, "httpSetTimeout", made.httpSetTimeout) && find(library, "ippPort", made.ippPort) &&
      find(library, "pwgMediaForPWG", made.pwgMediaForPWG);
  return complete ? std::optional(made) : std::nullopt;
}

}  // namespace

const CupsLibrary* CupsLibrary::loaded() {
  static const std::optional<CupsLibrary> library = load();
  return library ? &*library : nullptr;
}

}  // namespace norvex
