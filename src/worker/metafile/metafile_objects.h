// Pens, brushes and fonts of a Windows metafile, and the state that it draws with.
#pragma once

#include <QByteArray>
#include <QPoint>
#include <QSize>

#include <variant>

#include "worker/drawing/bitmap.h"

namespace norvex::engine {

struct MetafilePen {
  int style = 0;  ///< 0 solid, 1 dashes, 2 dots, 3 and 4 both, 5 none
  int width = 0;  ///< logical units; 0: a pixel
  Argb32 colour = 0xFF000000;
};

struct MetafileBrush {
  bool paints = true;
  Argb32 colour = 0xFFFFFFFF;
  Bitmap tile = {};  ///< repeated in the place of the colour; of no size: none
};

struct MetafileFont {
  int height = 0;    ///< logical units; negative: of the letters, otherwise of the line
  double angle = 0;  ///< degrees, counter-clockwise
  bool isBold = false, isItalic = false;
  QByteArray face;
};

/// Something that takes a place in the table and draws nothing.
struct MetafileOther {};

using MetafileObject = std::variant<std::monostate, MetafilePen, MetafileBrush, MetafileFont, MetafileOther>;

struct MetafileState {
  QPoint origin;
  QSize extent;
  MetafilePen pen;
  MetafileBrush brush;
  MetafileFont font;
  Argb32 textColour = 0xFF000000;
  int textAlign = 0;
  Argb32 background = 0xFFFFFFFF;  ///< between the lines of a hatch
  bool hasBackground = true;
  bool fillsByWinding = false;
  QPoint at;
};

}  // namespace norvex::engine
