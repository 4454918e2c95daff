#include "worker/svg/inspection/svg_attribute_count.h"

#include <algorithm>

namespace norvex::engine {
namespace {

struct Passage {
  QByteArrayView begins, ends;
};
constexpr Passage kWithoutTags[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};

/// Behind what begins at `at` and holds no tags; `at` where nothing of the sort begins there.
qsizetype behindPassage(QByteArrayView text, qsizetype at) {
  for (const Passage& passage : kWithoutTags) {
    if (!text.sliced(at).startsWith(passage.begins)) continue;
    const qsizetype end = text.indexOf(passage.ends, at + passage.begins.size());
    return end < 0 ? text.size() : end + passage.ends.size();
  }
  return at;
}

/// Moves `at`, which stands behind the "<", behind the tag.
int attributesOfTag(QByteArrayView text, qsizetype& at, int enough) {
  int count = 0;
  char quote = 0;
  for (; at < text.size() && count < enough; ++at) {
    const char c = text[at];
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '=') {
      ++count;
    } else if (c == '>') {
      break;
    }
  }
  return count;
}

}  // namespace

int mostAttributes(QByteArrayView utf8, int enough) {
  int most = 0;
  for (qsizetype at = utf8.indexOf('<'); at >= 0 && most < enough; at = utf8.indexOf('<', at)) {
    if (const qsizetype behind = behindPassage(utf8, at); behind != at) {
      at = behind;
      continue;
    }
    ++at;
    // A declaration is gone into: the texts of entities may hold tags.
    if (at < utf8.size() && utf8[at] != '!') most = std::max(most, attributesOfTag(utf8, at, enough));
  }
  return most;
}

}  // namespace norvex::engine
