#include "encoders/grey_conversion.h"

#include <lcms2.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

namespace norvex {
namespace {

constexpr double gamma = 1.8;
/// The press profile that comes with Ghostscript, which every installation has.
constexpr char pressProfile[] = NORVEX_PACKAGES_PREFIX "/share/color/icc/ghostscript/default_cmyk.icc";

struct ProfileCloser {
  void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;

struct TransformDeleter {
  void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, TransformDeleter>;

Profile genericRGB() {
  const cmsCIExyY d65 = {0.3127, 0.3290, 1.0};
  const cmsCIExyYTRIPLE primaries = {{0.630, 0.340, 1.0}, {0.295, 0.605, 1.0}, {0.155, 0.077, 1.0}};
  cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
  cmsToneCurve* curves[3] = {curve, curve, curve};
  Profile profile(cmsCreateRGBProfile(&d65, &primaries, curves));
  cmsFreeToneCurve(curve);
  return profile;
}

Profile genericGray() {
  cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
  Profile profile(cmsCreateGrayProfile(cmsD50_xyY(), curve));
  cmsFreeToneCurve(curve);
  return profile;
}

Transform makeTransform(const Profile& from, cmsUInt32Number fromType, const Profile& to,
                        cmsUInt32Number toType) {
  if (!from || !to) return nullptr;
  return Transform(cmsCreateTransform(from.get(), fromType, to.get(), toType, INTENT_RELATIVE_COLORIMETRIC,
                                      cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE));
}

}  // namespace

struct GreyConversion::Transforms {
  Transform rgbToGrey;
  Transform cmykToXYZ;  ///< inks as percentages
  double paperY = 1, blackY = 0;

  [[nodiscard]] double luminance(double c, double m, double y, double k) const {
    const double inks[4] = {c, m, y, k};
    cmsCIEXYZ xyz{};
    cmsDoTransform(cmykToXYZ.get(), inks, &xyz, 1);
    return xyz.Y;
  }
};

GreyConversion::GreyConversion() : transforms_(std::make_unique<Transforms>()) {
  transforms_->rgbToGrey = makeTransform(genericRGB(), TYPE_RGB_DBL, genericGray(), TYPE_GRAY_DBL);
  transforms_->cmykToXYZ = makeTransform(Profile(cmsOpenProfileFromFile(pressProfile, "r")), TYPE_CMYK_DBL,
                                         Profile(cmsCreateXYZProfile()), TYPE_XYZ_DBL);
  if (transforms_->cmykToXYZ) {
    transforms_->paperY = transforms_->luminance(0, 0, 0, 0);
    transforms_->blackY = transforms_->luminance(0, 0, 0, 100);
  }
}

GreyConversion::~GreyConversion() = default;

void GreyConversion::fromCalibratedRGB(const double* rgb, double* white, int count) const {
  cmsDoTransform(transforms_->rgbToGrey.get(), rgb, white, static_cast<cmsUInt32Number>(count));
  for (int i = 0; i < count; ++i) white[i] = std::clamp(white[i], 0.0, 1.0);
}

bool GreyConversion::fromDeviceCMYK(const double* cmyk, double* white, int count) const {
  if (!transforms_->cmykToXYZ) return false;
  std::vector<double> percent(cmyk, cmyk + std::ptrdiff_t(count) * 4);
  for (double& ink : percent) ink *= 100;
  std::vector<cmsCIEXYZ> xyz(static_cast<size_t>(count));
  cmsDoTransform(transforms_->cmykToXYZ.get(), percent.data(), xyz.data(),
                 static_cast<cmsUInt32Number>(count));
  const double range = transforms_->paperY - transforms_->blackY;
  for (int i = 0; i < count; ++i) {
    const double level = std::clamp((xyz[static_cast<size_t>(i)].Y - transforms_->blackY) / range, 0.0, 1.0);
    white[i] = std::pow(level, 1 / gamma);
  }
  return true;
}

unsigned char GreyConversion::toByte(double white) {
  return static_cast<unsigned char>(std::clamp(white * 255 + 0.001, 0.0, 255.0));
}

}  // namespace norvex
