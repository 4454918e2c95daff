#include "worker/svg_output/svg_images.h"

#include <GfxState.h>
#include <Object.h>
#include <Stream.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "protocol/limits.h"
#include "worker/svg_output/svg_jpeg.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr quint32 kOpaque = 0xff000000u;

QByteArray number(int value) {
  return QByteArray::number(value);
}

QByteArray sizeAttributes(int width, int height) {
  return attribute("width", number(width)) + attribute("height", number(height));
}

/// Rows as the stream gives them; an image that ends early is as the last row would go on: with nothing.
template <typename Row>
void eachRow(const ImageSource& source, int components, int bits, Row row) {
  ImageStream stream(source.data, source.width, components, bits);
  stream.reset();
  for (int y = 0; y < source.height; ++y) {
    unsigned char* const line = stream.getLine();
    if (!line) break;
    row(y, line);
  }
  stream.close();
}

// Its number in the file, and what beside it makes the definition.
QByteArray keyOf(const ImageSource& source, const QByteArray& use) {
  if (!source.reference || !source.reference->isRef() || source.isInline) return {};
  const Ref ref = source.reference->getRef();
  return number(ref.num) + ' ' + number(ref.gen) + ' ' + number(source.enlarge) + ' ' + use;
}

// Samples between all pairs of numbers are left out.
bool isWithin(const unsigned char* samples, const int* ranges, int components) {
  for (int i = 0; i < components; ++i)
    if (samples[i] < ranges[2 * i] || samples[i] > ranges[2 * i + 1]) return false;
  return true;
}

// Colours that were mixed with the matte in the measure of the mask: taken out of it again.
void takeOutMatte(SvgPixels& pixels, const SvgPixels& shades, const Rgb& matte) {
  const double mattes[3] = {matte.red * 255, matte.green * 255, matte.blue * 255};
  for (size_t i = 0; i < pixels.argb.size(); ++i) {
    const double alpha = (shades.argb[i] & 255) / 255.0;
    if (alpha == 0) continue;
    quint32 mended = kOpaque;
    for (int k = 0; k < 3; ++k) {
      const int shift = 16 - 8 * k;
      const double mixed = pixels.argb[i] >> shift & 255;
      mended |= quint32(std::clamp(std::lround(mattes[k] + (mixed - mattes[k]) / alpha), 0L, 255L)) << shift;
    }
    pixels.argb[i] = mended;
  }
}

/// Pixels along an axis, in which each of the finer one of both has a whole number: about as many as of the
/// enlarged image.
double seenSide(int pixels, int shades, int enlarge) {
  const double wanted = double(pixels) * enlarge;
  return shades <= pixels ? wanted : std::max(1.0, std::floor(wanted / shades)) * shades;
}

// An image whose pixels are seen as squares, through a mask of another size: both in pixels of which the
// finer one has whole numbers along each axis. Two images that readers lay over each other would be smoothed.
SvgPixels seenThrough(const SvgPixels& pixels, const SvgPixels& shades, int enlarge) {
  SvgPixels seen{int(seenSide(pixels.width, shades.width, enlarge)),
                 int(seenSide(pixels.height, shades.height, enlarge)),
                 {}};
  seen.argb.reserve(size_t(seen.width) * size_t(seen.height));
  const auto at = [&](const SvgPixels& of, int x, int y) {
    const auto column = size_t(qint64(x) * of.width / seen.width),
               row = size_t(qint64(y) * of.height / seen.height);
    return of.argb[row * size_t(of.width) + column];
  };
  for (int y = 0; y < seen.height; ++y)
    for (int x = 0; x < seen.width; ++x)
      seen.argb.push_back((at(pixels, x, y) & 0xffffff) | at(shades, x, y) << 24);
  return seen;
}

}  // namespace

bool SvgImages::isUsable(const ImageSource& source) {
  if (source.width < 1 || source.height < 1) return false;
  if (double(source.width) * source.height <= limits_.megapixels * 1e6) return true;
  leftOut_ = true;
  return false;
}

