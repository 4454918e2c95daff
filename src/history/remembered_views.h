// How the pictures that were shown last were shown.
#pragma once

#include <QString>

#include <optional>

#include "document/picture_view.h"

class QSettings;

namespace norvex {

/// One view a file, by its path; the oldest are forgotten. Main thread.
class RememberedViews {
 public:
  static constexpr int maximumCount = 200;

  /// `settings` (not owned) must outlive it.
  explicit RememberedViews(QSettings& settings) : settings_(settings) {}

  /// Nothing for a file that was never shown otherwise than every file at first.
  [[nodiscard]] std::optional<PictureView> view(const QString& path) const;
  void remember(const QString& path, const PictureView& view);
  void clear();

 private:
  void forgetOldest();

  QSettings& settings_;
};

}  // namespace norvex
