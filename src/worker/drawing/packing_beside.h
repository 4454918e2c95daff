// Packing what cairo writes into a PDF on a thread of its own, while cairo goes on writing: a seventh of the
// time of a drawing of many curves. zlib does it either way, and so the bytes are the same. cairo has no word
// for it: src/programs/deflate_calls.cpp stands in for the functions of zlib that cairo calls.
#pragma once

#include <zlib.h>

namespace norvex::engine {

/// zlib's own functions.
struct DeflateCalls {
  int (*begin)(z_streamp stream, int level, const char* version, int size);
  int (*pack)(z_streamp stream, int flush);
  int (*end)(z_streamp stream);
};

/// While one with `wanted` lives, what this thread begins to pack is packed beside it once it is long.
class PackingBeside {
 public:
  explicit PackingBeside(bool wanted);
  ~PackingBeside();
  PackingBeside(const PackingBeside&) = delete;
  PackingBeside& operator=(const PackingBeside&) = delete;

  /// True if something that this thread packed beside was lost since the newest of them was made: for want of
  /// memory, of which zlib itself takes none once it has begun.
  [[nodiscard]] bool hasFailed() const;

 private:
  const bool before_;
};

/// deflateInit_(), deflate() and deflateEnd(). What is packed beside gives no bytes before Z_FINISH, and
/// knows no other flush than that. What is held meanwhile is bounded by what is written, not more than that.
/// Where packing fails all is taken and the stream ends early: cairo would ask again without an end. It is
/// PackingBeside that tells.
[[nodiscard]] int beginPacking(const DeflateCalls& zlib, z_streamp stream, int level, const char* version,
                               int size);
[[nodiscard]] int packMore(const DeflateCalls& zlib, z_streamp stream, int flush);
int endPacking(const DeflateCalls& zlib, z_streamp stream);

/// True if this stream is one that is packed beside.
[[nodiscard]] bool isPackedBeside(const z_stream& stream);

}  // namespace norvex::engine
