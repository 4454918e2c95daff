#include "cli/archive/state/database.h"

#include <sqlite3.h>

namespace norvex {

void Statement::end(sqlite3_stmt* statement) {
  ::sqlite3_finalize(statement);
}

Statement& Statement::bind(int parameter, qint64 value) {
  ::sqlite3_bind_int64(statement_.get(), parameter + 1, value);
  return *this;
}

Statement& Statement::bind(int parameter, double value) {
  ::sqlite3_bind_double(statement_.get(), parameter + 1, value);
  return *this;
}

Statement& Statement::bind(int parameter, const QByteArray& bytes) {
  if (bytes.isNull())
    ::sqlite3_bind_null(statement_.get(), parameter + 1);
  else
    ::sqlite3_bind_blob64(statement_.get(), parameter + 1, bytes.constData(), sqlite3_uint64(bytes.size()),
                          SQLITE_TRANSIENT);
  return *this;
}

Statement& Statement::bind(int parameter, const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  ::sqlite3_bind_text64(statement_.get(), parameter + 1, utf8.constData(), sqlite3_uint64(utf8.size()),
                        SQLITE_TRANSIENT, SQLITE_UTF8);
  return *this;
}

bool Statement::step() {
  const int code = statement_ ? ::sqlite3_step(statement_.get()) : SQLITE_ERROR;
  failed_ = code != SQLITE_ROW && code != SQLITE_DONE;
  return code == SQLITE_ROW;
}

bool Statement::run() {
  (void)step();
  reset();
  return !failed_;
}

void Statement::reset() {
  ::sqlite3_reset(statement_.get());
  ::sqlite3_clear_bindings(statement_.get());
}

qint64 Statement::number(int column) const {
  return ::sqlite3_column_int64(statement_.get(), column);
}

double Statement::real(int column) const {
  return ::sqlite3_column_double(statement_.get(), column);
}

QByteArray Statement::bytes(int column) const {
  if (::sqlite3_column_type(statement_.get(), column) == SQLITE_NULL) return {};
  const auto* data = static_cast<const char*>(::sqlite3_column_blob(statement_.get(), column));
  return data ? QByteArray(data, ::sqlite3_column_bytes(statement_.get(), column)) : QByteArray("");
}

QString Statement::text(int column) const {
  return QString::fromUtf8(bytes(column));
}

void Database::close(sqlite3* database) {
  ::sqlite3_close_v2(database);
}

Result<Database> Database::openNamed(const QByteArray& name, int flags) {
  sqlite3* opened = nullptr;
  const int code =
      ::sqlite3_open_v2(name.constData(), &opened, flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI, nullptr);
  Database database(opened);
  if (code != SQLITE_OK) return database.error();
  if (const auto ready = database.makeReady(); !ready) return ready.error();
  return database;
}

Result<Database> Database::open(const QByteArray& path, bool mayCreate) {
  return openNamed(nameOf(path),
                   SQLITE_OPEN_READWRITE | (mayCreate || path.isEmpty() ? SQLITE_OPEN_CREATE : 0));
}

QByteArray Database::nameOf(const QByteArray& path) {
  return path.startsWith("file:") ? "./" + path : path;
}

QByteArray Database::unchangingNameOf(const QByteArray& path) {
  return (path.startsWith('/') ? "file://" : "file:") + path.toPercentEncoding("/") + "?immutable=1";
}

Result<Database> Database::openUnchanging(const QByteArray& path) {
  return openNamed(unchangingNameOf(path), SQLITE_OPEN_READONLY);
}

Result<void> Database::makeReady() {
  constexpr int patience = 10'000;  // milliseconds that another program may hold it
  ::sqlite3_extended_result_codes(database_.get(), 1);
  ::sqlite3_busy_timeout(database_.get(), patience);
  if (!run("PRAGMA cache_size = -1024")) return error();
  return {};
}

bool Database::run(const char* sql) {
  return ::sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

Statement Database::prepare(const char* sql) {
  sqlite3_stmt* statement = nullptr;
  ::sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  return Statement(statement);
}

qint64 Database::number(const char* sql, qint64 fallback) {
  Statement statement = prepare(sql);
  return statement.step() ? statement.number(0) : fallback;
}

Error Database::error() const {
  const QString words = QString::fromUtf8(database_ ? ::sqlite3_errmsg(database_.get()) : "out of memory");
  switch (database_ ? ::sqlite3_errcode(database_.get()) & 0xFF : SQLITE_NOMEM) {
    case SQLITE_NOTADB:
      return {ErrorKind::CannotWrite, QStringLiteral("it is no state of a run")};
    case SQLITE_CORRUPT:
      return {ErrorKind::CannotWrite, QStringLiteral("it is damaged (%1)").arg(words)};
    case SQLITE_FULL:
      return {ErrorKind::CannotWrite, QStringLiteral("there is no space left to write to")};
    default:
      return {ErrorKind::CannotWrite, words};
  }
}

}  // namespace norvex
