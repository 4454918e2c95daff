// Removing a folder of ours with what is left in it. Free of Qt, because it also runs before Qt is loaded.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace norvex {

/// Files that cannot be removed stay. An empty name: nothing is done.
inline void removeFolder(const std::string& folder) {
  std::error_code ignored;
  if (folder.empty() || ::rmdir(folder.c_str()) == 0) return;  // most are empty, and this takes no descriptor
  ::chmod(folder.c_str(), S_IRWXU);                            // nobody may list it while documents are read
  std::filesystem::remove_all(folder, ignored);
}

}  // namespace norvex
