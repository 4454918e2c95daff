#include "print/cups_library.h"

#include <optional>

#include "base/loaded_library.h"

namespace norvex {
namespace {

std::optional<CupsLibrary> load() {
  CupsLibrary made;
  LoadedLibrary library("libcups.so.2");
  library.find("cupsAddOption", made.cupsAddOption);
  library.find("cupsCancelDestJob", made.cupsCancelDestJob);
  library.find("cupsCopyDestInfo", made.cupsCopyDestInfo);
  library.find("cupsCreateDestJob", made.cupsCreateDestJob);
  library.find("cupsEncryption", made.cupsEncryption);
  library.find("cupsFinishDestDocument", made.cupsFinishDestDocument);
  library.find("cupsFreeDestInfo", made.cupsFreeDestInfo);
  library.find("cupsFreeDests", made.cupsFreeDests);
  library.find("cupsFreeOptions", made.cupsFreeOptions);
  library.find("cupsGetDests2", made.cupsGetDests2);
  library.find("cupsGetOption", made.cupsGetOption);
  library.find("cupsLastError", made.cupsLastError);
  library.find("cupsLastErrorString", made.cupsLastErrorString);
  library.find("cupsServer", made.cupsServer);
  library.find("cupsSetPasswordCB2", made.cupsSetPasswordCB2);
  library.find("cupsStartDestDocument", made.cupsStartDestDocument);
  library.find("cupsWriteRequestData", made.cupsWriteRequestData);
  library.find("httpClose", made.httpClose);
  library.find("httpConnect2", made.httpConnect2);
  library.find("httpGetFd", made.httpGetFd);
  library.find("httpSetTimeout", made.httpSetTimeout);
  library.find("ippPort", made.ippPort);
  library.find("pwgMediaForPWG", made.pwgMediaForPWG);
  return library.isComplete() ? std::optional(made) : std::nullopt;
}

}  // namespace

const CupsLibrary* CupsLibrary::loaded() {
  static const std::optional<CupsLibrary> library = load();
  return library ? &*library : nullptr;
}

}  // namespace norvex
