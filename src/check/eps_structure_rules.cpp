#include "check/eps_structure_rules.h"

#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>

#include "base/blanks.h"
#include "check/comment_order.h"
#include "check/program_words.h"

namespace norvex {
namespace {

constexpr qsizetype kLongestLine = 255;

QString textOf(QByteArrayView bytes) {
  return QString::fromLatin1(bytes.first(std::min<qsizetype>(bytes.size(), 80)));
}

void checkFirstLine(Findings& findings, const QList<ProgramLine>& lines) {
  const QByteArrayView first = lines.isEmpty() ? QByteArrayView() : lines.first().text;
  if (!first.startsWith("%!")) {
    findings << finding(rule("eps.header.missing"), QStringLiteral("the file does not begin with %!PS-Adobe"),
                        1);
    return;
  }
  static const QRegularExpression form(QStringLiteral("^%!PS-Adobe-(\\d+\\.\\d+)\\s+EPSF-(\\d+\\.\\d+)"));
  const QRegularExpressionMatch match =
      form.match(QString::fromLatin1(first.first(std::min<qsizetype>(first.size(), 200))));
  if (!match.hasMatch()) {
    findings << finding(
        rule("eps.header.not-epsf"),
        QStringLiteral("the first line \"%1\" does not say %!PS-Adobe-3.0 EPSF-3.0").arg(textOf(first)), 1);
    return;
  }
  static const QStringList structures{"1.0", "2.0", "2.1", "3.0", "3.1"}, formats{"1.2", "2.0", "3.0"};
  if (!structures.contains(match.captured(1)) || !formats.contains(match.captured(2)))
    findings << finding(rule("eps.header.version"),
                        QStringLiteral("the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist")
                            .arg(match.captured(1), match.captured(2)),
                        1);
}

void checkOrder(Findings& findings, const QList<ProgramLine>& lines) {
  int last = -1;
  for (const ProgramLine& line : lines) {
    if (!isStructure(line)) continue;
    const int place = placeOf(line);
    if (place == 0 && last >= 0) continue;  // told by the end of the header
    if (place >= 0 && !mayFollow(place, last)) {
      findings << finding(rule("eps.comments.out-of-order"),
                          QStringLiteral("%1 stands behind %2").arg(nameOfPlace(place), nameOfPlace(last)),
                          line.number, nameOfPlace(place));
      return;
    }
    if (place >= 0) last = place;
  }
}

void checkEndOfHeader(Findings& findings, const QList<ProgramLine>& lines) {
  const auto at = std::find_if(lines.begin(), lines.end(), [](const ProgramLine& line) {
    return isStructure(line) && isComment(line, "%%EndComments");
  });
  if (at == lines.end())
    findings << finding(rule("eps.comments.end-missing"), QStringLiteral("the header has no %%EndComments"));
  else if (at->part != LinePart::Header)
    findings << finding(rule("eps.comments.out-of-order"),
                        QStringLiteral("%%EndComments stands behind the first line that is no comment"),
                        at->number, QStringLiteral("%%EndComments"));
}

/// The word behind "%%Begin" or "%%End"; empty for other lines.
QByteArrayView sectionName(const ProgramLine& line, QByteArrayView mark) {
  if (!line.text.startsWith(mark)) return {};
  QByteArrayView name = line.text.sliced(mark.size());
  qsizetype length = 0;
  while (length < name.size() && (QChar::isLetterOrNumber(uchar(name[length])))) ++length;
  return name.first(length);
}

void checkSections(Findings& findings, const QList<ProgramLine>& lines) {
  struct Open {
    QByteArrayView name;
    int line;
  };
  QList<Open> open;
  const auto tell = [&](const QString& sentence, int line, QByteArrayView name) {
    findings << finding(rule("eps.comments.unclosed"), sentence, line, QString::fromLatin1(name));
  };
  for (const ProgramLine& line : lines) {
    if (line.part == LinePart::Data) continue;
    if (line.part == LinePart::Embedded) continue;
    if (const QByteArrayView name = sectionName(line, "%%Begin"); !name.isEmpty())
      open << Open{name, line.number};
    const QByteArrayView name = sectionName(line, "%%End");
    if (name.isEmpty() || name == "Comments" || name == "PageComments") continue;
    qsizetype at = open.size() - 1;
    while (at >= 0 && open[at].name != name) --at;
    if (at >= 0)
      open.removeAt(at);
    else if (name != "Prolog")  // its beginning may stay unsaid: it is the header's end
      tell(QStringLiteral("%%End") + QString::fromLatin1(name) + QStringLiteral(" ends what did not begin"),
           line.number, name);
  }
  for (const Open& one : open)
    tell(QStringLiteral("%%Begin") + QString::fromLatin1(one.name) + QStringLiteral(" has no end"), one.line,
         one.name);
}

void checkLines(Findings& findings, const QList<ProgramLine>& lines) {
  int tooLong = 0, firstLong = 0;
  int ends[4] = {};
  int firstOf[4] = {};
  for (const ProgramLine& line : lines) {
    if (line.part == LinePart::Data ||
        looksLikeData(line.text.first(std::min<qsizetype>(line.text.size(), 200))))
      continue;
    if (line.text.size() > kLongestLine && ++tooLong == 1) firstLong = line.number;
    if (ends[size_t(line.end)]++ == 0) firstOf[size_t(line.end)] = line.number;
  }
  if (tooLong > 0)
    findings << finding(
        rule("eps.lines.too-long"),
        QStringLiteral("lines of more than 255 bytes: %1, the first is line %2").arg(tooLong).arg(firstLong),
        firstLong);
  int kinds = 0, line = 0;
  for (const LineEnd end : {LineEnd::Lf, LineEnd::Cr, LineEnd::CrLf})
    if (ends[size_t(end)] > 0) ++kinds, line = std::max(line, firstOf[size_t(end)]);
  if (kinds > 1)
    findings << finding(rule("eps.lines.mixed-ends"),
                        QStringLiteral("lines end in %1 different ways").arg(kinds), line);
}

void checkDeclaredData(Findings& findings, const QList<ProgramLine>& lines) {
  QByteArrayView declared;
  for (const ProgramLine& line : lines)
    if (line.part == LinePart::Header && isComment(line, "%%DocumentData"))
      declared = commentValue(line, "%%DocumentData");
  if (declared != "Clean7Bit" && declared != "Clean8Bit") return;
  for (const ProgramLine& line : lines) {
    const auto at = std::find_if(line.text.begin(), line.text.end(), [&](char c) {
      const bool isControl = uchar(c) < 0x20 && !isWhiteSpace(c) && c != '\x04' && c != '\x1B';
      return isControl || uchar(c) == 0x7F || (declared == "Clean7Bit" && uchar(c) >= 0x80);
    });
    if (at == line.text.end()) continue;
    findings << finding(rule("eps.data.binary-undeclared"),
                        QStringLiteral("%1 is declared, and line %2 holds the byte %3")
                            .arg(QString::fromLatin1(declared))
                            .arg(line.number)
                            .arg(uint(uchar(*at)), 2, 16, QLatin1Char('0')),
                        line.number);
    return;
  }
}

}  // namespace

bool showsPage(const QList<ProgramLine>& lines) {
  return std::any_of(lines.begin(), lines.end(), [](const ProgramLine& line) {
    if (line.part == LinePart::Data || line.part == LinePart::Preview) return false;
    if (!line.text.contains("showpage")) return false;
    const QList<ProgramWord> words = wordsOfLine(line.text);
    return std::any_of(words.begin(), words.end(),
                       [](const ProgramWord& word) { return word.text == "showpage"; });
  });
}

Findings epsStructureFindings(const QList<ProgramLine>& lines) {
  Findings findings;
  checkFirstLine(findings, lines);
  checkEndOfHeader(findings, lines);
  checkOrder(findings, lines);
  checkSections(findings, lines);
  const QList<ProgramLine> document = documentLines(lines);
  checkLines(findings, document);
  checkDeclaredData(findings, document);
  if (!showsPage(lines))
    findings << finding(rule("eps.showpage.missing"), QStringLiteral("showpage is missing"));
  return findings;
}

}  // namespace norvex
