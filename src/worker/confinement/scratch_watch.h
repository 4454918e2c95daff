// The total of a scratch folder, which no limit of the system speaks of.
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include "base/result.h"

namespace norvex {

/// The error once a folder holds too much.
[[nodiscard]] Error tooManyScratchFiles();

/// Looks at one folder from time to time while somebody writes into it. What is reached is
/// limits::maximumScratchBytes and maximumScratchFiles, within some hundredths of a second.
class ScratchWatch {
 public:
  static constexpr int kPause = 40;  ///< milliseconds between two looks

  /// Empty: there is none, and nothing to see.
  explicit ScratchWatch(const QString& folder);
  /// Cheap when it was called a moment ago. Fails with Limit once there is too much.
  [[nodiscard]] Result<void> look();

 private:
  QByteArray folder_;
  QElapsedTimer sinceLast_;
};

}  // namespace norvex
