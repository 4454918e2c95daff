#include "worker/eps_output/postscript_path.h"

#include <GfxState.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

#include "worker/pdf/pdf_numbers.h"

namespace norvex::engine {
namespace {

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

void appendPath(QByteArray& text, const GfxPath& path) {
  const int count = path.getNumSubpaths();
  if (count == 1 && appendRectangle(text, *path.getSubpath(0))) return;
  for (int i = 0; i < count; ++i) appendSubpath(text, *path.getSubpath(i));
}

}  // namespace norvex::engine
