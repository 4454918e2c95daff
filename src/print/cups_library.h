// The print service's library, loaded when somebody prints: it brings nineteen others, which would cost every
// window a quarter of the time in which it is loaded.
#pragma once

#include <cups/cups.h>
#include <cups/pwg.h>

namespace norvex {

/// Its functions by their own names. Stays loaded. Thread-safe.
struct CupsLibrary {
  /// Loads it at the first call. Null: it is not installed, or is not what it was.
  [[nodiscard]] static const CupsLibrary* loaded();

  decltype(&::cupsAddOption) cupsAddOption = nullptr;
  decltype(&::cupsCancelDestJob) cupsCancelDestJob = nullptr;
  decltype(&::cupsCopyDestInfo) cupsCopyDestInfo = nullptr;
  decltype(&::cupsCreateDestJob) cupsCreateDestJob = nullptr;
  decltype(&::cupsEncryption) cupsEncryption = nullptr;
  decltype(&::cupsFinishDestDocument) cupsFinishDestDocument = nullptr;
  decltype(&::cupsFreeDestInfo) cupsFreeDestInfo = nullptr;
  decltype(&::cupsFreeDests) cupsFreeDests = nullptr;
  decltype(&::cupsFreeOptions) cupsFreeOptions = nullptr;
  decltype(&::cupsGetDests2) cupsGetDests2 = nullptr;
  decltype(&::cupsGetOption) cupsGetOption = nullptr;
  decltype(&::cupsLastError) cupsLastError = nullptr;
  decltype(&::cupsLastErrorString) cupsLastErrorString = nullptr;
  decltype(&::cupsServer) cupsServer = nullptr;
  decltype(&::cupsSetPasswordCB2) cupsSetPasswordCB2 = nullptr;
  decltype(&::cupsStartDestDocument) cupsStartDestDocument = nullptr;
  decltype(&::cupsWriteRequestData) cupsWriteRequestData = nullptr;
  decltype(&::httpClose) httpClose = nullptr;
  decltype(&::httpConnect2) httpConnect2 = nullptr;
  decltype(&::httpGetFd) httpGetFd = nullptr;
  decltype(&::httpSetTimeout) httpSetTimeout = nullptr;
  decltype(&::ippPort) ippPort = nullptr;
  decltype(&::pwgMediaForPWG) pwgMediaForPWG = nullptr;
};

}  // namespace norvex
