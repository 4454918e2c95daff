// The places of a text that hold what is looked for.
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace norvex {

/// Where `needle` stands in `text`, in order, whatever the case of letters; matches do not overlap. None for
/// an empty needle. A value; any thread.
class SourceMatches {
 public:
  SourceMatches() = default;
  SourceMatches(const QString& text, const QString& needle);

  [[nodiscard]] qsizetype count() const { return starts_.size(); }
  [[nodiscard]] qsizetype length() const { return length_; }
  [[nodiscard]] const QList<qsizetype>& starts() const { return starts_; }

  /// Indices; going round at the ends, none without a match. at(): the first match that begins at `position`
  /// or later.
  [[nodiscard]] std::optional<qsizetype> at(qsizetype position) const;
  [[nodiscard]] std::optional<qsizetype> after(qsizetype position) const { return at(position + 1); }
  [[nodiscard]] std::optional<qsizetype> before(qsizetype position) const;

 private:
  QList<qsizetype> starts_;
  qsizetype length_ = 0;
};

}  // namespace norvex
