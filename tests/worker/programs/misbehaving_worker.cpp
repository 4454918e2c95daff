// norvex-misbehaving-worker: speaks the protocol and then breaks it, in the way that the document's text
// names. "at-start MODE" misbehaves before the document is read, "at-open MODE" as answer to the opening,
// "MODE" as answer to the first request after it.

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <utility>

#include "kit/raw_message.h"
#include "protocol/message_channel.h"
#include "protocol/sealed_memory.h"
#include "protocol/shared_errors.h"
#include "worker/worker_program.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

[[noreturn]] void hang() {
  while (true) ::pause();
}

/// A memfd without a seal.
FileDescriptor openMemory(qsizetype size) {
  FileDescriptor fd(::memfd_create("loose", MFD_CLOEXEC | MFD_ALLOW_SEALING));
  if (::ftruncate(fd.get(), size) != 0) ::_exit(1);
  return fd;
}

class Misbehaviour {
 public:
  explicit Misbehaviour(MessageChannel& channel) : channel_(channel) {}

  /// Answers request `id`, for a bitmap of 4 × 4 where it is one, as `mode` says.
  void answer(const QByteArray& mode, quint32 id) {
    death(mode);
    raw(mode, id);
    wrongReply(mode, id);
    wrongMemory(mode, id);
    if (!hasObeyed_) ::_exit(1);
  }

 private:
  void death(const QByteArray& mode) {
    if (mode == "hang") hang();
    if (mode == "exit") ::_exit(0);
    if (mode == "crash") ::raise(SIGKILL);
    if (mode == "close") channel_ = MessageChannel(), hang();
  }

  void raw(const QByteArray& mode, quint32 id) {
    const int socket = channel_.socket();
    ::fcntl(socket, F_SETFL, ::fcntl(socket, F_GETFL) & ~O_NONBLOCK);
    const QByteArray good = encodeReply({id, BitmapReply{QSize(4, 4), 16, {}}});
    if (mode == "bad-cbor") sendRaw(socket, framed("this is no CBOR")), hang();
    if (mode == "huge-length") sendRaw(socket, QByteArray::fromHex("ffffffff")), hang();
    if (mode == "half-message") sendRaw(socket, framed(good).left(9)), ::_exit(0);
    if (mode == "half-and-hang") sendRaw(socket, framed(good).left(9)), hang();
    if (mode == "two-descriptors") sendRaw(socket, framed(good), {0, 1}), hang();
    if (mode == "late-descriptor") sendRaw(socket, framed(good).left(4)), sendRaw(socket, good, {0}), hang();
    if (mode == "flood-zeros") flood(QByteArray(1 << 16, '\0'));
    if (mode == "flood-messages") flood(framed(encodeReply({id + 7, BitmapReply{QSize(4, 4), 16, {}}})));
    if (mode == "trickle") trickle();
  }

  [[noreturn]] void flood(const QByteArray& bytes) {
    while (sendRaw(channel_.socket(), bytes)) continue;
    ::_exit(0);
  }

  /// A message that goes on arriving but never ends.
  [[noreturn]] void trickle() {
    sendRaw(channel_.socket(), QByteArray::fromHex("00004000"));
    while (sendRaw(channel_.socket(), "x")) ::usleep(1000);
    ::_exit(0);
  }

