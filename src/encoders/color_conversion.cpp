#include "encoders/color_conversion.h"

#include <lcms2.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

/// The press profile that comes with Ghostscript, which every installation has.
constexpr char kPressProfile[] = NORVEX_PACKAGES_PREFIX "/share/color/icc/ghostscript/default_cmyk.icc";

struct Closer {
  void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, Closer>;

struct Deleter {
  void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, Deleter>;

/// Grey with the tone curve of sRGB, so that neutral pixels keep their values.
Profile greyProfile() {
  const double curve[5] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
  cmsToneCurve* tone = cmsBuildParametricToneCurve(nullptr, 4, curve);
  Profile profile(cmsCreateGrayProfile(cmsD50_xyY(), tone));
  cmsFreeToneCurve(tone);
  return profile;
}

QByteArray bytesOf(const Profile& profile) {
  cmsUInt32Number size = 0;
  if (!cmsSaveProfileToMem(profile.get(), nullptr, &size)) return {};
  QByteArray bytes(qsizetype(size), Qt::Uninitialized);
  return cmsSaveProfileToMem(profile.get(), bytes.data(), &size) ? bytes : QByteArray();
}

/// RGB without alpha, and the alpha beside it.
void splitRow(const uchar* from, uchar* color, uchar* alpha, int pixels, std::vector<uchar>& room) {
  unpremultiplyRow(from, room.data(), pixels);
  for (int x = 0; x < pixels; ++x) {
    std::copy_n(room.data() + size_t(x) * 4, 3, color + size_t(x) * 3);
    alpha[x] = from[size_t(x) * 4 + 3];
  }
}

NSBitmapImageRep emptyLike(const NSBitmapImageRep& raster, OutputColor color, bool alpha) {
  NSBitmapImageRep made = raster;
  made.hasAlpha = alpha;
  made.samplesPerPixel = (color == OutputColor::Cmyk ? 4 : 1) + (alpha ? 1 : 0);
  made.bitsPerPixel = 8 * made.samplesPerPixel;
  made.colorSpaceName =
      QString::fromLatin1(color == OutputColor::Cmyk ? NSDeviceCMYKColorSpace : NSCalibratedWhiteColorSpace);
  made.bytesPerRow = made.pixelsWide * made.samplesPerPixel;
  made.data = QByteArray(qsizetype(made.bytesPerRow) * made.pixelsHigh, Qt::Uninitialized);
  return made;
}

void convert(const NSBitmapImageRep& from, NSBitmapImageRep& to, cmsHTRANSFORM transform) {
  const int wide = from.pixelsWide;
  const auto samples = size_t(wide);
  std::vector<uchar> color(samples * 3), alpha(samples), grey(samples), room(samples * 4);
  for (int y = 0; y < from.pixelsHigh; ++y) {
    const auto* source =
        reinterpret_cast<const uchar*>(from.data.constData()) + qsizetype(y) * from.bytesPerRow;
    auto* target = reinterpret_cast<uchar*>(to.data.data()) + qsizetype(y) * to.bytesPerRow;
    if (to.hasAlpha)
      splitRow(source, color.data(), alpha.data(), wide, room);
    else if (from.hasAlpha)
      overWhiteRow(source, color.data(), wide, 3);
    const uchar* rgb = from.hasAlpha ? color.data() : source;
    cmsDoTransform(transform, rgb, to.hasAlpha ? grey.data() : target, cmsUInt32Number(wide));
    for (int x = 0; to.hasAlpha && x < wide; ++x) {
      target[2 * x] = uchar((grey[size_t(x)] * alpha[size_t(x)] + 127) / 255);
      target[2 * x + 1] = alpha[size_t(x)];
    }
  }
}

}  // namespace

Result<ColoredRaster> inColor(OutputColor color, const NSBitmapImageRep& raster, bool keepsAlpha) {
  if (!isEncodable(raster))
    return Error{ErrorKind::Unsupported, QStringLiteral("these pixels cannot be converted")};
  if (color == OutputColor::Rgb) return ColoredRaster{raster, {}};
  const bool press = color == OutputColor::Cmyk;
  const Profile target = press ? Profile(cmsOpenProfileFromFile(kPressProfile, "r")) : greyProfile();
  if (!target)
    return Error{ErrorKind::Unsupported,
                 QStringLiteral("no profile of a press is installed (%1)").arg(QLatin1String(kPressProfile))};
  const Profile source(cmsCreate_sRGBProfile());
  const Transform transform(
      cmsCreateTransform(source.get(), TYPE_RGB_8, target.get(), press ? TYPE_CMYK_8 : TYPE_GRAY_8,
                         INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE));
  if (!transform)
    return Error{ErrorKind::Unsupported, QStringLiteral("the profile of the press cannot be used")};
  ColoredRaster made{emptyLike(raster, color, !press && keepsAlpha && raster.hasAlpha), bytesOf(target)};
  convert(raster, made.raster, transform.get());
  return made;
}

}  // namespace norvex
