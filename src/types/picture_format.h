// THE table of formats. Reading names and bytes, the lists that people choose from, the command line with its
// help and completion, the guess of what a picture process must be able to do, and the encoders follow it: a
// new format is a row here, its encoder and their tests. Free of Qt, because it is also read before Qt is
// loaded.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace norvex {

/// The content of a document. Other: pixels, which are written and not opened.
enum class DocumentKind { Svg, Eps, Illustrator, Pdf, Other };

enum class PictureFormat { Eps, EpsPreview, Epsi, Illustrator, Pdf, Svg, Svgz, Tiff, Png, Jpeg, Gif, Webp };

/// The default of --quality for a format; given, it is 1 to 100.
enum Quality : int { NoQuality = -1, Lossless = 0 };

/// Lists of words are separated by single blanks.
struct FormatRow {
  PictureFormat id;
  DocumentKind kind;
  std::string_view name = {};        ///< of --format; empty: it is opened and not written
  std::string_view type;             ///< type identifier
  std::string_view extensions = {};  ///< without the dot, the type's own first; empty: another row tells them
  std::string_view writtenAs = {};   ///< the extension that the command line gives; empty: the type's own
  std::string_view otherExtensions = {};  ///< that tell the type as well, and are not offered
  std::string_view parents = {};          ///< types that the type is a kind of; empty: another row tells them
  std::string_view mimeTypes = {};        ///< the usual one first
  const char* title = "";                 ///< key of the localized description; empty: there is none
  int quality = NoQuality;                ///< where none is asked for; NoQuality: none can be asked for
  /// How files begin, ? for any byte; none: that takes a closer look.
  std::array<std::string_view, 2> begins = {};
};

/// In the order in which formats are offered. Nobody's extension is told twice.
inline constexpr auto formatTable = std::to_array<FormatRow>({
    {.id = PictureFormat::Eps,
     .kind = DocumentKind::Eps,
     .name = "eps",
     .type = "com.adobe.encapsulated-postscript",
     .extensions = "eps epsf",
     .parents = "com.adobe.postscript public.image",
     .mimeTypes = "image/x-eps image/x-e-postscript application/eps application/x-eps image/eps",
     .title = "Encapsulated PostScript (EPS)"},
    {.id = PictureFormat::EpsPreview,
     .kind = DocumentKind::Eps,
     .name = "eps-preview",
     .type = "com.adobe.encapsulated-postscript",
     .writtenAs = "eps"},
    // Not a kind of EPS: saving as EPSI and saving as EPS are two things, and the type chooses between them.
    {.id = PictureFormat::Epsi,
     .kind = DocumentKind::Eps,
     .name = "epsi",
     .type = "com.Tembrolix.epsi",
     .extensions = "epsi",
     .otherExtensions = "epi",
     .parents = "com.adobe.postscript public.image",
     .title = "Encapsulated PostScript with interchange preview (EPSI)"},
    {.id = PictureFormat::Illustrator,
     .kind = DocumentKind::Illustrator,
     .type = "com.adobe.illustrator.ai-image",
     .extensions = "ai",
     .parents = "public.image",
     .mimeTypes = "application/illustrator application/vnd.adobe.illustrator image/x-adobe-illustrator"},
    {.id = PictureFormat::Pdf,
     .kind = DocumentKind::Pdf,
     .name = "pdf",
     .type = "com.adobe.pdf",
     .extensions = "pdf",
     .parents = "public.data public.composite-content",
     .mimeTypes = "application/pdf application/x-pdf image/pdf application/acrobat application/nappdf",
     .title = "PDF document"},
    {.id = PictureFormat::Svg,
     .kind = DocumentKind::Svg,
     .name = "svg",
     .type = "public.svg-image",
     .extensions = "svg",
     .parents = "public.image public.xml",
     .mimeTypes = "image/svg+xml image/svg",
     .title = "SVG image"},
    {.id = PictureFormat::Svgz,
     .kind = DocumentKind::Svg,
     .name = "svgz",
     .type = "com.Tembrolix.svgz",
     .extensions = "svgz",
     .parents = "public.svg-image",
     .mimeTypes = "image/svg+xml-compressed",
     .title = "Compressed SVG image (SVGZ)"},
    {.id = PictureFormat::Tiff,
     .kind = DocumentKind::Other,
     .name = "tiff",
     .type = "public.tiff",
     .extensions = "tiff tif",
     .parents = "public.image",
     .mimeTypes = "image/tiff",
     .title = "TIFF image",
     .begins = {std::string_view("II*\0", 4), std::string_view("MM\0*", 4)}},
    {.id = PictureFormat::Png,
     .kind = DocumentKind::Other,
     .name = "png",
     .type = "public.png",
     .extensions = "png",
     .parents = "public.image",
     .mimeTypes = "image/png",
     .title = "PNG image",
     .begins = {"\x89PNG\r\n\x1A\n"}},
    {.id = PictureFormat::Jpeg,
     .kind = DocumentKind::Other,
     .name = "jpeg",
     .type = "public.jpeg",
     .extensions = "jpeg jpg",
     .writtenAs = "jpg",
     .otherExtensions = "jpe",
     .parents = "public.image",
     .mimeTypes = "image/jpeg image/jpg",
     .title = "JPEG image",
     .quality = 90,
     .begins = {"\xFF\xD8\xFF"}},
    {.id = PictureFormat::Gif,
     .kind = DocumentKind::Other,
     .name = "gif",
     .type = "com.compuserve.gif",
     .extensions = "gif",
     .parents = "public.image",
     .mimeTypes = "image/gif",
     .title = "GIF image",
     .begins = {"GIF87a", "GIF89a"}},
    {.id = PictureFormat::Webp,
     .kind = DocumentKind::Other,
     .name = "webp",
     .type = "org.webmproject.webp",
     .extensions = "webp",
     .parents = "public.image",
     .mimeTypes = "image/webp",
     .title = "WebP image",
     .quality = Lossless,
     .begins = {"RIFF????WEBP"}},
});

