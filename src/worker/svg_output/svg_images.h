// Images of a page as definitions: each once, the original JPEG where readers show it alike, else a PNG.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSize>

#include <optional>

#include "protocol/worker_protocol.h"
#include "worker/svg_output/svg_gradient.h"
#include "worker/svg_output/svg_pixels.h"
#include "worker/svg_output/svg_sheet.h"

class GfxImageColorMap;
class Object;
class Stream;

namespace norvex::engine {

/// An image's samples where they come from, as Poppler hands them out. Borrowed for a call.
struct ImageSource {
  Object* reference = nullptr;  ///< the object that it is; null, or no reference: it is nobody else's
  Stream* data = nullptr;
  int width = 0, height = 0;
  GfxImageColorMap* colours = nullptr;  ///< null: a stencil
  bool inverted = false;                ///< of a stencil: ones are painted
  bool isInline = false;
  int enlarge = 1;  ///< every pixel becomes so many in both directions: it is to be seen as a square
};

struct DefinedImage {
  QByteArray name;
  QSize size;  ///< pixels: the units of its space, y down
};

class SvgImages {
 public:
  SvgImages(SvgSheet& sheet, const PictureLimits& limits) : sheet_(sheet), limits_(limits) {}

  // Nothing: the image has no pixels, or too many of them.

  /// `transparent`: ranges of samples that are not painted, two numbers for each component; or null.
  [[nodiscard]] std::optional<DefinedImage> image(const ImageSource& source, const int* transparent);
  /// With a stencil or shades as its mask.
  [[nodiscard]] std::optional<DefinedImage> maskedImage(const ImageSource& source, const ImageSource& mask);
  /// A stencil in one colour.
  [[nodiscard]] std::optional<DefinedImage> stencil(const ImageSource& source, const Rgb& colour);
  [[nodiscard]] std::optional<DefinedImage> define(const SvgPixels& pixels);
  /// An image was larger than what is granted.
  [[nodiscard]] bool leftOut() const { return leftOut_; }

 private:
  [[nodiscard]] bool isUsable(const ImageSource& source);
  [[nodiscard]] std::optional<SvgPixels> pixelsOf(const ImageSource& source, const int* transparent);
  [[nodiscard]] std::optional<SvgPixels> shadesOf(const ImageSource& mask);
  [[nodiscard]] std::optional<DefinedImage> defineLarge(const QByteArray& key, SvgPixels pixels, int times);
  [[nodiscard]] QByteArray elementOf(const SvgPixels& pixels, const QByteArray& attributes);
  [[nodiscard]] std::optional<DefinedImage> remembered(const QByteArray& key, const QByteArray& element,
                                                       QSize size);

  SvgSheet& sheet_;
  PictureLimits limits_;
  QHash<QByteArray, DefinedImage> known_;  ///< by the object's number and what else makes it
  bool leftOut_ = false;
};

}  // namespace norvex::engine
