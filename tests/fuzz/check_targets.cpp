// The rules about EPS files, their mending, and profiles: parsers of ours, and one of a library's for a file
// of the user's own.
#include <QList>

#include "check/check_files.h"
#include "check/eps_box_rules.h"
#include "check/eps_file_rules.h"
#include "check/eps_operator_rules.h"
#include "check/eps_repair.h"
#include "check/eps_structure_rules.h"
#include "check/file_wrapping.h"
#include "check/profile.h"
#include "fuzz/targets.h"

namespace norvex::fuzz {
namespace {

bool epsRules(const QByteArray& bytes) {
  const QList<ProgramLine> lines = programLines(bytes);
  qsizetype told = 0;
  for (const ProgramLine& line : lines) {
    require(line.start >= told && line.start + line.text.size() <= bytes.size(), "lines follow one another");
    told = line.start + line.text.size();
  }
  const Findings findings = epsFileFindings(bytes) + epsStructureFindings(lines) +
                            epsBoxFindings(bytes, lines) + epsOperatorFindings(lines) +
                            epsFontFindings(lines);
  for (const Finding& one : findings)
    require(one.rule && !one.sentence.isEmpty(), "a finding says what it is");
  return findings.isEmpty() || bytes.startsWith("%!");
}

bool epsRepair(const QByteArray& bytes) {
  const QByteArray program = epsProgramAlone(bytes);
  if (program.isEmpty()) return false;
  const QRectF box(1, 2, 30, 40);
  const EpsRepair once = repairedEps(program, box, false);
  require(once.program.startsWith("%!"), "what is mended begins as PostScript");
  const EpsRepair twice = repairedEps(once.program, box, false);
  require(twice.program == once.program || once.program.contains("Begin"), "what is mended stays as it is");
  return true;
}

bool profiles(const QByteArray& bytes) {
  const Result<Profile> profile = profileFromToml(bytes);
  if (!profile)
    require(profile.error().message.startsWith(QStringLiteral("line ")), "what is wrong has a line");
  return profile.ok();
}

QList<QByteArray> epsSeeds() {
  QList<QByteArray> seeds;
  for (const checkfiles::RuleFile& file : checkfiles::epsFiles()) seeds << file.broken;
  return seeds;
}

QList<QByteArray> profileSeeds() {
  return {
      "[limits]\ncolour-dpi = 300\ncolumns-mm = [90, 190.5]\nrgb = false\n[severities]\n\"fonts.type3\" = "
      "\"off\"\n"};
}

}  // namespace

QList<Target> checkTargets() {
  return {{"eps_rules", epsRules, epsSeeds, 40},
          {"eps_repair", epsRepair, epsSeeds, 40},
          {"profile", profiles, profileSeeds}};
}

}  // namespace norvex::fuzz
