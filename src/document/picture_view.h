// How a picture is shown in its window.
#pragma once

namespace norvex {

/// A zoom that follows the window.
enum class KeptFit {
  Nothing,
  Whole,  ///< all of the picture fills the window
  Width,
};

struct PictureView {
  double zoom = 1;                 ///< 1 shows a point of the picture as a point of the screen
  double degrees = 0;              ///< counter-clockwise, 0 … 360
  int page = 0;                    ///< from 0
  KeptFit fit = KeptFit::Nothing;  ///< instead of the zoom
  bool operator==(const PictureView&) const = default;
};

}  // namespace norvex
