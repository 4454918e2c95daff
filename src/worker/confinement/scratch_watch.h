// The total of a scratch folder, which no limit of the system speaks of.
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include "base/result.h"

namespace norvex {

/// The error once a folder holds too much.
[[nodiscard]] Error tooManyScratchFiles();

/// Looks at one folder from time to time while somebody writes into it, so that it never holds more than
/// limits::maximumScratchBytes and, but for some hundredths of a second, maximumScratchFiles.
class ScratchWatch {
 public:
  static constexpr int kPause = 40;  ///< milliseconds between two looks
  /// What a fast disk may take between two looks: from there on the total counts as reached.
  static constexpr qint64 kBetweenLooks = 128 << 20;

  /// Empty: there is none, and nothing to see.
  explicit ScratchWatch(const QString& folder);
  /// Cheap when it was called a moment ago. Fails with Limit once there is too much.
  [[nodiscard]] Result<void> look();

 private:
  QByteArray folder_;
  QElapsedTimer sinceLast_;
};

}  // namespace norvex
