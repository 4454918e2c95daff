// Colours of a page, as far as printing asks: which model, how much ink, is it white or black.
#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <vector>

namespace norvex::engine {

enum class ColourModel { Grey, Rgb, Cmyk, Spot, Other };

/// A colour space, apart from what only its exact shade needs.
struct ColourSpace {
  ColourModel model = ColourModel::Grey;
  bool isIndexed = false;  ///< its value is a place in a table
  bool isPattern = false;
  bool isRegistration = false;  ///< Separation All: every plate
  bool paintsNothing = false;   ///< Separation None
};

struct PageColour {
  ColourModel model = ColourModel::Grey;
  double ink = 100;  ///< percent, all plates together; 0 where that is not known
  bool isWhite = false;
  bool isBlack = true;  ///< of the black plate alone
  bool isVisible = true;
};

/// `space`: a name or an array; names of resources must have been looked up. Anything else is Other.
[[nodiscard]] ColourSpace colourSpaceOf(QPDFObjectHandle space);

/// A colour of that space, from 0 to 1 a component; what is missing is 0.
[[nodiscard]] PageColour colourOf(const ColourSpace& space, const std::vector<double>& components);

/// The colour that a space begins with (PDF 1.7, 8.6.5 to 8.6.7).
[[nodiscard]] PageColour initialColourOf(const ColourSpace& space);

}  // namespace norvex::engine
