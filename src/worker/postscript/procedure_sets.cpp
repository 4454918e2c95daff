#include "worker/postscript/procedure_sets.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr QByteArrayView kPrefix = "Adobe_";
constexpr QByteArrayView kDrawing = "Adobe_Illustrator";

bool isLineEnd(char c) {
  return c == '\r' || c == '\n';
}

bool isNamePart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '.';
}

enum class Mention { None, Called, Brought };

// How the name at `from` stands there: called as a program's word or included by a comment, or brought along,
// as a definition or within the comments around one.
Mention mentionAt(QByteArrayView program, qsizetype from) {
  qsizetype line = from;
  while (line > 0 && from - line < 255 && !isLineEnd(program[line - 1])) --line;
  const QByteArrayView before = program.sliced(line, from - line);
  if (before.startsWith("%%Include")) return Mention::Called;
  if (before.startsWith("%%Begin")) return Mention::Brought;
  if (before.contains('%')) return Mention::None;
  if (before.endsWith('/')) return Mention::Brought;
  return before.isEmpty() || before.back() == ' ' || before.back() == '\t' ? Mention::Called : Mention::None;
}

// The lines up to the one that begins with `mark`; nothing without one.
std::optional<QByteArrayView> linesBefore(QByteArrayView program, QByteArrayView mark) {
  qsizetype at = program.indexOf(mark);
  while (at > 0 && !isLineEnd(program[at - 1])) at = program.indexOf(mark, at + 1);
  return at < 0 ? std::nullopt : std::optional(program.first(at));
}

bool holdsOnlyComments(QByteArrayView lines) {
  bool inComment = false;
  return std::all_of(lines.begin(), lines.end(), [&](char c) {
    inComment = !isLineEnd(c) && (inComment || c == '%');
    return inComment || isLineEnd(c) || c == ' ' || c == '\t';
  });
}

// Other applications leave even the names out: a file that calls itself of a version of Illustrator and whose
// prolog is empty.
bool isArtworkAlone(QByteArrayView program) {
  static const QRegularExpression version(QStringLiteral("[\r\n]%AI\\d+_FileFormat"));
  const auto prolog = linesBefore(program, "%%EndProlog");
  return prolog && holdsOnlyComments(*prolog) && QString::fromLatin1(*prolog).contains(version) &&
         program.indexOf(kDrawing) < 0;
}

}  // namespace

QList<QByteArray> missingProcedureSets(QByteArrayView program) {
  QList<QByteArray> called;
  bool draws = false;
  for (qsizetype at = program.indexOf(kPrefix); at >= 0; at = program.indexOf(kPrefix, at)) {
    qsizetype end = at + kPrefix.size();
    while (end < program.size() && end - at < limits::maximumProcedureSetName && isNamePart(program[end]))
      ++end;
    const QByteArrayView name = program.sliced(at, end - at);
    const Mention mention = mentionAt(program, at);
    at = end;
    const bool drawing = name.startsWith(kDrawing);
    if (drawing && mention == Mention::Brought) return {};
    if (mention != Mention::Called || called.size() == limits::maximumProcedureSets) continue;
    draws = draws || drawing;
    if (std::find(called.begin(), called.end(), name) == called.end()) called << name.toByteArray();
  }
  return draws ? called : QList<QByteArray>();
}

QByteArray procedureSetsFor(QByteArrayView program) {
  const QList<QByteArray> missing = missingProcedureSets(program);
  if (missing.isEmpty() && !isArtworkAlone(program)) return {};
  QByteArray sets;
  for (const char* part : {"state", "paths", "colours", "patterns", "gradients", "text", "images"}) {
    QFile file(QStringLiteral(":/illustrator/%1.ps").arg(QLatin1String(part)));
    if (file.open(QIODevice::ReadOnly)) sets += file.readAll();
  }
  for (const QByteArray& name : missing) sets += "userdict /" + name + " nxProcedureSet put\n";
  QFile start(QStringLiteral(":/illustrator/start.ps"));
  if (start.open(QIODevice::ReadOnly)) sets += start.readAll();
  return sets;
}

QStringList leftOut(const QByteArray& messages) {
  struct Sentence {
    const char* about;
    const char* words;
  };
  static constexpr std::array<Sentence, 7> sentences{{
      {"operator", "the Illustrator operator %1 is not understood and was left out"},
      {"operands", "the Illustrator operator %1 was left out where its operands are not understood"},
      {"pattern", "the pattern %1 is not in the file in a form that is understood and was left out"},
      {"gradient", "the gradient %1 is not in the file: a plain colour stands for it"},
      {"placed", "the placed picture %1 is not in the file"},
      {"pdfmark", "a pdfmark whose operands are wrong was left out"},
      {"drawing", "a part of the artwork could not be drawn (%1)"},
  }};
  static const QRegularExpression line(QStringLiteral("norvex-left-out: (\\w+) ([^\\n]*)\\n"));
  QStringList result;
  for (auto match = line.globalMatch(QString::fromLatin1(messages)); match.hasNext();) {
    const QRegularExpressionMatch one = match.next();
    const QString about = one.captured(1);
    const auto sentence = std::find_if(sentences.begin(), sentences.end(), [&](const Sentence& candidate) {
      return about == QLatin1String(candidate.about);
    });
    if (sentence == sentences.end() || result.size() == limits::maximumSubstitutions) continue;
    result << QString::fromLatin1(sentence->words)
                  .replace(QStringLiteral("%1"), one.captured(2).simplified().left(60));
  }
  return result;
}

}  // namespace norvex::engine
