#include "worker/drawing/packing_beside.h"

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace norvex::engine {
namespace {

using Bytes = std::vector<Bytef>;

constexpr size_t kLong = 256 << 10;       // below, a thread costs more than it saves
constexpr size_t kMostWaiting = 8 << 20;  // whoever writes faster waits
constexpr size_t kRoom = 64 << 10;

thread_local bool isWanted = false;
thread_local bool isLost = false;  ///< something of what was packed since

/// One stream. What is handed over is packed piece by piece as it came, so that zlib sees what it would have
/// seen.
class Packer {
 public:
  explicit Packer(const DeflateCalls& zlib) : zlib_(zlib) {}
  ~Packer();
  Packer(const Packer&) = delete;
  Packer& operator=(const Packer&) = delete;

  int begin(int level, const char* version, int size);
  void add(const Bytef* bytes, size_t count);
  /// No more comes. Returns when all is packed.
  int finish();
  /// Moves packed bytes to where `stream` wants them; true once there are no more.
  bool give(z_streamp stream);

 private:
  void startThread();
  void work();
  void pack(Bytes piece, int flush);

  const DeflateCalls zlib_;
  z_stream stream_{};
  bool hasBegun_ = false, isFinished_ = false;
  int outcome_ = Z_OK;  // these three belong to whoever packs, until that is over
  Bytes packed_;
  size_t given_ = 0;
  std::thread thread_;
  std::mutex lock_;
  std::condition_variable changed_;
  std::deque<Bytes> waiting_;  // guarded by lock_, and the rest
  size_t waitingBytes_ = 0;
  bool isComplete_ = false, isAbandoned_ = false;
};

Packer::~Packer() {
  {
    const std::lock_guard guard(lock_);
    isAbandoned_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable()) thread_.join();
  if (hasBegun_) zlib_.end(&stream_);
}

int Packer::begin(int level, const char* version, int size) {
  const int begun = zlib_.begin(&stream_, level, version, size);
  hasBegun_ = begun == Z_OK;
  return begun;
}

void Packer::startThread() {
  try {
    thread_ = std::thread([this] { work(); });
  } catch (const std::system_error&) {  // all of it is packed at the end, by who asks for it
  }
}

void Packer::add(const Bytef* bytes, size_t count) {
  if (count == 0) return;
  Bytes piece(bytes, bytes + count);
  std::unique_lock guard(lock_);
  const size_t before = waitingBytes_;
  waiting_.push_back(std::move(piece));
  waitingBytes_ += count;
  if (!thread_.joinable() && before < kLong && waitingBytes_ >= kLong) startThread();
  if (!thread_.joinable()) return;
  changed_.notify_all();
  changed_.wait(guard, [this] { return waitingBytes_ <= kMostWaiting; });
}

int Packer::finish() {
  if (isFinished_) return outcome_;
  {
    const std::lock_guard guard(lock_);
    isComplete_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable())
    thread_.join();
  else
    work();
  isFinished_ = true;
  return outcome_;
}

void Packer::work() {
  for (;;) {
    Bytes piece;
    {
      std::unique_lock guard(lock_);
      changed_.wait(guard, [this] { return isAbandoned_ || isComplete_ || !waiting_.empty(); });
      if (isAbandoned_) return;
      if (waiting_.empty()) break;
      piece = std::move(waiting_.front());
      waiting_.pop_front();
      waitingBytes_ -= piece.size();
    }
    changed_.notify_all();
    pack(std::move(piece), Z_NO_FLUSH);
  }
  pack({}, Z_FINISH);
}

void Packer::pack(Bytes piece, int flush) {
  stream_.next_in = piece.data();
  stream_.avail_in = uInt(piece.size());
  try {
    while (outcome_ == Z_OK) {
      const size_t before = packed_.size();
      packed_.resize(before + kRoom);
      stream_.next_out = packed_.data() + before;
      stream_.avail_out = uInt(kRoom);
      outcome_ = zlib_.pack(&stream_, flush);
      packed_.erase(packed_.end() - std::ptrdiff_t(stream_.avail_out), packed_.end());
      // Nothing was left to do when the room had just been filled.
      if (outcome_ == Z_BUF_ERROR && flush == Z_NO_FLUSH) outcome_ = Z_OK;
      if (flush == Z_NO_FLUSH && stream_.avail_in == 0 && stream_.avail_out > 0) break;
    }
  } catch (const std::exception&) {
    outcome_ = Z_MEM_ERROR;
  }
}

bool Packer::give(z_streamp stream) {
  const size_t count = std::min(size_t(stream->avail_out), packed_.size() - given_);
  if (count > 0) std::memcpy(stream->next_out, packed_.data() + given_, count);
  given_ += count;
  stream->next_out += count;
  stream->avail_out -= uInt(count);
  stream->total_out += count;
  return given_ == packed_.size();
}

/// Never called: a stream that has it for its allocator is ours, and `opaque` its Packer.
voidpf mark(voidpf, uInt, uInt) {
  return nullptr;
}

Packer* packerOf(z_streamp stream) {
  return static_cast<Packer*>(stream->opaque);
}

}  // namespace

PackingBeside::PackingBeside(bool wanted) : before_(std::exchange(isWanted, wanted)) {
  isLost = false;
}

PackingBeside::~PackingBeside() {
  isWanted = before_;
}

bool PackingBeside::hasFailed() const {
  return isLost;
}

bool isPackedBeside(const z_stream& stream) {
  return stream.zalloc == mark;
}

int beginPacking(const DeflateCalls& zlib, z_streamp stream, int level, const char* version, int size) {
  if (!isWanted || stream == nullptr) return zlib.begin(stream, level, version, size);
  try {
    auto packer = std::make_unique<Packer>(zlib);
    if (const int begun = packer->begin(level, version, size); begun != Z_OK) return begun;
    stream->zalloc = mark;
    stream->opaque = packer.release();
    stream->total_in = stream->total_out = 0;
    stream->msg = nullptr;
    return Z_OK;
  } catch (const std::exception&) {
    return Z_MEM_ERROR;
  }
}

int packMore(const DeflateCalls& zlib, z_streamp stream, int flush) {
  if (stream == nullptr || !isPackedBeside(*stream)) return zlib.pack(stream, flush);
  if (flush != Z_NO_FLUSH && flush != Z_FINISH) return Z_STREAM_ERROR;
  Packer* packer = packerOf(stream);
  try {
    packer->add(stream->next_in, stream->avail_in);
  } catch (const std::exception&) {
    isLost = true;
  }
  stream->next_in += stream->avail_in;
  stream->total_in += stream->avail_in;
  stream->avail_in = 0;
  if (flush == Z_NO_FLUSH) return Z_OK;
  if (packer->finish() != Z_STREAM_END) isLost = true;
  return isLost || packer->give(stream) ? Z_STREAM_END : Z_OK;
}

int endPacking(const DeflateCalls& zlib, z_streamp stream) {
  if (stream == nullptr || !isPackedBeside(*stream)) return zlib.end(stream);
  delete packerOf(stream);
  stream->zalloc = nullptr;
  stream->opaque = nullptr;
  return Z_OK;
}

}  // namespace norvex::engine
