// NSBitmapImageRep: a raster with its sample layout, as previews and encoders exchange it.
#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

namespace norvex {

/// Names of the colour spaces that a raster can be in, as the platform spells them.
inline constexpr char NSCalibratedWhiteColorSpace[] = "NSCalibratedWhiteColorSpace";
inline constexpr char NSCalibratedRGBColorSpace[] = "NSCalibratedRGBColorSpace";
inline constexpr char NSDeviceCMYKColorSpace[] = "NSDeviceCMYKColorSpace";

/// A raster: a value, cheap to copy (the bytes are shared). Rows run top to bottom; the samples of a pixel
/// are interleaved (planar is told by isPlanar, and only readers of foreign data ever meet it). INVARIANT
/// after isConsistent(): data.size() >= bytesPerRow × pixelsHigh × (isPlanar ? samplesPerPixel : 1).
struct NSBitmapImageRep {
  int pixelsWide = 0;
  int pixelsHigh = 0;
  int bitsPerSample = 8;
  int samplesPerPixel = 1;
  bool hasAlpha = false;  ///< the last sample is opacity; colour samples are then premultiplied
  bool isPlanar = false;
  QString colorSpaceName;  ///< one of the names above
  int bytesPerRow = 0;
  int bitsPerPixel = 8;
  double pointsWide = 0;  ///< size in points (1/72 inch); 0: as many points as pixels
  double pointsHigh = 0;
  QByteArray data;

  /// True if the numbers are sane and data is large enough for them.
  [[nodiscard]] bool isConsistent() const;
  /// Bytes of one plane: bytesPerRow × pixelsHigh.
  [[nodiscard]] qsizetype bytesPerPlane() const;
};

}  // namespace norvex

Q_DECLARE_METATYPE(norvex::NSBitmapImageRep)
