#include "worker/environment.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>
#include <vector>

namespace norvex {

QByteArrayList keptVariables() {
  return {// Where fontconfig finds the user's own fonts and its cache; without the cache it reads every font
          // anew.
          "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "FONTCONFIG_FILE", "FONTCONFIG_PATH",
          // Dates without a zone are local time, and dates of results can be asked to be reproducible.
          "TZ", "SOURCE_DATE_EPOCH",
          // Where scratch folders lie when the caller has told no folder.
          "XDG_RUNTIME_DIR",
          // How a sanitized or instrumented build reports. Nothing reads them in the others.
          "ASAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS", "LLVM_PROFILE_FILE", "GCOV_PREFIX",
          "GCOV_PREFIX_STRIP"};
}

void clearEnvironment() {
  std::vector<std::pair<QByteArray, QByteArray>> kept;
  for (const QByteArray& name : keptVariables())
    if (const char* value = std::getenv(name.constData())) kept.emplace_back(name, value);
  ::clearenv();
  for (const auto& [name, value] : kept) ::setenv(name.constData(), value.constData(), 1);
  // Programs are looked for where the distribution puts them, whatever the user's own path says.
  ::setenv("PATH", "/usr/bin:/bin", 1);
  // A document looks the same in every language, and numbers in PostScript and PDF keep their decimal point.
  ::setenv("LANG", "C.UTF-8", 1);
  ::setenv("LC_ALL", "C.UTF-8", 1);
  // GIO must not load modules that talk to services of the desktop.
  ::setenv("GIO_USE_VFS", "local", 1);
  ::setenv("GSETTINGS_BACKEND", "memory", 1);
}

void closeStandardStreams() {
  const int null = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  ::dup2(null, STDIN_FILENO);
  ::dup2(null, STDOUT_FILENO);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  ::dup2(null, STDERR_FILENO);
#endif
  if (null > STDERR_FILENO) ::close(null);
}

}  // namespace norvex
