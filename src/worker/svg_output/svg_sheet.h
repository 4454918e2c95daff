// An SVG document while it is written: elements in their order, the clips around them, and what several of
// them share as definitions.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QRectF>
#include <QSet>
#include <QSizeF>

#include <memory>
#include <optional>
#include <vector>

#include "worker/svg_output/svg_weight.h"

namespace norvex::engine {

/// A bound of everything that is painted behind it. All coordinates are the page's: points, origin at the
/// upper-left corner, y down.
struct SvgClip {
  QByteArray path;
  bool evenOdd = false;
  QRectF bounds;
  bool isRectangle = false;  ///< `bounds` itself
  QByteArray stroke;         ///< attributes of the line that it is; empty: the path's inside
  /// What an element says to be within it: the sheet defines it once, however many elements do.
  mutable QByteArray attribute = {};
};
/// Outermost first. A value; its clips are shared.
using SvgClips = QList<std::shared_ptr<const SvgClip>>;

/// Where and how an element is painted.
struct SvgPlace {
  SvgClips clips;
  QByteArray blend;  ///< of mix-blend-mode; empty: normal
  QByteArray mask;   ///< name of a definition; empty: none
};

/// Elements that were painted apart from the page.
struct SvgLayer {
  QByteArray body;
  QRectF bounds;
  int elements = 0;     ///< at the top
  bool blends = false;  ///< something in it is blended with what lies below
};

class SvgSheet {
 public:
  /// `mostBytes` is what the document may hold.
  SvgSheet(QSizeF page, int decimals, qsizetype mostBytes);

  [[nodiscard]] QSizeF page() const { return page_; }
  [[nodiscard]] int decimals() const { return decimals_; }
  /// The document holds more than is allowed, or nests deeper: what is added later is lost.
  [[nodiscard]] bool isFull() const { return full_; }

  /// Makes a definition of `element`, which has no id yet, and gives its name. The same element twice is one
  /// definition.
  QByteArray define(const QByteArray& element);
  /// True if that definition is an outline, which has the paint of what uses it.
  [[nodiscard]] bool isOutline(const QByteArray& name) const { return outlines_.contains(name); }
  /// True if something that reaches over `bounds` is seen at all.
  [[nodiscard]] bool isSeen(const QRectF& bounds, const SvgClips& clips) const;

  /// A path filled (`fill`: attributes of its paint, empty: it is not) or stroked (`stroke`: likewise).
  /// `plain`: the paint is opaque, and what follows may be drawn with it. `bounds` hold the line's width.
  void addPath(const QByteArray& data, const QByteArray& fill, const QByteArray& stroke, bool plain,
               const QRectF& bounds, const SvgPlace& place);
  /// Any element. `attributable`: it has no transform, clip or mask of its own.
  void add(const QByteArray& element, bool attributable, const QRectF& bounds, const SvgPlace& place);
  /// A layer as a group with these attributes, or, where nothing makes it one, its elements. What is blended
  /// in it is not blended with what lies below the clips of `place`: they belong to its elements
  /// (beginGroup).
  void addLayer(const SvgLayer& layer, const QByteArray& attributes, bool isolated, const SvgPlace& place);

  /// What is added from here on goes to a layer. The first `clips` of every place are not part of it.
  /// `elsewhere`: it will be shown at other places too, whatever is seen at this one.
  void beginLayer(qsizetype clips, bool elsewhere = false);
  /// The same for a layer that is bounded by all that bounds the one around it: its elements bring their
  /// clips.
  void beginGroup();
  /// REQUIRES a layer that was begun.
  [[nodiscard]] SvgLayer endLayer();

  /// The whole document. `head`: elements in front of it.
  [[nodiscard]] QByteArray document(const QByteArray& head);

 private:
  struct Pending {
    QByteArray data, fill, stroke;
    bool plain = false;
    QRectF bounds;
    SvgPlace place;
  };
  struct Group {
    std::shared_ptr<const SvgClip> clip;
    qsizetype at = 0;  ///< where its start tag is
    QByteArray attributes;
    int children = 0;
    qsizetype child = 0;  ///< where the first child is
    bool attributable = false;
  };
  struct Open {
    SvgLayer layer;
    qsizetype base = 0;
    qsizetype seenFrom = 0;  ///< the first clip that hides something for good
    bool elsewhere = false;
    std::vector<Group> groups;
    std::optional<Pending> pending;
  };

  void flush();
  bool mergeWithPending(const QByteArray& data, const QByteArray& fill, const QByteArray& stroke, bool plain,
                        const QRectF& bounds, const SvgPlace& place);
  void put(const QByteArray& element, bool attributable, const QRectF& bounds, const SvgPlace& place);
  /// Of the clips that the layer is not bounded by itself, each once, those that hide some of `bounds`.
  [[nodiscard]] SvgClips neededClips(const SvgClips& clips, const QRectF& bounds) const;
  [[nodiscard]] bool withClips(QByteArray& element, bool attributable, const SvgClips& clips);
  /// Groups for `needed`; those that are open may stay if they are among `inForce`.
  void openClips(const SvgClips& needed, const SvgClips& inForce);
  void openGroup(const std::shared_ptr<const SvgClip>& clip);
  void closeGroup();
  void count(const QByteArray& text);
  /// Of a clip of this sheet alone.
  [[nodiscard]] QByteArray clipAttribute(const SvgClip& clip);
  [[nodiscard]] QByteArray definedClip(const SvgClip& clip);
  [[nodiscard]] QByteArray nextName();

  QSizeF page_;
  int decimals_;
  qsizetype mostBytes_;
  qsizetype bytes_ = 0, elements_ = 0;
  double weight_ = 0;  ///< of the page
  SvgWeights weights_;
  bool full_ = false;
  int names_ = 0;
  QByteArray definitions_;
  QHash<QByteArray, QByteArray> known_;  ///< definitions by their digests
  QSet<QByteArray> outlines_;
  std::vector<Open> open_;
};

}  // namespace norvex::engine