std::optional<SvgPixels> SvgImages::pixelsOf(const ImageSource& source, const int* transparent) {
  const int components = source.colours->getNumPixelComps();
  SvgPixels pixels{source.width, source.height,
                   std::vector<quint32>(size_t(source.width) * size_t(source.height), 0)};
  std::vector<unsigned int> line(size_t(source.width));
  std::vector<bool> left(size_t(source.width), false);
  eachRow(source, components, source.colours->getBits(), [&](int y, unsigned char* samples) {
    // Poppler decodes the samples where they are.
    for (int x = 0; transparent && x < source.width; ++x)
      left[size_t(x)] = isWithin(samples + ptrdiff_t(x) * components, transparent, components);
    source.colours->getRGBLine(samples, line.data(), source.width);
    quint32* to = &pixels.argb[size_t(y) * size_t(source.width)];
    for (int x = 0; x < source.width; ++x)
      *to++ = left[size_t(x)] ? 0 : kOpaque | (line[size_t(x)] & 0xffffff);
  });
  return pixels;
}

/// The share that the mask lets through, as grey.
std::optional<SvgPixels> SvgImages::shadesOf(const ImageSource& mask) {
  SvgPixels shades{mask.width, mask.height,
                   std::vector<quint32>(size_t(mask.width) * size_t(mask.height), kOpaque)};
  std::vector<unsigned char> line(size_t(mask.width));
  const int bits = mask.colours ? mask.colours->getBits() : 1;
  eachRow(mask, 1, bits, [&](int y, unsigned char* samples) {
    if (mask.colours)
      mask.colours->getGrayLine(samples, line.data(), mask.width);
    else
      std::transform(samples, samples + mask.width, line.begin(),
                     [&](unsigned char sample) { return (sample != 0) == mask.inverted ? 255 : 0; });
    quint32* to = &shades.argb[size_t(y) * size_t(mask.width)];
    for (const unsigned char shade : line) *to++ = kOpaque | quint32(shade) * 0x10101u;
  });
  return shades;
}

// One file, or bands where it would be too long for an attribute.
QByteArray SvgImages::elementOf(const SvgPixels& pixels, const QByteArray& attributes) {
  int rows = pixels.height;
  QByteArray png = pngOf(pixels, 0, rows);
  if (png.isEmpty()) {  // libpng neither writes nor reads more than a million pixels a side
    leftOut_ = true;
    return {};
  }
  if (png.size() < limits::maximumSvgAttribute / 4 * 3 - 100)
    return "<image" + sizeAttributes(pixels.width, rows) + attributes +
           attribute("xlink:href", dataAddress("image/png", png)) + "/>";
  rows = std::max(1, int(rows / (2 + png.size() / (limits::maximumSvgAttribute / 2))));
  QByteArray bands = "<g" + attributes + '>';
  for (int y = 0; y < pixels.height; y += rows) {
    const int height = std::min(rows, pixels.height - y);
    bands += "<image" + attribute("y", number(y)) + sizeAttributes(pixels.width, height) +
             attribute("xlink:href", dataAddress("image/png", pngOf(pixels, y, height))) + "/>";
  }
  return bands + "</g>";
}

std::optional<DefinedImage> SvgImages::remembered(const QByteArray& key, const QByteArray& element,
                                                  QSize size) {
  if (element.isEmpty()) return std::nullopt;
  const DefinedImage image{sheet_.define(element), size};
  if (!key.isEmpty()) known_.insert(key, image);
  return image;
}

std::optional<DefinedImage> SvgImages::defineLarge(const QByteArray& key, SvgPixels pixels, int times) {
  if (times > 1) pixels = enlarged(pixels, times);
  return remembered(key, elementOf(pixels, {}), {pixels.width, pixels.height});
}

std::optional<DefinedImage> SvgImages::define(const SvgPixels& pixels) {
  return remembered({}, elementOf(pixels, {}), {pixels.width, pixels.height});
}

std::optional<DefinedImage> SvgImages::image(const ImageSource& source, const int* transparent) {
  if (!isUsable(source)) return std::nullopt;
  const QByteArray key = keyOf(source, transparent ? "t" : "i");
  if (const auto at = known_.constFind(key); !key.isEmpty() && at != known_.constEnd()) return *at;
  const QSize size(source.width, source.height);
  if (!transparent && !source.isInline && source.enlarge == 1) {
    const QByteArray jpeg = originalJpeg(*source.data, source.width, source.height, *source.colours);
    if (!jpeg.isEmpty())
      return remembered(key,
                        "<image" + sizeAttributes(source.width, source.height) +
                            attribute("xlink:href", dataAddress("image/jpeg", jpeg)) + "/>",
                        size);
  }
  auto pixels = pixelsOf(source, transparent);
  return pixels ? defineLarge(key, std::move(*pixels), source.enlarge) : std::nullopt;
}

