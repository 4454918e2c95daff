#include "check/eps_file_rules.h"

#include <algorithm>
#include <array>

#include "base/blanks.h"
#include "check/file_wrapping.h"
#include "check/program_lines.h"
#include "check/resource_fork.h"
#include "metadata/dos_eps_header.h"
#include "metadata/eps_completeness.h"

namespace norvex {
namespace {

struct Section {
  const char* name;
  qint64 from;
  qint64 length;
};

void checkDosHeader(Findings& findings, QByteArrayView file) {
  const qsizetype start = file.startsWith("\xEF\xBB\xBF") ? 3 : 0;
  const auto header = dosEpsHeader(file, start);
  if (!header) return;
  const std::array<Section, 3> sections{{{"PostScript", header->postScriptOffset, header->postScriptLength},
                                         {"metafile", header->metafileOffset, header->metafileLength},
                                         {"TIFF", header->tiffOffset, header->tiffLength}}};
  for (size_t i = 0; i < sections.size(); ++i) {
    const Section& one = sections[i];
    if (one.length == 0) continue;
    const QString name = QLatin1String(one.name);
    if (start + one.from + one.length > file.size())
      findings << finding(rule("eps.dos-header.outside"),
                          QStringLiteral("the %1 section ends at byte %2, the file at byte %3")
                              .arg(name)
                              .arg(start + one.from + one.length)
                              .arg(file.size()),
                          {}, name);
    bool overlaps = one.from < dosEpsHeaderBytes;
    for (size_t j = 0; j < i; ++j)
      overlaps = overlaps || (sections[j].length > 0 && one.from < sections[j].from + sections[j].length &&
                              sections[j].from < one.from + one.length);
    if (overlaps)
      findings << finding(rule("eps.dos-header.overlap"),
                          QStringLiteral("the %1 section lies over another part of the file").arg(name), {},
                          name);
  }
}

void checkBytesBefore(Findings& findings, QByteArrayView file, QByteArrayView program) {
  const bool marked = file.startsWith("\xEF\xBB\xBF");
  const qsizetype first = program.first(std::min<qsizetype>(program.size(), 64 << 10)).indexOf("%!");
  if (first <= 0 && !marked) return;
  const qsizetype count = std::max<qsizetype>(first, 0) + (marked ? 3 : 0);
  findings << finding(
      rule("eps.bytes.before"),
      QStringLiteral("bytes before %!PS-Adobe: %1").replace(QStringLiteral("%1"), QString::number(count)));
}

/// What stands behind the last %%EOF of the document itself.
QByteArrayView bytesBehind(QByteArrayView program) {
  if (program.lastIndexOf("%%EOF") < 0) return {};
  const QList<ProgramLine> lines = programLines(program);
  const qsizetype end = documentLines(lines).size();
  return end < lines.size() ? program.sliced(lines[end].start) : QByteArrayView();
}

void checkBytesBehind(Findings& findings, QByteArrayView program) {
  const QByteArrayView behind = bytesBehind(program);
  // Illustrator keeps its own copy of the document there, as comments.
  if (behind.trimmed().startsWith("%AI")) return;
  const qsizetype count = tellingBytes(behind);
  if (count > 0)
    findings << finding(rule("eps.bytes.behind"),
                        QStringLiteral("bytes behind %%EOF: ") + QString::number(count));
}

QString wrappingSentence(const WrappedFile& wrapped) {
  const QString sentence = QStringLiteral("the file is wrapped as %1").arg(wrapped.wrapping);
  const auto preview = pictureInResources(wrapped.resourceFork);
  if (!preview) return sentence;
  return sentence + QStringLiteral(", with a Macintosh picture (PICT) of %1 × %2 points as its preview")
                        .arg(preview->width())
                        .arg(preview->height());
}

}  // namespace

Findings epsFileFindings(const QByteArray& file) {
  Findings findings;
  if (const auto wrapped = wrappedFile(file))
    findings << finding(rule("eps.wrapped"), wrappingSentence(*wrapped));
  const QByteArray inner = withoutWrapping(file);
  checkDosHeader(findings, inner);
  const QByteArrayView program = postScriptOf(inner);
  checkBytesBefore(findings, inner, program);
  checkBytesBehind(findings, program);
  if (!hasFinding(findings, rule("eps.dos-header.outside").identifier))
    for (const QString& sentence : epsMissingParts(inner))
      findings << finding(rule("eps.truncated"), sentence);
  return findings;
}

}  // namespace norvex
