// One streaming pass over an SVG document's text before any other code sees it: is it well-formed, is it
// within the limits, and what does it say about itself.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include "base/result.h"

namespace norvex::engine {

/// The result of the pass. Attribute values and texts have their entities expanded.
struct SvgInspection {
  QString rootName;                        ///< as written, with its prefix: "svg" or "svg:svg"
  QHash<QString, QString> rootAttributes;  ///< those without a namespace
  QString title, description;              ///< of the root element's own children; null: there is none
  QStringList fonts;  ///< families named for texts, by attributes and style sheets of the document's own
  QList<QStringList> fontLists;  ///< the lists that those families stand in
  int filters = 0;               ///< elements drawn through a filter, as far as their own attributes tell
  int masks = 0;                 ///< elements drawn through a mask, likewise
  double morphologyRadius = 0;   ///< the largest by which a filter thickens or thins, in user units
  double largestFont = 0;        ///< as SvgTextSizes counts it; 0 without text
  bool stretchedText = false;    ///< text may be drawn under a transform that is more than a similarity
  int outsideReferences = 0;     ///< images, styles and other things that are in other files; never loaded
  /// Something is drawn on a layer of its own: group opacity, filters, masks, blending. True also where a
  /// style sheet might ask for it.
  bool hasLayers = false;
  bool hasStyleSheet = false;
  bool sizesByStyleSheet = false;  ///< a style sheet may tell the root's size
  bool hasScript = false;
  bool hasAnimation = false;
  bool hasNestedDocument = false;  ///< an SVG or XML document inside a data: reference
  /// Long texts, deep nesting: legal here, but beyond what libxml2 takes without being told so.
  bool needsHugeParser = false;
};

/// REQUIRES text without NUL, as decodeSvgText() gives it. Entities are expanded as they are used; external
/// ones, the external DTD subset included, are never loaded. Fails with NotParsable (not well-formed, no SVG
/// root) or Limit (maximumXmlDepth, maximumDrawingDepth, maximumXmlElements, maximumXmlAttributes,
/// maximumEntityExpansion, maximumEntityUses).
[[nodiscard]] Result<SvgInspection> inspectSvg(const QByteArray& utf8);

}  // namespace norvex::engine
