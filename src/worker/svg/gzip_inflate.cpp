#include "worker/svg/gzip_inflate.h"

#include <QString>

#include <zlib.h>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr qsizetype kChunk = 256 * 1024;
constexpr int kGzipOnly = 15 + 16;  // the largest window, and no other wrapper than gzip's

class Inflater {
 public:
  Inflater() { ready_ = inflateInit2(&stream_, kGzipOnly) == Z_OK; }
  ~Inflater() { inflateEnd(&stream_); }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;

  Result<QByteArray> run(const QByteArray& bytes);

 private:
  Result<void> checkSize(qsizetype compressed) const;
  bool nextMember();

  z_stream stream_{};
  bool ready_ = false;
  QByteArray result_;
};

Error damaged() {
  return {ErrorKind::NotParsable, QStringLiteral("the compressed data is damaged")};
}

Result<void> Inflater::checkSize(qsizetype compressed) const {
  if (result_.size() > limits::maximumInflatedBytes)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the compressed data holds more than %1 MiB").arg(limits::maximumInflatedBytes >> 20)};
  if (result_.size() > (1 << 20) && result_.size() / limits::maximumInflateRatio > compressed)
    return Error{ErrorKind::Limit, QStringLiteral("the compressed data grows to more than %1 times its size")
                                       .arg(limits::maximumInflateRatio)};
  return {};
}

// After the end of a member: whether another one follows.
bool Inflater::nextMember() {
  while (stream_.avail_in > 0 && *stream_.next_in == 0) {
    ++stream_.next_in;
    --stream_.avail_in;
  }
  return stream_.avail_in > 0;
}

Result<QByteArray> Inflater::run(const QByteArray& bytes) {
  if (!ready_)
    return Error{ErrorKind::Limit, QStringLiteral("there is not enough memory to inflate the data")};
  if (bytes.size() > limits::maximumInflatedBytes)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the compressed data is larger than %1 MiB").arg(limits::maximumInflatedBytes >> 20)};
  QByteArray chunk(kChunk, Qt::Uninitialized);
  stream_.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(bytes.constData()));
  stream_.avail_in = uInt(bytes.size());
  for (;;) {
    stream_.next_out = reinterpret_cast<Bytef*>(chunk.data());
    stream_.avail_out = uInt(kChunk);
    const int status = inflate(&stream_, Z_NO_FLUSH);
    result_.append(chunk.constData(), kChunk - qsizetype(stream_.avail_out));
    if (const Result<void> fits = checkSize(bytes.size()); !fits) return fits.error();
    if (status == Z_STREAM_END) {
      if (!nextMember()) return std::move(result_);
      if (inflateReset(&stream_) != Z_OK) return damaged();
    } else if (status == Z_BUF_ERROR || (status == Z_OK && stream_.avail_in == 0 && stream_.avail_out > 0)) {
      return Error{ErrorKind::NotParsable, QStringLiteral("the compressed data is cut off")};
    } else if (status != Z_OK) {
      return damaged();
    }
  }
}

}  // namespace

Result<QByteArray> inflateGzip(const QByteArray& bytes) {
  Inflater inflater;
  return inflater.run(bytes);
}

}  // namespace norvex::engine
