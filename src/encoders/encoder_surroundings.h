// The surroundings of the producers besides the picture, as this machine and this user have them.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QLocale>
#include <QString>

#include <optional>

#include "encoders/doc_raster_image.h"
#include "picture/process/picture_process.h"
#include "types/output_color.h"

namespace norvex {

/// How many bits a window holds of each pixel.
struct NSWindowDepth {
  int bitsPerSample = 8;
  int bitsPerPixel = 24;  ///< of colour
  bool operator==(const NSWindowDepth&) const = default;
};

/// The fate of what a PDF does beside being drawn (scripts, actions, files elsewhere) in a PDF made of
/// it.
enum class SourceActions {
  WithTheWhole,  ///< they stay in a file that is handed on as it is, and are left out of a part of it
  LeaveOut,      ///< of the whole file too, which is then written anew
  Keep,
};

struct EncoderSurroundings {
  PictureService* service = nullptr;  ///< borrowed; opens what a format is made of on the way
  QString userFullName;
  QString applicationName, applicationVersion;
  QDateTime now;
  QLocale locale;
  QByteArray iccProfile;            ///< of the output colour space; empty: none is configured
  NSWindowDepth defaultDepthLimit;  ///< of new windows
  RasterSettings raster;
  std::optional<int> quality;  ///< of formats that can lose some, 1 … 100; nothing: the format's own
  OutputColor color = OutputColor::Rgb;  ///< of formats of pixels
  /// A rectangle instead of the whole picture. Nothing of a source is then handed on unchanged.
  std::optional<PictureRegion> region;
  bool isLastUse = false;  ///< of the picture: its process may go when nothing is left to ask
  SourceActions actions = SourceActions::WithTheWhole;
  bool keepText = false;  ///< in an SVG that is drawn of the picture: as text, with its fonts
  bool onePage = false;   ///< hand out the shown page of a PDF, not the whole file
  /// A PDF of a picture with a description and no title is made without a subject, with a warning; otherwise
  /// it is not made.
  bool subjectMayBeLeftOut = false;
};

/// The user's, the locale's and the program's own values; the colour space is sRGB. "Now" is the
/// SOURCE_DATE_EPOCH of the environment where it is set, so that the same input gives the same bytes.
[[nodiscard]] EncoderSurroundings usualSurroundings(PictureService& service);

/// The depth nearest to that of RGB samples in one plane: what a pixel has besides colour counts for nothing.
[[nodiscard]] NSWindowDepth NSBestDepth(int bitsPerSample, int bitsPerPixel);

/// The user's full name as the system knows it; the login name where it knows none.
[[nodiscard]] QString NSFullUserName();

}  // namespace norvex
