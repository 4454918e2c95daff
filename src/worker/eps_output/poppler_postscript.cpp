#include "worker/eps_output/poppler_postscript.h"

#include <algorithm>
#include <optional>

#include "worker/eps_output/postscript_device.h"
#include "worker/eps_output/postscript_shading.h"

namespace norvex::engine {
namespace {

const Error kUnexpected{ErrorKind::Unsupported, QStringLiteral("the page cannot be written as PostScript")};

// The text between the lines `begin` and `end`; nothing when one is missing.
std::optional<QByteArrayView> between(const QByteArray& text, const QByteArray& begin,
                                      const QByteArray& end) {
  const qsizetype from = text.indexOf('\n' + begin + '\n');
  if (from < 0) return std::nullopt;
  const qsizetype start = from + begin.size() + 2;
  const qsizetype stop = text.indexOf('\n' + end + '\n', start - 1);
  if (stop < 0) return std::nullopt;
  return QByteArrayView(text).sliced(start, std::max<qsizetype>(0, stop + 1 - start));
}

// Comments that would be taken for this file's own, or that speak for somebody else's.
bool isForeignComment(QByteArrayView line) {
  if (!line.startsWith('%')) return false;
  for (const char* keyword : {"%%Title", "%%Creator", "%%CreationDate", "%%For:", "%%Copyright", "%%Version",
                              "%%BoundingBox", "%%HiResBoundingBox", "%%EndComments", "%%Routing",
                              "%%BeginResource", "%%EndResource", "%%EOF", "%!PS", "%!FontType"})
    if (line.startsWith(keyword)) return true;
  return false;
}

// Beside its comments, the generator's lines may begin like that in two more places: in a string that goes on
// in the next line, and in the digits of an image, which hold no blank and seldom are as short.
bool looksLikeComment(QByteArrayView line) {
  return line.startsWith("%%") || line.startsWith("%!");
}

bool isComment(QByteArrayView line) {
  return looksLikeComment(line) && (line.contains(' ') || line == QByteArrayView("%%EndResource"));
}

// Code that sets up paper or the printer has no place in a picture that is placed on somebody's page.
bool isForPrinters(QByteArrayView line) {
  return line.endsWith("pdfSetup") || line.endsWith("pdfSetupPaper") ||
         line == QByteArrayView("{} settransfer");
}

// Pages are large: a line is copied once, and looked at byte by byte only when it has to be.
void appendSevenBit(QByteArray& result, QByteArrayView line) {
  const auto isHigh = [](char c) { return quint8(c) >= 0x80; };
  if (std::none_of(line.begin(), line.end(), isHigh)) {
    result.append(line);
    return;
  }
  for (const char c : line) {
    if (isHigh(c))
      result += '\\' + QByteArray::number(quint8(c), 8);
    else
      result += c;
  }
}

void appendCleaned(QByteArray& result, QByteArrayView text) {
  result.reserve(result.size() + text.size() + 100);
  // Fonts bring their own line ends: those of old Macintosh fonts are carriage returns.
  const auto endsLine = [](char c) { return c == '\n' || c == '\r'; };
  bool inString = false;  // a string goes on behind a backslash at the end of a line
  bool inData = false;    // of an image
  for (auto start = text.begin(); start != text.end();) {
    const auto end = std::find_if(start, text.end(), endsLine);
    const QByteArrayView line(start, end);
    start = end == text.end() ? end : end + 1;
    if (line == QByteArrayView("%-EOD-")) inData = false;
    if (!inString && ((isComment(line) && isForeignComment(line)) || isForPrinters(line))) continue;
    if (inString && line.startsWith('%')) {
      result += "\\045";
      appendSevenBit(result, line.sliced(1));
    } else if (!inString && looksLikeComment(line) && !isComment(line)) {
      result += ' ';
      appendSevenBit(result, line);
    } else if (line.startsWith('(') && line.contains("%%Copyright:")) {  // shown text that says so
      appendSevenBit(result, line.toByteArray().replace("%%Copyright:", "%\\045Copyright:"));
    } else {
      appendSevenBit(result, line);
    }
    result += '\n';
    if (!inString && line.startsWith("pdfIm")) inData = true;
    inString = !inData && line.endsWith('\\');
  }
}

}  // namespace

Result<PagePostScript> takeApart(const QByteArray& postScript) {
  const auto procedures = between(postScript, "%%BeginProlog", "%%EndProlog");
  const auto setup = between(postScript, "%%BeginSetup", "%%EndSetup");
  const qsizetype page = postScript.indexOf("\n%%EndPageSetup\n");
  const qsizetype trailer = postScript.lastIndexOf("\n%%PageTrailer\n");
  if (!procedures || !setup || page < 0 || trailer < page) return kUnexpected;
  const qsizetype begin = page + qsizetype(sizeof "\n%%EndPageSetup\n") - 1;
  PagePostScript result;
  appendCleaned(result.procedures, *procedures);
  result.procedures += shadingProcedures();
  appendCleaned(result.setup, *setup);
  result.page = "pdfStartPage\n";
  appendCleaned(result.page,
                QByteArrayView(postScript).sliced(begin, std::max<qsizetype>(0, trailer + 1 - begin)));
  if (!result.page.endsWith("showpage\n")) return kUnexpected;
  result.page.chop(qsizetype(sizeof "showpage\n") - 1);
  result.page += "pdfEndPage\nend\n";
  return result;
}

Result<PagePostScript> postScriptOfPage(const QByteArray& pdf, QSize pageSize) {
  const Result<GeneratedPostScript> postScript = generatedPostScript(pdf, pageSize);
  if (!postScript) return postScript.error();
  Result<PagePostScript> page = takeApart(postScript->text);
  if (page) page->leftOutPrograms = postScript->leftOutPrograms;
  return page;
}

}  // namespace norvex::engine
