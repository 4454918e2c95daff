#include "worker/pdf/pdf_numbers.h"

namespace norvex::engine {

QByteArray decimal(double value, int decimals) {
  QByteArray text = QByteArray::number(value, 'f', decimals);
  if (text.contains('.')) {
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
  }
  return text == "-0" ? QByteArray("0") : text;
}

QByteArray matrixText(const AffineTransform& matrix) {
  QByteArray text;
  for (const double entry : {matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22()})
    text += decimal(entry, 9) + ' ';
  return text + decimal(matrix.dx(), 5) + ' ' + decimal(matrix.dy(), 5);
}

}  // namespace norvex::engine
