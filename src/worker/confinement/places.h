// The files that engines need: one table for every layer that knows paths.
#pragma once

#include <string>
#include <vector>

namespace norvex {

enum class PlaceUse {
  Read,         ///< the file, or every file below the folder
  ReadAndList,  ///< the same, and folders may be listed
  Run,          ///< a file that may be started, too
  Device,       ///< may be read and written
};

struct Place {
  std::string path;  ///< absolute; may be missing on this system
  PlaceUse use = PlaceUse::Read;
};

/// Libraries, fonts, the resources of Ghostscript and Poppler, and what tells time zone and paper. The user's
/// own fonts are found by HOME and the XDG variables. Of the process itself: the folder of its program.
/// `gs` and the loader may be started; what starts no program forbids that by other means.
[[nodiscard]] const std::vector<Place>& enginePlaces();

}  // namespace norvex
