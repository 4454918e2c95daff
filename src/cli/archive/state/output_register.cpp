#include "cli/archive/state/output_register.h"

#include <utility>

#include "base/file_name.h"

namespace norvex {

OutputRegister::OutputRegister(Database database)
    : database_(std::move(database)),
      insert_(database_.prepare("INSERT OR IGNORE INTO claim VALUES (?, ?) RETURNING 1")),
      find_(database_.prepare("SELECT file FROM claim WHERE output = ?")) {}

Result<OutputRegister> OutputRegister::make() {
  Result<Database> database = Database::open({}, true);
  if (!database) return database.error();
  const bool made = database->run(
      "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;"
      "CREATE TABLE claim (output BLOB PRIMARY KEY, file BLOB) WITHOUT ROWID; BEGIN");
  if (!made) return database->error();
  return OutputRegister(std::move(*database));
}

Result<std::optional<QByteArray>> OutputRegister::claim(const QByteArray& output, const QByteArray& file) {
  const bool isFree = insert_.bind(0, output).bind(1, file).step();
  const bool failed = insert_.failed();
  insert_.reset();
  if (failed) return database_.error();
  if (isFree) return std::optional<QByteArray>();
  find_.bind(0, output);
  const std::optional<QByteArray> owner = find_.step() ? find_.bytes(0) : QByteArray("");
  find_.reset();
  return owner;
}

QString collision(const QByteArray& output, const QByteArray& other) {
  return QStringLiteral("more than one file would become %1, the other is %2")
      .arg(fileNameText(output), fileNameText(other));
}

}  // namespace norvex
