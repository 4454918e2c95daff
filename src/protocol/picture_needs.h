// The abilities of a picture process: only what they take is loaded into it. Free of Qt, because it
// is also guessed before Qt is loaded.
#pragma once

namespace norvex {

/// Bits of PictureNeeds.
enum PictureNeed : unsigned {
  NeedSvgDrawing = 1,  ///< open an SVG picture, draw it, hand on its text
  NeedSvgPdf = 2,      ///< … and give the whole picture as PDF, with attributes
  NeedSvgParts = 4,    ///< … and as EPS, and a part of it or a turned picture as either
  NeedPages = 8,       ///< everything that is done with PDF and PostScript documents
  NeedPreviews = 16,   ///< previews of EPS files
  NeedSheets = 32,     ///< the pages of print jobs
  NeedFacts = 64,      ///< open SVG and PDF for nothing but their facts
};
using PictureNeeds = unsigned;

inline constexpr PictureNeeds allPictureNeeds = 127;

/// The probable requests of a run, guessed before any of its pictures is read.
struct ExpectedPictures {
  PictureNeeds needs = 0;  ///< 0: nobody knows
  bool single = false;     ///< there is one, without PostScript: it gets a process of its own at once
};

/// The purpose of the pictures of a run.
enum class PictureUse { Everything, Drawing, WholePdf, Facts };

constexpr PictureNeeds svgNeeds(PictureUse use) {
  if (use == PictureUse::Facts) return NeedFacts;
  if (use == PictureUse::Drawing) return NeedSvgDrawing;
  if (use == PictureUse::WholePdf) return NeedSvgDrawing | NeedSvgPdf;
  return NeedSvgDrawing | NeedSvgPdf | NeedSvgParts;
}

}  // namespace norvex
