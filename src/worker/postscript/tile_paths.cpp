#include "worker/postscript/tile_paths.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <utility>

namespace norvex::engine {
namespace {

constexpr int kChords = 8;  ///< of a curve

double twiceArea(const TileEdge& edge) {
  return edge.from.x() * edge.to.y() - edge.to.x() * edge.from.y();
}

double length(const TileEdge& edge) {
  return std::hypot(edge.to.x() - edge.from.x(), edge.to.y() - edge.from.y());
}

bool isOneOf(const std::string& name, std::initializer_list<const char*> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

double TilePathFinder::number(std::size_t fromLast) const {
  return fromLast < numbers_.size() ? numbers_[numbers_.size() - 1 - fromLast] : 0;
}

QPointF TilePathFinder::point(std::size_t fromLast) const {
  return states_.back().matrix.map({number(fromLast + 1), number(fromLast)});
}

void TilePathFinder::handleToken(const QPDFTokenizer::Token& token) {
  switch (token.getType()) {
    case QPDFTokenizer::tt_integer:
    case QPDFTokenizer::tt_real:
      numbers_.push_back(std::strtod(token.getValue().c_str(), nullptr));
      break;
    case QPDFTokenizer::tt_name:
      lastName_ = token.getValue();
      hasName_ = true;
      break;
    case QPDFTokenizer::tt_bool:
      if (inInlineImage_ && isOneOf(lastName_, {"/IM", "/ImageMask"})) isMask_ = token.getValue() == "true";
      break;
    case QPDFTokenizer::tt_inline_image:
      paintImage(!isMask_);
      break;
    case QPDFTokenizer::tt_word:
      takeOperator(token.getValue());
      numbers_.clear();
      hasName_ = false;
      break;
    default:
      break;
  }
  writeToken(token);
}

void TilePathFinder::takeOperator(const std::string& name) {
  State& state = states_.back();
  if (construct(name)) return;
  if (name == "q") {
    states_.push_back(State(state));
  } else if (name == "Q") {
    if (states_.size() > 1) states_.pop_back();
  } else if (name == "cm" && numbers_.size() >= 6) {
    state.matrix =
        AffineTransform(number(5), number(4), number(3), number(2), number(1), number(0)) * state.matrix;
  } else if (name == "W" || name == "W*") {
    endPath(false, name == "W*");
    clips_ = true;
  } else if (isOneOf(name, {"f", "F", "f*", "B", "B*", "b", "b*", "n", "S", "s"})) {
    const bool fills = isOneOf(name, {"f", "F", "f*", "B", "B*", "b", "b*"});
    endPath(fills, !isOneOf(name, {"f", "F"}));
    if (clips_ && !paths_.empty()) state.clip = int(paths_.size()) - 1;
    if (fills && !paths_.empty()) paths_.back().isOpaque = !state.hasPattern;
    clips_ = isEnded_ = false;
    edges_.clear();
  } else if (name == "Do") {
    if (opaqueImages_.contains(lastName_)) paintImage(true);
  } else if (name == "sh") {
    paintImage(true);
  } else if (isOneOf(name, {"scn", "sc"})) {
    state.hasPattern = hasName_;
  } else if (isOneOf(name, {"g", "rg", "k", "cs"})) {
    state.hasPattern = false;
  } else if (name == "BI") {
    inInlineImage_ = true;
    isMask_ = false;
  } else if (name == "EI") {
    inInlineImage_ = false;
  }
}

bool TilePathFinder::construct(const std::string& name) {
  if (name == "m") {
    moveTo(point(0));
  } else if (name == "l") {
    lineTo(point(0));
  } else if (name == "c") {
    curveTo(point(4), point(2), point(0));
  } else if (name == "v") {
    curveTo(at_, point(2), point(0));
  } else if (name == "y") {
    curveTo(point(2), point(0), point(0));
  } else if (name == "h") {
    closeSubpath();
  } else if (name == "re") {
    const double x = number(3), y = number(2), width = number(1), height = number(0);
    const AffineTransform& matrix = states_.back().matrix;
    moveTo(matrix.map({x, y}));
    lineTo(matrix.map({x + width, y}));
    lineTo(matrix.map({x + width, y + height}));
    lineTo(matrix.map({x, y + height}));
    closeSubpath();
  } else {
    return false;
  }
  return true;
}

void TilePathFinder::moveTo(QPointF point) {
  closeSubpath();
  start_ = at_ = point;
}

void TilePathFinder::lineTo(QPointF point) {
  if (point != at_) edges_.push_back({at_, point});
  at_ = point;
}

void TilePathFinder::curveTo(QPointF first, QPointF second, QPointF end) {
  const QPointF from = at_;
  for (int i = 1; i < kChords; ++i) {
    const double t = double(i) / kChords, s = 1 - t;
    lineTo(from * (s * s * s) + first * (3 * s * s * t) + second * (3 * s * t * t) + end * (t * t * t));
  }
  lineTo(end);
}

void TilePathFinder::closeSubpath() {
  if (!edges_.empty()) lineTo(start_);
}

void TilePathFinder::endPath(bool fills, bool evenOdd) {
  if (isEnded_) return;
  closeSubpath();
  isEnded_ = true;
  TilePath path;
  double area = 0, outline = 0;
  for (const TileEdge& edge : edges_) {
    area += twiceArea(edge) / 2;
    outline += length(edge);
  }
  path.isReversed = area < 0;
  path.thickness = outline > 0 ? 2 * std::abs(area) / outline : 0;
  path.toPage = states_.back().matrix;
  path.canGrow = !evenOdd && !(fills && states_.back().hasPattern);
  path.edges = std::move(edges_);
  edges_.clear();
  if (path.isReversed)
    for (TileEdge& edge : path.edges) std::swap(edge.from, edge.to);
  paths_.push_back(std::move(path));
  if (const QByteArray more = added(paths_.size() - 1); !more.isEmpty()) write(more.toStdString());
}

void TilePathFinder::paintImage(bool isOpaque) {
  if (const int clip = states_.back().clip; clip >= 0 && isOpaque) paths_[std::size_t(clip)].isOpaque = true;
}

}  // namespace norvex::engine
