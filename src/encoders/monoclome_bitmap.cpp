#include "encoders/monoclome_bitmap.h"

#include <algorithm>
#include <array>
#include <vector>

#include "encoders/grey_conversion.h"

namespace norvex {
namespace {

NSBitmapImageRep unfilledGrey(const NSBitmapImageRep& source) {
  NSBitmapImageRep grey;
  grey.pixelsWide = source.pixelsWide;
  grey.pixelsHigh = source.pixelsHigh;
  grey.bitsPerSample = grey.bitsPerPixel = source.bitsPerSample;
  grey.samplesPerPixel = 1;
  grey.colorSpaceName = QLatin1String(NSCalibratedWhiteColorSpace);
  grey.bytesPerRow = std::max(source.pixelsWide, (source.pixelsWide * source.bitsPerSample + 7) / 8);
  grey.data = QByteArray(qsizetype(grey.bytesPerRow) * grey.pixelsHigh, '\0');
  return grey;
}

/// Walks the bytes of a source row by row and turns each pixel into one grey byte.
class GreyWriter {
 public:
  GreyWriter(const NSBitmapImageRep& source, QByteArray& out)
      : source_(source),
        out_(out),
        samples_(source.samplesPerPixel),
        cmyk_(source.colorSpaceName == QLatin1String(NSDeviceCMYKColorSpace)) {}

  void run() {
    const qsizetype plane = source_.bytesPerPlane();
    for (qsizetype row = 0; row < plane; row += source_.bytesPerRow) {
      colors_.clear();
      const qsizetype first = written_;
      for (int at = 0; at < source_.bytesPerRow; at += samples_) takePixel(row + at);
      convertColors(first);
    }
  }

 private:
  [[nodiscard]] int byteAt(qsizetype at) const {
    return at < source_.data.size() ? static_cast<uchar>(source_.data.at(at)) : 0;
  }

  void put(qsizetype at, int grey) {
    if (at < out_.size()) out_[at] = static_cast<char>(grey);
  }

  void takePixel(qsizetype at) {
    if (samples_ == 1) return put(written_++, byteAt(at));
    if (samples_ == 2) return put(written_++, (byteAt(at) + 255 - byteAt(at + 1)) & 255);
    std::array<int, 4> c = {255, 255, 255, 255};
    if (samples_ <= 5) {
      for (int i = 0; i < std::min(samples_, 4); ++i) c[static_cast<size_t>(i)] = byteAt(at + i);
      const bool alphaOfRgb = !cmyk_ && samples_ >= 4;  // a fifth sample beside RGB is ignored
      const int colors = cmyk_ ? 4 : 3;
      if (alphaOfRgb || (cmyk_ && samples_ == 5)) {
        const int lift = 255 - byteAt(at + colors);
        for (int i = 0; i < colors; ++i) c[static_cast<size_t>(i)] = (c[static_cast<size_t>(i)] + lift) & 255;
      }
    }
    for (int i = 0; i < (cmyk_ ? 4 : 3); ++i) colors_.push_back(c[static_cast<size_t>(i)] / 255.0);
    ++written_;
  }

  void convertColors(qsizetype first) {
    const int count = static_cast<int>(colors_.size()) / (cmyk_ ? 4 : 3);
    if (count == 0) return;
    white_.assign(static_cast<size_t>(count), 0);
    if (!cmyk_) {
      conversion_.fromCalibratedRGB(colors_.data(), white_.data(), count);
    } else if (!conversion_.fromDeviceCMYK(colors_.data(), white_.data(), count)) {
      return;
    }
    for (int i = 0; i < count; ++i) put(first + i, GreyConversion::toByte(white_[static_cast<size_t>(i)]));
  }

  const NSBitmapImageRep& source_;
  QByteArray& out_;
  int samples_;
  bool cmyk_;
  qsizetype written_ = 0;
  std::vector<double> colors_, white_;  ///< of the row at hand
  GreyConversion conversion_;
};

}  // namespace

std::optional<NSBitmapImageRep> monoclomeBitmap(const NSBitmapImageRep& source) {
  if (!source.isConsistent()) return std::nullopt;
  NSBitmapImageRep grey = unfilledGrey(source);
  if (source.isPlanar || source.bitsPerSample != 8) return grey;
  GreyWriter(source, grey.data).run();
  return grey;
}

}  // namespace norvex
