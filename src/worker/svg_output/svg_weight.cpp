#include "worker/svg_output/svg_weight.h"

#include <QByteArrayView>

#include <algorithm>

#include "protocol/limits.h"

namespace norvex::engine {

double SvgWeights::of(const QByteArray& text) const {
  auto weight = double(text.count('<'));
  for (qsizetype at = text.indexOf('#'); at >= 0; at = text.indexOf('#', at + 1)) {
    const QByteArrayView before = QByteArrayView(text).first(at);
    if (!before.endsWith("href=\"") && !before.endsWith("url(")) continue;  // a colour
    qsizetype end = at + 1;
    while (end < text.size() && text[end] != '"' && text[end] != ')') ++end;
    weight += weights_.value(text.mid(at + 1, end - at - 1));
  }
  return std::min(weight, 1e300);
}

bool hasEndlessAttribute(const QByteArray& text) {
  if (text.size() <= limits::maximumSvgAttribute) return false;
  for (qsizetype at = text.indexOf('"'); at >= 0;) {
    const qsizetype next = text.indexOf('"', at + 1);
    if ((next < 0 ? text.size() : next) - at > limits::maximumSvgAttribute + 100) return true;
    at = next;
  }
  return false;
}

}  // namespace norvex::engine
