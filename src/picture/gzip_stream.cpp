#include "picture/gzip_stream.h"

#include <zlib.h>

#include <algorithm>
#include <limits>

namespace norvex {
namespace {

constexpr int kGzipWindow = 15 + 16;  // the largest window, in a gzip stream instead of a zlib one
constexpr int kMemoryLevel = 8;
constexpr int kUnknownSystem = 255;
constexpr qsizetype kOutputStep = 64 << 10;

bool deflateAll(z_stream& stream, const QByteArray& bytes, QByteArray& out) {
  const char* from = bytes.constData();
  qsizetype left = bytes.size();
  int state = Z_OK;
  while (state == Z_OK) {
    if (stream.avail_in == 0) {  // zlib counts in 32 bits
      const auto part = uInt(std::min<qsizetype>(left, std::numeric_limits<int>::max()));
      stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(from));
      stream.avail_in = part;
      from += part;
      left -= part;
    }
    const qsizetype filled = out.size();
    out.resize(filled + kOutputStep);
    stream.next_out = reinterpret_cast<Bytef*>(out.data() + filled);
    stream.avail_out = uInt(kOutputStep);
    state = deflate(&stream, left > 0 ? Z_NO_FLUSH : Z_FINISH);
    out.resize(filled + kOutputStep - stream.avail_out);
  }
  return state == Z_STREAM_END;
}

}  // namespace

std::optional<QByteArray> gzipStream(const QByteArray& bytes) {
  z_stream stream = {};
  if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, kGzipWindow, kMemoryLevel, Z_DEFAULT_STRATEGY) !=
      Z_OK)
    return std::nullopt;
  gz_header header = {};
  header.os = kUnknownSystem;
  deflateSetHeader(&stream, &header);
  QByteArray out;
  const bool done = deflateAll(stream, bytes, out);
  deflateEnd(&stream);
  if (!done) return std::nullopt;
  return out;
}

}  // namespace norvex
