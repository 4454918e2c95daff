// Poppler has one FreeType for all documents. Faces of it may be used by several threads, each by one, but
// only one thread at a time may make or end one; and two threads draw the halves of a picture. Found before
// FreeType's own, as those of cairo_calls.cpp.
#include <ft2build.h>
#include FT_FREETYPE_H

#include <mutex>

#include "programs/taken_call.h"

namespace {

std::recursive_mutex faces;  // one that is asked for may be made of another

}  // namespace

NORVEX_STANDS_IN FT_Error FT_New_Face(FT_Library library, const char* file, FT_Long index, FT_Face* face) {
  static const auto own = norvex::librarysOwn(&FT_New_Face, "FT_New_Face");
  const std::lock_guard lock(faces);
  return own(library, file, index, face);
}

NORVEX_STANDS_IN FT_Error FT_New_Memory_Face(FT_Library library, const FT_Byte* file, FT_Long size,
                                             FT_Long index, FT_Face* face) {
  static const auto own = norvex::librarysOwn(&FT_New_Memory_Face, "FT_New_Memory_Face");
  const std::lock_guard lock(faces);
  return own(library, file, size, index, face);
}

NORVEX_STANDS_IN FT_Error FT_Done_Face(FT_Face face) {
  static const auto own = norvex::librarysOwn(&FT_Done_Face, "FT_Done_Face");
  const std::lock_guard lock(faces);
  return own(face);
}