std::optional<DefinedImage> SvgImages::maskedImage(const ImageSource& source, const ImageSource& mask) {
  if (!isUsable(source) || !isUsable(mask)) return std::nullopt;
  const QByteArray key = keyOf(source, "m");
  if (const auto at = known_.constFind(key); !key.isEmpty() && at != known_.constEnd()) return *at;
  const QSize size(source.width, source.height);
  const bool alike = mask.width == source.width && mask.height == source.height;
  const GfxColor* const matte = mask.colours ? mask.colours->getMatteColor() : nullptr;
  const QByteArray jpeg = matte || source.enlarge > 1
                              ? QByteArray()
                              : originalJpeg(*source.data, source.width, source.height, *source.colours);
  std::optional<SvgPixels> pixels;
  if (jpeg.isEmpty()) pixels = pixelsOf(source, nullptr);
  const auto shades = shadesOf(mask);
  if (!shades || (jpeg.isEmpty() && !pixels)) return std::nullopt;
  if (pixels && alike) {
    if (matte) {
      GfxRGB rgb{};
      source.colours->getColorSpace()->getRGB(matte, &rgb);
      takeOutMatte(*pixels, *shades, {colToDbl(rgb.r), colToDbl(rgb.g), colToDbl(rgb.b)});
    }
    for (size_t i = 0; i < pixels->argb.size(); ++i)
      pixels->argb[i] = (pixels->argb[i] & 0xffffff) | shades->argb[i] << 24;
    return defineLarge(key, std::move(*pixels), source.enlarge);
  }
  // A mask that is fine along one axis alone would take too many.
  const bool isSquares = pixels && source.enlarge > 1 &&
                         seenSide(source.width, mask.width, source.enlarge) *
                                 seenSide(source.height, mask.height, source.enlarge) <=
                             limits::maximumSvgMaskedPixels;
  if (isSquares) return defineLarge(key, seenThrough(*pixels, *shades, source.enlarge), 1);
  QByteArray grey = elementOf(*shades, {});
  if (grey.isEmpty()) return std::nullopt;
  const QByteArray stretch =
      attribute("transform", svgTransform(AffineTransform::fromScale(double(source.width) / mask.width,
                                                                     double(source.height) / mask.height),
                                          4));
  const QByteArray masked =
      attribute("mask", "url(#" +
                            sheet_.define("<mask maskUnits=\"userSpaceOnUse\" x=\"0\" y=\"0\"" +
                                          sizeAttributes(source.width, source.height) + "><g" +
                                          (stretch.endsWith("\"\"") ? QByteArray() : stretch) + '>' + grey +
                                          "</g></mask>") +
                            ')');
  if (!jpeg.isEmpty())
    return remembered(key,
                      "<image" + sizeAttributes(source.width, source.height) + masked +
                          attribute("xlink:href", dataAddress("image/jpeg", jpeg)) + "/>",
                      size);
  return remembered(key, elementOf(*pixels, masked), size);
}

std::optional<DefinedImage> SvgImages::stencil(const ImageSource& source, const Rgb& colour) {
  if (!isUsable(source)) return std::nullopt;
  const QByteArray text = colourText(colour);
  const QByteArray key = keyOf(source, text + (source.inverted ? "-" : "+"));
  if (const auto at = known_.constFind(key); !key.isEmpty() && at != known_.constEnd()) return *at;
  const auto byte = [](double value) { return quint32(std::lround(std::clamp(value, 0.0, 1.0) * 255)); };
  const quint32 paint = kOpaque | byte(colour.red) << 16 | byte(colour.green) << 8 | byte(colour.blue);
  SvgPixels pixels{source.width, source.height,
                   std::vector<quint32>(size_t(source.width) * size_t(source.height), 0)};
  eachRow(source, 1, 1, [&](int y, const unsigned char* samples) {
    quint32* to = &pixels.argb[size_t(y) * size_t(source.width)];
    for (int x = 0; x < source.width; ++x) *to++ = (samples[x] != 0) == source.inverted ? paint : 0;
  });
  return defineLarge(key, std::move(pixels), source.enlarge);
}

}  // namespace norvex::engine
