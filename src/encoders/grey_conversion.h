// Colours to the generic grey space, by LittleCMS with real profiles.
#pragma once

#include <memory>

namespace norvex {

/// Converts colours to the white level of the generic grey space (gamma 1.8, D50). Calibrated RGB is the
/// generic RGB space (gamma 1.8, D65 and the primaries of a graphic-arts monitor), device CMYK a SWOP press.
/// Neutral RGB keeps its value; paper white is exactly 1, and full black ink alone is exactly 0: its own
/// luminance on paper, which no profile puts at 0, is the black point. Not thread-safe; cheap to keep, costly
/// to make.
class GreyConversion {
 public:
  GreyConversion();
  ~GreyConversion();
  GreyConversion(const GreyConversion&) = delete;
  GreyConversion& operator=(const GreyConversion&) = delete;

  /// `count` colours of 3 components, each 0 … 1, to `count` white levels 0 … 1.
  void fromCalibratedRGB(const double* rgb, double* white, int count) const;
  /// `count` colours of 4 inks, each 0 … 1, to `count` white levels. False: no press profile is installed.
  [[nodiscard]] bool fromDeviceCMYK(const double* cmyk, double* white, int count) const;

  /// A white level as a byte, truncated toward zero; noise of the colour engine below 1/1000 of a level does
  /// not count.
  [[nodiscard]] static unsigned char toByte(double white);

 private:
  struct Transforms;
  std::unique_ptr<Transforms> transforms_;
};

}  // namespace norvex
