// Font programs of a PDF that lose the outlines that a page does not show.
#include <algorithm>
#include <set>

#include "fuzz/targets.h"
#include "worker/eps_output/font_thinning.h"
#include "worker/kit/made_font.h"

namespace norvex::fuzz {
namespace {

/// The first byte counts the glyphs that are shown, the next ones are their numbers, the rest is the font.
bool fontThinning(const QByteArray& bytes) {
  if (bytes.isEmpty()) return false;
  const qsizetype count = std::min<qsizetype>(quint8(bytes[0]), bytes.size() - 1);
  std::set<int> glyphs;
  for (qsizetype i = 0; i < count; ++i) glyphs.insert(quint8(bytes[1 + i]));
  const QByteArray font = bytes.mid(1 + count);
  const auto thin = engine::thinnedFont(font, glyphs);
  if (!thin) return false;
  require(thin->size() == font.size(), "what is left out is not moved together");
  return true;
}

QList<QByteArray> seeds() {
  const QByteArray shown("\2\1\2", 3);
  const QByteArray trueType = kit::trueType({kit::outline('a'), kit::outline('b'), kit::composed({1, 4}),
                                             kit::outline('d'), kit::outline('e'), kit::outline('f')});
  const QByteArray cff = kit::cff({"none", "first", "second", "third"});
  const QByteArray openType = "OTTO" + kit::bigEndian(1, 2) + QByteArray(6, '\0') + "CFF " +
                              kit::bigEndian(0, 4) + kit::bigEndian(28, 4) +
                              kit::bigEndian(quint32(cff.size()), 4) + cff;
  return {shown + trueType, shown + cff, shown + openType, shown + trueType.left(200)};
}

}  // namespace

QList<Target> fontsTargets() {
  return {{"font_thinning", fontThinning, seeds, 2000}};
}

}  // namespace norvex::fuzz
