#include "worker/eps_output/postscript_path.h"

#include <GfxState.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <limits>

namespace norvex::engine {
namespace {

constexpr std::int64_t kUnits = 1'000'000;  // of the last decimal
constexpr int kDecimals = 6;
constexpr double kLargestInUnits = 9e12;

void appendLine(QByteArray& text, std::initializer_list<double> numbers, const char* procedure) {
  for (const double number : numbers) {
    appendNumber(text, number);
    text += ' ';
  }
  text += procedure;
  text += '\n';
}

/// Four corners and the first again, as pages draw their rectangles.
bool appendRectangle(QByteArray& text, const GfxSubpath& subpath) {
  if (subpath.getNumPoints() != 5) return false;
  std::array<double, 5> x{}, y{};
  for (int i = 0; i < 5; ++i) {
    if (subpath.getCurve(i)) return false;
    x[size_t(i)] = subpath.getX(i);
    y[size_t(i)] = subpath.getY(i);
  }
  const bool upFirst = x[0] == x[1] && x[2] == x[3] && y[0] == y[3] && y[1] == y[2];
  const bool acrossFirst = x[0] == x[3] && x[1] == x[2] && y[0] == y[1] && y[2] == y[3];
  if (x[4] != x[0] || y[4] != y[0] || !(upFirst || acrossFirst)) return false;
  appendLine(text, {std::min(x[0], x[2]), std::min(y[0], y[2]), std::abs(x[2] - x[0]), std::abs(y[2] - y[0])},
             "re");
  return true;
}

void appendSubpath(QByteArray& text, const GfxSubpath& subpath) {
  appendLine(text, {subpath.getX(0), subpath.getY(0)}, "m");
  const int points = subpath.getNumPoints();
  for (int i = 1; i < points;) {
    if (subpath.getCurve(i) && i + 2 < points) {
      appendLine(text,
                 {subpath.getX(i), subpath.getY(i), subpath.getX(i + 1), subpath.getY(i + 1),
                  subpath.getX(i + 2), subpath.getY(i + 2)},
                 "c");
      i += 3;
    } else {
      appendLine(text, {subpath.getX(i), subpath.getY(i)}, "l");
      ++i;
    }
  }
  if (subpath.isClosed()) text += "h\n";
}

}  // namespace

void appendNumber(QByteArray& text, double number) {
  if (!(std::abs(number) <= double(std::numeric_limits<float>::max()))) number = 0;
  if (std::abs(number) > kLargestInUnits) {
    text += QByteArray::number(number, 'g', 9);
    return;
  }
  std::int64_t units = std::llround(number * double(kUnits));
  if (units < 0) text += '-';
  units = std::abs(units);
  std::array<char, 24> digits{};
  char* first = digits.data() + digits.size();
  std::int64_t fraction = units % kUnits, whole = units / kUnits;
  if (fraction != 0) {
    int decimals = kDecimals;
    for (; fraction % 10 == 0; fraction /= 10) --decimals;
    for (; decimals > 0; --decimals, fraction /= 10) *--first = char('0' + fraction % 10);
    *--first = '.';
  }
  do *--first = char('0' + whole % 10);
  while ((whole /= 10) != 0);
  text.append(first, digits.data() + digits.size() - first);
}

void appendPath(QByteArray& text, const GfxPath& path) {
  const int count = path.getNumSubpaths();
  if (count == 1 && appendRectangle(text, *path.getSubpath(0))) return;
  for (int i = 0; i < count; ++i) appendSubpath(text, *path.getSubpath(i));
}

}  // namespace norvex::engine
