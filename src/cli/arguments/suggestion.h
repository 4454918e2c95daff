// Suggestions for a mistyped word.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace norvex {

/// The name nearest to `typed`: one letter left out, too much, wrong or two of them changed about count as
/// one step. Nothing when none is near: within two steps, and within one of each three letters.
[[nodiscard]] std::optional<QString> nearestName(const QString& typed, const QStringList& names);

}  // namespace norvex
