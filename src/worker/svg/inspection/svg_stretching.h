// True if an SVG document draws text stretched: wider than high, or slanted.
#pragma once

#include <QList>
#include <QString>

namespace norvex::engine {

/// Follows the elements as they open and close. Rather says yes than no: two transforms that cancel each
/// other count, and so does a stretched <use> in a document with text anywhere.
class SvgStretching {
 public:
  /// `element`: its name, empty where it is not SVG's. The attributes, null where they are not given.
  void open(const QString& element, const QString& transform, const QString& preserveAspectRatio);
  void close();

  [[nodiscard]] bool reachesText() const { return stretchedText_ || (text_ && stretchedUse_); }

 private:
  QList<bool> stretched_;  ///< of the open elements: by itself or by one around it
  bool text_ = false, stretchedText_ = false, stretchedUse_ = false;
};

/// True if a `transform` attribute does more than move, turn, mirror and enlarge.
[[nodiscard]] bool stretches(const QString& transform);
/// How much longer a `transform` attribute makes a line at the most; 1 for what only moves and turns.
[[nodiscard]] double enlargement(const QString& transform);

}  // namespace norvex::engine
