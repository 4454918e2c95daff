#include "worker/examine/operands.h"

#include <cmath>
#include <map>
#include <string>

namespace norvex::engine {

std::vector<double> numbersOf(const std::vector<QPDFObjectHandle>& operands) {
  std::vector<double> numbers;
  numbers.reserve(operands.size());
  for (QPDFObjectHandle operand : operands) {
    if (!operand.isNumber()) continue;
    const double value = operand.getNumericValue();
    if (std::isfinite(value)) numbers.push_back(value);
  }
  return numbers;
}

std::optional<QRectF> rectOf(QPDFObjectHandle array) {
  if (!array.isArray() || array.getArrayNItems() != 4) return std::nullopt;
  const std::vector<double> n = numbersOf(array.getArrayAsVector());
  if (n.size() != 4) return std::nullopt;
  return QRectF(QPointF(n[0], n[1]), QPointF(n[2], n[3])).normalized();
}

AffineTransform matrixOf(QPDFObjectHandle array) {
  if (!array.isArray() || array.getArrayNItems() != 6) return {};
  const std::vector<double> n = numbersOf(array.getArrayAsVector());
  if (n.size() != 6) return {};
  return {n[0], n[1], n[2], n[3], n[4], n[5]};
}

QPDFObjectHandle inlineImageOf(const std::vector<QPDFObjectHandle>& operands) {
  static const std::map<std::string, std::string> full{{"/W", "/Width"},
                                                       {"/H", "/Height"},
                                                       {"/BPC", "/BitsPerComponent"},
                                                       {"/CS", "/ColorSpace"},
                                                       {"/IM", "/ImageMask"}};
  QPDFObjectHandle image = QPDFObjectHandle::newDictionary();
  for (size_t i = 0; i + 1 < operands.size(); i += 2) {
    QPDFObjectHandle key = operands[i];
    if (!key.isName()) break;
    const auto at = full.find(key.getName());
    image.replaceKey(at == full.end() ? key.getName() : at->second, operands[i + 1]);
  }
  return image;
}

double leastScale(const AffineTransform& m) {
  // The smaller singular value.
  const double a = std::hypot(m.m11() + m.m22(), m.m12() - m.m21());
  const double b = std::hypot(m.m11() - m.m22(), m.m12() + m.m21());
  return std::abs(a - b) / 2;
}

}  // namespace norvex::engine
