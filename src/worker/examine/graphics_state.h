// The parts of a page's graphics state (PDF 1.7, 8.4) that an examination follows.
#pragma once

#include <QRectF>

#include <string>

#include "base/affine_transform.h"
#include "worker/examine/page_colour.h"

namespace norvex::engine {

struct PaintState {
  ColourSpace space;
  PageColour colour;
  double alpha = 1;
  bool overprints = false;
};

struct TextState {
  AffineTransform matrix, line;  ///< text space → user space
  double size = 0;
  double leading = 0;
  double scale = 1;  ///< horizontal, 1: as the font has it
  int mode = 0;
  std::string font;     ///< name, as usedFonts() takes it; empty: none
  double unitSize = 1;  ///< points that a size of 1 stands for: less than 1 in Type 3 fonts
};

struct GraphicsState {
  AffineTransform toPicture;  ///< user space → picture coordinates
  QRectF clip;                ///< picture coordinates: what encloses it
  PaintState fill, stroke;
  TextState text;
  double lineWidth = 1;  ///< user space
  bool blends = false;   ///< a blend mode or a soft mask
};

}  // namespace norvex::engine
