// The search for procedure sets that a program names and does not bring, and what these tell.
#include "fuzz/targets.h"
#include "worker/postscript/procedure_sets.h"

namespace norvex::fuzz {
namespace {

bool procedureSets(const QByteArray& bytes) {
  const QList<QByteArray> missing = engine::missingProcedureSets(bytes);
  require(missing.size() <= 64, "procedure sets are few");
  for (const QByteArray& name : missing)
    for (const char c : name)
      require(
          (c >= '.' && c <= '9' && c != '/') || (c >= 'A' && c <= 'z' && c != '[' && c != ']' && c != '\\'),
          "a name that becomes PostScript is a name");
  for (const QString& sentence : engine::leftOut(bytes))
    require(!sentence.contains(u'\n') && sentence.size() < 200, "what is told is one short sentence");
  return !missing.isEmpty();
}

QList<QByteArray> seeds() {
  return {
      "%!\n%%IncludeResource: procset Adobe_cshow 1.1 0\n%%IncludeResource: procset Adobe_Illustrator_AI5\n"
      "Adobe_Illustrator_AI5 /initialize get exec\nnorvex-left-out: operator Zq\n",
      "%%BeginProcSet: Adobe_Illustrator_AI3 1.0 0\n/Adobe_Illustrator_AI3 40 dict def\n"};
}

}  // namespace

QList<Target> postscriptTargets() {
  return {{"procedure_sets", procedureSets, seeds}};
}

}  // namespace norvex::fuzz
