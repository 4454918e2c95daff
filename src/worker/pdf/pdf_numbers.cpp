#include "worker/pdf/pdf_numbers.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace norvex::engine {
namespace {

constexpr std::int64_t kUnits = 1'000'000;  // of the last decimal
constexpr int kDecimals = 6;
constexpr double kLargestInUnits = 9e12;

}  // namespace

QByteArray decimal(double value, int decimals) {
  QByteArray text = QByteArray::number(value, 'f', decimals);
  if (text.contains('.')) {
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
  }
  return text == "-0" ? QByteArray("0") : text;
}

QByteArray significant(double value, int digits) {
  return QByteArray::number(value, 'g', digits);
}

void appendNumber(QByteArray& text, double number) {
  if (!(std::abs(number) <= double(std::numeric_limits<float>::max()))) number = 0;
  if (std::abs(number) > kLargestInUnits) {
    text += significant(number);
    return;
  }
  std::int64_t units = std::llround(number * double(kUnits));
  if (units < 0) text += '-';
  units = std::abs(units);
  std::array<char, 24> digits{};
  char* first = digits.data() + digits.size();
  std::int64_t fraction = units % kUnits, whole = units / kUnits;
  if (fraction != 0) {
    int decimals = kDecimals;
    for (; fraction % 10 == 0; fraction /= 10) --decimals;
    for (; decimals > 0; --decimals, fraction /= 10) *--first = char('0' + fraction % 10);
    *--first = '.';
  }
  do *--first = char('0' + whole % 10);
  while ((whole /= 10) != 0);
  text.append(first, digits.data() + digits.size() - first);
}

QByteArray matrixText(const AffineTransform& matrix) {
  QByteArray text;
  for (const double entry : {matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22()})
    text += decimal(entry, 9) + ' ';
  return text + decimal(matrix.dx(), 5) + ' ' + decimal(matrix.dy(), 5);
}

}  // namespace norvex::engine
