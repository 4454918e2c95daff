#include "check/eps_operator_rules.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>

#include "check/program_words.h"

namespace norvex {
namespace {

/// EPSF 3.0, "Illegal operators".
constexpr auto kForbidden = std::to_array<const char*>(
    {"banddevice",    "clear",       "cleardictstack", "copypage",  "erasepage",
     "exitserver",    "framedevice", "grestoreall",    "initclip",  "initgraphics",
     "initmatrix",    "quit",        "renderbands",    "setglobal", "setpagedevice",
     "setpageparams", "setshared",   "startjob",       "letter",    "note",
     "legal",         "a4"});

/// PLRM 3, A.1: what came with levels 2 and 3 and is used to draw.
constexpr auto kLevel2 = std::to_array<const char*>({"setcolorspace", "setcolor", "rectfill", "rectstroke",
                                                     "rectclip", "makepattern", "setpattern", "execform",
                                                     "ufill", "ustroke", "glyphshow", "selectfont", "xshow"});
constexpr auto kLevel3 = std::to_array<const char*>({"shfill", "clipsave", "cliprestore", "setsmoothness"});

struct Use {
  int line = 0;  ///< of the first
  int count = 0;
};

/// The words of the program itself, apart from data.
struct UsedWords {
  QHash<QByteArray, Use> carriedOut, inProcedures;
  QSet<QByteArray> defined;  ///< or asked for by name
};

UsedWords usedWords(const QList<ProgramLine>& lines) {
  UsedWords used;
  int depth = 0;
  for (const ProgramLine& line : lines) {
    if (line.part != LinePart::Program || line.text.startsWith('%') || looksLikeData(line.text)) continue;
    for (const ProgramWord& word : wordsOfLine(line.text)) {
      if (word.text == "{") ++depth;
      if (word.text == "}") depth = std::max(0, depth - 1);
      if (word.text.size() > 20 || word.text.size() < 2) continue;
      if (word.isLiteral) {
        used.defined << word.text.toByteArray();
        continue;
      }
      Use& use = (depth > 0 ? used.inProcedures : used.carriedOut)[word.text.toByteArray()];
      if (++use.count == 1) use.line = line.number;
    }
  }
  return used;
}

int declaredLevel(const QList<ProgramLine>& lines) {
  for (const ProgramLine& line : lines)
    if (line.part == LinePart::Header && isComment(line, "%%LanguageLevel"))
      return std::max(1, commentValue(line, "%%LanguageLevel").toByteArray().toInt());
  return 1;
}

/// The first of `names` that the program carries out and does not define.
template <size_t count>
const char* firstUsed(const UsedWords& used, const std::array<const char*, count>& names) {
  const char* first = nullptr;
  for (const char* name : names) {
    if (!used.carriedOut.contains(name) || used.defined.contains(name)) continue;
    if (!first || used.carriedOut[name].line < used.carriedOut[first].line) first = name;
  }
  return first;
}

void checkLevel(Findings& findings, const QList<ProgramLine>& lines, const UsedWords& used) {
  if (used.carriedOut.contains("languagelevel") || used.inProcedures.contains("languagelevel") ||
      used.defined.contains("languagelevel"))
    return;
  const int declared = declaredLevel(lines);
  const char* const third = declared < 3 ? firstUsed(used, kLevel3) : nullptr;
  const char* const higher = third ? third : declared < 2 ? firstUsed(used, kLevel2) : nullptr;
  if (!higher) return;
  findings << finding(rule("eps.language-level.undeclared"),
                      QStringLiteral("%1 takes language level %2, and the header declares %3")
                          .arg(QLatin1String(higher))
                          .arg(third ? 3 : 2)
                          .arg(declared == 1 ? QStringLiteral("none above 1") : QString::number(declared)),
                      used.carriedOut[higher].line, QLatin1String(higher));
}

/// Names behind "font" of a …Resources comment, or of a …Fonts comment.
class FontNames {
 public:
  void take(const ProgramLine& line, const char* fonts, const char* resources) {
    if (isComment(line, "%%+")) return continues_ ? addWords(commentValue(line, "%%+")) : void();
    if (line.text.startsWith("%%+")) return continues_ ? addWords(line.text.sliced(3)) : void();
    continues_ = isComment(line, fonts) || isComment(line, resources);
    if (!continues_) return;
    isResource_ = isComment(line, resources);
    takesFonts_ = !isResource_;
    addWords(commentValue(line, isResource_ ? resources : fonts));
  }
  QStringList names;

 private:
  void addWords(QByteArrayView words) {
    static const QList<QByteArray> kinds{"font", "procset", "file",    "encoding",
                                         "form", "pattern", "category"};
    for (const QByteArray& word : words.toByteArray().simplified().split(' ')) {
      if (isResource_ && kinds.contains(word))
        takesFonts_ = word == "font";
      else if (takesFonts_ && !word.isEmpty() && word != "(atend)" &&
               !names.contains(QString::fromLatin1(word)) && names.size() < 50)
        names << QString::fromLatin1(word);
    }
  }
  bool continues_ = false, isResource_ = false, takesFonts_ = false;
};

}  // namespace

Findings epsOperatorFindings(const QList<ProgramLine>& lines) {
  Findings findings;
  const UsedWords used = usedWords(lines);
  for (const char* name : kForbidden) {
    if (!used.carriedOut.contains(name) || used.defined.contains(name)) continue;
    const int line = used.carriedOut[name].line;
    findings << finding(rule("eps.operator.forbidden"),
                        QStringLiteral("%1 has no place in an EPS file").arg(QLatin1String(name)), line,
                        QLatin1String(name));
  }
  checkLevel(findings, lines, used);
  return findings;
}

Findings epsFontFindings(const QList<ProgramLine>& lines) {
  FontNames needed, supplied;
  for (const ProgramLine& line : lines) {
    if (line.part == LinePart::Header || line.part == LinePart::Program) {
      if (!line.text.startsWith("%%")) continue;
      needed.take(line, "%%DocumentNeededFonts", "%%DocumentNeededResources");
      supplied.take(line, "%%DocumentSuppliedFonts", "%%DocumentSuppliedResources");
    }
  }
  QStringList missing;
  for (const QString& name : needed.names)
    if (!supplied.names.contains(name)) missing << name;
  if (missing.isEmpty()) return {};
  return {finding(rule("eps.fonts.needed"),
                  QStringLiteral("the file needs fonts that it does not bring: %1")
                      .arg(missing.join(QStringLiteral(", "))),
                  {}, missing.first())};
}

}  // namespace norvex
