#include "worker/svg_output/svg_pixels.h"

#include <QHash>

#include <png.h>

#include <array>

namespace norvex::engine {
namespace {

constexpr int kPalette = 256;

struct Form {
  bool grey = true, opaque = true, hasPalette = true;
  QHash<quint32, int> places;  ///< of the palette
  std::vector<quint32> colours;

  [[nodiscard]] int bits() const {
    if (!hasPalette) return 8;
    const auto count = colours.size();
    return count <= 2 ? 1 : count <= 4 ? 2 : count <= 16 ? 4 : 8;
  }
  [[nodiscard]] int type() const {
    if (hasPalette) return PNG_COLOR_TYPE_PALETTE;
    return (grey ? PNG_COLOR_TYPE_GRAY : PNG_COLOR_TYPE_RGB) | (opaque ? 0 : PNG_COLOR_MASK_ALPHA);
  }
};

Form formOf(const quint32* pixels, size_t count) {
  Form form;
  quint32 last = 0;
  for (size_t i = 0; i < count; ++i) {
    const quint32 pixel = pixels[i];
    if (i > 0 && pixel == last) continue;
    last = pixel;
    form.opaque = form.opaque && pixel >> 24 == 255;
    form.grey = form.grey && (pixel & 255) == (pixel >> 8 & 255) && (pixel & 255) == (pixel >> 16 & 255);
    if (!form.hasPalette || form.places.contains(pixel)) continue;
    form.hasPalette = form.colours.size() < kPalette;
    form.places.insert(pixel, int(form.colours.size()));
    form.colours.push_back(pixel);
  }
  // Shades need no table once they are more than a few.
  if (form.grey && form.opaque && form.colours.size() > 16) form.hasPalette = false;
  return form;
}

void setPalette(png_structp png, png_infop info, const Form& form) {
  std::array<png_color, kPalette> colours{};
  std::array<png_byte, kPalette> alphas{};
  const size_t count = form.colours.size();
  for (size_t i = 0; i < count; ++i) {
    const quint32 colour = form.colours[i];
    colours[i] = {png_byte(colour >> 16), png_byte(colour >> 8), png_byte(colour)};
    alphas[i] = png_byte(colour >> 24);
  }
  png_set_PLTE(png, info, colours.data(), int(count));
  if (!form.opaque) png_set_tRNS(png, info, alphas.data(), int(count), nullptr);
}

// In the order of the file, one byte a sample: libpng packs smaller ones.
void fillRow(const Form& form, const quint32* pixels, int width, std::vector<png_byte>& row) {
  row.clear();
  for (int x = 0; x < width; ++x) {
    const quint32 pixel = pixels[x];
    if (form.hasPalette) {
      row.push_back(png_byte(form.places.value(pixel)));
      continue;
    }
    if (!form.grey) {
      row.push_back(png_byte(pixel >> 16));
      row.push_back(png_byte(pixel >> 8));
    }
    row.push_back(png_byte(pixel));
    if (!form.opaque) row.push_back(png_byte(pixel >> 24));
  }
}

void append(png_structp png, png_bytep data, size_t length) {
  static_cast<QByteArray*>(png_get_io_ptr(png))
      ->append(reinterpret_cast<const char*>(data), qsizetype(length));
}

void flushNothing(png_structp) {}

}  // namespace

SvgPixels enlarged(const SvgPixels& pixels, int times) {
  SvgPixels large{pixels.width * times, pixels.height * times, {}};
  large.argb.reserve(size_t(large.width) * size_t(large.height));
  for (int y = 0; y < large.height; ++y) {
    const quint32* const row = &pixels.argb[size_t(y / times) * size_t(pixels.width)];
    for (int x = 0; x < large.width; ++x) large.argb.push_back(row[x / times]);
  }
  return large;
}

QByteArray pngOf(const SvgPixels& pixels, int first, int rows) {
  const quint32* const begin = pixels.argb.data() + size_t(first) * size_t(pixels.width);
  const Form form = formOf(begin, size_t(rows) * size_t(pixels.width));
  QByteArray bytes;
  std::vector<png_byte> row;
  row.reserve(size_t(pixels.width) * 4);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  if (!info || setjmp(png_jmpbuf(png))) {  // nothing with a destructor is made behind this
    png_destroy_write_struct(&png, &info);
    return {};
  }
  png_set_write_fn(png, &bytes, append, flushNothing);
  png_set_IHDR(png, info, png_uint_32(pixels.width), png_uint_32(rows), form.bits(), form.type(),
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (form.hasPalette) setPalette(png, info, form);
  png_write_info(png, info);
  png_set_packing(png);
  for (int y = 0; y < rows; ++y) {
    fillRow(form, begin + size_t(y) * size_t(pixels.width), pixels.width, row);
    png_write_row(png, row.data());
  }
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return bytes;
}

}  // namespace norvex::engine
