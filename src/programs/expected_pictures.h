// The pictures of a run as its arguments let expect them, before any of them is read.
#pragma once

#include "protocol/picture_needs.h"

namespace norvex {

/// A guess from commands and file names, so that what is probably needed is loaded while the application
/// loads. Names may lie: what a file holds is found out later, and what it then needs is loaded then.
[[nodiscard]] ExpectedPictures expectedPictures(int argc, const char* const* argv);

/// The same guess for an interpreter of PostScript: whether a picture that is to be drawn is named as such a
/// file is.
[[nodiscard]] bool expectPostScript(int argc, const char* const* argv);

/// The same guess for an interpreter that reads PDF: whether its inks are asked for.
[[nodiscard]] bool expectPdfInks(int argc, const char* const* argv);

/// The same guess for whether a command is given one file, after which it ends. A window may open more.
[[nodiscard]] bool expectLonePicture(int argc, const char* const* argv);

}  // namespace norvex
