#include "ui/panels/clipboard_keeper.h"

#include <QCborArray>
#include <QCborValue>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringList>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <numeric>

#include "base/file_descriptor.h"

namespace norvex {
namespace {

constexpr int kTakingMs = 3000;
/// Before everything else in the packed form.
const QByteArray kMark = QByteArrayLiteral("norvex clipboard 1\n");

/// Different contents, and which of them each format has.
struct Contents {
  QStringList names;
  QList<qsizetype> of;  ///< place in `bytes`; -1: left out
  QList<QByteArray> bytes;
};

Contents contentsOf(const QMimeData& data) {
  Contents all;
  for (const QString& name : data.formats()) {
    if (name == QLatin1String("application/x-qt-image")) continue;  // a form of this library alone
    const QByteArray bytes = data.data(name);
    qsizetype at = all.bytes.indexOf(bytes);
    if (at < 0) {
      at = all.bytes.size();
      all.bytes << bytes;
    }
    all.names << name;
    all.of << at;
  }
  return all;
}

void leaveOutBeyond(Contents& all, qsizetype most) {
  const auto total = [&] {
    return std::accumulate(all.bytes.cbegin(), all.bytes.cend(), qsizetype(0),
                           [](qsizetype sum, const QByteArray& each) { return sum + each.size(); });
  };
  while (total() > most) {
    const auto largest = std::max_element(all.bytes.begin(), all.bytes.end(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    std::replace(all.of.begin(), all.of.end(), qsizetype(largest - all.bytes.begin()), qsizetype(-1));
    largest->clear();
  }
}

/// In memory that other processes can read; invalid: there is none.
FileDescriptor shared(const QByteArray& bytes) {
  FileDescriptor memory(::memfd_create("norvex-clipboard", MFD_CLOEXEC));
  QFile file;
  if (!memory.valid() || !file.open(memory.get(), QIODevice::WriteOnly | QIODevice::Unbuffered)) return {};
  if (file.write(bytes) != bytes.size() || ::lseek(memory.get(), 0, SEEK_SET) != 0) return {};
  return memory;
}

/// Starts `program` with `in` and `out` as its standard streams and nothing else that is open here.
bool started(const std::string& program, int in, int out) {
  posix_spawn_file_actions_t streams;
  posix_spawnattr_t attributes;
  if (::posix_spawn_file_actions_init(&streams) != 0) return false;
  ::posix_spawnattr_init(&attributes);
  ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);  // it does not go with our terminal
  ::posix_spawn_file_actions_adddup2(&streams, in, STDIN_FILENO);
  ::posix_spawn_file_actions_adddup2(&streams, out, STDOUT_FILENO);
  ::posix_spawn_file_actions_addopen(&streams, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  ::posix_spawn_file_actions_addclosefrom_np(&streams, STDERR_FILENO + 1);
  std::string name = program;
  char* const arguments[] = {name.data(), nullptr};
  pid_t pid = 0;
  const int failed = ::posix_spawn(&pid, program.c_str(), &streams, &attributes, arguments, environ);
  ::posix_spawn_file_actions_destroy(&streams);
  ::posix_spawnattr_destroy(&attributes);
  return failed == 0;
}

bool saysSo(int from) {
  pollfd waiting{from, POLLIN, 0};
  char byte = 0;
  return ::poll(&waiting, 1, kTakingMs) == 1 && ::read(from, &byte, 1) == 1;
}

}  // namespace

QByteArray packedMimeData(const QMimeData& data, qsizetype most) {
  Contents all = contentsOf(data);
  leaveOutBeyond(all, most);
  QCborArray formats, contents;
  for (qsizetype i = 0; i < all.names.size(); ++i)
    if (all.of[i] >= 0) formats << QCborArray{all.names[i], qint64(all.of[i])};
  if (formats.isEmpty()) return {};
  for (const QByteArray& bytes : all.bytes) contents << bytes;
  return kMark + QCborValue(QCborArray{formats, contents}).toCbor();
}

std::unique_ptr<QMimeData> unpackedMimeData(const QByteArray& packed) {
  if (!packed.startsWith(kMark)) return nullptr;
  const QCborArray read = QCborValue::fromCbor(packed.mid(kMark.size())).toArray();
  const QCborArray formats = read.at(0).toArray(), contents = read.at(1).toArray();
  auto data = std::make_unique<QMimeData>();
  for (const QCborValue& format : formats) {
    const qint64 at = format.toArray().at(1).toInteger(-1);
    if (at < 0 || at >= contents.size()) return nullptr;
    data->setData(format.toArray().at(0).toString(), contents.at(at).toByteArray());
  }
  return formats.isEmpty() ? nullptr : std::move(data);
}

bool leaveClipboardTo(const std::string& program) {
  // Elsewhere the clipboard either outlives programs or can be set by nobody without a window.
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return false;
  const QClipboard* clipboard = QGuiApplication::clipboard();
  if (!clipboard->ownsClipboard() || !clipboard->mimeData()) return false;
  const QByteArray packed = packedMimeData(*clipboard->mimeData());
  const FileDescriptor memory = packed.isEmpty() ? FileDescriptor() : shared(packed);
  int ends[2] = {-1, -1};
  if (!memory.valid() || ::pipe2(ends, O_CLOEXEC) != 0) return false;
  const FileDescriptor told(ends[0]);
  FileDescriptor tells(ends[1]);
  if (!started(program, memory.get(), tells.get())) return false;
  tells.reset();  // the other side's death is to be seen
  return saysSo(told.get());
}

int keepClipboard(int from, int told) {
  QFile file;
  if (!file.open(from, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) return 1;
  std::unique_ptr<QMimeData> data = unpackedMimeData(file.readAll());
  file.close();
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (!data) return 1;
  clipboard->setMimeData(data.release());
  if (!clipboard->ownsClipboard()) return 1;
  QObject::connect(clipboard, &QClipboard::dataChanged, clipboard, [clipboard] {
    if (!clipboard->ownsClipboard()) QCoreApplication::quit();
  });
  const bool said = ::write(told, "1", 1) == 1;
  ::close(told);
  return said ? QCoreApplication::exec() : 1;
}

}  // namespace norvex