  void wrongReply(const QByteArray& mode, quint32 id) {
    const FileDescriptor pixels = sealed(64);
    if (mode == "obeys-late") return obeyLate(id, pixels);
    if (mode == "late") ::usleep(900'000), send(id, BitmapReply{QSize(4, 4), 16, {}}, pixels);
    if (mode == "lost-slowly") ::usleep(1'200'000), send(id, interpreterLost(), FileDescriptor());
    if (mode == "wrong-id") send(id + 1, BitmapReply{QSize(4, 4), 16, {}}, pixels);
    if (mode == "wrong-type") send(id, ForkReply{1}, FileDescriptor());
    if (mode == "fork-reply") send(id, ForkReply{1}, pixels);
    if (mode == "wrong-size") send(id, BitmapReply{QSize(5, 4), 20, {}}, sealed(80));
    if (mode == "wrong-stride") send(id, BitmapReply{QSize(4, 4), 12, {}}, pixels);
    if (mode == "wide-stride") send(id, BitmapReply{QSize(4, 4), 20, {}}, sealed(80));
    if (mode == "negative-size") send(id, BitmapReply{QSize(-4, -4), 16, {}}, pixels);
    if (mode == "negative-stride") send(id, BitmapReply{QSize(4, 4), -16, {}}, pixels);
    if (mode == "no-descriptor") send(id, BitmapReply{QSize(4, 4), 16, {}}, FileDescriptor());
    if (mode == "negative-dpi") send(id, BytesReply{1, 0.5, -1, {}}, pixels);
    if (mode == "impossible-dpi") send(id, BytesReply{1, 0.5, 1e9, {}}, pixels);
    if (mode == "error-with-descriptor") send(id, Error{ErrorKind::Limit, "x"}, pixels);
    if (mode == "twice" && !channel_.send(encodeReply({id, BitmapReply{QSize(4, 4), 16, {}}}), pixels.get()))
      ::_exit(0);
    if (mode == "twice") send(id, BitmapReply{QSize(4, 4), 16, {}}, pixels);
  }

  void wrongMemory(const QByteArray& mode, quint32 id) {
    const BitmapReply good{QSize(4, 4), 16, {}};
    if (mode == "small-memory") send(id, good, sealed(63));
    if (mode == "large-memory") send(id, good, sealed(65));
    if (mode == "empty-memory") send(id, good, sealed(0));
    if (mode == "unsealed-memory") send(id, good, openMemory(64));
    if (mode == "file") send(id, good, FileDescriptor(::open("/proc/self/exe", O_RDONLY | O_CLOEXEC)));
    if (mode == "socket") send(id, good, FileDescriptor(::socket(AF_UNIX, SOCK_STREAM, 0)));
    if (mode == "huge-bytes") {
      const FileDescriptor huge = openMemory(qsizetype(1) << 40);
      ::fcntl(huge.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL);
      send(id, BytesReply{}, huge);
    }
  }

  static FileDescriptor sealed(qsizetype size) {
    auto fd = SealedMemory::seal(QByteArray(size, 'p'));
    return fd ? std::move(*fd) : FileDescriptor();
  }

  /// The first drawing hears no cancel for a while and the next one shows its pixels.
  void obeyLate(quint32 id, const FileDescriptor& pixels) {
    if (std::exchange(hasObeyed_, true)) send(id, BitmapReply{QSize(4, 4), 16, {}}, pixels);
    ::usleep(600'000);
    if (!channel_.send(encodeReply({id, workCancelled()}))) ::_exit(0);
  }

  [[noreturn]] void send(quint32 id, const ReplyBody& body, const FileDescriptor& descriptor) {
    if (!channel_.send(encodeReply({id, body}), descriptor.get())) ::_exit(0);
    hang();
  }

  MessageChannel& channel_;
  bool hasObeyed_ = false;
};

void serve(FileDescriptor socket, const ForkRequest&, const QString&) {
  MessageChannel channel(std::move(socket));
  Misbehaviour misbehaviour(channel);
  QByteArray document;
  while (auto message = channel.receive()) {
    auto decoded = decodeMessage(message->cbor);
    if (!decoded) ::_exit(1);
    if (!std::holds_alternative<WorkerRequest>(*decoded)) continue;
    const auto& request = std::get<WorkerRequest>(*decoded);
    const bool opening = std::holds_alternative<OpenRequest>(request.body);
    if (message->descriptor.valid())
      document = SealedMemory::map(std::move(message->descriptor), 1 << 20)->toByteArray();
    if (document.startsWith("at-open ")) misbehaviour.answer(document.mid(8), request.id);
    if (!opening) misbehaviour.answer(document, request.id);
    if (!opening) continue;
    if (!channel.send(encodeReply({request.id, PictureFacts{}}))) return;
  }
}

}  // namespace

int main(int argc, char** argv) {
  return runForkServer(argc, argv, serve);
}
