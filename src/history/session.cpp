#include "history/session.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <csignal>
#include <cstring>
#include <utility>

namespace norvex {
namespace {

constexpr int kMostFiles = 100;
constexpr qint64 kMostBytes = 1 << 20;  ///< a file that is none of ours
const QString kSuffix = QStringLiteral(".session");

/// For the handler of signals, which may call next to nothing.
std::array<char, 4096> ownPath{};

void endSession(int signal) {
  if (ownPath[0] != '\0') ::unlink(ownPath.data());
  ::raise(signal);  // as if it had not been handled: SA_RESETHAND
}

/// To be asked to end is no crash.
void watchForSignals() {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    struct sigaction action = {}, before = {};
    if (::sigaction(signal, nullptr, &before) != 0 || before.sa_handler != SIG_DFL) continue;
    action.sa_handler = endSession;
    action.sa_flags = int(SA_RESETHAND | SA_NODEFER);
    ::sigaction(signal, &action, nullptr);
  }
}

void setOwnPath(const QByteArray& path) {
  ownPath.fill('\0');
  if (size_t(path.size()) < ownPath.size())
    std::memcpy(ownPath.data(), path.constData(), size_t(path.size()));
}

QByteArray written(const LeftSession& session) {
  return QJsonDocument(QJsonObject{{QStringLiteral("files"), QJsonArray::fromStringList(session.files)},
                                   {QStringLiteral("last"), session.last}})
      .toJson(QJsonDocument::Compact);
}

LeftSession readSession(int file) {
  QFile reading;
  if (!reading.open(file, QIODevice::ReadOnly) || reading.size() > kMostBytes) return {};
  const QJsonObject object = QJsonDocument::fromJson(reading.readAll()).object();
  LeftSession session;
  for (const QJsonValue& value : object.value(QLatin1String("files")).toArray())
    if (const QString path = value.toString(); path.startsWith('/') && session.files.size() < kMostFiles)
      session.files << path;
  if (const QString last = object.value(QLatin1String("last")).toString(); session.files.contains(last))
    session.last = last;
  return session;
}

}  // namespace

Session::Session(QString folder) : folder_(std::move(folder)) {}

Session::~Session() {
  stop();
}

void Session::opened(const QString& path) {
  now_.files.removeAll(path);
  now_.files << path;
  now_.last = path;
  write();
}

void Session::used(const QString& path) {
  if (now_.last == path || !now_.files.contains(path)) return;
  now_.last = path;
  write();
}

void Session::closed(const QString& path) {
  if (now_.files.removeAll(path) == 0) return;
  if (now_.last == path) now_.last = now_.files.isEmpty() ? QString() : now_.files.constLast();
  write();
}

void Session::stop() {
  on_ = false;
  if (!file_.valid()) return;
  ::unlink(ownPath.data());
  setOwnPath({});
  file_.reset();
}

void Session::start() {
  on_ = true;
  if (!now_.files.isEmpty()) write();
}

void Session::write() {
  if (!on_) return;
  if (!file_.valid()) {
    if (!QDir().mkpath(folder_)) return;
    const QByteArray path = QFile::encodeName(folder_ + u'/' + QString::number(::getpid()) + kSuffix);
    file_.reset(::open(path.constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!file_.valid()) return;
    if (::flock(file_.get(), LOCK_EX | LOCK_NB) != 0) return file_.reset();
    setOwnPath(path);
    watchForSignals();
  }
  const QByteArray bytes = written(now_);
  if (::ftruncate(file_.get(), 0) == 0)
    (void)!::pwrite(file_.get(), bytes.constData(), size_t(bytes.size()), 0);
}

QList<LeftSession> Session::takeLeft(const QString& folder) {
  QList<LeftSession> left;
  const QFileInfoList files =
      QDir(folder).entryInfoList({u'*' + kSuffix}, QDir::Files, QDir::Time | QDir::Reversed);
  for (const QFileInfo& info : files) {
    const QByteArray path = QFile::encodeName(info.absoluteFilePath());
    const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!file.valid() || ::flock(file.get(), LOCK_EX | LOCK_NB) != 0) continue;  // its program runs
    const LeftSession session = readSession(file.get());
    ::unlink(path.constData());
    if (!session.files.isEmpty()) left << session;
  }
  return left;
}

}  // namespace norvex
