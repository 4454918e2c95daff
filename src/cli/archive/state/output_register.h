// Which results of a run are spoken for.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "cli/archive/state/database.h"

namespace norvex {

/// Two files of one run must not become one result: neither is then the right one. On disk and exact, so that
/// a run over any number of files takes no memory for it; goes with the object. One thread uses it.
class OutputRegister {
 public:
  [[nodiscard]] static Result<OutputRegister> make();
  /// Speaks for `output`; nothing when it was free, else the file that it is spoken for by. Fails when the
  /// disk is full.
  [[nodiscard]] Result<std::optional<QByteArray>> claim(const QByteArray& output, const QByteArray& file);

 private:
  explicit OutputRegister(Database database);
  Database database_;
  Statement insert_, find_;
};

/// What is said of a file whose result `output` is spoken for by the file `other`.
[[nodiscard]] QString collision(const QByteArray& output, const QByteArray& other);

}  // namespace norvex
