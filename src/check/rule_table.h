// The rules that a picture is checked against, in one table: what is told, how bad it is, where it is
// written, and what mends it. docs/check.md shows the same table; a test compares the two.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace norvex {

enum class Severity { Error = 1, Warning = 2, Note = 3 };

/// Identifiers are kept for ever: build scripts and profiles name them.
struct RuleRow {
  std::string_view identifier;
  Severity severity;  ///< unless the profile says otherwise
  std::string_view title;
  std::string_view source;  ///< the public standard, or why the rule is there
  std::string_view mend;
};

inline constexpr auto ruleTable = std::to_array<RuleRow>({
    // ---- EPS: the wrapping
    {"eps.wrapped", Severity::Warning, "The program lies in a wrapping of another system",
     "EPSF 3.0, device-independent and platform-specific files", "repair takes the program out"},
    {"eps.dos-header.outside", Severity::Error, "A section of the binary header lies outside the file",
     "EPSF 3.0, DOS binary header", "repair writes the header anew"},
    {"eps.dos-header.overlap", Severity::Error, "Sections of the binary header overlap",
     "EPSF 3.0, DOS binary header", "repair writes the header anew"},
    {"eps.bytes.before", Severity::Warning, "Bytes before the first line", "EPSF 3.0, first line",
     "repair leaves them out"},
    {"eps.bytes.behind", Severity::Note, "Bytes behind the program's end", "DSC 3.0, %%EOF",
     "repair leaves them out"},
    {"eps.truncated", Severity::Error, "The file is cut off", "DSC 3.0, trailer; EPSF 3.0, DOS binary header",
     "fetch the file again"},
    // ---- EPS: the header
    {"eps.header.missing", Severity::Error, "The first line is not that of a PostScript file",
     "EPSF 3.0, required comments", "repair writes it"},
    {"eps.header.not-epsf", Severity::Warning, "The first line does not declare EPSF",
     "EPSF 3.0, required comments", "repair writes it"},
    {"eps.header.version", Severity::Note, "The first line declares a version that does not exist",
     "DSC 3.0, %!PS-Adobe; EPSF 3.0, first line", "repair writes the versions 3.0"},
    {"eps.bounding-box.missing", Severity::Error, "There is no %%BoundingBox", "EPSF 3.0, required comments",
     "repair computes it"},
    {"eps.bounding-box.atend", Severity::Error, "%%BoundingBox: (atend) without a box at the end",
     "DSC 3.0, atend", "repair computes it"},
    {"eps.bounding-box.malformed", Severity::Error, "%%BoundingBox does not hold four numbers",
     "DSC 3.0, %%BoundingBox", "repair computes it"},
    {"eps.bounding-box.empty", Severity::Error, "The bounding box is empty", "DSC 3.0, %%BoundingBox",
     "repair computes it"},
    {"eps.bounding-box.not-integer", Severity::Warning, "%%BoundingBox holds numbers that are not whole",
     "DSC 3.0, %%BoundingBox", "repair writes whole numbers"},
    {"eps.bounding-box.disagrees", Severity::Warning,
     "%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger", "DSC 3.0, %%HiResBoundingBox",
     "repair computes both"},
    {"eps.bounding-box.cuts-ink", Severity::Warning, "Ink lies outside the bounding box",
     "EPSF 3.0, the box encloses all marks", "repair computes it"},
    {"eps.bounding-box.loose", Severity::Note, "The bounding box is larger than the ink",
     "EPSF 3.0, the box encloses all marks", "repair computes it"},
    {"eps.ink.none", Severity::Warning, "The program draws nothing that is not white",
     "measured: a placed picture would be empty", "write the file again from the program that made it"},
    // ---- EPS: the program
    {"eps.program.fails", Severity::Error, "The program stops with a PostScript error",
     "PLRM 3, 3.11 (errors)", "write the file again from the program that made it"},
    {"eps.program.remark", Severity::Note, "The interpreter had something to remark", "PLRM 3, 3.11 (errors)",
     ""},
    {"eps.showpage.missing", Severity::Note, "showpage is missing", "EPSF 3.0, showpage",
     "repair puts it in"},
    {"eps.operator.forbidden", Severity::Warning, "An operator that has no place in an EPS file",
     "EPSF 3.0, illegal operators", "write the file again as EPS"},
    {"eps.language-level.undeclared", Severity::Warning,
     "Operators of a higher language level than the comments declare", "DSC 3.0, %%LanguageLevel",
     "add %%LanguageLevel to the header"},
    // ---- EPS: the structure
    {"eps.comments.end-missing", Severity::Note, "%%EndComments is missing", "DSC 3.0, %%EndComments",
     "repair puts it in"},
    {"eps.comments.out-of-order", Severity::Warning, "Comments stand in the wrong order",
     "DSC 3.0, structure", "repair puts those of the header in order"},
    {"eps.comments.unclosed", Severity::Warning, "A section begins and does not end, or the other way round",
     "DSC 3.0, structure", "write the file again from the program that made it"},
    {"eps.lines.too-long", Severity::Note, "Lines of more than 255 bytes", "DSC 3.0, conforming",
     "most readers take them"},
    {"eps.lines.mixed-ends", Severity::Note, "Lines end in different ways", "DSC 3.0, line ends",
     "most readers take them"},
    {"eps.data.binary-undeclared", Severity::Warning, "Other bytes than %%DocumentData declares",
     "DSC 3.0, %%DocumentData", "declare %%DocumentData: Binary"},
    {"eps.fonts.needed", Severity::Note, "The file needs fonts that it does not bring",
     "DSC 3.0, %%DocumentNeededResources", "embed the fonts, or draw text as outlines"},
    // ---- EPS: the preview
    {"eps.preview.missing", Severity::Note, "There is no preview", "EPSF 3.0, previews",
     "repair --preview rebuild makes one"},
    {"eps.preview.unreadable", Severity::Warning, "The preview cannot be read", "TIFF 6.0; DSC 3.0 (EPSI)",
     "repair --preview rebuild makes one"},
    {"eps.preview.differs", Severity::Warning, "The preview shows another picture than the program draws",
     "EPSF 3.0, previews", "repair --preview rebuild makes one"},
    {"eps.preview.size", Severity::Note, "The preview has another shape than the bounding box",
     "EPSF 3.0, previews", "repair --preview rebuild makes one"},
    // ---- fonts and text
    {"fonts.missing", Severity::Error, "A font is neither in the file nor on this machine",
     "PDF 1.7, 9.9 (embedded font programs)", "embed the font"},
    {"fonts.not-embedded", Severity::Warning, "A font is not embedded",
     "PDF 1.7, 9.9 (embedded font programs)", "embed the font"},
    {"fonts.not-subset", Severity::Note, "A font is embedded as a whole", "PDF 1.7, 9.6.4 (font subsets)",
     ""},
    {"fonts.type3", Severity::Note, "A Type 3 font", "PDF 1.7, 9.6.5 (Type 3 fonts)",
     "use a font with outlines"},
    {"text.small", Severity::Warning, "Text smaller than the profile allows",
     "the profile's limit: small text breaks up in print", "set the text larger"},
    // ---- colour
    {"colour.rgb", Severity::Warning, "RGB colours where the profile wants none",
     "PDF 1.7, 8.6.4.3 (DeviceRGB); the profile", "convert the colours"},
    {"colour.rgb-in-cmyk", Severity::Warning, "RGB in a CMYK picture", "PDF 1.7, 8.6.4 (device spaces)",
     "convert the colours"},
    {"colour.space", Severity::Warning, "A colour space that the profile does not name",
     "PDF 1.7, 8.6 (colour spaces); the profile", "convert the colours"},
    {"colour.spot", Severity::Note, "Spot inks", "PDF 1.7, 8.6.6.4 (Separation)", ""},
    {"colour.total-ink", Severity::Warning, "More ink in one place than the profile allows",
     "the profile's limit: paper takes so much", "choose colours with less ink"},
    {"colour.white-overprints", Severity::Error, "White that overprints vanishes",
     "PDF 1.7, 8.6.7 (overprint control)", "let it knock out"},
    {"colour.black-knocks-out", Severity::Note, "Black text that does not overprint",
     "PDF 1.7, 8.6.7 (overprint control)", "let black text overprint"},
    {"transparency.used", Severity::Note, "Transparency", "PDF 1.7, 11 (transparency)",
     "flatten it where the printer asks for it"},
    // ---- lines and images
    {"lines.thin", Severity::Warning, "Lines thinner than the profile allows",
     "PDF 1.7, 8.4.3.2 (line width); the profile", "draw them thicker"},
    {"image.resolution", Severity::Warning, "An image has fewer pixels an inch than the profile asks for",
     "PDF 1.7, 8.9 (images); the profile", "place it smaller, or with more pixels"},
    // ---- the page
    {"page.outside", Severity::Note, "Something is drawn outside the page's box", "PDF 1.7, 14.11.2 (boxes)",
     "enlarge the box, or leave it out"},
    {"page.width", Severity::Warning, "The picture fits no column of the profile", "the profile's widths",
     "draw it for the column's width"},
    {"page.unread", Severity::Note, "A part of the page was not looked at",
     "measured: pages without an end are left at a limit", ""},
    // ---- the document
    {"pdf.damaged", Severity::Error, "The file is damaged", "PDF 1.7, 7.5 (file structure)",
     "convert it to PDF, and look whether anything is missing"},
    {"security.encrypted", Severity::Warning, "The document is encrypted", "PDF 1.7, 7.6 (encryption)",
     "write it without encryption"},
    {"security.restricted", Severity::Warning, "Its permissions forbid printing or changing it",
     "PDF 1.7, 7.6.3.2 (permissions)", "write it without restrictions"},
    {"claims.standard", Severity::Note, "It claims to keep a standard",
     "ISO 15930 (PDF/X), ISO 19005 (PDF/A): read, not certified", ""},
    {"claims.output-intent", Severity::Warning, "It claims PDF/X or PDF/A and has no output intent",
     "PDF 1.7, 14.11.5 (output intents)", "add the output intent"},
    // ---- SVG
    {"svg.reference.outside", Severity::Error, "It needs other files, which are never loaded",
     "SVG 1.1, 5.7 (image)", "embed them"},
    {"svg.filter", Severity::Note, "Filters become images in print", "SVG 1.1, 15 (filter effects)",
     "draw the effect, or accept an image"},
    {"svg.size.no-unit", Severity::Note, "The size has no unit, or there is none",
     "SVG 1.1, 7.10 (units), 5.1.2 (width and height)", "give width and height in mm, pt or in"},
    {"svg.script", Severity::Note, "Scripts and animations are not run", "SVG 1.1, 18 and 19", ""},
});

/// The row of this identifier; one that is not there does not compile.
[[nodiscard]] consteval const RuleRow& rule(std::string_view identifier) {
  std::size_t row = 0;
  while (ruleTable[row].identifier != identifier) ++row;
  return ruleTable[row];
}

/// Null for an identifier that no rule has.
[[nodiscard]] constexpr const RuleRow* ruleNamed(std::string_view identifier) {
  const auto* const at = std::find_if(ruleTable.begin(), ruleTable.end(),
                                      [&](const RuleRow& row) { return row.identifier == identifier; });
  return at == ruleTable.end() ? nullptr : at;
}

}  // namespace norvex
