// The encodings that are offered first.
#pragma once

namespace norvex {

/// The encodings of most PostScript files; names of encodingNames().
inline constexpr const char* usualEncodings[] = {"UTF-8",     "ISO-8859-1", "windows-1252", "macintosh",
                                                 "Shift_JIS", "EUC-JP",     "GB18030",      "Big5",
                                                 "EUC-KR",    "KOI8-R",     "UTF-16"};

}  // namespace norvex
