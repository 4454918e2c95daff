#include "worker/confinement/places.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace norvex {
namespace {

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

void addUsersFonts(std::vector<Place>& places) {
  const std::string home = variable("HOME");
  const auto under = [&](const char* name, const char* otherwise) {
    const std::string given = variable(name);
    return given.empty() && !home.empty() ? home + otherwise : given;
  };
  const auto add = [&](const std::string& base, const char* rest) {
    if (!base.empty()) places.push_back({base + rest, PlaceUse::ReadAndList});
  };
  add(under("XDG_DATA_HOME", "/.local/share"), "/fonts");
  add(under("XDG_CONFIG_HOME", "/.config"), "/fontconfig");
  add(under("XDG_CACHE_HOME", "/.cache"), "/fontconfig");
  for (const char* rest : {"/.fonts", "/.fonts.conf", "/.fonts.conf.d", "/.fontconfig"}) add(home, rest);
  add(variable("FONTCONFIG_PATH"), "");
  add(variable("FONTCONFIG_FILE"), "");
}

/// Where the libraries that documents are read with are no part of the system: theirs and their fonts, and,
/// as a Flatpak is shown them, the fonts of the system and the user with their caches.
void addApplicationsFolder(std::vector<Place>& places) {
  using enum PlaceUse;
  if (std::string_view(NORVEX_PACKAGES_PREFIX) == "/usr") return;
  places.push_back({NORVEX_PACKAGES_PREFIX "/lib", Read});
  for (const char* folder : {NORVEX_PACKAGES_PREFIX "/share/fonts", "/usr/cache/fontconfig",
                             "/run/host/font-dirs.xml", "/run/host/fonts", "/run/host/fonts-cache",
                             "/run/host/local-fonts", "/run/host/user-fonts", "/run/host/user-fonts-cache"})
    places.push_back({folder, ReadAndList});
}

std::vector<Place> everyPlace() {
  using enum PlaceUse;
  std::vector<Place> places{
      // The loader, and what engines are linked with or load by name.
      {"/usr/lib", Read},
      {"/usr/lib64", Read},
      {"/usr/local/lib", Read},
      {"/etc/ld.so.cache", Read},
      {"/etc/ld.so.conf", Read},
      {"/etc/alternatives", Read},
      // Characters, dates and paper.
      {"/usr/share/locale", Read},
      {"/etc/localtime", Read},
      {"/usr/share/zoneinfo", Read},
      {"/etc/papersize", Read},
      {"/etc/paperspecs", Read},
      // Fonts and how they are chosen.
      {"/etc/fonts", ReadAndList},
      {"/usr/share/fontconfig", ReadAndList},
      {"/var/cache/fontconfig", ReadAndList},
      {"/usr/share/fonts", ReadAndList},
      {"/usr/local/share/fonts", ReadAndList},
      {"/usr/share/X11/fonts", ReadAndList},
      {"/usr/share/texmf/fonts", ReadAndList},
      {"/usr/share/texlive/texmf-dist/fonts", ReadAndList},
      {"/var/lib/defoma", ReadAndList},
      // Character sets, colour profiles, and the part of Ghostscript that is PostScript. Both look up
      // folders.
      {NORVEX_PACKAGES_PREFIX "/share/poppler", ReadAndList},
      {NORVEX_PACKAGES_PREFIX "/share/ghostscript", ReadAndList},
      {"/var/lib/ghostscript", ReadAndList},
      {"/etc/ghostscript", ReadAndList},
      {NORVEX_PACKAGES_PREFIX "/share/color", Read},
      // The devices that hold nothing of anybody's.
      {"/dev/null", Device},
      {"/dev/zero", Read},
      {"/dev/urandom", Read},
      // Ghostscript, and the loader, which the kernel counts as a started program.
      {NORVEX_PACKAGES_PREFIX "/bin/gs", Run},
      {"/usr/local/bin/gs", Run},
      {"/lib64/ld-linux-x86-64.so.2", Run},
      {"/lib/ld-linux-aarch64.so.1", Run},
  };
  std::error_code none;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", none);
  if (!none) places.push_back({program.parent_path(), Read});
  addApplicationsFolder(places);
  addUsersFonts(places);
  return places;
}

}  // namespace

const std::vector<Place>& enginePlaces() {
  static const std::vector<Place> places = everyPlace();
  return places;
}

}  // namespace norvex
