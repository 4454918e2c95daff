// The pages that --pages asks for.
#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <utility>

#include "base/result.h"

namespace norvex {

/// A value.
class PageList {
 public:
  /// Reads "all", or numbers and ranges between commas: "1,3-5,8-". Nothing for anything else.
  [[nodiscard]] static std::optional<PageList> read(const QString& text);

  /// From 1, in the order in which they were asked for, each once. Fails (Unsupported) when the document does
  /// not have one of them.
  [[nodiscard]] Result<QList<int>> of(int pageCount) const;
  /// The page that is surely among them.
  [[nodiscard]] int first() const { return ranges_.first().first; }

 private:
  QList<std::pair<int, int>> ranges_;  ///< first and last; 0: up to the end
};

/// `output` with the number of a page before its extension: out.png becomes out-3.png.
[[nodiscard]] QString outputOfPage(const QString& output, int page);

}  // namespace norvex
