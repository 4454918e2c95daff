#include "cli/arguments/suggestion.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace norvex {
namespace {

/// Steps from one word to another, row by row of the usual table.
int steps(const QString& from, const QString& to) {
  const auto width = size_t(to.size()) + 1;
  std::vector<int> before(width), above(width), row(width);
  std::iota(above.begin(), above.end(), 0);
  for (qsizetype i = 1; i <= from.size(); ++i) {
    row[0] = int(i);
    for (qsizetype j = 1; j <= to.size(); ++j) {
      const auto at = size_t(j);
      const bool same = from[i - 1] == to[j - 1];
      row[at] = std::min({above[at] + 1, row[at - 1] + 1, above[at - 1] + (same ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1];
      if (swapped) row[at] = std::min(row[at], before[at - 2] + 1);
    }
    std::swap(before, above);
    std::swap(above, row);
  }
  return above.back();
}

}  // namespace

std::optional<QString> nearestName(const QString& typed, const QStringList& names) {
  constexpr qsizetype longest = 40;  // no name is nearly as long
  if (typed.size() > longest) return std::nullopt;
  std::optional<QString> nearest;
  int fewest = int(std::min<qsizetype>(2, typed.size() / 3)) + 1;
  for (const QString& name : names) {
    const int count = steps(typed.toLower(), name);
    if (count >= fewest) continue;
    fewest = count;
    nearest = name;
  }
  return nearest;
}

}  // namespace norvex
