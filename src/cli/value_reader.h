// The values of options, checked.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include <optional>

#include "cli/arguments/arguments.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// Reads option values one after the other and keeps the first complaint. The arguments are borrowed.
class ValueReader {
 public:
  explicit ValueReader(const Arguments& arguments) : arguments_(arguments) {}

  /// Empty: nothing was wrong with what was read so far.
  [[nodiscard]] const QString& complaint() const { return complaint_; }
  void complain(const QString& sentence);

  double number(Option option, double fallback, double least, double most);
  int integer(Option option, int fallback, int least, int most);
  /// Of --crop, in points.
  std::optional<QRectF> crop();
  /// Of --background; invalid: none is given.
  QColor background();
  /// Of --timeout and --memory.
  PictureLimits limits();

 private:
  const Arguments& arguments_;
  QString complaint_;
};

}  // namespace norvex
