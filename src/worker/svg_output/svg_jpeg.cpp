#include "worker/svg_output/svg_jpeg.h"

#include <GfxState.h>
#include <Stream.h>

#include <array>
#include <cmath>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr double kAlike = 4.0 / 255;  // mean of what a profile changes
constexpr int kLevels[] = {0, 64, 128, 192, 255};

enum Marker : quint8 {
  kStart = 0xd8,
  kScan = 0xda,
  kApp0 = 0xe0,
  kApp14 = 0xee,
  kApp15 = 0xef,
  kComment = 0xfe
};

quint8 byteAt(const QByteArray& bytes, qsizetype at) {
  return quint8(bytes[at]);
}

int shortAt(const QByteArray& bytes, qsizetype at) {
  return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}

// Baseline, extended and progressive frames; others are not read everywhere.
bool isFrame(quint8 marker) {
  return marker >= 0xc0 && marker <= 0xc2;
}

bool isFrameOf(const QByteArray& jpeg, qsizetype at, int length, int width, int height, int components) {
  return length >= 8 && byteAt(jpeg, at + 4) == 8 && shortAt(jpeg, at + 5) == height &&
         shortAt(jpeg, at + 7) == width && byteAt(jpeg, at + 9) == components;
}

// True if the samples mean the same to a reader that takes them for sRGB.
bool looksAlike(GfxImageColorMap& colours) {
  const int components = colours.getNumPixelComps();
  double sum = 0;
  int count = 0;
  const auto compare = [&](std::array<unsigned char, gfxColorMaxComps> samples) {
    GfxRGB rgb{};
    colours.getRGB(samples.data(), &rgb);
    const double found[3] = {colToDbl(rgb.r), colToDbl(rgb.g), colToDbl(rgb.b)};
    for (int i = 0; i < 3; ++i) sum += std::abs(found[i] - samples[size_t(components == 3 ? i : 0)] / 255.0);
    count += 3;
  };
  for (const int a : kLevels) {
    if (components == 1) compare({static_cast<unsigned char>(a)});
    for (const int b : kLevels)
      for (const int c : kLevels)
        if (components == 3)
          compare(
              {static_cast<unsigned char>(a), static_cast<unsigned char>(b), static_cast<unsigned char>(c)});
  }
  return count > 0 && sum / count <= kAlike;
}

}  // namespace

QByteArray bareJpeg(const QByteArray& jpeg, int width, int height, int components) {
  if (jpeg.size() < 4 || byteAt(jpeg, 0) != 0xff || byteAt(jpeg, 1) != kStart) return {};
  QByteArray bare = jpeg.left(2);
  bool framed = false;
  for (qsizetype at = 2; at + 4 <= jpeg.size();) {
    if (byteAt(jpeg, at) != 0xff) return {};
    const quint8 marker = byteAt(jpeg, at + 1);
    if (marker == 0xff) {  // filling
      ++at;
      continue;
    }
    const int length = shortAt(jpeg, at + 2);
    if (length < 2 || at + 2 + length > jpeg.size()) return {};
    if (marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc) {
      if (!isFrame(marker) || !isFrameOf(jpeg, at, length, width, height, components)) return {};
      framed = true;
    }
    if (marker == kScan) return framed ? bare + jpeg.mid(at) : QByteArray();
    const bool isAside = (marker > kApp0 && marker <= kApp15 && marker != kApp14) || marker == kComment;
    if (!isAside) bare += jpeg.mid(at, 2 + length);
    at += 2 + length;
  }
  return {};
}

QByteArray originalJpeg(Stream& data, int width, int height, GfxImageColorMap& colours) {
  const int components = colours.getNumPixelComps();
  if (data.getKind() != strDCT || colours.getBits() != 8 || (components != 1 && components != 3) ||
      !looksAlike(colours))
    return {};
  Stream* const stored = data.getNextStream();
  if (!stored) return {};
  const std::vector<unsigned char> bytes = stored->toUnsignedChars();
  stored->close();
  if (qsizetype(bytes.size()) > limits::maximumSvgAttribute / 4 * 3 - 100) return {};
  return bareJpeg(QByteArray(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size())), width,
                  height, components);
}

}  // namespace norvex::engine
