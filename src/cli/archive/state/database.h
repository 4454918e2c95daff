// SQLite in the words of this program: failure as a value, statements that finish themselves.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

#include "base/result.h"

struct sqlite3;
struct sqlite3_stmt;

namespace norvex {

/// A prepared statement. Columns and parameters count from 0. Used by the thread that has the database.
class Statement {
 public:
  Statement() = default;
  explicit Statement(sqlite3_stmt* statement) : statement_(statement, &end) {}

  Statement& bind(int parameter, qint64 value);
  Statement& bind(int parameter, double value);
  Statement& bind(int parameter, const QByteArray& bytes);  ///< a null array is NULL
  Statement& bind(int parameter, const QString& text);
  /// True while there is a row; false at the end and on failure, which failed() tells.
  bool step();
  /// Steps once and makes ready for the next use; false on failure.
  bool run();
  /// Ready for other parameters.
  void reset();
  [[nodiscard]] bool failed() const { return failed_; }

  [[nodiscard]] qint64 number(int column) const;
  [[nodiscard]] double real(int column) const;
  [[nodiscard]] QByteArray bytes(int column) const;
  [[nodiscard]] QString text(int column) const;

 private:
  static void end(sqlite3_stmt* statement);
  std::unique_ptr<sqlite3_stmt, decltype(&end)> statement_{nullptr, &end};
  bool failed_ = false;
};

/// An open database with a small cache, so that it takes the same memory however much it holds. Not
/// thread-safe.
class Database {
 public:
  /// `path`: empty for one that has no name and goes when it is closed. Fails with CannotWrite.
  [[nodiscard]] static Result<Database> open(const QByteArray& path, bool mayCreate);

  /// To read one that nobody changes, in a folder where nothing can be written. CannotWrite.
  [[nodiscard]] static Result<Database> openUnchanging(const QByteArray& path);

  /// How a file is called where others are attached: as one that may change, and as one that nobody changes.
  [[nodiscard]] static QByteArray nameOf(const QByteArray& path);
  [[nodiscard]] static QByteArray unchangingNameOf(const QByteArray& path);

  /// False on failure.
  bool run(const char* sql);
  [[nodiscard]] Statement prepare(const char* sql);
  /// One number of one row, `fallback` where there is none.
  [[nodiscard]] qint64 number(const char* sql, qint64 fallback = 0);
  /// The last failure. CannotWrite.
  [[nodiscard]] Error error() const;

 private:
  explicit Database(sqlite3* database) : database_(database, &close) {}
  static void close(sqlite3* database);
  /// `flags`: how it may be used, in SQLite's words.
  static Result<Database> openNamed(const QByteArray& name, int flags);
  Result<void> makeReady();
  std::unique_ptr<sqlite3, decltype(&close)> database_;
};

}  // namespace norvex
