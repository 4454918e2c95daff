#include "metadata/eps_completeness.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <initializer_list>

#include "base/blanks.h"
#include "metadata/dos_eps_header.h"
#include "metadata/eps_lines.h"
#include "metadata/eps_program.h"
#include "metadata/eps_resources.h"

namespace norvex {
namespace {

bool isBlank(char c) {
  return isPostScriptSpace(c) || c == '\x04';  // spoolers end files with it
}

bool isDelimiter(char c) {
  return isBlank(c) || QByteArrayView("{}[]()<>/%").contains(c);
}

QByteArrayView withoutBlanksAtEnd(QByteArrayView text) {
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

bool hasLine(QByteArrayView program, QByteArrayView start) {
  return lineBeginningWith(program, start) >= 0;
}

bool hasOneOfLines(QByteArrayView program, std::initializer_list<const char*> starts) {
  return std::any_of(starts.begin(), starts.end(),
                     [&](const char* start) { return hasLine(program, start); });
}

/// Behind which the other has to follow.
constexpr std::array<std::array<const char*, 2>, 2> kPairs{{
    {"%AI9_PrivateDataBegin", "%AI9_PrivateDataEnd"},
    {"%%BeginPreview", "%%EndPreview"},
}};

/// The last word that is no comment.
QByteArrayView lastWord(QByteArrayView program) {
  for (QByteArrayView rest = withoutBlanksAtEnd(program); !rest.isEmpty();) {
    qsizetype lineEnd = rest.size() - 1;
    while (lineEnd >= 0 && rest[lineEnd] != '\n' && rest[lineEnd] != '\r') --lineEnd;
    const QByteArrayView line = rest.sliced(lineEnd + 1);
    if (!line.trimmed().startsWith('%')) {
      qsizetype from = line.size();
      while (from > 0 && !isBlank(line[from - 1])) --from;
      return line.sliced(from);
    }
    rest = withoutBlanksAtEnd(rest.first(lineEnd + 1));
  }
  return {};
}

/// The words that end a program; some name their restore "rs" or "gr".
bool endsPrograms(QByteArrayView word) {
  static constexpr auto words =
      std::to_array<const char*>({"showpage", "end", "restore", "grestore", "grestoreall", "pdfmark", "quit",
                                  "stop", "cleartomark", "rs", "gr", "pop"});
  return std::any_of(words.begin(), words.end(),
                     [&](const char* one) { return word == QByteArrayView(one); });
}

/// True for a word behind which something must come for anything to be drawn: a number, or a part of a path.
bool isBegun(QByteArrayView word) {
  static constexpr auto words =
      std::to_array<const char*>({"moveto", "lineto", "curveto", "rmoveto", "rlineto", "rcurveto",
                                  "closepath", "newpath", "arc", "arcn", "arcto"});
  constexpr qsizetype longestNumber = 32;
  bool isNumber = false;
  if (word.size() <= longestNumber) (void)word.toDouble(&isNumber);
  return isNumber || std::any_of(words.begin(), words.end(),
                                 [&](const char* one) { return word == QByteArrayView(one); });
}

/// How often words stand in the program outside comments, braces among them. Strings are not told from code.
QHash<QByteArrayView, int> countedWords(QByteArrayView program) {
  QHash<QByteArrayView, int> counts;
  for (qsizetype at = 0; at < program.size();) {
    const char c = program[at];
    qsizetype end = at + 1;
    if (c == '%')
      while (end < program.size() && program[end] != '\n' && program[end] != '\r') ++end;
    else if (!isDelimiter(c))
      while (end < program.size() && !isDelimiter(program[end])) ++end;
    const QByteArrayView word = program.sliced(at, end - at);
    if (c == '{' || c == '}' || word == "begin" || word == "end" || word == "gsave" || word == "grestore" ||
        word == "grestoreall" || word == "save" || word == "restore")
      ++counts[word];
    at = end;
  }
  return counts;
}

bool leavesSomethingOpen(QByteArrayView program) {
  const bool isText = std::all_of(program.begin(), program.end(), [](char c) { return uchar(c) < 0x80; });
  if (!isText) return false;  // words in image data mean nothing
  const auto counts = countedWords(program);
  return counts.value("{") > counts.value("}") || counts.value("begin") > counts.value("end") ||
         counts.value("gsave") > counts.value("grestore") + counts.value("grestoreall") ||
         counts.value("save") > counts.value("restore");
}

bool stopsEarly(QByteArrayView program) {
  for (const auto& [begin, end] : kPairs)
    if (hasLine(program, begin) && !hasLine(program, end)) return true;
  if (hasOneOfLines(program, {"%%EOF", "%%Trailer"})) return false;
  const QByteArrayView last = lastWord(program);
  if (endsPrograms(last)) return false;
  // Who tells of pages, or where a prolog begins, tells of the end. The end of a prolog and a set-up may be
  // written by hand, and nothing behind the drawing: there a whole line that draws something is no cut.
  const bool isBroken = (!program.endsWith('\n') && !program.endsWith('\r')) || isBegun(last);
  const bool hasStructure =
      hasOneOfLines(program, {"%%Page:", "%%BeginPageSetup", "%%BeginProlog"}) ||
      (isBroken && hasOneOfLines(program, {"%%EndProlog", "%%BeginSetup", "%%EndSetup"}));
  return hasStructure || leavesSomethingOpen(program);
}

/// How many of a section's bytes lie behind the source's end.
qint64 missingBytes(QByteArrayView source, qsizetype start, quint32 offset, quint32 length) {
  return std::clamp<qint64>(qint64(start) + offset + length - source.size(), 0, length);
}

QString missingSentence(const char* what, qint64 missing, qint64 length) {
  return QStringLiteral("the file is cut off: %1 of the %2 bytes of %3 are missing")
      .arg(missing)
      .arg(length)
      .arg(QLatin1String(what));
}

/// One sentence for all plates within the file. Their offsets count from the program's start, with some
/// writers of binary files from the file's: so only what lies behind the end either way is missing.
QString missingPlates(const QByteArray& source) {
  qint64 missing = 0, length = 0;
  for (const EpsPlate& plate : epsResources(source).plates) {
    if (plate.offset < 0) continue;
    const qint64 present = std::clamp<qint64>(source.size() - plate.offset, 0, plate.length);
    if (qAddOverflow(length, plate.length, &length)) return {};  // no lengths at all
    missing += plate.length - present;
  }
  return missing > 0 ? missingSentence("its plates", missing, length) : QString();
}

}  // namespace

QStringList epsMissingParts(const QByteArray& source) {
  QStringList missing;
  const qsizetype start = source.startsWith("\xEF\xBB\xBF") ? 3 : 0;
  if (const auto header = dosEpsHeader(source, start)) {
    const qint64 postScript = missingBytes(source, start, header->postScriptOffset, header->postScriptLength);
    const qint64 tiff = missingBytes(source, start, header->tiffOffset, header->tiffLength);
    if (postScript > 0) missing << missingSentence("its PostScript", postScript, header->postScriptLength);
    if (tiff > 0) missing << missingSentence("its preview", tiff, header->tiffLength);
    if (postScript > 0) return missing;
  }
  if (const QString plates = missingPlates(source); !plates.isEmpty()) return missing << plates;
  if (const QByteArray program = epsProgram(source); stopsEarly(program))
    missing << QStringLiteral("the file seems cut off: its PostScript stops before its end");
  return missing;
}

}  // namespace norvex