// ---- words of the table

/// Calls `visit` with each word of a list.
template <typename Visit>
constexpr void forEachWord(std::string_view words, Visit visit) {
  while (!words.empty()) {
    const size_t end = words.find(' ');
    visit(words.substr(0, end));
    words = end == std::string_view::npos ? std::string_view() : words.substr(end + 1);
  }
}

[[nodiscard]] constexpr std::string_view firstWord(std::string_view words) {
  return words.substr(0, words.find(' '));
}

/// Letter case of ASCII does not count.
[[nodiscard]] constexpr bool isSameName(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c; };
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (lower(a[i]) != lower(b[i])) return false;
  return true;
}

[[nodiscard]] constexpr bool hasName(std::string_view names, std::string_view name) {
  bool found = false;
  forEachWord(names, [&](std::string_view word) { found = found || isSameName(word, name); });
  return found;
}

// ---- rows

[[nodiscard]] constexpr const FormatRow& rowOf(PictureFormat format) {
  size_t row = 0;
  while (formatTable[row].id != format) ++row;
  return formatTable[row];
}

[[nodiscard]] constexpr bool isRaster(PictureFormat format) {
  return rowOf(format).kind == DocumentKind::Other;
}

[[nodiscard]] constexpr bool isWritten(const FormatRow& row) {
  return !row.name.empty();
}

/// Without the dot.
[[nodiscard]] constexpr std::string_view writtenExtension(PictureFormat format) {
  const FormatRow& row = rowOf(format);
  return row.writtenAs.empty() ? firstWord(row.extensions) : row.writtenAs;
}

/// The format that --format calls so.
[[nodiscard]] constexpr std::optional<PictureFormat> formatNamed(std::string_view name) {
  for (const FormatRow& row : formatTable)
    if (isWritten(row) && row.name == name) return row.id;
  return std::nullopt;
}

/// The format of files that are usually named so; "eps" is plain EPS. Letter case does not count.
[[nodiscard]] constexpr std::optional<PictureFormat> formatOfExtension(std::string_view extension) {
  for (const FormatRow& row : formatTable)
    if (hasName(row.extensions, extension)) return row.id;
  return std::nullopt;
}

}  // namespace norvex
