// The cost of a piece of SVG to whoever reads it: elements that are drawn when every reference is followed.
#pragma once

#include <QByteArray>
#include <QHash>

namespace norvex::engine {

/// A pattern of patterns, or a glyph of glyphs, says in a few bytes what takes for ever to draw: definitions
/// are weighed as they are made.
class SvgWeights {
 public:
  /// Elements of `text`, and those that its references bring; a sum, so it may be huge, not infinite.
  [[nodiscard]] double of(const QByteArray& text) const;
  void set(const QByteArray& name, double weight) { weights_.insert(name, weight); }

 private:
  QHash<QByteArray, double> weights_;
};

/// True if something between two quotation marks is longer than readers of XML take.
[[nodiscard]] bool hasEndlessAttribute(const QByteArray& text);

}  // namespace norvex::engine
