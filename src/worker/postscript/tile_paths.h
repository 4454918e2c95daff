// The shapes through which the contents of a page are painted, where they lie on the page.
#pragma once

#include <QByteArray>
#include <QPointF>

#include <qpdf/QPDFObjectHandle.hh>

#include <set>
#include <string>
#include <vector>

#include "base/affine_transform.h"

namespace norvex::engine {

/// A straight piece of an outline, in the units of the page; a curve is several.
struct TileEdge {
  QPointF from, to;
};

/// A path that is filled or clips.
struct TilePath {
  std::vector<TileEdge> edges;  ///< the painted side lies to the left of each
  AffineTransform toPage;       ///< from the units in which the contents say it
  bool isReversed = false;      ///< the contents go round it the other way
  bool isOpaque = false;        ///< what is painted through it covers what was there
  bool canGrow = false;         ///< an outline that is added to it becomes a part of it
  double thickness = 0;         ///< so wide is a strip of this area and outline
};

/// Follows the contents of a page and finds their paths, in the order in which they are painted. Passes every
/// token on unchanged. Contents of forms are not looked into.
class TilePathFinder : public QPDFObjectHandle::TokenFilter {
 public:
  /// `opaqueImages`: names of the page's image resources that hide what is behind them.
  explicit TilePathFinder(std::set<std::string> opaqueImages) : opaqueImages_(std::move(opaqueImages)) {}

  void handleToken(const QPDFTokenizer::Token& token) override;

  [[nodiscard]] const std::vector<TilePath>& paths() const { return paths_; }

 protected:
  /// What is to be written before the operator that ends the path `number`, which has been taken into
  /// paths().
  virtual QByteArray added(std::size_t number) {
    static_cast<void>(number);
    return {};
  }

 private:
  struct State {
    AffineTransform matrix;
    int clip = -1;  ///< the path that clipped last; -1: none
    bool hasPattern = false;
  };
  void takeOperator(const std::string& name);
  bool construct(const std::string& name);
  void moveTo(QPointF point);
  void lineTo(QPointF point);
  void curveTo(QPointF first, QPointF second, QPointF end);
  void closeSubpath();
  /// Takes the path, once, before its first operator that is not construction.
  void endPath(bool fills, bool evenOdd);
  void paintImage(bool isOpaque);
  [[nodiscard]] double number(std::size_t fromLast) const;
  [[nodiscard]] QPointF point(std::size_t fromLast) const;

  std::set<std::string> opaqueImages_;
  std::vector<TilePath> paths_;
  std::vector<State> states_{State{}};
  std::vector<double> numbers_;
  std::string lastName_;
  bool hasName_ = false;  ///< among the operands
  std::vector<TileEdge> edges_;
  QPointF start_, at_;
  bool isEnded_ = false;  ///< the current path is in paths_ already
  bool clips_ = false;
  bool inInlineImage_ = false, isMask_ = false;
};

}  // namespace norvex::engine
