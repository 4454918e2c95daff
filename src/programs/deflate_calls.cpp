// zlib's functions by which cairo packs what it writes into a PDF (worker/drawing/packing_beside.h). Found
// before zlib's own, as those of cairo_calls.cpp, but only where no other library has loaded zlib first: in
// the picture process of a single picture, for which both processors are there.
#include "programs/taken_call.h"
#include "worker/drawing/packing_beside.h"

namespace {

const norvex::engine::DeflateCalls& zlibs() {
  static const norvex::engine::DeflateCalls own{norvex::librarysOwn(&deflateInit_, "deflateInit_"),
                                                norvex::librarysOwn(&deflate, "deflate"),
                                                norvex::librarysOwn(&deflateEnd, "deflateEnd")};
  return own;
}

}  // namespace

NORVEX_STANDS_IN int deflateInit_(z_streamp stream, int level, const char* version, int size) {
  return norvex::engine::beginPacking(zlibs(), stream, level, version, size);
}

NORVEX_STANDS_IN int deflate(z_streamp stream, int flush) {
  return norvex::engine::packMore(zlibs(), stream, flush);
}

NORVEX_STANDS_IN int deflateEnd(z_streamp stream) {
  return norvex::engine::endPacking(zlibs(), stream);
}
