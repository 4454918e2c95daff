#include "cli/archive/state/run_state.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "base/atomic_file.h"
#include "base/file_name.h"

namespace norvex {
namespace {

constexpr qint64 kApplicationId = 0x4E567853;  // "NVxS"
constexpr qint64 kVersion = 1;

constexpr char kTables[] =
    "CREATE TABLE entry (path BLOB PRIMARY KEY, settings BLOB, size INTEGER, time INTEGER, content BLOB,"
    " outcome INTEGER, sentence TEXT, seconds REAL, memory INTEGER, changed REAL, output BLOB,"
    " output_size INTEGER, output_time INTEGER, output_content BLOB, finished INTEGER) WITHOUT ROWID;"
    "CREATE INDEX undone ON entry (outcome) WHERE outcome <> 1;"
    "CREATE TABLE run (started INTEGER, total INTEGER);"
    "PRAGMA application_id = 1314289747; PRAGMA user_version = 1";
static_assert(kApplicationId == 1314289747 && kVersion == 1);

Error notAState(const QString& reason) {
  return {ErrorKind::CannotWrite, reason};
}

/// Makes the tables where there are none; fails for what is something else, which stays as it is.
Result<void> prepareTables(Database& database, bool forRun) {
  const qint64 tables = database.number("SELECT count(*) FROM sqlite_schema", -1);
  if (tables < 0) return database.error();
  if (forRun && tables == 0 && database.number("PRAGMA application_id") == 0) {
    const QByteArray made = QByteArray("BEGIN IMMEDIATE;") + kTables + ";COMMIT";
    if (!database.run(made.constData())) return database.error();
  }
  if (database.number("PRAGMA application_id") != kApplicationId)
    return notAState(QStringLiteral("it is no state of a run"));
  if (database.number("PRAGMA user_version") > kVersion)
    return notAState(QStringLiteral("a newer version of Norvex has written it"));
  if (forRun && !database.run("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL"))
    return database.error();
  return {};
}

/// One run has a state at a time. Not flock(2): on a network's file system that is a lock of all bytes, and
/// SQLite would wait for us.
bool lockForRun(int descriptor) {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  lock.l_start = off_t(1) << 50;  // far behind what there is
  lock.l_len = 1;
  return ::fcntl(descriptor, F_OFD_SETLK, &lock) == 0;
}

/// Everything that is in the file system of `folder` goes to disk.
bool bringToDisk(const QByteArray& folder) {
  const FileDescriptor opened(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return opened.valid() && ::syncfs(opened.get()) == 0;
}

QByteArray folderOf(const QByteArray& path) {
  if (!path.contains('/')) return ".";
  return path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

/// What a run that was killed leaves beside its state, and a finished one does not.
bool hasLog(const QByteArray& path) {
  return stampOf(path + "-wal").value_or(FileStamp{0, 0}).size > 0;
}

}  // namespace

RunEntry readEntry(const Statement& row) {
  RunEntry entry;
  entry.path = row.bytes(0);
  entry.settings = row.bytes(1);
  entry.stamp = {row.number(2), row.number(3)};
  entry.content = row.bytes(4);
  entry.outcome = Outcome(std::clamp<qint64>(row.number(5), 0, qint64(Outcome::SetAside)));
  entry.sentence = row.text(6);
  entry.seconds = row.real(7);
  entry.memoryKiB = row.number(8);
  entry.changed = row.real(9);
  entry.output = row.bytes(10);
  entry.outputStamp = {row.number(11), row.number(12)};
  entry.outputContent = row.bytes(13);
  entry.finished = row.number(14);
  return entry;
}

RunState::RunState(FileDescriptor lock, Database database)
    : lock_(std::move(lock)),
      database_(std::move(database)),
      find_(database_.prepare(
          (QByteArray("SELECT ") + entryColumns + " FROM entry WHERE path = ?").constData())),
      write_(database_.prepare((QByteArray("INSERT OR REPLACE INTO entry (") + entryColumns +
                                ") VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
                                   .constData())) {}

Result<std::unique_ptr<RunState>> RunState::open(const QByteArray& path, FileDescriptor lock, bool forRun) {
  return of(Database::open(path, forRun), std::move(lock), forRun);
}

Result<std::unique_ptr<RunState>> RunState::of(Result<Database> database, FileDescriptor lock, bool forRun) {
  if (!database) return database.error();
  if (const auto prepared = prepareTables(*database, forRun); !prepared) return prepared.error();
  return std::unique_ptr<RunState>(new RunState(std::move(lock), std::move(*database)));
}

Result<std::unique_ptr<RunState>> RunState::openForRun(const QByteArray& path) {
  FileDescriptor lock(::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
  if (!lock.valid()) return notAState(QStringLiteral("it cannot be opened (%1)").arg(qt_error_string(errno)));
  if (!lockForRun(lock.get()))
    return notAState(errno == EAGAIN || errno == EACCES
                         ? QStringLiteral("another run is using it")
                         : QStringLiteral("it cannot be locked (%1)").arg(qt_error_string(errno)));
  auto state = open(path, std::move(lock), true);
  if (!state) return state.error();
  if (const auto removed = (*state)->removeLeftovers(); !removed) return removed.error();
  return state;
}

Result<std::unique_ptr<RunState>> RunState::openToRead(const QByteArray& path) {
  if (::access(path.constData(), F_OK) != 0) return notAState(QStringLiteral("there is no such state"));
  auto opened = open(path, FileDescriptor(), false);
  if (opened || ::access(folderOf(path).constData(), W_OK) == 0) return opened;
  if (hasLog(path))
    return notAState(
        QStringLiteral("a run was killed with it, and its folder cannot be written; a copy of it and of what "
                       "lies beside it can be read"));
  return of(Database::openUnchanging(path), FileDescriptor(), false);
}

/// Of results that were being written when the program was killed.
Result<void> RunState::removeLeftovers() {
  Statement begun = database_.prepare("SELECT output FROM entry WHERE outcome = 0 AND output IS NOT NULL");
  QHash<QByteArray, QSet<QByteArray>> names;
  while (begun.step()) {
    const QByteArray output = begun.bytes(0);
    names[folderOf(output)].insert(output.mid(output.lastIndexOf('/') + 1));
  }
  if (begun.failed()) return database_.error();
  for (auto it = names.begin(); it != names.end(); ++it) removeUnfinishedFiles(it.key(), it.value());
  return {};
}

Result<std::optional<RunEntry>> RunState::find(const QByteArray& path) {
  const std::lock_guard lock(mutex_);
  std::optional<RunEntry> entry;
  if (find_.bind(0, path).step()) entry = readEntry(find_);
  const bool failed = find_.failed();
  find_.reset();
  if (failed) return database_.error();
  return entry;
}

Result<void> RunState::begin(const QList<RunEntry>& entries) {
  return write(entries);
}

Result<void> RunState::finish(const QList<RunEntry>& entries) {
  for (const RunEntry& entry : entries) {
    if (entry.outcome != Outcome::Done || entry.output.isNull()) continue;
    // All folders of a run's results are in one file system.
    if (!bringToDisk(folderOf(entry.output)))
      return notAState(
          QStringLiteral("the results cannot be brought to disk (%1)").arg(qt_error_string(errno)));
    break;
  }
  return write(entries);
}

Result<void> RunState::write(const QList<RunEntry>& entries) {
  const std::lock_guard lock(mutex_);
  if (entries.isEmpty()) return {};
  struct stat status {};
  if (::fstat(lock_.get(), &status) == 0 && status.st_nlink == 0)
    return notAState(QStringLiteral("it was removed, or another was put in its place, while it was used"));
  if (!database_.run("BEGIN IMMEDIATE")) return database_.error();
  for (const RunEntry& e : entries) {
    write_.bind(0, e.path).bind(1, e.settings).bind(2, e.stamp.size).bind(3, e.stamp.time);
    write_.bind(4, e.content).bind(5, qint64(e.outcome)).bind(6, e.sentence).bind(7, e.seconds);
    write_.bind(8, e.memoryKiB).bind(9, e.changed).bind(10, e.output).bind(11, e.outputStamp.size);
    write_.bind(12, e.outputStamp.time).bind(13, e.outputContent).bind(14, e.finished);
    if (write_.run()) continue;
    const Error error = database_.error();
    database_.run("ROLLBACK");
    return error;
  }
  if (database_.run("COMMIT")) return {};
  const Error error = database_.error();
  database_.run("ROLLBACK");
  return error;
}

Result<void> RunState::noteTotal(std::optional<qint64> total) {
  const std::lock_guard lock(mutex_);
  if (!database_.run("DROP TABLE IF EXISTS merged")) return database_.error();
  Statement note = database_.prepare("INSERT INTO run VALUES (unixepoch(), ?)");
  if (total) note.bind(0, *total);
  if (!note.run()) return database_.error();
  return {};
}

Result<void> RunState::merge(const QByteArray& other) {
  struct stat own {
  }, status{};
  const bool isOwn = ::fstat(lock_.get(), &own) == 0 && ::stat(other.constData(), &status) == 0 &&
                     own.st_dev == status.st_dev && own.st_ino == status.st_ino;
  if (isOwn) return notAState(QStringLiteral("a state is not merged into itself"));
  // Opened once by itself: it is made whole after a crash, and must be a state.
  const auto opened = openToRead(other);
  if (!opened) return opened.error();
  const std::lock_guard lock(mutex_);
  const Result<StateSummary> ours = summaryOf(database_), theirs = summaryOf((*opened)->database());
  if (!theirs) return Error{ErrorKind::CannotRead, theirs.error().message};
  if (!ours) return ours.error();
  Statement attach = database_.prepare("ATTACH ? AS other");
  // As bytes: a file's name need not be text, and SQLite hands them on as they are.
  const bool isUnchanging = ::access(folderOf(other).constData(), W_OK) != 0 && !hasLog(other);
  const QByteArray name = isUnchanging ? Database::unchangingNameOf(other) : Database::nameOf(other);
  if (!attach.bind(0, name).run()) return database_.error();
  const bool merged = database_.run(
                          "BEGIN;"  // takes no lock of the other: a run that uses it must not wait
                          "INSERT OR REPLACE INTO main.entry SELECT theirs.* FROM other.entry AS theirs"
                          " LEFT JOIN main.entry AS ours ON ours.path = theirs.path"
                          " WHERE ours.path IS NULL OR theirs.finished > ours.finished") &&
                      noteMerged(*ours, *theirs, realPath(other)) && database_.run("COMMIT");
  const Error error = database_.error();
  if (!merged) database_.run("ROLLBACK");
  database_.run("DETACH other");
  if (!merged) return error;
  return {};
}

/// What is left, and since when, of each state that is in this one; of its own run under an empty name. A
/// state that is merged again counts once.
bool RunState::noteMerged(const StateSummary& ours, const StateSummary& theirs, const QByteArray& other) {
  const bool isFirst = database_.number("SELECT count(*) FROM main.sqlite_schema WHERE name = 'merged'") == 0;
  if (isFirst && !database_.run("CREATE TABLE main.merged (state BLOB PRIMARY KEY, started INTEGER,"
                                " rest INTEGER) WITHOUT ROWID"))
    return false;
  Statement note = database_.prepare("INSERT OR REPLACE INTO main.merged VALUES (?, ?, ?)");
  const auto insert = [&](const QByteArray& state, const StateSummary& summary) {
    note.bind(0, state);
    if (summary.started) note.bind(1, *summary.started);
    if (summary.rest) note.bind(2, *summary.rest);
    return note.run();
  };
  if (isFirst && ours.started && !insert("", ours)) return false;
  return insert(other, theirs);
}

}  // namespace norvex
