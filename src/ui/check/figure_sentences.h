// What findings say beyond their rules: in English as the check says it, with figures and names at its
// places.
#pragma once

#include <array>

namespace norvex {

/// Keys of the string table of sentences. The more places one begins with, the later it stands.
inline constexpr std::array figureSentences{
    "the font %1 is missing, another stands in for it",
    "the font %1 is missing, %2 stands in for it",
    "the file is cut off: %1 of the %2 bytes of %3 are missing",
    "its PostScript",
    "its preview",
    "the file seems cut off: its PostScript stops before its end",
    "%%BoundingBox holds \"%1\" instead of four numbers",
    "%%BoundingBox holds \"%1\", which are not all whole numbers",
    "%%BoundingBox %1 does not enclose %%HiResBoundingBox %2",
    "%%BoundingBox %1 is far larger than %%HiResBoundingBox %2",
    "%%BoundingBox is promised for the end and does not come",
    "the bounding box %1 has no area",
    "nothing but white is drawn inside the bounding box",
    "the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3",
    "the bounding box %1 is more than twice as large as the ink: %2",
    "the %1 section ends at byte %2, the file at byte %3",
    "the %1 section lies over another part of the file",
    "bytes before %!PS-Adobe: %1",
    "bytes behind %%EOF: %1",
    "the file needs fonts that it does not bring: %1",
    "the preview is %1 by %2 pixels large, the bounding box %3 by %4 points",
    "the preview shows another picture than the program draws (mean difference %1 %)",
    "the first line \"%1\" does not say %!PS-Adobe-3.0 EPSF-3.0",
    "the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist",
    "the header has no %%EndComments",
    "%%EndComments stands behind the first line that is no comment",
    "lines of more than 255 bytes: %1, the first is line %2",
    "lines end in %1 different ways",
    "a line is %1 pt thin, %2 pt are asked for",
    "a text is %1 pt small, %2 pt are asked for",
    "a colour takes %1 % of ink, %2 % are allowed",
    "the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for",
    "colour",
    "grey",
    "line art",
    "there is the spot ink %1",
    "RGB colours stand beside CMYK colours",
    "its permissions forbid %1",
    "it claims to keep %1",
    "it claims to keep %1 and has no output intent",
    "it refers to other files, which are never loaded (references: %1)",
    "elements drawn through filters become images in print: %1",
    "something is drawn up to %1 pt outside the page",
    "only the first %1 pages were looked at",
    "the picture is %1 mm wide, columns are %2 mm",
    "the file is wrapped as %1",
    "%1 takes language level %2, and the header declares %3",
    "none above 1",
    "%1 has no place in an EPS file",
    "%1 is declared, and line %2 holds the byte %3",
    "%1 stands behind %2",
};

}  // namespace norvex
